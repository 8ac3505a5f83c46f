// The drawings of the example program: what undo brings back, what a pointer hits, what is drawn, and which files are
// refused.
#include "../sketch/drawing.h"
#include "pixels.h"
#include "quiet_program.h"

#include <climits>
#include <functional>
#include <string>

namespace {

const FigureStyle red{6, FigureStyle::no_fill, 0, 1}, filled{0, 3, 0, 10};

Drawing with_one_of_each() {
    Drawing drawing;
    drawing.Add(std::make_shared<CLineFigure>(CPoint(0, 0), CPoint(500, 500), red));
    drawing.Add(std::make_shared<CRectangleFigure>(CPoint(1000, 1000), CPoint(600, 1400), filled));
    drawing.Add(std::make_shared<CEllipseFigure>(CPoint(1000, 100), CPoint(1400, 300), filled));
    drawing.Add(std::make_shared<CFreeHandFigure>(std::vector{CPoint(10, 10), CPoint(20, 50), CPoint(30, 10)}, red));
    drawing.Add(std::make_shared<CTextFigure>(CPoint(2000, 500), 100, "Pump 7", red));
    return drawing;
}

// The bytes that are written, behind others.
std::string written(const std::function<void(CArchive&)>& write, const std::string& head = "") {
    CMemFile file;
    file.Write(head.data(), static_cast<UINT>(head.size()));
    CArchive archive(&file, CArchive::store);
    write(archive);
    archive.Close();
    std::string bytes(static_cast<std::size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

std::string stored(Drawing& drawing) {
    return written([&](CArchive& archive) { drawing.Serialize(archive); });
}

// False where an archive's exception refuses the file; any other exception fails the test.
bool load(Drawing& drawing, std::string bytes) {
    CMemFile file(reinterpret_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    try {
        CArchive archive(&file, CArchive::load);
        drawing.Serialize(archive);
        return true;
    } catch (CArchiveException* exception) {
        exception->Delete();
        return false;
    }
}

TEST(SketchFile, IsReadBackAsItWasWritten) {
    Drawing drawing = with_one_of_each(), loaded;
    drawing.SetSheet(CSize(1000, 5000));
    drawing.Add(std::make_shared<CTextFigure>(CPoint(9000, 19990), 1000, CString('W', 200), red)); // past the bounds
    const std::string bytes = stored(drawing);
    ASSERT_TRUE(load(loaded, bytes));
    EXPECT_EQ(stored(loaded), bytes);
    EXPECT_EQ(loaded.Sheet(), CSize(1000, 5000));
    EXPECT_FALSE(loaded.IsModified() || loaded.CanUndo());
}

TEST(SketchFile, CutOffAnywhereIsRefusedAndChangesNothing) {
    Drawing drawing = with_one_of_each(), shown = with_one_of_each();
    const std::string bytes = stored(drawing), before = stored(shown);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(load(shown, bytes.substr(0, length))) << length;
    EXPECT_EQ(stored(shown), before);
}

// Whatever a damaged byte makes of it: it is refused, or it is a drawing that can be drawn and stored again.
TEST(SketchFile, WithADamagedByteDoesNoHarm) {
    Drawing drawing = with_one_of_each();
    const std::string bytes = stored(drawing);
    const Picture paper(100, 100);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (const int bits : {0x01, 0x80, 0xFF}) {
            std::string damaged = bytes;
            damaged[at] = static_cast<char>(damaged[at] ^ bits);
            Drawing loaded;
            if (!load(loaded, damaged))
                continue;
            Canvas canvas(*CDC::FromHandle(paper.dc()), CSize(100, 100), CPoint(0, 0), 0.05);
            loaded.Draw(canvas);
            EXPECT_TRUE(load(loaded, stored(loaded))) << at;
        }
    }
}

TEST(SketchFile, WithWhatNoDrawingHasIsRefused) {
    Drawing nothing;
    std::string head = stored(nothing);
    head.resize(head.size() - 2); // without the count of figures
    const auto file_of = [&](const std::function<void(CArchive&)>& write) { return written(write, head); };
    CLineFigure line(CPoint(0, 0), CPoint(1, 1), red), far_away(CPoint(0, 0), CPoint(1, 20001), red),
        farthest(CPoint(0, LONG_MIN), CPoint(1, 1), red), odd_colour(CPoint(0, 0), CPoint(1, 1), {16, 0, 0, 1}),
        too_wide(CPoint(0, 0), CPoint(1, 1), {0, 0, 0, 51});
    CTextFigure low(CPoint(0, 0), 1, "low", red), empty(CPoint(0, 0), 100, "", red);
    CStringList stranger;
    Drawing drawing;
    const auto one = [&](CObject& object) { return file_of([&](CArchive& ar) { ar.WriteCount(1), ar << &object; }); };
    ASSERT_TRUE(load(drawing, one(line)));
    CObject* const wrong[] = {&far_away, &farthest, &odd_colour, &too_wide, &low, &empty, &stranger};
    for (CObject* object : wrong)
        EXPECT_FALSE(load(drawing, one(*object))) << object->GetRuntimeClass()->m_lpszClassName;
    EXPECT_FALSE(load(drawing, file_of([&](CArchive& ar) { ar.WriteCount(2), ar << &line << &line; })))
        << "owned twice";
    EXPECT_FALSE(load(drawing, file_of([&](CArchive& ar) { ar.WriteCount(1), ar << static_cast<CObject*>(nullptr); })));
    EXPECT_FALSE(load(drawing, file_of([&](CArchive& ar) { ar.WriteCount(0xFFFFFFF0); })));
}

TEST(SketchHistory, GoesBackAndForthAndKnowsWhatWasSaved) {
    Drawing drawing;
    std::vector<std::string> states = {stored(drawing)};
    const auto note = [&] { states.push_back(stored(drawing)); };
    drawing.Add(std::make_shared<CLineFigure>(CPoint(0, 0), CPoint(9, 9), red)), note();
    drawing.Add(std::make_shared<CLineFigure>(CPoint(5, 0), CPoint(9, 9), red)), note();
    const FigurePtr first = drawing.Figures()[0];
    drawing.Replace(first, first->Moved(CSize(100, 0))), note();
    drawing.SetSheet(CSize(500, 500)), note();
    drawing.SetSaved();
    drawing.Remove(drawing.Figures()[0]), note();
    EXPECT_TRUE(drawing.IsModified());
    for (std::size_t i = states.size(); i-- > 1; drawing.Undo())
        EXPECT_EQ(stored(drawing), states[i]) << i;
    EXPECT_FALSE(drawing.CanUndo());
    for (std::size_t i = 0; i < states.size(); ++i, drawing.Redo()) {
        EXPECT_EQ(stored(drawing), states[i]) << i;
        EXPECT_EQ(drawing.IsModified(), i != 4) << i;
    }
    for (int i = 0; i < 3; ++i)
        drawing.Undo();
    drawing.Remove(drawing.Figures()[1]); // what was saved can no longer be come back to
    for (; drawing.CanUndo(); drawing.Undo())
        EXPECT_TRUE(drawing.IsModified());
}

TEST(SketchFigures, AreHitWhereTheyAreDrawn) {
    const Drawing drawing = with_one_of_each();
    const auto& f = drawing.Figures();
    const std::pair<CPoint, FigurePtr> cases[] = {{CPoint(300, 303), f[0]},     {CPoint(300, 320), nullptr},
                                                  {CPoint(800, 1200), f[1]},    {CPoint(594, 1200), f[1]},
                                                  {CPoint(580, 1200), nullptr}, {CPoint(1200, 200), f[2]},
                                                  {CPoint(1010, 290), nullptr}, {CPoint(20, 48), f[3]},
                                                  {CPoint(2050, 550), f[4]},    {CPoint(2050, 450), nullptr}};
    for (const auto& [at, hit] : cases)
        EXPECT_EQ(drawing.At(at, 4), hit) << at.x << ", " << at.y;
    const CRect moved = f[1]->Moved(CSize(100000, -50))->Bounds();
    EXPECT_EQ(moved, CRect(CFigure::farthest - 400, 950, CFigure::farthest, 1350)) << "it stops at the bounds";
}

// Pixels of a memory bitmap on which a line of a width and a pattern was drawn.
int inked(const FigureStyle& style, double scale) {
    Picture paper(420, 60);
    paper.clear(RGB(255, 255, 255));
    {
        Canvas canvas(*CDC::FromHandle(paper.dc()), CSize(420, 60), CPoint(10, 30), scale);
        CLineFigure(CPoint(0, 0), CPoint(static_cast<int>(400 / scale), 0), style).Draw(canvas);
    }
    return static_cast<int>(420 * 60 - paper.count(RGB(255, 255, 255)));
}

TEST(SketchCanvas, DrawsWidthsAndPatterns) {
    EXPECT_NEAR(inked({0, -1, 0, 1}, 1.0), 400, 2);
    EXPECT_NEAR(inked({1, -1, 0, 1}, 1.0), 0, 0) << "white is a colour, too";
    EXPECT_NEAR(inked({0, -1, 0, 10}, 1.0), 4000, 150);
    EXPECT_NEAR(inked({0, -1, 0, 5}, 2.0), 4000, 150) << "a line grows with the scale";
    for (int pattern = 1; pattern < FigureStyle::patterns; ++pattern) {
        EXPECT_NEAR(inked({0, -1, pattern, 1}, 1.0), 250, 129) << pattern;
        EXPECT_NEAR(inked({0, -1, pattern, 10}, 1.0), 2600, 1099) << pattern;
    }
}

} // namespace

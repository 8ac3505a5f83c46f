// Device contexts and what is selected into them.
#include "afx_test_app.h"

#include <set>

namespace {

struct AfxDeviceContext : testing::Test {
    canvas dc{100, 100};
};

TEST_F(AfxDeviceContext, GivesBackWhatWasSelected) {
    CPen pen(PS_SOLID, 3, RGB(255, 0, 0));
    CBrush brush(HS_CROSS, RGB(0, 0, 255));
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "Arial", &dc));
    CPen* old_pen = dc.SelectObject(&pen);
    CBrush* old_brush = dc.SelectObject(&brush);
    CFont* old_font = dc.SelectObject(&font);
    EXPECT_TRUE(dc.GetCurrentPen() == &pen && dc.GetCurrentFont() == &font);
    EXPECT_TRUE(dc.SelectObject(old_pen) == &pen && dc.SelectObject(old_brush) == &brush &&
                dc.SelectObject(old_font) == &font);
    EXPECT_TRUE(dc.SelectStockObject(BLACK_PEN)->IsKindOf(RUNTIME_CLASS(CPen)));
    LOGPEN described;
    pen.GetLogPen(&described);
    EXPECT_EQ(described.lopnColor, RGB(255, 0, 0));
    EXPECT_FALSE(pen.CreatePen(PS_SOLID, 1, RGB(0, 0, 0))) << "it holds one already";
    const HGDIOBJ gone = pen.m_hObject;
    EXPECT_TRUE(pen.DeleteObject() && !pen.DeleteObject() && ::GetObjectType(gone) == 0);
}

TEST_F(AfxDeviceContext, DragRectanglesVanishAgain) {
    dc.FillSolidRect(0, 0, 100, 100, RGB(12, 34, 56));
    const CRect first(10, 10, 60, 60), second(20, 20, 70, 70);
    dc.DrawDragRect(first, CSize(2, 2), nullptr, CSize(0, 0));
    EXPECT_TRUE(dc.GetPixel(10, 10) != RGB(12, 34, 56) || dc.GetPixel(11, 10) != RGB(12, 34, 56));
    dc.DrawDragRect(second, CSize(2, 2), first, CSize(2, 2));
    CBrush solid(RGB(255, 255, 255)), grey(RGB(128, 128, 128));
    dc.DrawDragRect(first, CSize(3, 1), second, CSize(2, 2), &solid, CDC::GetHalftoneBrush());
    EXPECT_TRUE(dc.GetPixel(20, 69) == RGB(12, 34, 56) && dc.GetPixel(12, 58) == RGB(243, 221, 199));
    dc.DrawDragRect(CRect(0, 0, 0, 0), CSize(2, 2), first, CSize(3, 1), &grey, &solid);
    int changed = 0;
    for (int i = 0; i < 100 * 100; ++i)
        changed += dc.GetPixel(i % 100, i / 100) != RGB(12, 34, 56);
    EXPECT_EQ(changed, 0);
}

TEST_F(AfxDeviceContext, MapsUnitsOfLength) {
    const int inch = dc.GetDeviceCaps(LOGPIXELSX);
    for (const auto& [mode, units] : {std::pair{MM_LOENGLISH, 100}, {MM_HIENGLISH, 1000}, {MM_TWIPS, 1440}}) {
        ASSERT_NE(dc.SetMapMode(mode), 0);
        CPoint point(units, -units); // y grows upwards
        CSize size(units, units);    // always positive
        dc.LPtoDP(&point);
        dc.LPtoDP(&size);
        for (const int length : {point.x, point.y, size.cx, size.cy})
            EXPECT_NEAR(length, inch, 1) << mode;
    }
    dc.SetMapMode(MM_TEXT);
    CSize size(2540, 2540);
    dc.HIMETRICtoLP(&size);
    EXPECT_EQ(size, CSize(inch, dc.GetDeviceCaps(LOGPIXELSY)));
    dc.LPtoHIMETRIC(&size);
    EXPECT_EQ(size, CSize(2540, 2540));
    dc.SetMapMode(MM_ISOTROPIC);
    dc.SetWindowExt(10, 10);
    dc.SetViewportExt(50, 100);
    EXPECT_EQ(dc.GetViewportExt(), CSize(50, 50)) << "the same in both directions";
    EXPECT_EQ(dc.ScaleWindowExt(2, 1, 2, 1), CSize(10, 10));
    EXPECT_EQ(dc.GetWindowExt(), CSize(20, 20));
    EXPECT_EQ(dc.OffsetViewportOrg(3, 4), CPoint(0, 0));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(3, 4));
}

TEST_F(AfxDeviceContext, SplitsOutputFromAttributes) {
    canvas other(100, 100);
    CDC split; // draws on one, measures on the other
    split.SetOutputDC(dc);
    split.SetAttribDC(other);
    CFont small, large;
    small.CreatePointFont(80, "Arial");
    large.CreatePointFont(240, "Arial");
    split.SelectObject(&large); // into both
    EXPECT_EQ(split.GetTextExtent("x"), split.GetOutputTextExtent("x"));
    CFont* before = other.SelectObject(&small);
    EXPECT_LT(split.GetTextExtent("x").cy, split.GetOutputTextExtent("x").cy);
    split.MoveTo(5, 5);
    split.LineTo(7, 9);
    EXPECT_TRUE(split.GetCurrentPosition() == CPoint(7, 9) && other.GetCurrentPosition() == CPoint(7, 9));
    const POINT way[] = {{8, 1}, {2, 9}, {6, 12}};
    std::vector<CPoint> ends;
    const std::function<BOOL()> lines[] = {
        [&] { return split.PolylineTo(way, 2); }, [&] { return split.PolyBezierTo(way, 3); },
        [&] { return split.ArcTo(CRect(10, 20, 31, 41), CPoint(40, 30), CPoint(20, 0)); }};
    for (const auto& draw : lines) {
        EXPECT_TRUE(draw());
        EXPECT_EQ(split.GetCurrentPosition(), dc.GetCurrentPosition());
        ends.push_back(split.GetCurrentPosition());
    }
    EXPECT_THAT(ends, testing::ElementsAre(CPoint(2, 9), CPoint(6, 12), CPoint(20, 20)));
    split.BeginPath();
    split.Rectangle(10, 20, 31, 41);
    split.EndPath();
    CRect clips[2];
    EXPECT_TRUE(split.SelectClipPath(RGN_COPY) && other.GetClipBox(clips[0]) && dc.GetClipBox(clips[1]));
    EXPECT_THAT(clips, testing::Each(CRect(10, 20, 30, 40)));
    EXPECT_NE(split.SetTextColor(RGB(1, 2, 3)), RGB(1, 2, 3));
    EXPECT_EQ(dc.GetTextColor(), RGB(1, 2, 3));
    split.SaveDC();
    split.SetBkMode(TRANSPARENT);
    EXPECT_TRUE(split.RestoreDC(-1) && dc.GetBkMode() == OPAQUE && other.GetBkMode() == OPAQUE);
    other.SelectObject(before);
    dc.SelectStockObject(SYSTEM_FONT);
    split.ReleaseOutputDC();
    split.ReleaseAttribDC();
}

TEST_F(AfxDeviceContext, BrushesAndEdgesDrawWhatTheySay) {
    CBitmap pattern;
    const WORD rows[8] = {0xF0F0, 0xF0F0, 0xF0F0, 0xF0F0, 0xF0F0, 0xF0F0, 0xF0F0, 0xF0F0};
    ASSERT_TRUE(pattern.CreateBitmap(8, 8, 1, 1, rows));
    CBrush striped(&pattern);
    dc.SetTextColor(RGB(255, 0, 0));
    dc.SetBkColor(RGB(0, 255, 0));
    dc.FillRect(CRect(0, 0, 40, 40), &striped);
    std::set<COLORREF> seen;
    for (int x = 0; x < 8; ++x)
        seen.insert(dc.GetPixel(x, 3));
    EXPECT_EQ(seen, (std::set<COLORREF>{RGB(255, 0, 0), RGB(0, 255, 0)}));
    dc.Draw3dRect(CRect(50, 50, 60, 60), RGB(1, 1, 1), RGB(2, 2, 2));
    EXPECT_TRUE(dc.GetPixel(50, 58) == RGB(1, 1, 1) && dc.GetPixel(58, 50) == RGB(1, 1, 1));
    EXPECT_TRUE(dc.GetPixel(50, 59) == RGB(2, 2, 2) && dc.GetPixel(59, 50) == RGB(2, 2, 2));
    for (const auto& [x, y] : {std::pair{51, 51}, {58, 51}, {51, 58}, {58, 58}, {60, 60}, {49, 50}})
        EXPECT_EQ(dc.GetPixel(x, y), RGB(255, 255, 255)) << "inside and outside stay " << x << ' ' << y;
    dc.SetPixel(80, 80, RGB(9, 9, 9));
    dc.FillSolidRect(70, 70, 5, 5, RGB(9, 9, 9));
    canvas copy(10, 10);
    copy.StretchBlt(0, 0, 10, 10, &dc, 70, 70, 5, 5, SRCCOPY);
    EXPECT_EQ(copy.GetPixel(9, 9), RGB(9, 9, 9));
    dc.TransparentBlt(0, 60, 10, 10, &copy, 0, 0, 10, 10, RGB(9, 9, 9));
    EXPECT_EQ(dc.GetPixel(5, 65), RGB(255, 255, 255)) << "all of it is seen through";
    copy.PatBlt(0, 0, 10, 10, BLACKNESS);
    dc.AlphaBlend(0, 60, 10, 10, &copy, 0, 0, 10, 10, {AC_SRC_OVER, 0, 51, 0});
    EXPECT_EQ(dc.GetPixel(5, 65), RGB(204, 204, 204)) << "a fifth of black over white";
}

TEST_F(AfxDeviceContext, ShortensTextsAndMeasuresGlyphs) {
    CFont font;
    font.CreatePointFont(200, "Arial");
    CFont* before = dc.SelectObject(&font);
    DRAWTEXTPARAMS margins{sizeof(margins), 8, 10, 0, 0};
    char path[64] = "C:\\a folder\\with a file.txt";
    dc.DrawTextEx(path, -1, CRect(0, 0, 100, 40), DT_END_ELLIPSIS | DT_MODIFYSTRING, &margins);
    EXPECT_STREQ(path + std::strlen(path) - 3, "...");
    CRect place(0, 0, 1, 1);
    dc.DrawTextEx(CString("x"), place, DT_CALCRECT, &margins);
    EXPECT_EQ(place.Width(), dc.GetTextExtent("x").cx + 10) << "and the left margin";
    dc.SelectObject(before);
}

} // namespace

#include <zopwnt.h>

#include <gmock/gmock.h>

#include "bitmap_files.h"
#include "pixels.h"
#include "quiet_program.h"
#include "temporary_file.h"

namespace {

QuietProgram program;

constexpr int colours = 20;

struct PaletteFile {
    std::uint32_t form = 0x204C4150; // "PAL "
    std::uint32_t id = 0x61746164;   // "data"
    std::uint32_t held = colours;
    std::uint32_t chunk = 4 + 4 * held;
    std::uint32_t version = 0x300;
    std::uint32_t count = held;

    Bytes bytes() const {
        Bytes file = {'R', 'I', 'F', 'F'};
        for (std::uint32_t value : {16 + 4 * held, form, id, chunk, version | count << 16})
            BitmapFile::put(file, value, 4);
        for (std::uint32_t i = 0; i < 4 * held; ++i)
            file.push_back(i % 4 == 3 ? 0 : BitmapFile::colour_byte(i / 4, 2 - i % 4));
        return file;
    }
};

COLORREF colour_of(int i) {
    return RGB(BitmapFile::colour_byte(i, 2), BitmapFile::colour_byte(i, 1), BitmapFile::colour_byte(i, 0));
}

COLORREF colour_of(const CPalette& palette, int i) {
    PALETTEENTRY entry = {};
    palette.GetPaletteEntries(static_cast<UINT>(i), 1, &entry);
    return RGB(entry.peRed, entry.peGreen, entry.peBlue);
}

// Also behind other things, and more than the multimedia layer buffers.
TEST(BitmapPalette, LoadsAndSavesPaletteFiles) {
    for (const auto& [start, count] : {std::pair{0, colours}, {100, 5000}}) {
        Bytes bytes = PaletteFile{.held = static_cast<std::uint32_t>(count)}.bytes();
        bytes.insert(bytes.begin(), static_cast<std::size_t>(start), 0xEE);
        const TemporaryFile disk(bytes);
        CFile file(disk.name(), CFile::modeReadWrite);
        CWntBitmapPalette palette;
        const int before = live_gdi_objects();
        for (int i = 0; i < 3; ++i) {
            file.Seek(start, CFile::begin);
            ASSERT_TRUE(palette.Load(&file));
        }
        EXPECT_EQ(live_gdi_objects(), before + 1); // each replaces the one before
        EXPECT_TRUE(palette.GetNumColors() == count && colour_of(palette, count - 1) == colour_of(count - 1));
        file.SetLength(static_cast<ULONGLONG>(start));
        file.Seek(start, CFile::begin);
        EXPECT_TRUE(palette.Save(&file));
        file.Close();
        EXPECT_EQ(disk.bytes(), bytes);
        CFile reading(disk.name(), CFile::modeRead);
        EXPECT_FALSE(palette.Save(&reading));
    }
    CWntBitmapPalette none;
    EXPECT_FALSE(none.Save(INVALID_HANDLE_VALUE) || none.Load(static_cast<HANDLE>(nullptr)) || none.GetNumColors());
}

TEST(BitmapPalette, RefusesFaultyFilesAndKeepsItsColours) {
    const TemporaryFile disk(PaletteFile().bytes());
    CWntBitmapPalette palette;
    ASSERT_TRUE(palette.Load(disk.name()));
    std::vector<PaletteFile> faults = {{.form = 0x45564157}, {.id = 0x20746164}, {.version = 0x301},
                                       {.count = 0},         {.count = 21},      {.count = 0xFFFF}};
    for (std::uint32_t chunk : {3U, 83U, 85U, 0x7FFF'FFF0U, 0xFFFF'FFFFU})
        faults.push_back({.chunk = chunk});
    std::vector<Bytes> files;
    for (const PaletteFile& fault : faults)
        files.push_back(fault.bytes());
    for (Bytes cut = PaletteFile().bytes(); !cut.empty(); files.push_back(cut))
        cut.pop_back();
    for (std::size_t i = 0; i < files.size(); ++i) {
        disk.write(files[i]);
        EXPECT_FALSE(palette.Load(disk.name())) << i;
        EXPECT_EQ(palette.GetNumColors(), colours);
    }
    disk.write(PaletteFile{.count = 7}.bytes()); // a chunk may be longer than its colours
    EXPECT_TRUE(palette.Load(disk.name()));
    EXPECT_EQ(palette.GetNumColors(), 7);
}

TEST(BitmapPalette, TakesABitmapsColours) {
    CWntBitmapPalette palette;
    EXPECT_FALSE(palette.Create(nullptr));
    for (const BitmapFile& file : {BitmapFile{8, 4, 4, false, 20}, BitmapFile{24, 4, 4}, BitmapFile{4, 4, 4, true},
                                   BitmapFile{24, 4, 4, false, 500}}) {
        const TemporaryFile disk(file.bytes());
        CWntBitmap bitmap;
        ASSERT_TRUE(bitmap.Load(disk.name()));
        const int count = static_cast<int>(file.colours());
        EXPECT_EQ(palette.Create(&bitmap) != 0, count > 0);
        EXPECT_TRUE(count == 0 || colour_of(palette, count - 1) == colour_of(count - 1));
    }
}

// 20 colours are a row of 16 cells and four more, framed; the rest of the ground is left alone.
TEST(BitmapPalette, DrawsItsCells) {
    constexpr COLORREF ground = RGB(9, 9, 9);
    const TemporaryFile disk(PaletteFile().bytes());
    CWntBitmapPalette palette;
    Picture picture(170, 165);
    picture.clear(ground);
    const CRect rect(4, 2, 164, 162); // cells of 10 x 10
    palette.Draw(CDC::FromHandle(picture.dc()), rect, TRUE);
    ASSERT_TRUE(palette.Load(disk.name()));
    palette.Draw(nullptr, rect, TRUE);
    EXPECT_EQ(picture.ink(ground).right, -1);
    palette.Draw(CDC::FromHandle(picture.dc()), rect, TRUE);
    for (int i = 0; i < 256; ++i) {
        const int x = 4 + i % 16 * 10;
        const int y = 164 - (2 + i / 16 * 10);
        EXPECT_EQ(picture.at(x + 5, y - 5), i < colours ? colour_of(i) : ground) << i;
        EXPECT_EQ(picture.at(x + 10, y - 10), i < colours ? RGB(0, 0, 0) : ground) << i;
    }
    const RECT ink = picture.ink(ground);
    EXPECT_THAT((std::vector<LONG>{ink.left, ink.top, ink.right, ink.bottom}), testing::ElementsAre(4, 162, 164, 142));
}

TEST(BitmapPaletteScreen, GoesIntoTheSystemPalette) {
    const TemporaryFile disk(PaletteFile().bytes());
    CWntBitmapPalette palette;
    EXPECT_FALSE(palette.SetSysPalColors());
    ASSERT_TRUE(palette.Load(disk.name()));
    HDC screen = ::GetDC(nullptr);
    const bool has_palette = (::GetDeviceCaps(screen, RASTERCAPS) & RC_PALETTE) != 0;
    EXPECT_EQ(palette.SetSysPalColors() != 0, has_palette);
    for (int i = 0; i < colours && has_palette; ++i) { // behind the first static colours come the file's
        PALETTEENTRY system = {}, own = {};
        ::GetSystemPaletteEntries(screen, static_cast<UINT>(i), 1, &system);
        palette.GetPaletteEntries(static_cast<UINT>(i), 1, &own);
        const COLORREF expected = i < 10 ? RGB(system.peRed, system.peGreen, system.peBlue) : colour_of(i - 10);
        EXPECT_TRUE(colour_of(palette, i) == expected && own.peFlags == (i < 10 ? 0 : PC_NOCOLLAPSE)) << i;
    }
    ::ReleaseDC(nullptr, screen);
}

// Without a path the user is asked, and cancels.
TEST(BitmapPaths, AreAskedForAndFailuresTold) {
    class Unsaved : public CWntBitmap {
        BOOL Save(CFile*) override { return FALSE; }
    } unsaved;
    CWntBitmap& bitmap = unsaved;
    CWntBitmapPalette palette;
    static int cancelled = 0;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
        if (HWND dialog = ::FindWindowA("#32770", nullptr); ::IsWindowVisible(dialog)) {
            ++cancelled;
            ::SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        }
    });
    EXPECT_FALSE(bitmap.Load(static_cast<LPCTSTR>(nullptr)) || bitmap.Save("") || palette.Load(""));
    ::KillTimer(nullptr, timer);
    EXPECT_EQ(cancelled, 3);
    program.boxes.clear();
    const TemporaryFile disk;
    EXPECT_FALSE(bitmap.Load("no such.bmp") || bitmap.Save("no such folder\\x.bmp") || bitmap.Save(disk.name()) ||
                 palette.Load("no such.pal") || palette.Load(disk.name()));
    EXPECT_THAT(program.boxes, testing::ElementsAre("Failed to open file", "Failed to save file", "Failed to open file",
                                                    "Failed to load file"));
}

} // namespace

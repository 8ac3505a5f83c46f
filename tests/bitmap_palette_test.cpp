#include <zopwnt.h>

#include <gmock/gmock.h>

#include "bitmap_files.h"
#include "memory_file.h"
#include "pixels.h"
#include "temporary_file.h"
#include "unattended_app.h"

namespace {

using testing::ElementsAre;

struct PaletteFile {
    std::uint32_t form = 0x204C4150; // "PAL "
    std::uint32_t id = 0x61746164;   // "data"
    std::uint32_t chunk = 4 + 4 * 20;
    std::uint32_t version = 0x300;
    std::uint32_t count = 20;

    Bytes bytes(int entries = 20) const {
        Bytes file = {'R', 'I', 'F', 'F'};
        BitmapFile::put(file, static_cast<std::uint32_t>(16 + 4 * entries), 4);
        for (std::uint32_t value : {form, id, chunk})
            BitmapFile::put(file, value, 4);
        BitmapFile::put(file, version, 2);
        BitmapFile::put(file, count, 2);
        for (int i = 0; i < entries; ++i)
            for (int part : {0, 1, 2, 3})
                file.push_back(part == 3 ? 0 : BitmapFile::colour_byte(i, 2 - part));
        return file;
    }
};

COLORREF colour_of(int i) {
    return RGB(BitmapFile::colour_byte(i, 2), BitmapFile::colour_byte(i, 1), BitmapFile::colour_byte(i, 0));
}

TEST(BitmapPalette, LoadsAndSavesPaletteFiles) {
    const Bytes bytes = PaletteFile().bytes();
    const TemporaryFile disk("palette_test.pal", bytes);
    CWntBitmapPalette palette;
    EXPECT_EQ(palette.GetNumColors(), 0);
    const int before = live_gdi_objects();
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(palette.Load(disk.name()));
    EXPECT_EQ(live_gdi_objects(), before + 1); // each replaces the one before
    EXPECT_EQ(palette.GetNumColors(), 20);
    PALETTEENTRY entry;
    palette.GetPaletteEntries(19, 1, &entry);
    EXPECT_EQ(RGB(entry.peRed, entry.peGreen, entry.peBlue), colour_of(19));

    CFile file("palette_test.pal", CFile::modeCreate | CFile::modeReadWrite);
    EXPECT_TRUE(palette.Save(&file));
    EXPECT_EQ(file.GetLength(), bytes.size()); // still open
    file.SeekToBegin();
    EXPECT_TRUE(palette.Load(&file));
    file.Close();
    EXPECT_EQ(disk.bytes(), bytes);
    CWntBitmapPalette none;
    EXPECT_FALSE(none.Save(static_cast<CFile*>(nullptr)));
    EXPECT_FALSE(none.Save(INVALID_HANDLE_VALUE));
    EXPECT_FALSE(none.Load(static_cast<HANDLE>(nullptr)));
    EXPECT_FALSE(none.Load(static_cast<HMMIO>(nullptr)));
}

TEST(BitmapPalette, RefusesFaultyFilesAndKeepsItsColours) {
    const TemporaryFile disk("palette_test.pal", PaletteFile().bytes());
    CWntBitmapPalette palette;
    ASSERT_TRUE(palette.Load(disk.name()));
    std::vector<Bytes> faulty = {PaletteFile{.form = 0x45564157}.bytes(),   PaletteFile{.id = 0x20746164}.bytes(),
                                 PaletteFile{.version = 0x301}.bytes(),     PaletteFile{.count = 0}.bytes(),
                                 PaletteFile{.count = 21}.bytes(),          PaletteFile{.count = 0xFFFF}.bytes(),
                                 PaletteFile{.chunk = 3}.bytes(),           PaletteFile{.chunk = 83}.bytes(),
                                 PaletteFile{.chunk = 0xFFFF'FFFF}.bytes(), PaletteFile{.chunk = 0x7FFF'FFF0}.bytes(),
                                 PaletteFile{.chunk = 85}.bytes()};
    for (std::size_t length = 0; length < 104; ++length)
        faulty.push_back(Bytes(faulty[0].size(), 0)), faulty.back() = PaletteFile().bytes(),
                                                      faulty.back().resize(length);
    unattended_app.texts.clear();
    for (std::size_t i = 0; i < faulty.size(); ++i) {
        disk.write(faulty[i]);
        EXPECT_FALSE(palette.Load(disk.name())) << i;
        EXPECT_EQ(palette.GetNumColors(), 20);
    }
    EXPECT_THAT(unattended_app.texts, testing::Each("Failed to load file"));
    EXPECT_FALSE(palette.Load("no such file.pal"));
    EXPECT_EQ(unattended_app.texts.back(), "Failed to open file");
    const DialogCanceller canceller;
    EXPECT_FALSE(palette.Load(""));
    EXPECT_EQ(DialogCanceller::cancelled, 1);
    PaletteFile longer; // a chunk may be longer than its colours
    longer.count = 7;
    disk.write(longer.bytes());
    EXPECT_TRUE(palette.Load(disk.name()));
    EXPECT_EQ(palette.GetNumColors(), 7);
}

TEST(BitmapPalette, TakesABitmapsColours) {
    CWntBitmapPalette palette;
    EXPECT_FALSE(palette.Create(nullptr));
    const struct {
        BitmapFile file;
        int colours;
    } cases[] = {{{8, 4, 4}, 256},
                 {{8, 4, 4, false, 20}, 20},
                 {{1, 4, 4}, 2},
                 {{24, 4, 4}, 0},
                 {{4, 4, 4, true}, 16},
                 {{24, 4, 4, false, 500}, 500},
                 {{24, 4, 4, false, 70'000}, 0}};
    for (const auto& c : cases) {
        MemoryFile disk(c.file.bytes());
        CWntBitmap bitmap;
        ASSERT_TRUE(bitmap.Load(&disk));
        EXPECT_EQ(palette.Create(&bitmap) != 0, c.colours > 0);
        PALETTEENTRY entry = {};
        if (c.colours > 0) {
            EXPECT_EQ(palette.GetNumColors(), c.colours);
            palette.GetPaletteEntries(static_cast<UINT>(c.colours) - 1, 1, &entry);
            EXPECT_EQ(RGB(entry.peRed, entry.peGreen, entry.peBlue), colour_of(c.colours - 1));
        }
    }
}

// 20 colours are a row of 16 cells and four more, framed; the rest of the ground is left alone.
TEST(BitmapPalette, DrawsItsCells) {
    const TemporaryFile disk("palette_test.pal", PaletteFile().bytes());
    CWntBitmapPalette palette;
    Picture picture(170, 165);
    picture.clear(RGB(9, 9, 9));
    const CRect rect(4, 2, 164, 162); // 10 x 10 each
    palette.Draw(CDC::FromHandle(picture.dc()), rect, TRUE);
    ASSERT_TRUE(palette.Load(disk.name()));
    palette.Draw(nullptr, rect, TRUE);
    EXPECT_EQ(picture.ink(RGB(9, 9, 9)).right, -1);
    palette.Draw(CDC::FromHandle(picture.dc()), rect, TRUE);
    for (int i = 0; i < 256; ++i) {
        const int x = 4 + i % 16 * 10;
        const int y = 164 - (2 + i / 16 * 10);
        EXPECT_EQ(picture.at(x + 5, y - 5), i < 20 ? colour_of(i) : RGB(9, 9, 9)) << i;
        if (i < 20) {
            EXPECT_EQ(picture.at(x, y), RGB(0, 0, 0)) << i;
            EXPECT_EQ(picture.at(x + 10, y - 10), RGB(0, 0, 0)) << i;
        }
    }
    const RECT ink = picture.ink(RGB(9, 9, 9));
    EXPECT_THAT((std::vector<LONG>{ink.left, ink.top, ink.right, ink.bottom}), ElementsAre(4, 162, 164, 142));
}

TEST(BitmapPaletteScreen, GoesIntoTheSystemPalette) {
    const TemporaryFile disk("palette_test.pal", PaletteFile().bytes());
    CWntBitmapPalette palette;
    EXPECT_FALSE(palette.SetSysPalColors());
    ASSERT_TRUE(palette.Load(disk.name()));
    HDC screen = ::GetDC(nullptr);
    const bool has_palette = (::GetDeviceCaps(screen, RASTERCAPS) & RC_PALETTE) != 0;
    EXPECT_EQ(palette.SetSysPalColors() != 0, has_palette);
    PALETTEENTRY system[20], own[20];
    palette.GetPaletteEntries(0, 20, own);
    if (has_palette)
        ::GetSystemPaletteEntries(screen, 0, 20, system);
    for (int i = 0; i < 20 && has_palette; ++i) {
        EXPECT_EQ(RGB(own[i].peRed, own[i].peGreen, own[i].peBlue),
                  RGB(system[i].peRed, system[i].peGreen, system[i].peBlue));
        EXPECT_EQ(own[i].peFlags, i < 10 ? 0 : PC_NOCOLLAPSE);
    }
    ::ReleaseDC(nullptr, screen);
}

} // namespace

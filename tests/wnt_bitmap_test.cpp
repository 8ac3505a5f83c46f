// Bitmaps and palettes, and their files.
#include <cstring>

#include "bitmap_files.h"
#include "modal.h"
#include "quiet_program.h"
#include "pixels.h"
#include "temporary_file.h"

namespace {

using testing::ElementsAre;
constexpr DWORD all_pixels = 0xFFFFFFFF;

// Each pixel its own value.
void number(CWntBitmap& bitmap, int first = 1) {
    for (int y = 0; y < bitmap.GetHeight(); ++y)
        for (int x = 0; x < bitmap.GetWidth(); ++x)
            *bitmap.GetPixelAddress(x, y) = static_cast<BYTE>(first++);
}

std::string rows_of(const CWntBitmap& bitmap, int width, int height) {
    std::string text;
    for (int y = 0; y < height; ++y, text += '|')
        for (int x = 0; x < width; ++x)
            text += std::to_string(*bitmap.GetPixelAddress(x, y)) + ' ';
    return text;
}

TEST(WntBitmap, BeginsAsAGreyRamp) {
    CWntBitmap bitmap;
    EXPECT_TRUE(bitmap.GetWidth() == 16 && bitmap.GetHeight() == 16 && bitmap.GetClrTabAddress()[77].rgbGreen == 77);
    EXPECT_EQ(bitmap.Create(5, 3), TRUE);
    CRect area;
    bitmap.GetRect(&area);
    EXPECT_EQ(area, CRect(0, 0, 5, 3));
    EXPECT_EQ(bitmap.StorageWidth(), 8u);
    auto* bits = static_cast<BYTE*>(bitmap.GetBitsAddress());
    EXPECT_EQ(Bytes(bits, bits + 24), Bytes(24, 0));
    EXPECT_TRUE(bitmap.GetPixelAddress(0, 0) == bits + 16 && bitmap.GetPixelAddress(4, 2) == bits + 4);
    EXPECT_TRUE(!bitmap.GetPixelAddress(5, 0) && !bitmap.GetPixelAddress(0, 3));
    EXPECT_FALSE(bitmap.Create(-1, 4) || bitmap.Create(INT_MAX, INT_MAX) || bitmap.Create(65'536, 32'768));
    BITMAPINFO endless = {{40, 1, 1, 1, 24, BI_RGB, 0, 0, 0, 65'537, 0}, {}};
    EXPECT_FALSE(bitmap.Create(&endless, nullptr) || bitmap.Load(148U)); // a resource without a file's header
    bitmap.Draw(nullptr, 0, 0);                                          // nothing is kept, and nothing harms
    bitmap.CopyBits(&bitmap, 0, 0, 1, 1, 0, 0, all_pixels);
    CWntBitmapPalette palette;
    CWntBitmap ramp;
    ASSERT_TRUE(!ramp.MapColorsToPalette(&palette) && palette.Create(&ramp));
    EXPECT_FALSE(bitmap.MapColorsToPalette(&palette) || bitmap.GetBitsAddress() || bitmap.GetWidth());
}

TEST(WntBitmap, SavesEightBitsWithAFullTable) {
    CWntBitmap bitmap;
    bitmap.Create(3, 2);
    number(bitmap);
    const TemporaryFile disk(Bytes(99, 0xCC)); // a bitmap behind other things, the last of them in the archive
    CFile file(disk.name(), CFile::modeReadWrite);
    file.SeekToEnd();
    CArchive store(&file, CArchive::store);
    store << BYTE(7);
    bitmap.Serialize(store);
    file.Seek(99, CFile::begin);
    CArchive load(&file, CArchive::load);
    BYTE before = 0;
    load >> before;
    EXPECT_EQ(before, 7);
    CObject* made = CRuntimeClass::CreateObject("CWntBitmap");
    ASSERT_TRUE(made && made->IsSerializable());
    made->Serialize(load);
    EXPECT_EQ(rows_of(*static_cast<CWntBitmap*>(made), 3, 2), "1 2 3 |4 5 6 |");
    delete made;
    file.Close();
    const Bytes saved = disk.bytes();
    ASSERT_EQ(saved.size(), 100U + 1078 + 8);
    EXPECT_THAT(Bytes(saved.begin() + 100, saved.begin() + 114),
                ElementsAre('B', 'M', 0x3E, 4, 0, 0, 0, 0, 0, 0, 0x36, 4, 0, 0));
    EXPECT_THAT(Bytes(saved.end() - 8, saved.end()), ElementsAre(4, 5, 6, 0, 1, 2, 3, 0));

    CFile reading(disk.name(), CFile::modeRead);
    EXPECT_FALSE(bitmap.Save(&reading));
}

TEST(WntBitmap, CopiesBlocks) {
    CWntBitmap from, to;
    from.Create(5, 4);
    number(from);
    const auto copied = [&](int xd, int yd, int w, int h, int xs, int ys, DWORD transparent) {
        to.Create(3, 2);
        from.CopyBits(&to, xd, yd, w, h, xs, ys, transparent);
        return rows_of(to, 3, 2);
    };
    EXPECT_EQ(copied(0, 0, 3, 2, 2, 1, all_pixels), "8 9 10 |13 14 15 |");
    EXPECT_EQ(copied(1, 1, 2, 1, 0, 0, all_pixels), "0 0 0 |0 1 2 |");
    EXPECT_EQ(copied(0, 0, 3, 2, 0, 0, 0xFFFFFF06), "1 2 3 |0 7 8 |");
    const int outside[][6] = {{0, 0, 4, 1, 0, 0},       {0, 0, 1, 3, 0, 0},
                              {-1, 0, 1, 1, 0, 0},      {0, -1, 1, 1, 0, 0},
                              {0, 0, 1, 1, 0, 4},       {0, 0, 2, 1, 4, 0},
                              {0, 0, -1, 1, 2, 0},      {0, 0, 0, 1, 0, 0},
                              {0, 0, 1, INT_MIN, 0, 0}, {0, 0, INT_MAX, INT_MAX, 1, 1}};
    for (const auto& [xd, yd, w, h, xs, ys] : outside)
        for (DWORD transparent : {all_pixels, DWORD{0}})
            EXPECT_EQ(copied(xd, yd, w, h, xs, ys, transparent), "0 0 0 |0 0 0 |") << xd << ' ' << w;
    from.CopyBits(nullptr, 0, 0, 1, 1, 0, 0, all_pixels);
    from.CopyBits(&from, 1, 0, 4, 1, 0, 0, all_pixels); // a row onto itself
    EXPECT_EQ(rows_of(from, 5, 1), "1 1 2 3 4 |");
    CWntBitmap shifted; // over the same memory
    ASSERT_TRUE(shifted.Create(from.GetBitmapInfoAddress(), from.GetPixelAddress(1, 3)));
    from.CopyBits(&shifted, 0, 3, 4, 1, 0, 3, all_pixels);
    EXPECT_EQ(rows_of(from, 5, 4), "1 1 2 3 4 |6 7 8 9 10 |11 12 13 14 15 |16 16 17 18 19 |");

    // Made anew over its own pixels it keeps them; over the caller's it takes as many as the new header asks for.
    ASSERT_TRUE(from.Create(from.GetBitmapInfoAddress(), from.GetBitsAddress()));
    EXPECT_EQ(rows_of(from, 5, 1), "1 1 2 3 4 |");
    BITMAPINFO* info = shifted.GetBitmapInfoAddress();
    const BYTE* pixel = from.GetPixelAddress(0, 0);
    info->bmiHeader.biHeight = 1;
    ASSERT_TRUE(shifted.Create(info, from.GetPixelAddress(0, 3)));
    info = shifted.GetBitmapInfoAddress();
    info->bmiHeader.biHeight = 4;
    ASSERT_TRUE(shifted.Create(info, from.GetPixelAddress(0, 3)));
    shifted.CopyBits(&to, 0, 0, 3, 2, 0, 0, all_pixels);
    EXPECT_EQ(rows_of(to, 3, 2), "1 1 2 |6 7 8 |");
    EXPECT_EQ(pixel, from.GetPixelAddress(0, 0));
}

TEST(WntBitmap, MapsItsColoursToAPalette) {
    CWntBitmap bitmap;
    bitmap.Create(9, 1);
    number(bitmap, 60); // greys
    EXPECT_EQ(bitmap.MapColorsToPalette(nullptr), FALSE);
    struct {
        WORD version = 0x300, count = 3;
        PALETTEENTRY entries[3] = {{255, 20, 10, 0}, {62, 62, 62, 0}, {67, 67, 67, 0}};
    } colours;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(&colours)));
    bitmap.GetClrTabAddress()[1].rgbReserved = 9;
    EXPECT_EQ(bitmap.MapColorsToPalette(&palette), TRUE);
    EXPECT_EQ(rows_of(bitmap, 9, 1), "1 1 1 1 1 2 2 2 2 |");
    const auto* table = reinterpret_cast<const BYTE*>(bitmap.GetClrTabAddress());
    EXPECT_THAT(Bytes(table, table + 8), ElementsAre(10, 20, 255, testing::_, 62, 62, 62, 9));

    const TemporaryFile disk(BitmapFile{8, 16, -5}.bytes()); // the upper row first, and all of it
    ASSERT_TRUE(bitmap.Load(disk.name()) && bitmap.MapColorsToPalette(&palette));
    const auto* bits = static_cast<const BYTE*>(bitmap.GetBitsAddress());
    EXPECT_THAT(Bytes(bits, bits + 80), testing::Each(testing::Lt(3)));
}

// Two pixels, red and green, by masks that are not the usual ones; from a file, and from a header with them.
TEST(WntBitmap, ReadsBitFieldsByTheirMasks) {
    const std::tuple<int, std::vector<std::uint32_t>, Bytes> cases[] = {
        {16, {0x001F, 0x07E0, 0xF800}, {0x1F, 0, 0xE0, 0x07}},
        {32, {0x0000FF00, 0x00FF0000, 0xFF000000}, {0, 255, 0, 0, 0, 0, 255, 0}}};
    for (const auto& [bits, masks, pixels] : cases) {
        Bytes bytes = BitmapFile{bits, 2, 1}.bytes();
        bytes.resize(54);
        bytes[2] = bytes[10] = 54 + 12;
        bytes[2] += static_cast<std::uint8_t>(pixels.size());
        bytes[30] = BI_BITFIELDS;
        for (const std::uint32_t mask : masks)
            BitmapFile::put(bytes, mask, 4);
        bytes.insert(bytes.end(), pixels.begin(), pixels.end());
        CWntBitmap loaded, placed;
        ASSERT_TRUE(loaded.Load(TemporaryFile(bytes).name()));
        ASSERT_TRUE(placed.Create(loaded.GetBitmapInfoAddress(), loaded.GetBitsAddress()));
        EXPECT_EQ(loaded.GetNumClrEntries(), 0u);
        for (CWntBitmap* bitmap : {&loaded, &placed}) {
            Picture picture(2, 1);
            bitmap->Draw(CDC::FromHandle(picture.dc()), 0, 0);
            EXPECT_THAT(picture.values(), ElementsAre(RGB(255, 0, 0), RGB(0, 255, 0))) << bits;
        }
    }
}

COLORREF colour_of(int i) {
    return RGB(BitmapFile::colour_byte(i, 2), BitmapFile::colour_byte(i, 1), BitmapFile::colour_byte(i, 0));
}

// Rows that a file promises and does not hold are drawn as zeros, whatever the promise.
TEST(WntBitmap, DrawsTheRowsThatAFileGave) {
    const TemporaryFile disk;
    for (const int height : {4, -4, 400'000'000, -400'000'000}) {
        const BitmapFile two_rows{8, 4, 2};
        Bytes bytes = two_rows.bytes();
        std::memcpy(&bytes[22], &height, sizeof height);
        disk.write(bytes);
        CWntBitmap bitmap;
        ASSERT_TRUE(bitmap.Load(disk.name()));
        Picture picture(6, 5);
        bitmap.Draw(CDC::FromHandle(picture.dc()), 2, 1, 4, 4);
        if (std::abs(height) == 4) {
            Picture natural(6, 5);
            bitmap.Draw(CDC::FromHandle(natural.dc()), 2, 1);
            EXPECT_EQ(natural.values(), picture.values()) << height;
        }
        for (int y = 0; y < 4; ++y) { // from below
            const int row = height > 0 ? y : 3 - y;
            const bool given = std::abs(height) == 4 && row < 2;
            EXPECT_EQ(picture.at(3, y), given ? two_rows.colour_at(1, row) : colour_of(0)) << height << ' ' << y;
        }
        if (height == 4) {
            *bitmap.GetPixelAddress(1, 0) = 5;
            bitmap.Draw(CDC::FromHandle(picture.dc()), 2, 1, 4, 4);
            EXPECT_EQ(picture.at(3, 3), colour_of(5)) << "the host's pixel";
        }
    }
}

TEST(WntBitmap, DrawsTheRowsThatRunLengthsReach) {
    const BitmapFile four{8, 4, 4};
    const Bytes plain = four.bytes();
    for (const int height : {4, 400'000'000}) {
        Bytes bytes(plain.begin(), plain.begin() + four.head_bytes());
        const Bytes runs = {0, 0, 0, 2, 1, 0, 2, 7, 0, 1}; // two pixels in the second row from below
        const auto size = static_cast<std::uint32_t>(runs.size());
        const std::uint32_t rle8 = BI_RLE8;
        std::memcpy(&bytes[22], &height, sizeof height);
        std::memcpy(&bytes[30], &rle8, sizeof rle8);
        std::memcpy(&bytes[34], &size, sizeof size);
        bytes.insert(bytes.end(), runs.begin(), runs.end());
        bytes[2] = static_cast<unsigned char>(bytes.size());
        bytes[3] = static_cast<unsigned char>(bytes.size() >> 8);
        const TemporaryFile disk(bytes);
        CWntBitmap bitmap;
        ASSERT_TRUE(bitmap.Load(disk.name())) << height;
        Picture picture(4, 4);
        bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 4 - height, 4, height); // its lowest rows
        const COLORREF found[] = {picture.at(0, 0), picture.at(0, 1), picture.at(1, 1),
                                  picture.at(3, 1), picture.at(1, 2), picture.at(3, 3)};
        EXPECT_THAT(found, testing::ElementsAre(0u, 0u, colour_of(7), 0u, 0u, 0u)) << height << ": others stay";
    }
}

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
        EXPECT_EQ(file.GetPosition(), bytes.size());
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
    EXPECT_FALSE(none.SetSysPalColors() || none.Save(INVALID_HANDLE_VALUE) || none.Load(static_cast<HANDLE>(nullptr)) ||
                 none.Create(nullptr) || none.GetNumColors());
}

TEST(BitmapPalette, RefusesFaultyFilesAndKeepsItsColours) {
    const TemporaryFile disk(PaletteFile().bytes());
    CWntBitmapPalette palette;
    ASSERT_TRUE(palette.Load(disk.name()));
    const auto expect_refused = [&](const Bytes& bytes) {
        disk.write(bytes);
        EXPECT_FALSE(palette.Load(disk.name())) << testing::PrintToString(bytes);
        EXPECT_EQ(palette.GetNumColors(), colours);
    };
    const PaletteFile faults[] = {{.form = 0x45564157}, {.id = 0x20746164},     {.version = 0x301},    {.count = 0},
                                  {.count = 21},        {.count = 0xFFFF},      {.chunk = 3},          {.chunk = 83},
                                  {.chunk = 85},        {.chunk = 0x7FFF'FFF0}, {.chunk = 0xFFFF'FFFF}};
    for (const PaletteFile& fault : faults)
        expect_refused(fault.bytes());
    for (Bytes cut = PaletteFile().bytes(); !cut.empty();) {
        cut.pop_back();
        expect_refused(cut);
    }
    Bytes longer = PaletteFile{.count = 7}.bytes(); // a chunk may be longer than its colours, and not the last one
    longer[4] += 8;
    longer.insert(longer.end(), 8, 0);
    disk.write(longer);
    CFile file(disk.name(), CFile::modeRead);
    EXPECT_TRUE(palette.Load(&file) && file.GetPosition() == longer.size());
    EXPECT_EQ(palette.GetNumColors(), 7);
}

// 20 colours are a row of 16 cells and four more, framed; the rest of the ground is left alone.
TEST(BitmapPalette, DrawsItsCells) {
    constexpr COLORREF ground = RGB(9, 9, 9);
    CWntBitmapPalette palette;
    Picture picture(170, 165);
    picture.clear(ground);
    const CRect rect(4, 2, 164, 162); // cells of 10 x 10
    palette.Draw(CDC::FromHandle(picture.dc()), rect, TRUE);
    ASSERT_TRUE(palette.Load(TemporaryFile(PaletteFile().bytes()).name()));
    palette.Draw(nullptr, rect, TRUE);
    EXPECT_EQ(picture.ink(ground).right, -1);
    const HGDIOBJ host_palette = ::GetCurrentObject(picture.dc(), OBJ_PAL);
    palette.Draw(CDC::FromHandle(picture.dc()), rect, TRUE);
    EXPECT_EQ(::GetCurrentObject(picture.dc(), OBJ_PAL), host_palette);
    for (int i = 0; i < 256; ++i) {
        const int x = 4 + i % 16 * 10;
        const int y = 164 - (2 + i / 16 * 10);
        EXPECT_EQ(picture.at(x + 5, y - 5), i < colours ? colour_of(i) : ground) << i;
        EXPECT_EQ(picture.at(x + 10, y - 10), i < colours ? RGB(0, 0, 0) : ground) << i;
    }
    EXPECT_EQ(CRect(picture.ink(ground)), CRect(4, 162, 164, 142));
}

// Without a path the user is asked, and cancels.
TEST(BitmapPaths, AreAskedForAndFailuresTold) {
    class Unsaved : public CWntBitmap {
        BOOL Save(CFile*) override { return FALSE; }
    } unsaved;
    CWntBitmap& bitmap = unsaved;
    CWntBitmapPalette palette;
    const TemporaryFile disk;
    int cancelled = 0, questions = 0;
    const WhileModal modal([&] {
        const HWND dialog = shown_dialog();
        if (!dialog || !::IsWindowEnabled(dialog))
            return false;
        const HWND name = ::GetDlgItem(dialog, 0x047C);
        if (!name) { // whether to write over the file
            ++questions;
            ::SendMessageA(dialog, WM_COMMAND, IDNO, 0);
        } else if (cancelled == 1 && questions == 0) { // that it is to save into
            ::SetWindowTextA(name, disk.name());
            ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
        } else {
            ++cancelled;
            ::SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        }
        return cancelled == 3;
    });
    EXPECT_FALSE(bitmap.Load(static_cast<LPCTSTR>(nullptr)) || bitmap.Save("") || palette.Load(""));
    EXPECT_EQ(questions, 1);
    program.boxes.clear();
    EXPECT_FALSE(bitmap.Load("no such.bmp") || bitmap.Save("no such folder\\x.bmp") || bitmap.Save(disk.name()) ||
                 palette.Load("no such.pal") || palette.Load(disk.name()));
    EXPECT_THAT(program.boxes, testing::ElementsAre("Failed to open file", "Failed to save file", "Failed to open file",
                                                    "Failed to load file"));
    disk.write(BitmapFile().bytes());
    const CFile reader(disk.name(), CFile::modeRead | CFile::shareDenyWrite);
    EXPECT_TRUE(bitmap.Load(disk.name())); // beside others
}

// Behind compressed pixels of the caller's may be anything: they are as long as the header says, or not known.
TEST(WntBitmap, EndsWhereRunLengthsInPlaceEnd) {
    BYTE runs[] = {40, 1, 0, 1, 7, 7, 7, 7};
    BITMAPINFO info[2] = {{{40, 40, 40, 1, 8, BI_RLE8, 4, 0, 0, 2, 0}, {}}, {}};
    info[1].bmiHeader.biSize = 0xFFFFFF; // the table goes on here
    const TemporaryFile disk;
    for (const long white : {40, 0}) {
        CWntBitmap bitmap, other;
        CWntBitmapPalette palette;
        Picture picture(40, 40);
        ASSERT_TRUE(bitmap.Create(info, runs) && palette.Create(&other));
        bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 0);
        EXPECT_EQ(picture.count(RGB(255, 255, 255)), white);
        other.CopyBits(&bitmap, 0, 39, 5, 1, 0, 0, all_pixels);
        EXPECT_TRUE(bitmap.Save(disk.name()) && bitmap.MapColorsToPalette(&palette));
        EXPECT_TRUE(disk.bytes().size() == 1078 + 1600 && disk.bytes()[1078 + 4] == 0 && runs[4] == 7);
        info->bmiHeader.biSizeImage = 0;
    }
}

} // namespace

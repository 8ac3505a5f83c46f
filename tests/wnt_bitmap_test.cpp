#include <zopwnt.h>

#include <gmock/gmock.h>

#include <process.h>

#include <climits>
#include <cstring>
#include <filesystem>

#include "bitmap_files.h"
#include "pixels.h"
#include "temporary_file.h"

namespace {

namespace fs = std::filesystem;
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
    EXPECT_TRUE(bitmap.GetWidth() == 16 && bitmap.GetHeight() == 16);
    EXPECT_EQ(bitmap.GetClrTabAddress()[77].rgbGreen, 77);
    EXPECT_EQ(bitmap.Create(5, 3), TRUE);
    auto* bits = static_cast<BYTE*>(bitmap.GetBitsAddress());
    EXPECT_EQ(Bytes(bits, bits + 24), Bytes(24, 0));
    EXPECT_EQ(bitmap.GetPixelAddress(0, 0), bits + 16);
    EXPECT_EQ(bitmap.GetPixelAddress(4, 2), bits + 4);
    EXPECT_TRUE(!bitmap.GetPixelAddress(5, 0) && !bitmap.GetPixelAddress(0, 3));
    EXPECT_FALSE(bitmap.Create(-1, 4));
    EXPECT_FALSE(bitmap.Create(INT_MAX, INT_MAX) || bitmap.Create(65'536, 32'768));
    BITMAPINFO endless = {{40, 1, 1, 1, 24, BI_RGB, 0, 0, 0, 65'537, 0}, {}};
    EXPECT_FALSE(bitmap.Create(&endless, nullptr));
    bitmap.Draw(nullptr, 0, 0); // nothing is kept, and nothing harms
    bitmap.CopyBits(&bitmap, 0, 0, 1, 1, 0, 0, all_pixels);
    CWntBitmapPalette palette;
    CWntBitmap ramp;
    ASSERT_TRUE(!ramp.MapColorsToPalette(&palette) && palette.Create(&ramp));
    EXPECT_FALSE(bitmap.MapColorsToPalette(&palette) || bitmap.GetBitsAddress() || bitmap.GetWidth());
}

// Both classes show a file's picture; a DIB file's rows are as in the file when they need no padding, or all are read.
TEST(WntBitmap, ShowsEveryKindOfFileAsTheDibFileDoes) {
    for (const BitmapFile& file : all_bitmap_files()) {
        SCOPED_TRACE(testing::Message() << file.bits << " bits, width " << file.width << ", core " << file.core);
        const TemporaryFile disk(file.bytes());
        CWntBitmap bitmap;
        CDibFile dib;
        ASSERT_EQ(bitmap.Load(disk.name()), TRUE);
        ASSERT_EQ(dib.Load(disk.name()), !file.core);
        const int height = std::abs(file.height);
        Picture picture(file.width, height);
        Picture large(2 * file.width, 3 * height);
        const auto check = [&] {
            for (int i = 0; i < file.width * height; ++i)
                ASSERT_EQ(picture.at(i % file.width, i / file.width), file.colour_at(i % file.width, i / file.width));
            EXPECT_EQ(large.at(2 * file.width - 1, 0), picture.at(file.width - 1, 0));
        };
        bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 0);
        bitmap.Draw(CDC::FromHandle(large.dc()), 0, 0, 2 * file.width, 3 * height);
        check();
        if (file.core || (file.height > 0 && file.width * file.bits % 32 != 0))
            continue;
        picture.clear(0);
        large.clear(0);
        const bool plain = file.colours() == 0; // intended: a palette that is selected counts as a failure
        EXPECT_TRUE(dib.Draw(picture.dc(), 0, 0, 0, 0) == plain && dib.GetLastError() == !plain);
        const int drawn = dib.DrawRealized(large.dc(), 0, 0, 2 * file.width, 3 * height);
        EXPECT_TRUE(drawn == plain && dib.GetLastError() == !plain);
        check();
    }
}

TEST(WntBitmap, SavesEightBitsWithAFullTable) {
    CWntBitmap bitmap;
    bitmap.Create(3, 2);
    number(bitmap);
    const TemporaryFile disk(Bytes(100, 0xCC)); // a bitmap behind other things
    CFile file(disk.name(), CFile::modeReadWrite);
    file.SeekToEnd();
    CArchive store(&file, CArchive::store);
    bitmap.Serialize(store);
    file.Seek(100, CFile::begin);
    CArchive load(&file, CArchive::load);
    CObject* made = CRuntimeClass::CreateObject("CWntBitmap");
    ASSERT_TRUE(made && made->IsSerializable());
    made->Serialize(load);
    EXPECT_EQ(rows_of(*static_cast<CWntBitmap*>(made), 3, 2), "1 2 3 |4 5 6 |");
    delete made;
    file.Seek(100, CFile::begin);
    CDibFile dib;
    EXPECT_EQ(dib.StreamIn(file), 1);
    EXPECT_EQ(*static_cast<BYTE*>(dib.GetPtrBits()), 4);
    file.Close();
    const Bytes saved = disk.bytes();
    ASSERT_EQ(saved.size(), 100U + 1078 + 8);
    const Bytes head(saved.begin() + 100, saved.begin() + 114);
    EXPECT_THAT(head, ElementsAre('B', 'M', 0x3E, 4, 0, 0, 0, 0, 0, 0, 0x36, 4, 0, 0));
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
    const int outside[][6] = {{0, 0, 4, 1, 0, 0},  {0, 0, 1, 3, 0, 0},
                              {-1, 0, 1, 1, 0, 0}, {0, -1, 1, 1, 0, 0},
                              {0, 0, 1, 1, 0, 4},  {0, 0, 2, 1, 4, 0},
                              {0, 0, -1, 1, 2, 0}, {0, 0, 1, INT_MIN, 0, 0},
                              {0, 0, 0, 1, 0, 0},  {0, 0, INT_MAX, INT_MAX, 1, 1}};
    for (const auto& b : outside)
        for (DWORD transparent : {all_pixels, DWORD{0}})
            EXPECT_EQ(copied(b[0], b[1], b[2], b[3], b[4], b[5], transparent), "0 0 0 |0 0 0 |") << b[0] << ' ' << b[2];
    from.CopyBits(nullptr, 0, 0, 1, 1, 0, 0, all_pixels);
    from.CopyBits(&from, 1, 0, 4, 1, 0, 0, all_pixels); // a row onto itself
    EXPECT_EQ(rows_of(from, 5, 1), "1 1 2 3 4 |");
    CWntBitmap shifted; // over the same memory
    ASSERT_TRUE(shifted.Create(from.GetBitmapInfoAddress(), from.GetPixelAddress(1, 3)));
    from.CopyBits(&shifted, 0, 3, 4, 1, 0, 3, all_pixels);
    EXPECT_EQ(rows_of(from, 5, 4), "1 1 2 3 4 |6 7 8 9 10 |11 12 13 14 15 |16 16 17 18 19 |");
}

TEST(WntBitmap, MapsItsColoursToAPalette) {
    CWntBitmap bitmap;
    bitmap.Create(9, 1);
    number(bitmap, 60); // greys
    EXPECT_EQ(bitmap.MapColorsToPalette(nullptr), FALSE);
    struct {
        WORD version = 0x300, count = 3;
        PALETTEENTRY entries[3] = {{255, 0, 0, 0}, {62, 62, 62, 0}, {67, 67, 67, 0}};
    } colours;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(&colours)));
    bitmap.GetClrTabAddress()[1].rgbReserved = 9;
    EXPECT_EQ(bitmap.MapColorsToPalette(&palette), TRUE);
    EXPECT_EQ(rows_of(bitmap, 9, 1), "1 1 1 1 1 2 2 2 2 |");
    const RGBQUAD second = bitmap.GetClrTabAddress()[1];
    EXPECT_THAT((Bytes{second.rgbBlue, second.rgbRed, second.rgbReserved}), ElementsAre(62, 62, 9));
    EXPECT_EQ(bitmap.GetNumClrEntries(), 256U);

    const TemporaryFile disk(BitmapFile{8, 16, -5}.bytes()); // the upper row first, and all of it
    ASSERT_TRUE(bitmap.Load(disk.name()) && bitmap.MapColorsToPalette(&palette));
    const auto* bits = static_cast<const BYTE*>(bitmap.GetBitsAddress());
    EXPECT_THAT(Bytes(bits, bits + 80), testing::Each(testing::Lt(3)));
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

void add_resource(const fs::path& module, LPCSTR type, WORD id, Bytes data) {
    HANDLE update = ::BeginUpdateResourceA(module.string().c_str(), FALSE);
    ::UpdateResourceA(update, type, MAKEINTRESOURCEA(id), 0, data.data(), static_cast<DWORD>(data.size()));
    ::EndUpdateResourceA(update, FALSE);
}

// Runs a test again with copies of program and library that got resources.
int run_with_resources(const char* test) {
    char own[MAX_PATH];
    ::GetModuleFileNameA(nullptr, own, sizeof own);
    const fs::path bin = fs::path(own).parent_path(), folder = bin / "with_resources";
    const fs::path program = folder / "bitmap_test.exe", library = folder / "ZOPWNT.dll";
    fs::create_directories(folder);
    fs::copy_file(own, program, fs::copy_options::overwrite_existing);
    fs::copy_file(bin / "ZOPWNT.dll", library, fs::copy_options::overwrite_existing);
    const Bytes whole = BitmapFile{8, 5, 2}.bytes();
    const LPCSTR standard = MAKEINTRESOURCEA(2);
    add_resource(library, standard, 6, whole);
    add_resource(library, "DIB", 7, whole);
    add_resource(library, standard, 7, BitmapFile{8, 4, 4}.bytes());
    add_resource(library, standard, 8, {whole.begin() + 14, whole.end()});
    add_resource(library, "DIB", 9, {whole.begin(), whole.end() - 1});
    add_resource(program, "DIB", 10, whole);
    fs::current_path(bin); // where the other libraries are
    const auto code = ::_spawnl(_P_WAIT, program.string().c_str(), "bitmap_test", test, nullptr);
    fs::remove_all(folder);
    return static_cast<int>(code);
}

// A file as resource is used where it lies. Without file header or all pixels it is refused, as is a program's.
TEST(WntBitmap, LoadsFromTheLibrarysResources) {
    if (!::FindResourceA(nullptr, MAKEINTRESOURCEA(10), "DIB")) {
        EXPECT_EQ(run_with_resources("--gtest_filter=WntBitmap.LoadsFromTheLibrarysResources"), 0);
        return;
    }
    CWntBitmap bitmap;
    ASSERT_TRUE(bitmap.Load(6U) && bitmap.Load(7U) && bitmap.GetWidth() == 5);
    const BYTE before = (*bitmap.GetPixelAddress(0, 0) ^= 0xFF);
    ASSERT_TRUE(bitmap.Load(7U));
    EXPECT_EQ(*bitmap.GetPixelAddress(0, 0), before);
    for (const UINT id : {8U, 9U, 10U})
        EXPECT_FALSE(bitmap.Load(id)) << id;
}

} // namespace

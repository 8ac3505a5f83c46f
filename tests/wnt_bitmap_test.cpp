#include <zopwnt.h>

#include <gmock/gmock.h>

#include <climits>
#include <cstring>

#include "bitmap_files.h"
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
    EXPECT_TRUE(bitmap.GetWidth() == 16 && bitmap.GetHeight() == 16);
    EXPECT_EQ(bitmap.GetClrTabAddress()[77].rgbGreen, 77);
    EXPECT_EQ(bitmap.Create(5, 3), TRUE);
    auto* bits = static_cast<BYTE*>(bitmap.GetBitsAddress());
    EXPECT_EQ(Bytes(bits, bits + 24), Bytes(24, 0));
    EXPECT_EQ(bitmap.GetPixelAddress(0, 0), bits + 16);
    EXPECT_EQ(bitmap.GetPixelAddress(4, 2), bits + 4);
    EXPECT_TRUE(!bitmap.GetPixelAddress(5, 0) && !bitmap.GetPixelAddress(0, 3));
    EXPECT_FALSE(bitmap.Create(-1, 4));
    EXPECT_FALSE(bitmap.Create(INT_MAX, INT_MAX));
    bitmap.Draw(nullptr, 0, 0); // nothing is kept, and nothing harms
    bitmap.CopyBits(&bitmap, 0, 0, 1, 1, 0, 0, all_pixels);
    CPalette palette;
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
            for (int i = 0; i < file.width * height && file.bits != 16; ++i)
                ASSERT_EQ(picture.at(i % file.width, i / file.width), file.colour_at(i % file.width, i / file.width));
            EXPECT_EQ(large.at(2 * file.width - 1, 0), picture.at(file.width - 1, 0));
        };
        bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 0);
        bitmap.Draw(CDC::FromHandle(large.dc()), 0, 0, 2 * file.width, 3 * height);
        check();
        if (file.core || (file.height > 0 && file.width * file.bits % 32 != 0))
            continue;
        picture.clear(0);
        EXPECT_EQ(dib.Draw(picture.dc(), 0, 0, 0, 0), file.colours() == 0);
        EXPECT_EQ(dib.GetLastError(), file.colours() == 0 ? 0 : 1); // intended: a palette was selected
        dib.DrawRealized(large.dc(), 0, 0, 2 * file.width, 3 * height);
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
    reading.Close();
    BYTE two_rows[8] = {};
    BITMAPINFO one_bit[2] = {};
    one_bit->bmiHeader = {40, 9, 2, 1, 1, BI_RGB, 0, 0, 0, 0, 0};
    ASSERT_EQ(bitmap.Create(one_bit, two_rows), TRUE);
    EXPECT_EQ(bitmap.Save(disk.name()), TRUE);
    EXPECT_EQ(disk.bytes().size(), 1078U + 24); // the caller's rows are shorter than those of 8 bits
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
    const int outside[][6] = {{0, 0, 4, 1, 0, 0},
                              {0, 0, 1, 3, 0, 0},
                              {-1, 0, 1, 1, 0, 0},
                              {0, -1, 1, 1, 0, 0},
                              {0, 0, 1, 1, 5, 0},
                              {0, 0, 1, 1, 0, 4},
                              {0, 0, 2, 1, 4, 0},
                              {0, 0, -1, 1, 2, 0},
                              {0, 0, 1, INT_MIN, 0, 0},
                              {0, 0, 0, 1, 0, 0},
                              {0, 0, INT_MAX, INT_MAX, 1, 1},
                              {INT_MIN, INT_MAX, 1, 1, INT_MAX, INT_MIN}};
    for (const auto& b : outside)
        for (DWORD transparent : {all_pixels, DWORD{0}})
            EXPECT_EQ(copied(b[0], b[1], b[2], b[3], b[4], b[5], transparent), "0 0 0 |0 0 0 |") << b[0] << ' ' << b[2];
    from.CopyBits(nullptr, 0, 0, 1, 1, 0, 0, all_pixels);
    from.CopyBits(&from, 1, 0, 4, 1, 0, 0, all_pixels); // a row onto itself
    EXPECT_EQ(rows_of(from, 5, 1), "1 1 2 3 4 |");
    const TemporaryFile disk(BitmapFile{1, 9, 3}.bytes()); // rows of four bytes, where blocks want twelve
    ASSERT_TRUE(from.Load(disk.name()));
    EXPECT_EQ(copied(0, 0, 3, 2, 0, 0, all_pixels), "0 0 0 |0 0 0 |");
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

// A file as resource is used where it lies, and its memory becomes writable. Without a file header or with pixels
// missing it is refused.
TEST(WntBitmap, LoadsFromResources) {
    CWntBitmap bitmap;
    ASSERT_EQ(bitmap.Load(7U), TRUE);
    const BYTE before = *bitmap.GetPixelAddress(0, 0);
    *bitmap.GetPixelAddress(0, 0) ^= 0xFF;
    ASSERT_EQ(bitmap.Load(7U), TRUE);
    EXPECT_EQ(*bitmap.GetPixelAddress(0, 0), before ^ 0xFF);
    for (const UINT id : {8U, 9U, 4711U})
        EXPECT_EQ(bitmap.Load(id), FALSE) << id;
}

} // namespace

#include <zopwnt.h>

#include <gmock/gmock.h>

#include <climits>
#include <cstring>

#include "bitmap_files.h"
#include "memory_file.h"
#include "pixels.h"
#include "temporary_file.h"
#include "unattended_app.h"

namespace {

using testing::ElementsAre;
constexpr DWORD all_pixels = 0xFFFFFFFF;

// Each pixel its own value, as far as there are bytes.
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
    CRect rect;
    bitmap.GetRect(&rect);
    EXPECT_EQ(rect, CRect(0, 0, 16, 16));
    EXPECT_EQ(bitmap.GetNumClrEntries(), 256U);
    EXPECT_EQ(bitmap.GetClrTabAddress()[77].rgbGreen, 77);
    EXPECT_EQ(bitmap.Create(5, 3), TRUE);
    EXPECT_EQ(bitmap.StorageWidth(), 8);
    auto* bits = static_cast<BYTE*>(bitmap.GetBitsAddress());
    EXPECT_EQ(Bytes(bits, bits + 24), Bytes(24, 0));
    EXPECT_EQ(bitmap.GetPixelAddress(0, 0), bits + 16);
    EXPECT_EQ(bitmap.GetPixelAddress(4, 2), bits + 4);
    EXPECT_EQ(bitmap.GetPixelAddress(5, 0), nullptr);
    EXPECT_EQ(bitmap.GetPixelAddress(0, 3), nullptr);
    for (const SIZE size : {SIZE{-1, 4}, SIZE{4, -1}, SIZE{INT_MAX, INT_MAX}}) {
        EXPECT_EQ(bitmap.Create(size.cx, size.cy), FALSE);
        EXPECT_EQ(bitmap.GetBitsAddress(), nullptr); // nothing is kept, and nothing harms
        bitmap.Draw(nullptr, 0, 0);
        EXPECT_EQ(bitmap.Save(static_cast<CFile*>(nullptr)), FALSE);
        EXPECT_EQ(bitmap.GetWidth() + bitmap.GetHeight() + static_cast<int>(bitmap.GetNumClrEntries()), 0);
        bitmap.CopyBits(&bitmap, 0, 0, 1, 1, 0, 0, all_pixels);
        CPalette palette;
        EXPECT_EQ(bitmap.MapColorsToPalette(&palette), FALSE);
    }
}

TEST(WntBitmap, ShowsEveryKindOfFile) {
    auto files = all_bitmap_files();
    files.push_back({24, 5, 2, false, 1000});
    files.push_back({8, 5, 2, false, 20, 77});
    for (const BitmapFile& file : files) {
        SCOPED_TRACE(testing::Message() << file.bits << " bits, " << file.width << " x " << file.height << ", core "
                                        << file.core);
        MemoryFile disk(file.bytes());
        CWntBitmap bitmap;
        ASSERT_EQ(bitmap.Load(&disk), TRUE);
        EXPECT_EQ(bitmap.GetWidth(), file.width);
        EXPECT_EQ(bitmap.GetHeight(), file.height);
        const int height = std::abs(file.height);
        Picture picture(file.width, height);
        CDC* dc = CDC::FromHandle(picture.dc());
        bitmap.Draw(dc, 0, 0);
        for (int x = 0; x < file.width && file.bits != 16; ++x)
            for (int y = 0; y < height; ++y) {
                const int row = file.height < 0 ? height - 1 - y : y;
                const std::size_t first = static_cast<std::size_t>(row) * file.row_bytes() + x * file.bits / 8;
                const int byte = BitmapFile::pixel_byte(first);
                const int bits = std::min(file.bits, 8);
                const int index = byte >> (8 - bits - x * bits % 8) & ((1 << bits) - 1);
                const auto part = [&](int p) {
                    return file.bits > 8                            ? BitmapFile::pixel_byte(first + p)
                           : std::uint32_t(index) >= file.colours() ? 0
                                                                    : BitmapFile::colour_byte(index, p);
                };
                ASSERT_EQ(picture.at(x, y), RGB(part(2), part(1), part(0))) << x << ' ' << y;
            }
        Picture large(2 * file.width, 3 * height);
        bitmap.Draw(CDC::FromHandle(large.dc()), 0, 0, 2 * file.width, 3 * height);
        EXPECT_EQ(large.at(2 * file.width - 1, 0), picture.at(file.width - 1, 0));
    }
}

TEST(WntBitmap, SavesEightBitsWithAFullTable) {
    CWntBitmap bitmap;
    bitmap.Create(3, 2);
    number(bitmap);
    MemoryFile disk(Bytes(100, 0xCC)); // a bitmap behind other things
    disk.Seek(100, CFile::begin);
    CArchive store(&disk, CArchive::store);
    bitmap.Serialize(store);
    EXPECT_EQ(disk.flushes, 1);
    const Bytes& saved = disk.bytes();
    ASSERT_EQ(saved.size(), 100U + 1078 + 8);
    const Bytes head(saved.begin() + 100, saved.begin() + 114);
    EXPECT_THAT(head, ElementsAre('B', 'M', 0x3E, 4, 0, 0, 0, 0, 0, 0, 0x36, 4, 0, 0));
    EXPECT_THAT(Bytes(saved.end() - 8, saved.end()), ElementsAre(4, 5, 6, 0, 1, 2, 3, 0));
    CArchive load(&disk, CArchive::load);
    CObject* made = CRuntimeClass::CreateObject("CWntBitmap");
    ASSERT_TRUE(made && made->IsSerializable());
    made->Serialize(load);
    EXPECT_EQ(rows_of(*static_cast<CWntBitmap*>(made), 3, 2), "1 2 3 |4 5 6 |");
    delete made;

    MemoryFile full;
    full.room = 1000;
    EXPECT_EQ(bitmap.Save(&full), FALSE);
    BYTE two_rows[8] = {0x80, 0, 0, 0, 0x40, 0, 0, 0};
    BITMAPINFO one_bit[2] = {};
    one_bit->bmiHeader = {40, 9, 2, 1, 1, BI_RGB, 0, 0, 0, 0, 0};
    ASSERT_EQ(bitmap.Create(one_bit, two_rows), TRUE);
    EXPECT_EQ(bitmap.GetNumClrEntries(), 2U);
    MemoryFile padded;
    EXPECT_EQ(bitmap.Save(&padded), TRUE);
    EXPECT_EQ(padded.bytes().size(), 1078U + 24); // the caller's rows are shorter than those of 8 bits
}

TEST(WntBitmap, KeepsItsPictureWhenLoadingFails) {
    CWntBitmap bitmap;
    bitmap.Create(3, 1);
    number(bitmap);
    const struct {
        std::size_t at;
        std::uint8_t value;
    } faults[] = {{1, 'X'}, {14, 41}, {14, 124}, {2, 0}, {4, 1}, {12, 1}, {25, 0x7F}, {21, 0x7F}};
    for (const auto& fault : faults) {
        Bytes bytes = BitmapFile{8, 4, 4}.bytes();
        bytes[fault.at] = fault.value;
        MemoryFile disk(bytes);
        EXPECT_EQ(bitmap.Load(&disk), FALSE) << fault.at;
    }
    CFile closed;
    EXPECT_EQ(bitmap.Load(&closed), FALSE);
    EXPECT_EQ(bitmap.Load("no such file.bmp"), FALSE);
    EXPECT_EQ(bitmap.Load(static_cast<CFile*>(nullptr)), FALSE);
    EXPECT_EQ(rows_of(bitmap, 3, 1), "1 2 3 |");
}

TEST(WntBitmap, AsksForPathsAndTellsOfFailures) {
    CWntBitmap bitmap;
    {
        const DialogCanceller canceller;
        EXPECT_EQ(bitmap.Load(static_cast<LPCTSTR>(nullptr)), FALSE);
        EXPECT_EQ(bitmap.Save(""), FALSE);
        EXPECT_EQ(DialogCanceller::cancelled, 2);
    }
    unattended_app.texts.clear();
    EXPECT_EQ(bitmap.Save("no such folder\\x.bmp"), FALSE);
    EXPECT_THAT(unattended_app.texts, ElementsAre("Failed to open file"));
    const TemporaryFile disk("wnt_bitmap_test.bmp");
    EXPECT_EQ(bitmap.Save(disk.name()), TRUE);
    EXPECT_EQ(bitmap.Load(disk.name()), TRUE);
    class Unsaved : public CWntBitmap {
        BOOL Save(CFile*) override { return FALSE; }
    } unsaved;
    EXPECT_EQ(static_cast<CWntBitmap&>(unsaved).Save(disk.name()), FALSE);
    EXPECT_EQ(unattended_app.texts.back(), "Failed to save file");
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
    EXPECT_EQ(copied(0, 0, 3, 2, 0, 0, 0x07), "1 2 3 |6 0 8 |");
    EXPECT_EQ(copied(0, 0, 3, 2, 0, 0, 0xFFFFFF06), "1 2 3 |0 7 8 |");
    const int outside[][6] = {{0, 0, 4, 1, 0, 0},
                              {0, 0, 1, 3, 0, 0},
                              {-1, 0, 1, 1, 0, 0},
                              {0, -1, 1, 1, 0, 0},
                              {0, 0, 1, 1, 5, 0},
                              {0, 0, 1, 1, 0, 4},
                              {0, 0, 2, 1, 4, 0},
                              {0, 0, 1, 1, -1, -1},
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
    MemoryFile disk(BitmapFile{1, 9, 3}.bytes()); // rows of four bytes, where blocks want twelve
    from.Load(&disk);
    EXPECT_EQ(copied(0, 0, 3, 2, 0, 0, all_pixels), "0 0 0 |0 0 0 |");
}

TEST(WntBitmap, MapsItsColoursToAPalette) {
    CWntBitmap bitmap;
    bitmap.Create(5, 2);
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
    EXPECT_EQ(rows_of(bitmap, 5, 2), "1 1 1 1 1 |2 2 2 2 2 |");
    const RGBQUAD second = bitmap.GetClrTabAddress()[1];
    EXPECT_THAT((Bytes{second.rgbBlue, second.rgbRed, second.rgbReserved}), ElementsAre(62, 62, 9));
    EXPECT_EQ(bitmap.GetBitmapInfoAddress()->bmiHeader.biClrUsed, 256U);

    MemoryFile disk(BitmapFile{8, 16, -5}.bytes()); // the upper row first, and all of it
    bitmap.Load(&disk);
    bitmap.MapColorsToPalette(&palette);
    const auto* bits = static_cast<const BYTE*>(bitmap.GetBitsAddress());
    EXPECT_THAT(Bytes(bits, bits + 80), testing::Each(testing::Lt(3)));
}

// A file as resource is used where it lies, and its memory becomes writable. Without a file header it is refused.
TEST(WntBitmap, LoadsFromResources) {
    CWntBitmap bitmap;
    ASSERT_EQ(bitmap.Load(7U), TRUE);
    EXPECT_EQ(bitmap.GetWidth(), 5);
    const BYTE before = *bitmap.GetPixelAddress(0, 0);
    *bitmap.GetPixelAddress(0, 0) ^= 0xFF;
    ASSERT_EQ(bitmap.Load(7U), TRUE);
    EXPECT_EQ(*bitmap.GetPixelAddress(0, 0), before ^ 0xFF);
    for (UINT id : {8U, 9U, 4711U})
        EXPECT_EQ(bitmap.Load(id), FALSE) << id;
    ASSERT_EQ(bitmap.Load(10U), TRUE);
    EXPECT_EQ(bitmap.GetWidth(), 6);
}

} // namespace

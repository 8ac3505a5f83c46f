// Both bitmap classes over broken files: nothing may crash, and what was loaded can be drawn, drawn on and saved.
#include <zopwnt.h>

#include <gmock/gmock.h>

#include <chrono>
#include <climits>
#include <random>

#include "bitmap_files.h"
#include "pixels.h"

namespace {

constexpr int least_files = 100'000;
constexpr std::chrono::seconds most_time{60}; // a quarter of it is usual
constexpr std::int64_t most_pixels = 1 << 18; // larger ones only take time

class BitmapFaults : public testing::Test {
protected:
    BitmapFaults() : disk("bitmap_faults_test.bmp", CFile::modeCreate | CFile::modeReadWrite) {
        const BYTE two_colours[] = {0, 3, 2, 0, 0, 0, 0, 0, 255, 255, 255, 0};
        palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(const_cast<BYTE*>(two_colours)));
    }
    ~BitmapFaults() override {
        disk.Close();
        CFile::Remove("bitmap_faults_test.bmp");
    }

    static bool small(std::int64_t width, std::int64_t height) { return width * std::abs(height) <= most_pixels; }

    void try_dib() {
        CDibFile dib;
        const int loaded = dib.StreamIn(disk);
        ASSERT_TRUE((dib.IsValid() != 0) == (loaded != 0) && (dib.GetLastError() == 0) == (loaded != 0));
        dib.SetColor(200, 100, 255);
        dib.SetPixel(dib.GetWidth() - 1, dib.GetHeight() - 1);
        if (!loaded || !small(dib.GetWidth(), dib.GetHeight()))
            return;
        ++dibs;
        dib.Line(INT_MIN, 3, INT_MAX, 1);
        dib.Line(-5, -5, 5, 50'000);
        dib.DrawRealized(picture.dc(), 1, 1, 30, 30);
        CDibFile copy(dib);
        copy.ClearBits(0x5A);
        ASSERT_EQ(copy.StreamOut(disk), 1);
    }

    void try_bitmap() {
        CWntBitmap bitmap;
        if (!bitmap.Load(&disk)) {
            ASSERT_EQ(bitmap.GetWidth(), 16); // as it was
            return;
        }
        if (!small(bitmap.GetWidth(), bitmap.GetHeight()))
            return;
        ++bitmaps;
        bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 0);
        bitmap.CopyBits(&other, 0, 0, 3, 3, 0, 0, 5);
        other.CopyBits(&bitmap, 0, 0, 3, 3, 0, 0, 0xFFFFFFFF);
        ASSERT_TRUE(bitmap.MapColorsToPalette(&palette) && bitmap.Save(&disk));
        colours.Create(&bitmap);
    }

    void try_file(const Bytes& bytes) {
        ++files;
        for (const bool dib : {false, true}) {
            disk.SetLength(0);
            disk.Write(bytes.data(), static_cast<UINT>(bytes.size()));
            disk.SeekToBegin();
            dib ? try_dib() : try_bitmap();
        }
    }

    CFile disk;
    Picture picture{40, 40};
    CPalette palette;
    CWntBitmap other;
    CWntBitmapPalette colours;
    int files = 0, dibs = 0, bitmaps = 0;
};

TEST_F(BitmapFaults, DoNoHarm) {
    const BitmapFile kinds[] = {{8, 5, 3, false, 4},  {1, 9, -3}, {4, 3, 2, true},  {24, 5, 3},
                                {16, 3, 3, false, 2}, {32, 2, 2}, {24, 3, 4, true}, {4, 8, 3, false, 5, 9}};
    const auto start = std::chrono::steady_clock::now();
    const int objects = live_gdi_objects();
    for (const BitmapFile& kind : kinds) {
        for (Bytes cut = kind.bytes(); !cut.empty(); cut.pop_back())
            try_file(cut);
        for (std::size_t at = 0; at < kind.head_bytes(); ++at)
            for (int flip : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
                Bytes bytes = kind.bytes();
                bytes[at] = static_cast<std::uint8_t>(bytes[at] ^ flip);
                try_file(bytes);
            }
    }
    std::mt19937 random(7);
    while (files < least_files && std::chrono::steady_clock::now() - start < most_time) {
        Bytes bytes = kinds[random() % std::size(kinds)].bytes();
        for (unsigned left = 1 + random() % 4; left > 0; --left) {
            std::uint8_t& byte = bytes[2 + random() % 52];
            byte = static_cast<std::uint8_t>(random() % 3 == 0 ? random() : byte ^ 1U << random() % 8);
        }
        try_file(bytes);
    }
    EXPECT_GE(files, least_files);
    EXPECT_GE(std::min(dibs, bitmaps), least_files / 10);
    EXPECT_LE(live_gdi_objects(), objects + 1); // the last palette
}

} // namespace

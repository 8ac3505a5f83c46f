// Both bitmap classes over broken files: nothing may crash, and what was loaded can be drawn, drawn on and saved.
#include <zopwnt.h>

#include <gmock/gmock.h>

#include <chrono>
#include <climits>
#include <cstdio>
#include <random>

#include "bitmap_files.h"
#include "pixels.h"
#include "temporary_file.h"

namespace {

constexpr int most_files = 100'000;
constexpr std::chrono::seconds most_time{60}; // a quarter of it is usual; a slow machine tries fewer random files
constexpr std::int64_t most_pixels = 1 << 18; // larger ones only take time

class BitmapFaults : public testing::Test {
protected:
    BitmapFaults() {
        const BYTE two_colours[] = {0, 3, 2, 0, 0, 0, 0, 0, 255, 255, 255, 0};
        palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(const_cast<BYTE*>(two_colours)));
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
        const BOOL loaded = bitmap.Load(&disk);
        ASSERT_TRUE(loaded || bitmap.GetWidth() == 16); // as it was
        bitmap.Draw(nullptr, 0, 0);
        bitmap.CopyBits(&other, 0, 0, 3, 3, 0, 0, 5);
        other.CopyBits(&bitmap, 0, 0, 3, 3, 0, 0, 0xFFFFFFFF);
        if (!loaded || !small(bitmap.GetWidth(), bitmap.GetHeight()))
            return;
        ++bitmaps;
        bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 0);
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

    TemporaryFile held;
    CFile disk{held.name(), CFile::modeReadWrite};
    Picture picture{40, 40};
    CPalette palette;
    CWntBitmap other;
    CWntBitmapPalette colours;
    int files = 0, dibs = 0, bitmaps = 0;
};

TEST_F(BitmapFaults, DoNoHarm) {
    const auto start = std::chrono::steady_clock::now();
    const int objects = live_gdi_objects();
    try_broken_bitmap_files([this](const Bytes& bytes) { try_file(bytes); });
    std::mt19937 random(7);
    while (files < most_files && std::chrono::steady_clock::now() - start < most_time) {
        Bytes bytes = files_to_break[random() % std::size(files_to_break)].bytes();
        for (unsigned left = 1 + random() % 4; left > 0; --left) {
            std::uint8_t& byte = bytes[2 + random() % 52];
            byte = static_cast<std::uint8_t>(random() % 3 == 0 ? random() : byte ^ 1U << random() % 8);
        }
        try_file(bytes);
    }
    std::printf("%d broken files\n", files);
    EXPECT_GE(std::min(dibs, bitmaps), files / 10);
    EXPECT_LE(live_gdi_objects(), objects + 1); // the last palette
}

} // namespace

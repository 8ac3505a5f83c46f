// Both bitmap classes over broken files: nothing may crash, and what was loaded can be drawn, drawn on and saved.
#include <zopwnt.h>

#include <gmock/gmock.h>

#include <chrono>
#include <climits>
#include <random>

#include "bitmap_files.h"
#include "memory_file.h"
#include "pixels.h"

namespace {

constexpr int least_files = 100'000;
constexpr std::chrono::seconds most_time{60}; // a quarter of it is usual
constexpr std::int64_t most_pixels = 1 << 18; // larger ones only take time

/// One file on disk, written again and again.
class Scratch {
public:
    Scratch()
        : file_(::CreateFileA("bitmap_faults_test.bmp", GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr)) {}
    ~Scratch() { ::CloseHandle(file_); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    HANDLE with(const Bytes& bytes) {
        DWORD done = 0;
        ::SetFilePointer(file_, 0, nullptr, FILE_BEGIN);
        ::WriteFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr);
        ::SetEndOfFile(file_);
        ::SetFilePointer(file_, 0, nullptr, FILE_BEGIN);
        return file_;
    }
    HANDLE handle() const { return file_; }

private:
    HANDLE file_;
};

class BitmapFaults : public testing::Test {
protected:
    BitmapFaults() {
        struct {
            WORD version = 0x300, count = 2;
            PALETTEENTRY entries[2] = {{0, 0, 0, 0}, {255, 255, 255, 0}};
        } colours;
        palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(&colours));
    }

    static bool small(std::int64_t width, std::int64_t height) { return width * std::abs(height) <= most_pixels; }

    void try_dib(const Bytes& bytes) {
        CDibFile dib;
        const int loaded = dib.StreamIn(scratch.with(bytes));
        ASSERT_EQ(dib.IsValid() != 0, loaded != 0);
        ASSERT_EQ(dib.GetLastError() != 0, loaded == 0);
        dib.SetColor(200, 100, 255);
        dib.SetPixel(dib.GetWidth() - 1, dib.GetHeight() - 1);
        if (!loaded || !small(dib.GetWidth(), dib.GetHeight()))
            return;
        ++dibs;
        dib.Line(INT_MIN, 3, INT_MAX, 1);
        dib.Line(-5, -5, 5, 50'000);
        dib.DrawRealized(picture.dc(), 1, 1, 30, 30);
        CDibFile copy(dib);
        ASSERT_TRUE(copy.IsValid());
        copy.ClearBits(0x5A);
        ASSERT_EQ(copy.StreamOut(scratch.handle()), 1);
    }

    void try_bitmap(const Bytes& bytes) {
        MemoryFile file(bytes);
        CWntBitmap bitmap;
        if (!bitmap.Load(&file)) {
            ASSERT_EQ(bitmap.GetWidth(), 16);
            return;
        }
        if (!small(bitmap.GetWidth(), bitmap.GetHeight()))
            return;
        ++bitmaps;
        bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 0);
        bitmap.CopyBits(&other, 0, 0, 3, 3, 0, 0, 5);
        other.CopyBits(&bitmap, 0, 0, 3, 3, 0, 0, 0xFFFFFFFF);
        ASSERT_TRUE(bitmap.MapColorsToPalette(&palette));
        MemoryFile saved;
        ASSERT_TRUE(bitmap.Save(&saved));
        colours.Create(&bitmap);
    }

    void try_file(const Bytes& bytes) {
        ++files;
        try_dib(bytes);
        try_bitmap(bytes);
    }
    bool in_time() const { return std::chrono::steady_clock::now() - start < most_time; }

    Scratch scratch;
    Picture picture{40, 40};
    CPalette palette;
    CWntBitmap other;
    CWntBitmapPalette colours;
    int files = 0, dibs = 0, bitmaps = 0;
    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

TEST_F(BitmapFaults, DoNoHarm) {
    const BitmapFile kinds[] = {{8, 5, 3, false, 4},   {1, 9, -3},           {4, 3, 2, true}, {24, 5, 3},
                                {8, 7, 2, false, 300}, {16, 3, 3, false, 2}, {32, 2, 2},      {24, 3, 4, true},
                                {4, 8, 3, false, 5, 9}};
    const int objects = live_gdi_objects();
    const int colours_held = 1; // at the end
    std::mt19937 random(7);
    for (const BitmapFile& kind : kinds) {
        const Bytes whole = kind.bytes();
        for (std::size_t length = 0; length <= whole.size(); ++length)
            try_file(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        for (std::size_t at = 0; at < kind.head_bytes() && at < 70; ++at)
            for (int flip : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
                Bytes bytes = whole;
                bytes[at] = static_cast<std::uint8_t>(bytes[at] ^ flip);
                try_file(bytes);
            }
    }
    while (files < least_files && in_time()) {
        Bytes bytes = kinds[random() % std::size(kinds)].bytes();
        for (unsigned i = random() % 4; i != 0xFFFF'FFFF; --i) {
            const std::size_t at = 2 + random() % 52;
            bytes[at] = static_cast<std::uint8_t>(random() % 3 == 0 ? random() : bytes[at] ^ 1U << random() % 8);
        }
        if (random() % 4 == 0)
            bytes.resize(random() % bytes.size());
        try_file(bytes);
    }
    RecordProperty("files", files);
    EXPECT_GE(files, least_files) << "in time";
    EXPECT_GE(dibs, least_files / 10);
    EXPECT_GE(bitmaps, least_files / 10);
    EXPECT_LE(live_gdi_objects(), objects + colours_held);
}

} // namespace

#include "bitmap/pixel_line.h"
#include "bitmap/pixel_manipulators.h"
#include "bitmap_files.h"
#include "bitmap_memory.h"

#include <gmock/gmock.h>

#include <climits>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace wnt;

BitmapHeader sized(int width, int height, int bits, int planes = 1) {
    return {40, width, height, static_cast<std::uint16_t>(planes), static_cast<std::uint16_t>(bits)};
}

TEST(BitmapSizes, FollowTheirRulesToTheEndsOfTheRange) {
    EXPECT_EQ(unpadded_bytes(sized(3, 1, 1)), 0U); // truncated
    EXPECT_EQ(unpadded_bytes(sized(16384, 16384, 24)), 0x8000'0000U >> 3);
    EXPECT_EQ(unpadded_bytes(sized(4, -1, 8)), (0U - 32) >> 3);
    EXPECT_EQ(unpadded_bytes(sized(INT_MIN, INT_MIN, 0xFFFF, 0xFFFF)), 0U);
    EXPECT_EQ(padded_bytes(sized(3, -5, 24)), 60U);
    for (const auto& none : {sized(0, 1, 8), sized(-1, 1, 8), sized(1, 0, 8), sized(INT_MAX, INT_MIN, 0xFFFF)})
        EXPECT_EQ(padded_bytes(none), std::nullopt);
    EXPECT_EQ(storage_bytes(sized(3, -2, 24)), 8U);
    EXPECT_EQ(storage_bytes(sized(INT_MAX, INT_MIN, 1)), 0x8000'0000ULL * 0x8000'0000ULL);
    BitmapHeader compressed = sized(2, 2, 8);
    compressed.compression = 1;
    compressed.image_size = 900; // what a decoder may read
    EXPECT_EQ(drawn_bytes(compressed), 900U);
    compressed.image_size = 3;
    EXPECT_EQ(drawn_bytes(compressed), 8U);
    EXPECT_EQ(placed_bytes(compressed), 3U);
    compressed.compression = 3; // bit fields
    EXPECT_EQ(placed_bytes(compressed), 8U);
    EXPECT_TRUE(row_count(-7) == 7 && row_count(INT_MIN) == INT_MAX);
    compressed.colours_used = 0x1'0005; // each class counts by its own rule
    EXPECT_TRUE(dib_colours(compressed) == 5 && bitmap_colours(compressed) == 256);
}

// A file that is cut, or promises what it does not hold, is refused before memory is taken for it. Of less data than
// the picture needs the rest reads as 0.
TEST(BitmapReaders, BoundWhatTheFilePromises) {
    const auto accepted = [](const Bytes& bytes) {
        BitmapHead head;
        BitmapPixels pixels;
        MemorySource source(bytes);
        return read_bitmap_head(source, head) && read_bitmap_pixels(source, head, pixels);
    };
    for (const BitmapFile& file : {BitmapFile{4, 9, 3}, BitmapFile{8, 3, 2, true}, BitmapFile{24, 5, 2, false, 3, 6}})
        for (Bytes cut = file.bytes(); !cut.empty();) {
            cut.pop_back();
            EXPECT_FALSE(accepted(cut)) << cut.size();
            DibHead dib;
            EXPECT_EQ(dib_head_of(cut, dib), cut.size() < 2 ? 4 : cut.size() < 15 || file.core ? 6 : 0) << cut.size();
        }
    const struct {
        std::size_t at;
        std::uint32_t value;
        bool accepted;
    } cases[] = {
        {2, 0, false},    {2, 0xFFFF'FFFF, false},  {10, 0, true},           {10, 1094, true}, {10, 1095, false},
        {14, 108, false}, {18, 0x7FFF'FFFF, false}, {18, 0xFFFF'FFFF, true}, {22, 500, true},  {22, 0x8000'0000, false},
        {30, 99, true},   {46, 0xFFFF'FFFF, true}};
    for (const auto& c : cases) {
        Bytes bytes = BitmapFile{8, 4, 4}.bytes();
        for (int i = 0; i < 4; ++i)
            bytes[c.at + i] = static_cast<std::uint8_t>(c.value >> 8 * i);
        EXPECT_EQ(accepted(bytes), c.accepted) << c.at << ' ' << c.value;
    }
}

// What the fuzzer demands of any file.
TEST(BitmapReaders, SurviveBrokenHeads) {
    try_broken_bitmap_files([](const Bytes& bytes) { LLVMFuzzerTestOneInput(bytes.data(), bytes.size()); });
}

std::string drawn(int width, int height, int bits, const PixelLine& line) {
    const auto writer = make_pixel_manipulator(bits);
    const std::size_t size = static_cast<std::size_t>(bits / 8);
    Bytes array(static_cast<std::size_t>(width * height) * size);
    writer->Init(array.data(), width, height);
    writer->SetColor(255, 255, 255);
    draw_line(*writer, array.data(), width, height, static_cast<int>(size), line);
    std::string rows;
    for (int y = height - 1; y >= 0; --y, rows += ' ')
        for (int x = 0; x < width; ++x)
            rows += array[static_cast<std::size_t>(y * width + x) * size] ? '#' : '.';
    return rows;
}

TEST(PixelLines, CoverTheirPixels) {
    const struct {
        PixelLine line;
        const char* picture;
    } cases[] = {
        {{1, 1, 4, 1}, "...... ...... .####. ...... "},     {{9, 0, -9, 0}, "...... ...... ...... ###### "},
        {{2, 9, 2, -9}, "..#... ..#... ..#... ..#... "},    {{3, 3, 3, 3}, "...#.. ...... ...... ...... "},
        {{0, 0, 3, 3}, "...#.. ..#... .#.... #..... "},     {{3, 0, 0, 3}, "#..... .#.... ..#... ...#.. "},
        {{5, 1, 0, 0}, "...... ...... ...### ###... "},     {{0, 0, 1, 3}, ".#.... .#.... #..... #..... "},
        {{-9, -9, 16, 16}, "...#.. ..#... .#.... #..... "}, {{0, 4, 5, 4}, "...... ...... ...... ...... "},
        {{-5, 2, 0, 0}, "...... ...... ...... ...... "}, // one column is left
    };
    for (const auto& c : cases)
        for (int bits : {8, 16, 24})
            EXPECT_EQ(drawn(6, 4, bits, c.line), c.picture) << bits << ": " << c.line.x1 << ' ' << c.line.y1;
}

// All pairs of awkward coordinates on exactly sized arrays: the sanitizers see a pixel beside them.
TEST(PixelLines, StayInsideFromAnywhere) {
    const int places[] = {INT_MIN, INT_MIN + 1, -70'000, -1, 0, 1, 4, 5, 6, 70'000, INT_MAX - 1, INT_MAX};
    for (int x1 : places)
        for (int y1 : places)
            for (int x2 : places)
                for (int y2 : places) {
                    const std::string picture = drawn(5, 5, x1 % 2 ? 8 : 24, {x1, y1, x2, y2});
                    ASSERT_LE(std::count(picture.begin(), picture.end(), '#'), 5) << x1 << ' ' << y1 << ' ' << x2;
                }
}

} // namespace

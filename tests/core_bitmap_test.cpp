#include "bitmap/pixel_line.h"
#include "bitmap/pixel_manipulators.h"
#include "bitmap_files.h"
#include "bitmap_memory.h"

#include <gmock/gmock.h>

#include <array>
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
    BitmapHeader compressed = {40, 2, 2, 1, 8, 1, 900}; // what a decoder may read
    EXPECT_EQ(drawn_bytes(compressed), 900U);
    compressed.image_size = 3;
    EXPECT_TRUE(drawn_bytes(compressed) == 8U && placed_bytes(compressed) == 3U);
    compressed.compression = 3; // bit fields
    EXPECT_EQ(placed_bytes(compressed), 8U);
    EXPECT_TRUE(row_count(-7) == 7 && row_count(INT_MIN) == INT_MAX);
    compressed.colours_used = 0x1'0005; // each class counts by its own rule
    EXPECT_TRUE(dib_colours(compressed) == 5 && bitmap_colours(compressed) == 256);
}

TEST(BitmapSizes, ShortRunLengthsReachFewRows) {
    // A row's end, a run, three pixels, four rows up, a run, the end, and what is behind it.
    const std::uint8_t stream[] = {0, 0, 5, 7, 0, 3, 1, 2, 3, 0, 0, 2, 9, 4, 2, 8, 0, 0, 0, 1, 3, 3};
    const auto of_runs = [](int width, int height, int bits) {
        BitmapHeader header = sized(width, height, bits);
        header.compression = bits == 8 ? 1 : 2;
        return header;
    };
    for (const int bits : {8, 4}) {
        EXPECT_EQ(rows_within(of_runs(20'000, 20'000, bits), stream), 6) << bits;
        EXPECT_EQ(rows_within(of_runs(20'000, 3, bits), stream), 2) << bits;
        EXPECT_EQ(rows_within(of_runs(20, 20, bits), stream), 20) << "it might fill them";
        EXPECT_EQ(rows_within(of_runs(20'000, 20'000, bits), {}), 0);
    }
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
    const std::uint32_t cases[][3] = {{2, 0, 0},     {2, 0xFFFF'FFFF, 0},  {10, 0, 1},           {10, 1094, 1},
                                      {10, 1095, 0}, {14, 108, 0},         {18, 0x7FFF'FFFF, 0}, {18, 0xFFFF'FFFF, 1},
                                      {22, 500, 1},  {22, 0x8000'0000, 0}, {30, 99, 1},          {46, 0xFFFF'FFFF, 1}};
    for (const auto& [at, value, valid] : cases) {
        Bytes bytes = BitmapFile{8, 4, 4}.bytes(), field;
        BitmapFile::put(field, value, 4);
        std::ranges::copy(field, bytes.begin() + at);
        EXPECT_EQ(accepted(bytes), valid) << at << ' ' << value;
    }
}

// What the fuzzer demands of any file.
TEST(BitmapReaders, SurviveBrokenHeads) {
    try_broken_bitmap_files([](const Bytes& bytes) { LLVMFuzzerTestOneInput(bytes.data(), bytes.size()); });
}

// What a pixel of a colour writes, the low byte first.
int packed(int bits, int r, int g, int b) {
    std::uint8_t pixel[3] = {};
    const auto writer = make_pixel_manipulator(bits);
    writer->Init(pixel, 1, 1);
    writer->SetColor(r, g, b);
    writer->SetPixel(0, 0);
    return pixel[0] | pixel[1] << 8 | pixel[2] << 16;
}

TEST(Pixels, PackColoursByDepth) {
    const int cases[][6] = {{255, 255, 255, 60, 0x7FFF, 0xFFFFFF},   {255, 0, 0, 0, 0x7C00, 0xFF0000},
                            {0, 255, 0, 12, 0x03E0, 0x00FF00},       {0, 0, 255, 60, 0x001F, 0x0000FF},
                            {1, 1, 1, 0, 0x14A5, 0x010101},          {16, 8, 4, 12, 0x4114, 0x100804},
                            {-1, 256, 0x12345, 4, 0x7C15, 0xFF0045}, {INT_MIN, INT_MAX, INT_MIN, 12, 0x03E0, 0x00FF00}};
    for (const auto& [r, g, b, index, word, triple] : cases) {
        const std::array all = {packed(8, r, g, b), packed(16, r, g, b), packed(24, r, g, b)};
        EXPECT_THAT(all, testing::ElementsAre(index, word, triple)) << r << ' ' << g << ' ' << b;
    }
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
    const std::pair<PixelLine, const char*> cases[] = {
        {{1, 1, 4, 1}, "...... ...... .####. ...... "},     {{9, 0, -9, 0}, "...... ...... ...... ###### "},
        {{2, 9, 2, -9}, "..#... ..#... ..#... ..#... "},    {{3, 3, 3, 3}, "...#.. ...... ...... ...... "},
        {{0, 0, 3, 3}, "...#.. ..#... .#.... #..... "},     {{3, 0, 0, 3}, "#..... .#.... ..#... ...#.. "},
        {{5, 1, 0, 0}, "...... ...... ...### ###... "},     {{0, 0, 1, 3}, ".#.... .#.... #..... #..... "},
        {{-9, -9, 16, 16}, "...#.. ..#... .#.... #..... "}, {{0, 4, 5, 4}, "...... ...... ...... ...... "},
        {{-5, 2, 0, 0}, "...... ...... ...... ...... "}, // one column is left
    };
    for (const auto& [line, picture] : cases)
        for (int bits : {8, 16, 24})
            EXPECT_EQ(drawn(6, 4, bits, line), picture) << bits << ": " << line.x1 << ' ' << line.y1;
}

} // namespace

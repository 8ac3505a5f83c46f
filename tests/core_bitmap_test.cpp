#include "bitmap/pixel_line.h"
#include "bitmap/pixel_manipulators.h"
#include "bitmap_files.h"
#include "bitmap_memory.h"

#include <gmock/gmock.h>

#include <climits>

namespace {

using namespace wnt;

BitmapHeader sized(int width, int height, int bits, int planes = 1) {
    return {40, width, height, static_cast<std::uint16_t>(planes), static_cast<std::uint16_t>(bits)};
}

TEST(BitmapSizes, FollowTheirRulesToTheEndsOfTheRange) {
    EXPECT_EQ(unpadded_bytes(sized(3, 5, 24)), 45U);
    EXPECT_EQ(unpadded_bytes(sized(3, 1, 1)), 0U); // truncated
    EXPECT_EQ(unpadded_bytes(sized(16384, 16384, 24)), 0x8000'0000U >> 3);
    EXPECT_EQ(unpadded_bytes(sized(4, -1, 8)), (0U - 32) >> 3);
    EXPECT_EQ(unpadded_bytes(sized(INT_MIN, INT_MIN, 0xFFFF, 0xFFFF)), 0U);
    EXPECT_EQ(padded_bytes(sized(3, -5, 24)), 60U);
    EXPECT_EQ(padded_bytes(sized(9, 1, 1)), 4U);
    for (const auto& none : {sized(0, 1, 8), sized(-1, 1, 8), sized(1, 0, 8), sized(INT_MAX, INT_MIN, 0xFFFF)})
        EXPECT_EQ(padded_bytes(none), std::nullopt);
    EXPECT_EQ(storage_bytes(sized(3, -2, 24)), 8U);
    EXPECT_EQ(storage_bytes(sized(INT_MAX, INT_MIN, 1)), 0x8000'0000ULL * 0x8000'0000ULL);
    EXPECT_EQ(storage_bytes(sized(-5, 7, 8)), 0U);
    BitmapHeader compressed = sized(2, 2, 8);
    compressed.compression = 1;
    compressed.image_size = 900; // what a decoder may read
    EXPECT_EQ(drawn_bytes(compressed), 900U);
}

TEST(BitmapColours, AreCountedByEachClassesRule) {
    const struct {
        int bits;
        std::uint32_t used, dib, bitmap;
    } cases[] = {{1, 0, 2, 2},         {4, 0, 16, 16},       {8, 0, 256, 256},           {2, 0, 4, 0},
                 {16, 0, 0, 0},        {24, 7, 7, 7},        {8, 300, 300, 256},         {1, 9, 9, 2},
                 {8, 0x10005, 5, 256}, {8, 0x10000, 0, 256}, {24, 70'000, 4464, 70'000}, {0, 0, 1, 0}};
    for (const auto& c : cases) {
        BitmapHeader header = sized(1, 1, c.bits);
        header.colours_used = c.used;
        EXPECT_EQ(dib_colours(header), c.dib) << c.bits << ' ' << c.used;
        EXPECT_EQ(bitmap_colours(header), c.bitmap) << c.bits << ' ' << c.used;
    }
}

TEST(BitmapReaders, ReadEveryKindOfFile) {
    auto files = all_bitmap_files();
    files.push_back({8, 5, 2, false, 300});    // more colours than pixels can tell apart
    files.push_back({24, 5, 2, false, 1000});  // colours for screens that lack them
    files.push_back({8, 5, 2, false, 20, 77}); // a short table, and a gap before the pixels
    for (const BitmapFile& file : files) {
        SCOPED_TRACE(testing::Message() << file.bits << " bits, " << file.width << " x " << file.height << ", core "
                                        << file.core << ", colours " << file.colours_used);
        const Bytes bytes = file.bytes();
        BitmapHead head;
        BitmapPixels pixels;
        ASSERT_TRUE(bitmap_of(bytes, head, pixels));
        const BitmapHeader header = header_of(head.block.get());
        EXPECT_EQ(header.size, 40U);
        EXPECT_EQ(header.width, file.width);
        EXPECT_EQ(header.height, file.height);
        EXPECT_EQ(header.bits, file.bits);
        const std::uint32_t colours = bitmap_colours(header);
        for (std::uint32_t i = 0; i < colours * 4; ++i)
            ASSERT_EQ(colour_table(head.block.get())[i], i % 4 == 3 ? 0 : BitmapFile::colour_byte(i / 4, i % 4)) << i;
        ASSERT_EQ(pixels.size, file.pixel_bytes());
        for (std::uint32_t i = 0; i < file.pixel_bytes(); ++i)
            ASSERT_EQ(pixels.bytes.get()[i], BitmapFile::pixel_byte(i)) << i;

        DibHead dib;
        ASSERT_EQ(dib_head_of(bytes, dib), file.core ? 6 : 0);
        if (!file.core) {
            EXPECT_EQ(dib.colours, file.colours());
            EXPECT_EQ(dib.pixel_offset, file.head_bytes() + file.gap);
            EXPECT_EQ(std::memcmp(dib.block.get(), bytes.data() + 14, 40 + 4 * dib.colours), 0);
        }
    }
}

TEST(BitmapReaders, RefuseFilesCutAnywhere) {
    for (const BitmapFile& file : {BitmapFile{4, 9, 3}, BitmapFile{8, 3, 2, true}, BitmapFile{24, 5, 2, false, 3, 6}}) {
        const Bytes bytes = file.bytes();
        for (std::size_t length = 0; length < bytes.size(); ++length) {
            const Bytes cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
            BitmapHead head;
            BitmapPixels pixels;
            EXPECT_FALSE(bitmap_of(cut, head, pixels)) << length;
            DibHead dib;
            const int code = length < 2 ? 4 : length < 15 || file.core ? 6 : 0; // missing bytes read as 0
            EXPECT_EQ(dib_head_of(cut, dib), code) << length;
        }
    }
}

// A wrong size, offset or count is refused before any memory is taken for it; less data than the picture needs is
// filled up.
TEST(BitmapReaders, BoundWhatTheFilePromises) {
    const BitmapFile plain = {8, 4, 4};
    const struct {
        std::size_t at;
        std::uint32_t value;
        bool accepted;
    } cases[] = {{2, 0, false},
                 {2, 0xFFFF'FFFF, false},
                 {10, 0, true},
                 {10, 1094, true},
                 {10, 1095, false},
                 {14, 108, false},
                 {18, 0x7FFF'FFFF, false},
                 {18, 0xFFFF'FFFF, true},
                 {22, 0x8000'0000, false},
                 {22, 500, true},
                 {30, 1, true},
                 {30, 99, true},
                 {46, 0xFFFF'FFFF, true},
                 {28, 24, true}};
    for (const auto& c : cases) {
        Bytes bytes = plain.bytes();
        for (int i = 0; i < 4; ++i)
            bytes[c.at + i] = static_cast<std::uint8_t>(c.value >> 8 * i);
        BitmapHead head;
        BitmapPixels pixels;
        EXPECT_EQ(bitmap_of(bytes, head, pixels), c.accepted) << c.at << ' ' << c.value;
        if (c.accepted)
            EXPECT_GE(pixels.size, *drawn_bytes(header_of(head.block.get()))) << c.at;
    }
    BitmapFile hungry = {24, 1, 1};
    Bytes bytes = hungry.bytes();
    bytes[49] = 0x40; // a thousand million colours
    BitmapHead head;
    BitmapPixels pixels;
    EXPECT_FALSE(bitmap_of(bytes, head, pixels));
}

// -- Lines ------------------------------------------------------------------------------------------------------------

std::string drawn(int width, int height, int bits, const PixelLine& line) {
    const auto writer = make_pixel_manipulator(bits);
    const std::size_t size = static_cast<std::size_t>(bits / 8);
    Bytes array(static_cast<std::size_t>(width * height) * size);
    writer->Init(array.data(), width, height);
    writer->SetColor(255, 255, 255);
    draw_line(*writer, array.data(), width, height, bits == 8 || bits == 16 || bits == 24 ? bits / 8 : 0, line);
    std::string rows;
    for (int y = height - 1; y >= 0; --y, rows += ' ')
        for (int x = 0; x < width; ++x) {
            const auto pixel = array.begin() + static_cast<std::ptrdiff_t>((y * width + x) * size);
            rows +=
                std::any_of(pixel, pixel + static_cast<std::ptrdiff_t>(size), [](int b) { return b != 0; }) ? '#' : '.';
        }
    return rows;
}

TEST(PixelLines, CoverTheirPixels) {
    const struct {
        PixelLine line;
        const char* picture;
    } cases[] = {
        {{1, 1, 4, 1}, "...... ...... .####. ...... "},
        {{9, 0, -9, 0}, "...... ...... ...... ###### "},
        {{2, 9, 2, -9}, "..#... ..#... ..#... ..#... "},
        {{3, 3, 3, 3}, "...#.. ...... ...... ...... "},
        {{0, 0, 3, 3}, "...#.. ..#... .#.... #..... "},
        {{3, 0, 0, 3}, "#..... .#.... ..#... ...#.. "},
        {{0, 0, 5, 1}, "...... ...... ...### ###... "},
        {{0, 0, 1, 3}, ".#.... .#.... #..... #..... "},
        {{-10, -10, 16, 16}, "...#.. ..#... .#.... #..... "},
        {{0, 4, 5, 4}, "...... ...... ...... ...... "},
        {{-1, 0, -1, 3}, "...... ...... ...... ...... "},
        {{-5, 2, 0, 0}, "...... ...... ...... ...... "}, // one column left
    };
    for (const auto& c : cases)
        for (int bits : {8, 16, 24}) {
            EXPECT_EQ(drawn(6, 4, bits, c.line), c.picture) << bits << ": " << c.line.x1 << ' ' << c.line.y1;
            if (c.line.x1 != 0 || c.line.y1 != 0)
                continue;
            EXPECT_EQ(drawn(6, 4, bits, {c.line.x2, c.line.y2, c.line.x1, c.line.y1}), c.picture) << "reversed";
        }
    EXPECT_EQ(drawn(6, 4, 32, {0, 0, 5, 3}), "...... ...... ...... ...... ");
}

// All pairs of awkward coordinates on exactly sized arrays: the sanitizers see a pixel beside them.
TEST(PixelLines, StayInsideFromAnywhere) {
    const int places[] = {INT_MIN, INT_MIN + 1, -70'000, -1, 0, 1, 2, 4, 5, 6, 70'000, INT_MAX - 1, INT_MAX};
    for (int x1 : places)
        for (int y1 : places)
            for (int x2 : places)
                for (int y2 : places)
                    for (int bits : {8, 24}) {
                        const std::string picture = drawn(5, 5, bits, {x1, y1, x2, y2});
                        const auto ink = std::count(picture.begin(), picture.end(), '#');
                        ASSERT_LE(ink, 5) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
                    }
}

} // namespace

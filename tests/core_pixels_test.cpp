#include "bitmap/pixel_manipulators.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;
constexpr std::uint8_t untouched = 0xEE;

// What a pixel of a colour writes: its bytes.
Bytes packed(int bits, int r, int g, int b) {
    Bytes pixel(static_cast<std::size_t>(bits / 8), untouched);
    const auto writer = wnt::make_pixel_manipulator(bits);
    writer->Init(pixel.data(), 1, 1);
    writer->SetColor(r, g, b);
    writer->SetPixel(0, 0);
    return pixel;
}

TEST(Pixels, PackColoursByDepth) {
    const struct {
        int r, g, b;
        std::uint8_t index;
        unsigned word;
        Bytes bytes;
    } cases[] = {{0, 0, 0, 0, 0, {0, 0, 0}},
                 {255, 255, 255, 60, 0x7FFF, {255, 255, 255}},
                 {255, 0, 0, 0, 0x7C00, {0, 0, 255}},
                 {0, 255, 0, 12, 0x03E0, {0, 255, 0}},
                 {0, 0, 255, 60, 0x001F, {255, 0, 0}},
                 {1, 1, 1, 0, 0x14A5, {1, 1, 1}},
                 {16, 8, 4, 12, 0x4114, {4, 8, 16}},
                 {-1, 256, 0x12345, 4, 0x7C15, {0x45, 0, 255}},
                 {INT_MIN, INT_MAX, INT_MIN, 12, 0x03E0, {0, 255, 0}}};
    for (const auto& c : cases) {
        EXPECT_EQ(packed(8, c.r, c.g, c.b), Bytes{c.index}) << c.r << ' ' << c.g << ' ' << c.b;
        const Bytes word = {static_cast<std::uint8_t>(c.word), static_cast<std::uint8_t>(c.word >> 8)};
        EXPECT_EQ(packed(16, c.r, c.g, c.b), word) << c.r << ' ' << c.g << ' ' << c.b;
        EXPECT_EQ(packed(24, c.r, c.g, c.b), c.bytes) << c.r << ' ' << c.g << ' ' << c.b;
    }
}

// Each pixel of unpadded rows at its own bytes and nowhere else, wherever the array begins.
TEST(Pixels, WriteTheirBytesOnly) {
    constexpr int height = 3;
    for (int bits : {-8, 0, 1, 4, 8, 15, 16, 24, 32}) {
        const bool drawn = bits == 8 || bits == 16 || bits == 24;
        const int size = drawn ? bits / 8 : 4;
        for (int width : {1, 4, 5, 7}) {
            for (int i = 0; i < width * height; ++i) {
                Bytes array(static_cast<std::size_t>(1 + width * height * size + 1), untouched);
                Bytes expected = array;
                const auto writer = wnt::make_pixel_manipulator(bits);
                writer->Init(array.data() + 1, width, height);
                writer->SetPixel(i % width, i / width); // black at first
                if (drawn)
                    std::fill_n(expected.begin() + 1 + i * size, size, 0);
                ASSERT_EQ(array, expected) << bits << " bits, width " << width << ", pixel " << i;
            }
        }
    }
}

TEST(Pixels, HoldAtTheEndsOfTheRange) {
    for (int bits : {8, 16, 24, 32}) {
        const auto writer = wnt::make_pixel_manipulator(bits);
        writer->SetColor(1, 2, 3);
        writer->SetPixel(0, 0); // no array yet
        writer->Init(nullptr, 100, 100);
        writer->SetPixel(INT_MAX, INT_MAX);
        writer->SetPixel(5, 5);

        const struct {
            int width, x, y;
        } below[] = {{4, -1, 0},      {4, 0, -1},      {4, INT_MIN, 0},
                     {INT_MIN, 0, 1}, {INT_MAX, 1, 1}, {INT_MAX, INT_MAX, INT_MIN}};
        Bytes array(64, untouched);
        for (const auto& c : below) {
            writer->Init(array.data() + 32, c.width, 1);
            writer->SetPixel(c.x, c.y);
            EXPECT_THAT(array, testing::Each(untouched)) << c.width << ' ' << c.x << ' ' << c.y;
        }
        writer->Init(array.data(), 65'536, 1);
        writer->SetPixel(0, 65'536); // wraps around to the first pixel
        EXPECT_EQ(array[0] != untouched, bits != 32);
    }
}

} // namespace

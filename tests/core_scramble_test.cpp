#include "diag/scramble.h"

#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes scrambled(Bytes bytes) {
    wnt::scramble(bytes.data(), bytes.size());
    return bytes;
}

// The stream byte by byte, from the table that a pass over zeros shows.
Bytes stream(std::size_t size, const std::array<std::uint8_t, 59>& table) {
    const std::uint32_t words[] = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
    Bytes bytes(size);
    std::size_t j = 10;
    for (std::uint32_t i = 0; i < size; ++i, j = (j + 5) % 59)
        bytes[i] = static_cast<std::uint8_t>((i - 1) * i ^ words[i % 20 / 4] >> i % 4 * 8 ^ table[j]);
    return bytes;
}

} // namespace

TEST(Scramble, MixesTheFixedStreamIn) {
    constexpr std::size_t whole = 300'007; // several times the common period of all parts, and an odd rest
    std::array<std::uint8_t, 59> table{};
    const Bytes first = scrambled(Bytes(59)), bare = stream(59, table);
    for (std::size_t i = 0, j = 10; i < 59; ++i, j = (j + 5) % 59)
        table[j] = first[i] ^ bare[i];
    EXPECT_EQ(scrambled(Bytes(whole)), stream(whole, table));

    Bytes data(whole);
    std::iota(data.begin(), data.end(), std::uint8_t{3});
    Bytes expected = stream(whole, table);
    for (std::size_t i = 0; i < whole; ++i)
        expected[i] ^= data[i];
    EXPECT_EQ(scrambled(data), expected);
}

// Blocks that older programs scrambled must stay readable.
TEST(Scramble, KeepsItsStreamForEver) {
    std::uint32_t sum = 2166136261u;
    for (const std::uint8_t byte : scrambled(Bytes(59)))
        sum = (sum ^ byte) * 16777619u;
    EXPECT_EQ(sum, 2270320937u);
}

TEST(Scramble, RestoresEveryLength) {
    for (std::size_t size = 0; size <= 200; ++size) {
        Bytes data(size + 2, 0xA5); // guards before and behind
        const Bytes before = data;
        wnt::scramble(data.data() + 1, size);
        EXPECT_EQ(data.front(), 0xA5);
        EXPECT_EQ(data.back(), 0xA5);
        EXPECT_EQ(data != before, size > 0) << size;
        wnt::scramble(data.data() + 1, size);
        EXPECT_EQ(data, before) << size;
    }
}

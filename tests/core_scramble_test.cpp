#include "diag/scramble.h"

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(Scramble, MixesTheFixedStreamIn) {
    const std::uint32_t words[] = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
    Bytes zeros(300'007), letters(300'007, 'x'); // several times the common period of all parts, and an odd rest
    for (Bytes* each : {&zeros, &letters})
        wnt::scramble(each->data(), each->size());
    int table[59], wrong = 0;
    for (std::uint32_t i = 0, j = 10; i < zeros.size(); ++i, j = (j + 5) % 59) {
        // What is fixed of the stream apart from its table.
        const auto squares_and_words = static_cast<std::uint8_t>((i - 1) * i ^ words[i % 20 / 4] >> i % 4 * 8);
        const int entry = zeros[i] ^ squares_and_words;
        table[j] = i < 59 ? entry : table[j]; // its values show in the first pass through it
        wrong += table[j] != entry || letters[i] != (zeros[i] ^ 'x');
    }
    EXPECT_EQ(wrong, 0);
    std::uint32_t sum = 2166136261u; // blocks that other programs scrambled must stay readable
    for (std::size_t i = 0; i < 59; ++i)
        sum = (sum ^ zeros[i]) * 16777619u;
    EXPECT_EQ(sum, 2270320937u);
}

TEST(Scramble, RestoresEveryLengthAndNothingElse) {
    for (std::size_t size = 0; size <= 300; ++size) {
        Bytes data(size + 2, 0xA5);
        const Bytes before = data;
        wnt::scramble(data.data() + 1, size);
        EXPECT_EQ(data != before, size > 0) << size;
        wnt::scramble(data.data() + 1, size);
        EXPECT_EQ(data, before) << size;
    }
}

} // namespace

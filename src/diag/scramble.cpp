#include "diag/scramble.h"

#include <algorithm>
#include <array>
#include <cstring>

#if defined(__GNUC__) && defined(__x86_64__)
#define WIDE_REGISTERS
#define INLINED inline __attribute__((always_inline))
#else
#define INLINED inline
#endif

namespace {

using Byte = std::uint8_t;

// Fixed for ever: programs of any version share one block, and each must read what another one scrambled.
constexpr std::array<Byte, 59> key_table = {0x53, 0xCF, 0xF6, 0x29, 0x3F, 0x16, 0xCA, 0x99, 0x31, 0x52, 0x9E, 0x3C,
                                            0xBF, 0x1F, 0xD8, 0x28, 0x82, 0x63, 0x69, 0x08, 0xCB, 0x4B, 0xA6, 0x24,
                                            0x40, 0x70, 0x0F, 0xC4, 0x26, 0x34, 0x8D, 0xB3, 0xA7, 0xA3, 0xD3, 0x5E,
                                            0x1D, 0xF4, 0xFC, 0xB9, 0x92, 0x2F, 0xD9, 0x59, 0xBD, 0xED, 0xFD, 0x1B,
                                            0x80, 0x44, 0x58, 0xC0, 0x54, 0xA8, 0xD0, 0x32, 0x95, 0x50, 0x97};

constexpr std::array<std::uint32_t, 5> key_words = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
constexpr std::size_t word_bytes = 4 * key_words.size();

constexpr Byte word_byte(std::size_t i) {
    return static_cast<Byte>(key_words[i / 4] >> 8 * (i % 4));
}

constexpr Byte table_byte(std::size_t i) {
    return key_table[(10 + 5 * i) % key_table.size()];
}

// The low byte of (i - 1) * i repeats after 256 bytes, the words after 20, the table after 59: the whole stream after
// this many. It is made once, and a pass reads as much of it as the block is long.
constexpr std::size_t period = 1280 * key_table.size();
static_assert(period % 256 == 0 && period % word_bytes == 0);

using Stream = std::array<Byte, period>;

const Stream& stream() {
    static const Stream made = [] {
        Stream bytes;
        for (std::uint32_t i = 0; i < period; ++i)
            bytes[i] = static_cast<Byte>((i - 1) * i ^ word_byte(i % word_bytes) ^ table_byte(i));
        return bytes;
    }();
    return made;
}

// Of fixed length and without aliases, so that every compiler takes it in vector registers.
constexpr std::size_t stride = 128;
constexpr std::size_t cache_line = 64;
static_assert(period % stride == 0);

INLINED void mix_stride(Byte* __restrict bytes, const Byte* __restrict key) {
    for (std::size_t i = 0; i < stride; ++i)
        bytes[i] ^= key[i];
}

INLINED void mix_few(Byte* bytes, const Byte* key, std::size_t size) {
    std::size_t i = 0;
    for (std::uint64_t word, other; size - i >= sizeof word; i += sizeof word) {
        std::memcpy(&word, bytes + i, sizeof word);
        std::memcpy(&other, key + i, sizeof other);
        word ^= other;
        std::memcpy(bytes + i, &word, sizeof word);
    }
    for (; i < size; ++i)
        bytes[i] ^= key[i];
}

INLINED void mix_strides(Byte* bytes, const Byte* key, std::size_t size) {
    // Stores that lie across two lines of the cache cost twice: they begin where a line does.
    std::size_t i = std::min<std::size_t>(size, -reinterpret_cast<std::uintptr_t>(bytes) % cache_line);
    mix_few(bytes, key, i);
    for (; size - i >= stride; i += stride)
        mix_stride(bytes + i, key + i);
    mix_few(bytes + i, key + i, size - i);
}

using Mix = void (*)(Byte* bytes, const Byte* key, std::size_t size);

void mix(Byte* bytes, const Byte* key, std::size_t size) {
    mix_strides(bytes, key, size);
}

#ifdef WIDE_REGISTERS
// The same in registers of twice the width, for processors that have them; it pays for blocks in the nearest cache.
__attribute__((target("avx2"))) void mix_wide(Byte* bytes, const Byte* key, std::size_t size) {
    mix_strides(bytes, key, size);
}

Mix best_mix() {
    return __builtin_cpu_supports("avx2") ? mix_wide : mix;
}
#else
Mix best_mix() {
    return mix;
}
#endif

} // namespace

void wnt::scramble(std::uint8_t* bytes, std::size_t size) {
    static const Mix mix_block = best_mix();
    const Byte* key = stream().data();
    for (; size > period; bytes += period, size -= period)
        mix_block(bytes, key, period);
    mix_block(bytes, key, size);
}

#include "widgets/painting/supersample.h"

#include <bit>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace wnt {

namespace {

// Two of the four bytes of a pixel, each in a 16-bit lane with room for 16 of them.
constexpr std::uint32_t lanes = 0x00FF00FF;

template <int scale> void average(const std::uint32_t* large, std::size_t pitch, std::uint32_t* small, int count) {
    constexpr int shift = 2 * std::countr_zero(static_cast<unsigned>(scale));
    constexpr std::uint32_t half = (1u << shift) / 2 * 0x00010001u;
    for (int i = 0; i < count; ++i, large += scale) {
        std::uint32_t even = 0;
        std::uint32_t odd = 0;
        for (int y = 0; y < scale; ++y) {
            for (int x = 0; x < scale; ++x) {
                const std::uint32_t pixel = large[y * pitch + x];
                even += pixel & lanes;
                odd += pixel >> 8 & lanes;
            }
        }
        small[i] = ((even + half) >> shift & lanes) | ((odd + half) >> shift & lanes) << 8;
    }
}

#if defined(__SSE2__) || defined(_M_X64)
// The hot case, a block of 4 x 4 in four loads.
template <> void average<4>(const std::uint32_t* large, std::size_t pitch, std::uint32_t* small, int count) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i half = _mm_set1_epi16(8);
    for (int i = 0; i < count; ++i, large += 4) {
        __m128i sum = half; // four channels, twice
        for (int y = 0; y < 4; ++y) {
            const __m128i row = _mm_loadu_si128(reinterpret_cast<const __m128i*>(large + y * pitch));
            sum = _mm_add_epi16(sum, _mm_add_epi16(_mm_unpacklo_epi8(row, zero), _mm_unpackhi_epi8(row, zero)));
        }
        sum = _mm_sub_epi16(_mm_add_epi16(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(1, 0, 3, 2))), half);
        sum = _mm_srli_epi16(sum, 4);
        small[i] = static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(sum, zero)));
    }
}
#endif

template <int scale> void enlarge(const std::uint32_t* small, int count, std::uint32_t* large) {
    for (int i = 0; i < count; ++i)
        for (int x = 0; x < scale; ++x)
            large[i * scale + x] = small[i];
}

} // namespace

void enlarge_row(const std::uint32_t* small, int count, std::uint32_t* large, std::size_t pitch, int scale) {
    if (scale == 4)
        enlarge<4>(small, count, large);
    else if (scale == 2)
        enlarge<2>(small, count, large);
    else
        enlarge<1>(small, count, large);
    for (int y = 1; y < scale; ++y)
        std::memcpy(large + y * pitch, large, sizeof *large * static_cast<std::size_t>(count) * scale);
}

void average_row(const std::uint32_t* large, std::size_t pitch, std::uint32_t* small, int count, int scale) {
    if (scale == 4)
        average<4>(large, pitch, small, count);
    else if (scale == 2)
        average<2>(large, pitch, small, count);
    else
        average<1>(large, pitch, small, count);
}

} // namespace wnt

#pragma once

#include <cstdint>

namespace wnt {

inline constexpr int most_pulse_curves = 10;
inline constexpr int pulse_text_size = 25; // 24 characters and a terminator

using PulseText = char[pulse_text_size];

/// The curves that a pulse file names at its beginning.
struct PulseHeader {
    std::int32_t line_count = 0;
    PulseText titles[most_pulse_curves] = {};
};

} // namespace wnt

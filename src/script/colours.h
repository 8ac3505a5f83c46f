#pragma once

#include <cstdint>
#include <string_view>

namespace wnt {

/// A colour value in the platform's layout, 0x00BBGGRR.
constexpr std::uint32_t rgb_value(unsigned red, unsigned green, unsigned blue) {
    return red | green << 8 | blue << 16;
}

inline constexpr int colour_count = 16;

/// Names of the sixteen fixed colours; the position is the colour index that scripts and settings store.
inline constexpr std::string_view colour_words[colour_count] = {
    "BLACK",    "WHITE", "BLUE",     "YELLOW",     "GREEN",     "MAGENTA",     "RED",     "CYAN",
    "DARKGRAY", "GRAY",  "DARKBLUE", "DARKYELLOW", "DARKGREEN", "DARKMAGENTA", "DARKRED", "DARKCYAN",
};

/// Values of the sixteen fixed colours, by colour index. GRAY is the lighter of the two greys.
inline constexpr std::uint32_t colour_values[colour_count] = {
    rgb_value(0, 0, 0),       rgb_value(255, 255, 255), rgb_value(0, 0, 255), rgb_value(255, 255, 0),
    rgb_value(0, 255, 0),     rgb_value(255, 0, 255),   rgb_value(255, 0, 0), rgb_value(0, 255, 255),
    rgb_value(128, 128, 128), rgb_value(192, 192, 192), rgb_value(0, 0, 128), rgb_value(128, 128, 0),
    rgb_value(0, 128, 0),     rgb_value(128, 0, 128),   rgb_value(128, 0, 0), rgb_value(0, 128, 128),
};

} // namespace wnt

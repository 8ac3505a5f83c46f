#pragma once

#include <climits>
#include <string>
#include <string_view>
#include <vector>

#include "controls/pixel_rect.h"

namespace wnt {

/// Measures a tip's two fonts, in pixels.
class TipFonts {
public:
    virtual ~TipFonts() = default;
    virtual int width(std::string_view text, bool bold) = 0;
    /// The height of a line in either.
    virtual int row() = 0;
};

struct TipParts {
    std::string_view title; ///< bold, above the text
    std::string_view text;  ///< its lines end with line feeds
    int icon_width = 0;     ///< pixels; 0: no icon
    int icon_height = 0;
    bool sample = false; ///< a square of a colour before the first line

    bool empty() const { return title.empty() && text.empty() && !icon_width && !sample; }
};

struct TipLine {
    std::string text;
    bool bold = false;
    int x = 0;
    int y = 0;

    friend bool operator==(const TipLine&, const TipLine&) = default;
};

struct TipLayout {
    int width = 0;
    int height = 0;
    PixelRect icon;
    PixelRect sample;
    std::vector<TipLine> lines;

    friend bool operator==(const TipLayout&, const TipLayout&) = default;
};

inline constexpr int longest_tip = 4096; ///< characters of title or text, what is beyond is not shown
inline constexpr int most_tip_lines = 50;

/// Lines are broken at blanks where they would be wider than `widest` pixels, and within words that are wider by
/// themselves. Lines beyond `highest` pixels, or the most, are told by dots. `scale` is a percentage of the distances
/// at 96 dots an inch.
TipLayout lay_out_tip(const TipParts& parts, TipFonts& fonts, int widest, int scale, int highest = INT_MAX);

/// Where a tip of this size stands: below the rectangle or, where there is no room for it, above; within `screen`. It
/// begins where the rectangle does, or has its middle there.
PixelRect place_tip(int width, int height, const PixelRect& around, const PixelRect& screen, bool centred = false);

} // namespace wnt

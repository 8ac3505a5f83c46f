#pragma once

#include <string>
#include <string_view>

#include "controls/pixel_rect.h"
#include "script/keywords.h"
#include "script/values.h"

namespace wnt {

inline constexpr std::string_view frame_keys[] = {"MSG",        "ID",          "TITLE",        "ALIGN",
                                                  "BORDERTYPE", "BORDERSTYLE", "BORDERHEIGHT", "CLRTEXT",
                                                  "CLRBACK",    "CLRSUN",      "CLRSHADOW"};

inline constexpr int system_colour = -1;

/// A panel's border, title and ground, and what a script line does to them.
struct FrameModel {
    std::string title; ///< at most 49 characters
    int align = 6;     ///< position in alignment_words: top, centred
    int border_type = border_raised;
    int border_sides = side_left | side_right | side_top | side_bottom;
    int border_height = 1; ///< pixels at 96 dots an inch
    int text = system_colour;
    int background = system_colour; ///< indexes of the colour table, or the system's colour for it
    int sun = system_colour;
    int shadow = system_colour;

    /// True when it changed something that is seen. Unknown keys, words and colours change nothing.
    bool load_line(std::string_view line);
    /// At most 49 characters of it.
    void set_title(std::string_view text);

    /// The title stands above or below the content and takes a strip of its own, instead of lying behind it.
    bool has_title_strip() const { return !title.empty() && align / 4 < 2; }
    bool title_on_top() const { return align / 4 == 1; }
};

struct FrameLayout {
    int border = 0;    ///< pixels, on the sides that have one
    PixelRect title;   ///< empty without a title
    PixelRect content; ///< never turned round

    friend bool operator==(const FrameLayout&, const FrameLayout&) = default;
};

/// `scale` is a percentage of the sizes at 96 dots an inch; `strip` the height of the title's strip in pixels.
FrameLayout frame_layout(const FrameModel& model, int width, int height, int scale, int strip);

/// Keeps each edge of a window at a share of its container's content: 0 at the left or upper edge, 1 at the right or
/// lower one, as many pixels off as it was when the anchor was set.
struct Anchor {
    double share[4] = {}; ///< left, top, right, bottom
    int offset[4] = {};

    /// Shares are clamped to 0..1, not-a-number counts as 0.
    static Anchor at(const PixelRect& place, const PixelRect& content, const double (&shares)[4]);
    /// Where the window lies in a content; never turned round.
    PixelRect place(const PixelRect& content) const;
};

} // namespace wnt

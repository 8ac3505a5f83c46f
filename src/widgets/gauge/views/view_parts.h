#pragma once

#include <algorithm>
#include <numbers>
#include <string>

#include "widgets/gauge/views/gauge_view.h"

namespace wnt {

// Parts that the views share. Sizes are pixels; text sizes are tenths of a point.

inline constexpr Colour white = 0xFFFFFF;
inline constexpr Colour black = 0x000000;

inline constexpr float pi = std::numbers::pi_v<float>;
inline constexpr float light_angle = 0.75f * pi; ///< the light comes from the top left

inline constexpr float least_text = 6; ///< pixels: below, digits cannot be told apart

/// The colours that follow from a model's own, so that everything stays legible on any background.
struct Theme {
    Colour back;
    Colour text;
    Colour sun;
    Colour shadow;
    Colour plate;  ///< where scales and readouts lie
    Colour groove; ///< the empty part of a bar
};
Theme theme_of(const GaugeModel& model);

/// A stored colour index as the surface takes it: past the end of the table it wraps, 255 included.
Colour indexed_colour(int index);
/// The colour of the zone that holds a value.
Colour zone_colour(const GaugeModel& model, std::int32_t value);
/// Whether one colour can hardly be told from the other.
bool alike(Colour a, Colour b);
/// A colour for the edge of something of this colour on a ground like it.
Colour edge_of(Colour colour);
/// A box that is told from its ground: where their colours are alike, by an outline as wide as there is room for. Two
/// figures, always.
void paint_on_ground(Picture& picture, const BoxF& box, Colour colour, Colour ground);
/// A dark or a light ground, whichever this colour can be read on.
Colour ground_for(Colour colour);

/// The largest size, from `tenths` down to `least`, whose measure is within a width; `least` where none is. Text grows
/// with its size, so only the rounding of glyphs is left to be tried out, and few fonts are made.
template <class Measure> int size_within(float width, int tenths, int least, Measure measure) {
    const float wanted = measure(tenths);
    width = std::max(width, 0.0f);
    if (wanted <= width || tenths <= least)
        return tenths;
    constexpr int step = 5;
    const float share = width / wanted;
    int size = std::min(tenths, static_cast<int>(static_cast<float>(tenths) * share) + 2 * step);
    while (size > least && measure(size) > width)
        size -= step;
    return std::max(size, least);
}

struct FittedText {
    std::string text;
    int tenths;
};
/// Makes a text fit a width: smaller down to `least`, then cut with dots; empty where there is no room for a character.
FittedText fit(TextMeter& meter, std::string_view text, int tenths, float width, int least);

/// The same for a number, which is never cut: empty when it does not fit at a legible size.
FittedText fit_number(TextMeter& meter, std::string_view number, int tenths, float width);

/// Writes one line centred on a height.
void write(Picture& picture, TextMeter& meter, PointF at, HAlign align, int tenths, Colour colour,
           std::string_view text, const BoxF* clip = nullptr);

/// Background and border.
void paint_ground(Picture& picture, const GaugeModel& model, const Stage& stage);
/// What they leave to the view.
BoxF inside_border(const GaugeModel& model, const Stage& stage);

bool has_title(const GaugeModel& model);
/// The title is to stand on the bar or the face instead of above it.
bool has_inner_title(const GaugeModel& model);

bool has_unit(const GaugeModel& model);

enum class UnitPlace { in_view, apart };

/// A view's space, with the line of the title taken off at its top and the place of a unit that stands apart off its
/// lower end, or off its right end where it is wide and low.
struct Layout {
    BoxF title; ///< empty when there is none
    BoxF unit;  ///< empty when it has its place in the view
    BoxF body;
    int title_size;
    int unit_size;
};
Layout lay_out(const GaugeModel& model, const Stage& stage, UnitPlace unit, bool title_on_bar = false);
void paint_titles(Picture& picture, const GaugeModel& model, const Stage& stage, const Layout& layout);

/// A frame of one pixel around something sunk, under light from the top left.
void paint_sunken_edge(Picture& picture, const BoxF& box, const Theme& theme);

} // namespace wnt

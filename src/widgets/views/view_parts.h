#pragma once

#include <algorithm>
#include <numbers>
#include <string>
#include <vector>

#include "widgets/gauge_scale.h"
#include "widgets/views/gauge_view.h"

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
/// A dark or a light ground, whichever this colour can be read on.
Colour ground_for(Colour colour);

/// The largest size, from `tenths` down to `least`, whose measure is within a width; `least` where none is. Text grows
/// with its size, so only the rounding of glyphs is left to be tried out, and few fonts are made.
template <class Measure> int size_within(float width, int tenths, int least, Measure measure) {
    const float wanted = measure(tenths);
    if (wanted <= width || tenths <= least)
        return tenths;
    constexpr int step = 5;
    const float share = std::max(width, 0.0f) / wanted;
    int size = std::min(tenths, static_cast<int>(static_cast<float>(tenths) * share) + 2 * step);
    while (size > least && measure(size) > width)
        size -= step;
    return std::max(size, least);
}

struct FittedText {
    std::string text;
    int tenths;
};
/// Makes a text fit a width: smaller down to `least`, then cut with dots.
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

/// A view's space, with the line of the title taken off at its top.
struct Layout {
    BoxF title; ///< empty when there is none
    BoxF body;
    int title_size;
};
Layout lay_out(const GaugeModel& model, const Stage& stage, bool title_on_bar = false);
void paint_title(Picture& picture, const GaugeModel& model, const Stage& stage, const Layout& layout);

/// The value in its zone's colour on a sunken plate, the unit behind it when both fit whatever the value.
void paint_readout(Picture& picture, const GaugeModel& model, const Stage& stage, const BoxF& plate,
                   bool with_unit = true);

/// In a wide and low space an instrument of this width goes to the left and the readout beside it: takes its place
/// off the body. Empty when the space is not wide enough.
BoxF take_side_readout(BoxF& body, float instrument_width);

/// Takes a strip for a small number off the lower end of a body that has no other place for one.
BoxF take_lower_readout(BoxF& body);

/// Either of them, for a round instrument that is too small to carry a readout; empty when it is not.
BoxF take_outer_readout(BoxF& body);

/// A frame of one pixel around something sunk, under light from the top left.
void paint_sunken_edge(Picture& picture, const BoxF& box, const Theme& theme);

/// The zones of the whole scale as boxes along a straight scale, from its low to its high end.
void paint_zone_strip(Picture& picture, const GaugeModel& model, const BoxF& strip, bool upright);

/// Where a value lies on the scale, 0 to 1.
float fraction_of(const GaugeModel& model, std::int32_t value);

struct Tick {
    float fraction;
    std::int32_t value;
    bool major; ///< has a label
};
/// The scale's ticks, thinned so that they and the labels keep their least distances on `length` pixels.
std::vector<Tick> ticks_of(const GaugeModel& model, float length, float least_tick, float least_label);

/// A coloured run of the scale, as a part of it from `from` up to `to`.
struct ScaleZone {
    float from;
    float to;
    Colour colour;
};
std::vector<ScaleZone> zones_of(const GaugeModel& model);

std::string number_text(std::int64_t value);
/// The widest label of the scale.
float widest_label(const GaugeModel& model, TextMeter& meter, int tenths);
/// The size, at most `tenths`, at which no label is wider than this; 0 when that would not be legible.
int label_size_for(const GaugeModel& model, TextMeter& meter, int tenths, float width);

/// The turn of a round scale, from lower left clockwise to lower right.
struct RoundScale {
    PointF centre;
    float radius;

    float angle(float fraction) const;
    PointF at(float fraction, float distance) const;
};

/// Where the ticks and labels of a round scale lie, as distances from the centre.
struct RoundTicks {
    float outer;
    float major_inner;
    float minor_inner;
    float label; ///< outer or inner edge of the labels
    bool labels_inside;
    int label_size; ///< 0: none
};
void paint_round_ticks(Picture& picture, const GaugeModel& model, const Stage& stage, const RoundScale& scale,
                       const RoundTicks& ticks);
void paint_round_zones(Picture& picture, const GaugeModel& model, const RoundScale& scale, float inner, float outer);
/// A ring lit from the top left.
void paint_bezel(Picture& picture, PointF centre, float inner, float outer, Colour dark, Colour light);

} // namespace wnt

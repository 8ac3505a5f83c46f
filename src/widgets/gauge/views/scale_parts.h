#pragma once

#include <string>
#include <vector>

#include "widgets/gauge/gauge_scale.h"
#include "widgets/gauge/views/gauge_view.h"

namespace wnt {

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

} // namespace wnt

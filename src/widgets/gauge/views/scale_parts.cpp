#include "widgets/gauge/views/scale_parts.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "widgets/gauge/views/view_parts.h"

// What every scale has: ticks, labels and coloured zones as parts of its length.

namespace wnt {

void paint_zone_strip(Picture& picture, const GaugeModel& model, const BoxF& strip, bool upright) {
    for (const ScaleZone& zone : zones_of(model)) {
        BoxF part = strip;
        if (upright) {
            part.bottom = std::round(strip.bottom + strip.height() * zone.from);
            part.top = std::round(strip.bottom + strip.height() * zone.to);
        } else {
            part.left = std::round(strip.left + strip.width() * zone.from);
            part.right = std::round(strip.left + strip.width() * zone.to);
        }
        if (alike(zone.colour, theme_of(model).back)) {
            picture.box(part, edge_of(zone.colour));
            part = part.inset(1);
        }
        picture.box(part, zone.colour);
    }
}

float fraction_of(const GaugeModel& model, std::int32_t value) {
    return static_cast<float>(scale_fraction(model.minimum, model.maximum, value));
}

namespace {

// A label tells the truth when its whole number lies close to the tick.
bool labelled_truly(const GaugeModel& model, const Tick& tick, float length) {
    return std::abs(fraction_of(model, tick.value) - tick.fraction) * length <= label_tolerance(length) ||
           model.minimum == model.maximum;
}

// The scale's end always has its tick and label: they push those before them aside.
void close_scale(std::vector<Tick>& ticks, const Tick& end, float length, float least_tick, float least_label) {
    while (ticks.size() > 1 && (end.fraction - ticks.back().fraction) * length < least_tick)
        ticks.pop_back();
    for (std::size_t i = ticks.size(); i-- > 1 && (end.fraction - ticks[i].fraction) * length < least_label;)
        ticks[i].major = false;
    ticks.push_back(end);
}

} // namespace

std::vector<Tick> ticks_of(const GaugeModel& model, float length, float least_tick, float least_label) {
    const TickSteps steps =
        tick_steps(model.minimum, model.maximum, model.scales, static_cast<std::int32_t>(length),
                   static_cast<std::int32_t>(std::ceil(least_tick)), static_cast<std::int32_t>(std::ceil(least_label)));
    const auto tick_at = [&](std::int32_t i) {
        return Tick{static_cast<float>(i) / static_cast<float>(model.scales),
                    division_value(model.minimum, model.maximum, model.scales, i), i % steps.major == 0};
    };
    std::vector<Tick> ticks;
    for (std::int32_t i = 0; i < model.scales; i += steps.minor) {
        ticks.push_back(tick_at(i));
        ticks.back().major = ticks.back().major && labelled_truly(model, ticks.back(), length);
    }
    Tick end = tick_at(model.scales);
    end.major = true;
    close_scale(ticks, end, length, least_tick, least_label);
    return ticks;
}

std::vector<ScaleZone> zones_of(const GaugeModel& model) {
    const ColourZones runs = colour_zones(model);
    std::vector<ScaleZone> zones;
    for (int i = 0; i < runs.count; ++i) {
        const ColourZone& run = runs.zones[static_cast<std::size_t>(i)];
        const bool last = i + 1 == runs.count;
        const float a = fraction_of(model, run.from);
        const float b = fraction_of(model, last ? run.to : runs.zones[static_cast<std::size_t>(i) + 1].from);
        zones.push_back({std::min(a, b), std::max(a, b), indexed_colour(run.colour)});
    }
    if (model.minimum == model.maximum && !zones.empty())
        zones.back().to = 1; // a scale of one value is that value's zone throughout
    return zones;
}

std::string number_text(std::int64_t value) {
    char text[24];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    return {text, end};
}

float widest_label(const GaugeModel& model, TextMeter& meter, int tenths) {
    return std::max(meter.width(number_text(model.minimum), tenths), meter.width(number_text(model.maximum), tenths));
}

int label_size_for(const GaugeModel& model, TextMeter& meter, int tenths, float width) {
    const auto measure = [&](int size) { return widest_label(model, meter, size); };
    const int least = meter.tenths(least_text);
    const int size = size_within(width, tenths, least, measure);
    return size >= least && measure(size) <= width ? size : 0;
}

} // namespace wnt

#include "widgets/gauge/views/round_scale.h"

#include <algorithm>
#include <cmath>

#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

namespace wnt {

namespace {

constexpr float first_angle = 1.25f * pi; // lower left
constexpr float sweep = 1.5f * pi;

// How far a label reaches from its middle towards the centre of the scale.
float reach(float angle, float width, float height) {
    return std::abs(std::cos(angle)) * width / 2 + std::abs(std::sin(angle)) * height / 2;
}

} // namespace

float RoundScale::angle(float fraction) const {
    return first_angle - sweep * fraction;
}

PointF RoundScale::at(float fraction, float distance) const {
    const float a = angle(fraction);
    return {centre.x + std::cos(a) * distance, centre.y + std::sin(a) * distance};
}

void paint_round_ticks(Picture& picture, const GaugeModel& model, const Stage& stage, const RoundScale& scale,
                       const RoundTicks& ticks) {
    const Theme theme = theme_of(model);
    const float length = sweep * ticks.outer;
    const bool labelled = ticks.label_size > 0;
    const float label_width = labelled ? widest_label(model, stage.meter, ticks.label_size) : 0;
    const FontMetrics font = stage.meter.metrics(std::max(ticks.label_size, 1));
    // Labels stand on a circle of their own: measure the room between them there.
    const float label_circle = ticks.labels_inside ? ticks.label - label_width / 2 : ticks.label;
    const float room = std::max(label_circle, 1.0f) / std::max(ticks.outer, 1.0f);
    const float label_gap = labelled ? (label_width + font.cap_height * 0.8f) / room : 12.0f;
    const float weight = std::clamp(scale.radius * 0.018f, 1.0f, 4.0f);

    for (const Tick& tick : ticks_of(model, length, 3.5f, label_gap)) {
        const float inner = tick.major ? ticks.major_inner : ticks.minor_inner;
        picture.stroke(scale.at(tick.fraction, inner), scale.at(tick.fraction, ticks.outer),
                       tick.major ? weight : weight * 0.6f, theme.text);
        if (!tick.major || !labelled)
            continue;
        const std::string label = number_text(tick.value);
        const float a = scale.angle(tick.fraction);
        const float half = reach(a, stage.meter.width(label, ticks.label_size), font.cap_height);
        const PointF at = scale.at(tick.fraction, ticks.labels_inside ? ticks.label - half : ticks.label + half);
        write(picture, stage.meter, at, HAlign::centre, ticks.label_size, theme.text, label);
    }
}

void paint_round_zones(Picture& picture, const GaugeModel& model, const RoundScale& scale, float inner, float outer) {
    for (const ScaleZone& zone : zones_of(model))
        picture.ring_sector(scale.centre, inner, outer, scale.angle(zone.from), scale.angle(zone.to), zone.colour);
}

void paint_bezel(Picture& picture, PointF centre, float inner, float outer, Colour dark, Colour light) {
    const int parts = std::clamp(static_cast<int>(outer * 0.6f), 24, 120);
    const float part = 2 * pi / static_cast<float>(parts);
    for (int i = 0; i < parts; ++i) {
        const float middle = part * (static_cast<float>(i) + 0.5f);
        const int glow = static_cast<int>(128 + 127 * std::cos(middle - light_angle));
        const float from = part * static_cast<float>(i);
        picture.ring_sector(centre, inner, outer, from, from + part * 1.02f, blend(dark, light, glow));
    }
}

} // namespace wnt

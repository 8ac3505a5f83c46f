#include <algorithm>
#include <cmath>

#include "widgets/gauge/views/readout.h"
#include "widgets/gauge/views/round_scale.h"
#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

// The turning knob: a round scale around a cap whose notch points at the value.

namespace wnt {

namespace {

constexpr float least_labelled_radius = 30;
constexpr int ridges = 28;
// Parts of the radius, from the cap outwards.
constexpr float labelled_cap = 0.52f;
constexpr float bare_cap = 0.66f;
constexpr float labels_from = labelled_cap + 0.24f;

struct Knob {
    Layout layout;
    RoundScale scale;
    float radius; // of the scale with its labels
    float cap;
    int label_size;
    BoxF readout;
};

Knob lay_out_knob(const GaugeModel& model, const Stage& stage) {
    Knob k = {};
    k.layout = lay_out(model, stage);
    BoxF& body = k.layout.body;
    k.readout = take_outer_readout(body);
    k.radius = std::max(std::min(body.width() / 2, body.height() / 2) - 1, 1.0f);
    if (k.radius >= least_labelled_radius) {
        // Labels stand beside the ring and take their width off the knob, within reason.
        const int size = stage.meter.tenths(std::clamp(k.radius * 0.125f, 6.5f, 34.0f));
        const float most = body.width() / 2 - k.radius * labels_from * 0.72f - 2;
        k.label_size = label_size_for(model, stage.meter, size, most);
        if (k.label_size) {
            const float room = body.width() / 2 - widest_label(model, stage.meter, k.label_size) - 2;
            k.radius = std::min(k.radius, room / labels_from);
        }
    }
    k.scale = {body.centre(), k.radius};
    k.cap = k.radius * (k.label_size ? labelled_cap : bare_cap);
    if (!k.readout.empty())
        return k;
    const PointF c = k.scale.centre;
    const float half_width = k.radius * 0.34f;
    k.readout = {std::round(c.x - half_width), std::round(c.y - k.radius * 0.98f), std::round(c.x + half_width),
                 std::round(c.y - k.radius * 0.74f)};
    return k;
}

// Soft, to the lower right; under the zones and ticks.
void paint_cap_shadow(Picture& picture, const Knob& k, const Theme& theme) {
    for (int i = 3; i >= 1; --i) {
        const float d = k.cap * 0.035f * static_cast<float>(i);
        picture.disc({k.scale.centre.x + d, k.scale.centre.y - d}, k.cap * 1.01f,
                     blend(theme.back, black, 28 * (4 - i)));
    }
}

void paint_cap(Picture& picture, const Knob& k) {
    const PointF c = k.scale.centre;
    // The ridged skirt, the rim, and a top that grows lighter towards the light.
    const Colour light = 0xF2F2F2;
    const Colour dark = 0x6C6C6C;
    paint_bezel(picture, c, k.cap * 0.80f, k.cap, dark, light);
    const float ridge = pi / static_cast<float>(ridges);
    for (int i = 0; i < ridges && k.cap > 12; ++i) {
        const float a = 2 * ridge * static_cast<float>(i);
        const int glow = static_cast<int>(128 + 100 * std::cos(a - light_angle));
        picture.ring_sector(c, k.cap * 0.86f, k.cap * 0.99f, a, a + ridge, blend(0x505050, 0xD8D8D8, glow));
    }
    paint_bezel(picture, c, k.cap * 0.78f, k.cap * 0.83f, light, dark);
    constexpr int steps = 12;
    for (int i = 0; i < steps; ++i) {
        const float t = static_cast<float>(i) / (steps - 1);
        const float shift = k.cap * 0.20f * t;
        picture.disc({c.x - shift, c.y + shift}, k.cap * (0.79f - 0.50f * t),
                     blend(0xB0B0B0, 0xECECEC, static_cast<int>(256 * t)));
    }
}

} // namespace

void knob_face(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Knob k = lay_out_knob(model, stage);
    const float r = k.radius;
    const float ring = k.cap + r * 0.05f;
    paint_ground(picture, model, stage);
    paint_cap_shadow(picture, k, theme_of(model));
    paint_round_zones(picture, model, k.scale, ring, ring + r * 0.07f);
    paint_round_ticks(picture, model, stage, k.scale,
                      {ring + r * 0.08f, ring + r * 0.16f, ring + r * 0.12f, ring + r * 0.19f, false, k.label_size});
    paint_cap(picture, k);
    paint_title(picture, model, stage, k.layout);
}

void knob_value(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Knob k = lay_out_knob(model, stage);
    const Colour colour = zone_colour(model, model.current);
    const float f = fraction_of(model, model.current);
    auto at = [&](float distance) { return k.scale.at(f, distance); };
    const float width = std::max(k.cap * 0.11f, 1.5f);
    picture.stroke(at(k.cap * 0.34f), at(k.cap * 0.78f), width + std::max(width * 0.45f, 1.0f), 0x404040);
    picture.stroke(at(k.cap * 0.36f), at(k.cap * 0.76f), width, colour);
    paint_readout(picture, model, stage, k.readout);
}

} // namespace wnt

#include <algorithm>
#include <cmath>

#include "widgets/gauge/views/readout.h"
#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

// The thermometer: a column in a glass tube over a bulb, its scale at the left, its zones at the right.

namespace wnt {

namespace {

struct Thermometer {
    Layout layout;
    BoxF tube; ///< inside of the glass, from the scale's low to its high end
    PointF bulb;
    float bulb_radius;
    BoxF zones;
    BoxF readout;
    float ticks;     ///< length of the major ones
    float ticks_end; ///< their right ends
    float labels_end;
    int label_size; ///< 0: none
};

// Places the ticks beside a tube around x, and the labels beside those.
void place_scale(Thermometer& t, float x, float half) {
    t.ticks = std::clamp(t.layout.body.width() * 0.06f, 2.0f, 12.0f);
    t.ticks_end = std::round(x - half - half * 0.5f - 2);
    t.labels_end = t.ticks_end - std::round(t.ticks) - 3;
}

Thermometer lay_out_thermometer(const GaugeModel& model, const Stage& stage) {
    Thermometer t = {lay_out(model, stage), {}, {}, 0, {}, {}, 0, 0, 0, 0};
    BoxF body = t.layout.body;
    if (body.height() < 60) {
        t.readout = take_side_readout(body, std::min(body.width() * 0.55f, body.height()));
    } else if (body.width() >= 36) {
        const float tall = std::clamp(body.height() * 0.10f, 12.0f, 56.0f);
        const float wide = std::min(body.width(), tall * 5);
        t.readout = plate_at(body.centre().x, body.bottom, wide, tall);
        body.bottom = t.readout.top + 3;
    }
    t.bulb_radius = std::clamp(std::min(body.width() * 0.16f, body.height() * 0.095f), 2.0f, 90.0f);
    const float half = std::max(t.bulb_radius * 0.46f, 1.0f);
    float x = std::round(body.centre().x + body.width() * 0.04f);
    place_scale(t, x, half);
    if (body.height() >= 50 && body.width() >= 56) {
        const float size = std::clamp(std::min(body.height() * 0.06f, body.width() * 0.11f), 7.0f, 30.0f);
        t.label_size = label_size_for(model, stage.meter, stage.meter.tenths(size), t.labels_end - body.left);
    }
    if (!t.label_size) {
        x = std::round(body.centre().x);
        place_scale(t, x, half);
    }
    t.bulb = {x, body.bottom + t.bulb_radius + 1};
    const float cap = t.label_size ? stage.meter.metrics(t.label_size).cap_height / 2 : 0;
    t.tube = {x - half, std::round(t.bulb.y + t.bulb_radius * 1.35f), x + half,
              std::round(body.top - std::max(half + 1, cap))};
    t.tube.top = std::max(t.tube.top, t.tube.bottom + 1);
    const float strip = std::clamp(body.width() * 0.05f, 2.0f, 20.0f);
    const float strip_left = std::round(t.tube.right + half * 0.5f + 2);
    t.zones = {strip_left, t.tube.bottom, std::round(strip_left + strip), t.tube.top};
    return t;
}

void paint_glass(Picture& picture, const Thermometer& t, Colour colour, float grow) {
    const float half = t.tube.width() / 2 + grow;
    const float x = t.bulb.x;
    picture.disc(t.bulb, t.bulb_radius + grow, colour);
    picture.box({x - half, t.bulb.y, x + half, t.tube.top}, colour);
    picture.disc({x, t.tube.top}, half, colour);
}

} // namespace

void thermometer_face(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Theme theme = theme_of(model);
    const Thermometer t = lay_out_thermometer(model, stage);
    paint_ground(picture, model, stage);
    paint_zone_strip(picture, model, t.zones, true);
    paint_glass(picture, t, blend(theme.back, 0, 110), 1);
    paint_glass(picture, t, theme.plate, 0);
    paint_title(picture, model, stage, t.layout);

    const float font_height = t.label_size ? stage.meter.metrics(t.label_size).cap_height : 0;
    const float gap = t.label_size ? font_height * 1.9f : 12.0f;
    const float weight = std::clamp(std::round(t.layout.body.height() / 250), 1.0f, 2.0f);
    for (const Tick& k : ticks_of(model, t.tube.height(), 3, gap)) {
        const float y = std::round(t.tube.bottom + t.tube.height() * k.fraction - weight / 2);
        const float length = std::round(k.major ? t.ticks : t.ticks * 0.6f);
        picture.box({t.ticks_end - length, y, t.ticks_end, y + weight}, theme.text);
        if (k.major && t.label_size)
            write(picture, stage.meter, {t.labels_end, y + weight / 2}, HAlign::right, t.label_size, theme.text,
                  number_text(k.value));
    }
}

void thermometer_value(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Thermometer t = lay_out_thermometer(model, stage);
    const Colour colour = zone_colour(model, model.current);
    const float inset = t.bulb_radius > 5 ? t.bulb_radius * 0.14f : 0;
    const float half = std::max(t.tube.width() / 2 - inset, 0.5f);
    const float level = std::round(t.tube.bottom + t.tube.height() * fraction_of(model, model.current));
    const float x = t.bulb.x;
    picture.disc(t.bulb, t.bulb_radius - inset, colour);
    picture.box({x - half, t.bulb.y, x + half, level}, colour);
    picture.box({x - half * 0.6f, t.bulb.y + t.bulb_radius * 0.9f, x - half * 0.15f, level - 1},
                blend(colour, white, 130));
    picture.disc({t.bulb.x - t.bulb_radius * 0.32f, t.bulb.y + t.bulb_radius * 0.32f}, t.bulb_radius * 0.22f,
                 blend(colour, white, 160));
    paint_readout(picture, model, stage, t.readout);
}

} // namespace wnt

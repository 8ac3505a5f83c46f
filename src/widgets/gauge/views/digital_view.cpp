#include <algorithm>
#include <cmath>

#include "widgets/gauge/gauge_scale.h"
#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

// The digital display: seven-segment figures over a lit bar that repeats the scale.

namespace wnt {

namespace {

struct Display {
    Layout layout;
    BoxF panel;
    BoxF figures; ///< where the digits stand
    BoxF bar;     ///< empty when there is no room
    float pitch;  ///< from digit to digit
    int places;
    int label_size;  ///< 0: none
    FittedText unit; ///< behind the digits; empty: none there
};

int places_for(const GaugeModel& model) {
    std::size_t places = 1;
    for (const std::int32_t v : {model.minimum, model.maximum, model.current})
        places = std::max(places, number_text(v).size());
    return static_cast<int>(places);
}

Display place_display(const GaugeModel& model, const Stage& stage, UnitPlace place) {
    Display d = {lay_out(model, stage, place), {}, {}, {}, 0, places_for(model), 0, {}};
    const BoxF& body = d.layout.body;
    d.panel = {std::floor(body.left), std::floor(body.bottom), std::ceil(body.right), std::ceil(body.top)};
    BoxF space = d.panel.inset(std::clamp(std::min(body.width(), body.height()) * 0.07f, 1.0f, 14.0f));
    if (space.height() >= 36 && space.width() >= 50) {
        const float bar = std::clamp(std::round(space.height() * 0.09f), 4.0f, 14.0f);
        d.label_size =
            label_size_for(model, stage.meter, stage.meter.tenths(std::clamp(space.height() * 0.10f, 7.0f, 26.0f)),
                           space.width() / 2 - 3);
        const float labels = d.label_size ? std::ceil(stage.meter.metrics(d.label_size).cap_height) + 3 : 0;
        d.bar = {std::round(space.left), std::round(space.bottom + labels), std::round(space.right),
                 std::round(space.bottom + labels + bar)};
        space.bottom = d.bar.top + std::max(space.height() * 0.06f, 3.0f);
        if (has_unit(model) && d.layout.unit.empty()) {
            const int size = stage.meter.tenths(std::clamp(space.height() * 0.22f, 7.0f, 40.0f));
            d.unit = fit(stage.meter, model.unit_text(), size, space.width() * 0.25f, stage.meter.tenths(7));
        }
    }
    const float unit = d.unit.text.empty() ? 0 : stage.meter.width(d.unit.text, d.unit.tenths) + 4;
    // A digit is 0.58 as wide as it is high, its neighbour begins 0.74 further on.
    const float width = space.width() - unit;
    d.pitch = std::min(width / (static_cast<float>(d.places) - 0.16f), space.height() * 0.74f);
    const float height = std::min(d.pitch / 0.74f, space.height());
    const float used = d.pitch * static_cast<float>(d.places) + unit;
    const float left = space.centre().x - used / 2 + d.pitch * 0.08f;
    const float bottom = space.centre().y - height / 2;
    d.figures = {left, bottom, left + d.pitch * static_cast<float>(d.places), bottom + height};
    return d;
}

// A display that is too small for a unit beside its digits leaves it a line.
Display lay_out_display(const GaugeModel& model, const Stage& stage) {
    const Display d = place_display(model, stage, UnitPlace::in_view);
    return has_unit(model) && d.unit.text.empty() ? place_display(model, stage, UnitPlace::apart) : d;
}

// Segments a to g, clockwise from the top, the middle one last.
constexpr int segments_of[10] = {0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};
constexpr int minus_segment = 0x40;

int segments_for(char c) {
    if (c >= '0' && c <= '9')
        return segments_of[c - '0'];
    return c == '-' ? minus_segment : 0;
}

// A segment is a flat hexagon between two corners of the digit, a little apart from its neighbours.
void paint_segment(Picture& picture, PointF from, PointF to, float thick, Colour colour) {
    const float h = thick / 2;
    const float gap = h * 0.18f + 0.25f;
    if (from.y == to.y) {
        const PointF p[6] = {{from.x + gap, from.y}, {from.x + h + gap, from.y + h}, {to.x - h - gap, to.y + h},
                             {to.x - gap, to.y},     {to.x - h - gap, to.y - h},     {from.x + h + gap, from.y - h}};
        picture.polygon(p, 6, colour);
    } else {
        const PointF p[6] = {{from.x, from.y + gap}, {from.x + h, from.y + h + gap}, {to.x + h, to.y - h - gap},
                             {to.x, to.y - gap},     {to.x - h, to.y - h - gap},     {from.x - h, from.y + h + gap}};
        picture.polygon(p, 6, colour);
    }
}

void paint_digit(Picture& picture, const BoxF& cell, int lit, Colour on, Colour off) {
    const float thick = std::max(cell.height() * 0.115f, 1.0f);
    const float h = thick / 2;
    const float left = cell.left + h;
    const float right = cell.right - h;
    const float low = cell.bottom + h;
    const float high = cell.top - h;
    const float middle = (low + high) / 2;
    const PointF ends[7][2] = {{{left, high}, {right, high}},    {{right, middle}, {right, high}},
                               {{right, low}, {right, middle}},  {{left, low}, {right, low}},
                               {{left, low}, {left, middle}},    {{left, middle}, {left, high}},
                               {{left, middle}, {right, middle}}};
    for (int i = 0; i < 7; ++i)
        paint_segment(picture, ends[i][0], ends[i][1], thick, lit >> i & 1 ? on : off);
}

// As many figures as a lit one.
void paint_unlit(Picture& picture, const BoxF& lamp, Colour zone, Colour ground) {
    picture.box(lamp, blend(ground, zone, 60));
    picture.box({}, 0);
}

void paint_lamps(Picture& picture, const GaugeModel& model, const Display& d, Colour ground) {
    const TickSteps steps =
        tick_steps(model.minimum, model.maximum, model.scales, static_cast<std::int32_t>(d.bar.width()), 5, 10);
    const double shown = scale_fraction(model.minimum, model.maximum, model.current);
    for (int i = 0; i < model.scales; i += steps.minor) {
        const int next = std::min(i + steps.minor, model.scales);
        const float from = static_cast<float>(i) / static_cast<float>(model.scales);
        const float to = static_cast<float>(next) / static_cast<float>(model.scales);
        const float left = std::round(d.bar.left + d.bar.width() * from);
        const float right = std::max(std::round(d.bar.left + d.bar.width() * to) - 1, left + 1);
        const Colour zone = zone_colour(model, division_value(model.minimum, model.maximum, model.scales, i));
        const bool lit = shown > from || (i == 0 && shown >= from && model.current >= model.minimum);
        const BoxF lamp = {left, d.bar.bottom, right, d.bar.top};
        if (lit)
            paint_on_ground(picture, lamp, zone, ground);
        else
            paint_unlit(picture, lamp, alike(zone, ground) ? edge_of(zone) : zone, ground);
    }
}

} // namespace

void digital_face(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Display d = lay_out_display(model, stage);
    paint_ground(picture, model, stage);
    paint_sunken_edge(picture, d.panel, theme_of(model));
    paint_titles(picture, model, stage, d.layout);
}

void digital_value(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Display d = lay_out_display(model, stage);
    const Colour on = zone_colour(model, model.current);
    const Colour ground = ground_for(on);
    const Colour off = blend(ground, on, 26);
    const Colour ink = blend(ground, brightness(ground) < 128 ? white : black, 170);
    picture.box(d.panel.inset(1), ground);

    const std::string text = number_text(model.current);
    const int blank = d.places - static_cast<int>(text.size());
    for (int i = 0; i < d.places; ++i) {
        const float left = d.figures.left + d.pitch * static_cast<float>(i);
        const BoxF cell = {left, d.figures.bottom, left + d.pitch * 0.79f, d.figures.top};
        paint_digit(picture, cell, i < blank ? 0 : segments_for(text[static_cast<std::size_t>(i - blank)]), on, off);
    }
    if (!d.unit.text.empty()) {
        // Wide digits leave it the room at the panel's edge.
        const float width = stage.meter.width(d.unit.text, d.unit.tenths);
        const float left = std::min(d.figures.right + 2, d.panel.right - 3 - width);
        const float middle = d.figures.bottom + stage.meter.metrics(d.unit.tenths).cap_height / 2;
        write(picture, stage.meter, {left, middle}, HAlign::left, d.unit.tenths, ink, d.unit.text);
    }
    if (d.bar.empty())
        return;
    paint_lamps(picture, model, d, ground);
    if (!d.label_size)
        return;
    const float y = d.bar.bottom - 3 - stage.meter.metrics(d.label_size).cap_height / 2;
    write(picture, stage.meter, {d.bar.left, y}, HAlign::left, d.label_size, ink, number_text(model.minimum));
    write(picture, stage.meter, {d.bar.right, y}, HAlign::right, d.label_size, ink, number_text(model.maximum));
}

} // namespace wnt

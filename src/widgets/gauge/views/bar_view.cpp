#include <algorithm>
#include <cmath>
#include <cstdio>

#include "widgets/gauge/gauge_scale.h"
#include "widgets/gauge/views/readout.h"
#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

// The percent bar: a lying bar over its scale, the percentage written on it.

namespace wnt {

namespace {

struct Bar {
    Layout layout;
    BoxF readout; ///< empty when there is no room
    BoxF groove;  ///< the bar's inside
    BoxF zones;   ///< strip under the bar
    int label_size;
    int bar_size; ///< text on the bar
};

Bar lay_out_bar(const GaugeModel& model, const Stage& stage) {
    Bar b = {lay_out(model, stage, has_inner_title(model)), {}, {}, {}, 0, 0};
    const BoxF& body = b.layout.body;
    const float height = body.height();
    if (height >= 40 && body.width() >= 50)
        b.label_size = label_size_for(model, stage.meter, stage.meter.tenths(std::clamp(height * 0.10f, 7.0f, 26.0f)),
                                      body.width() * 0.30f);
    const float labels = b.label_size ? stage.meter.metrics(b.label_size).height() + height * 0.05f + 3 : 0;
    const float ends = b.label_size ? widest_label(model, stage.meter, b.label_size) / 2 : 0;
    const float strip = std::clamp(height * 0.07f, 2.0f, 20.0f);
    const float plate = height >= 70 && body.width() >= 56 ? std::clamp(height * 0.17f, 14.0f, 60.0f) : 0;
    const float gap = plate > 0 ? std::round(height * 0.06f) : 0;
    const float room = height - strip - labels - plate - gap - 2;
    const float bar = b.label_size ? std::min({room, height * 0.42f, body.width() * 0.30f}) : room;

    // Readout, bar, zones and labels stand as one block in the middle.
    const float block = bar + strip + labels + plate + gap + 2;
    const float bottom = std::max(body.bottom, body.centre().y - block / 2);
    b.zones = {std::round(body.left + ends), std::round(bottom + labels), std::round(body.right - ends),
               std::round(bottom + labels + strip)};
    b.groove = {b.zones.left, b.zones.top + 1, b.zones.right, std::round(b.zones.top + 1 + bar)};
    if (plate > 0) {
        const float wide = std::min(std::max(plate * 4.5f, body.width() * 0.35f), body.width());
        b.readout = plate_at(body.centre().x, std::round(b.groove.top + 1 + gap), wide, plate);
        b.readout.top = std::min(b.readout.top, std::floor(body.top));
    }
    if (b.groove.top < b.groove.bottom + 2)
        b.groove.top = b.groove.bottom + 2;
    b.bar_size = stage.meter.tenths(std::clamp(b.groove.height() * 0.55f, 6.0f, 60.0f));
    return b;
}

// A value outside the range counts as its end, as the bar shows it.
long percent_of(const GaugeModel& model) {
    return static_cast<long>(std::lround(100 * scale_fraction(model.minimum, model.maximum, model.current)));
}

std::string percent_text(const GaugeModel& model) {
    char text[16];
    std::snprintf(text, sizeof text, "%3ld %%", percent_of(model));
    return text;
}

// A round bar under light from above: its middle has the colour itself.
void paint_round_bar(Picture& picture, const BoxF& bar, Colour colour) {
    constexpr int tones = 4;
    const float tone = bar.height() * 0.36f / tones;
    picture.box(bar, colour);
    for (int i = 0; i < tones; ++i) {
        const auto k = static_cast<float>(i);
        picture.box({bar.left, bar.top - tone * (k + 1), bar.right, bar.top - tone * k},
                    blend(colour, white, 24 * (tones - i)));
        picture.box({bar.left, bar.bottom + tone * k, bar.right, bar.bottom + tone * (k + 1)},
                    blend(colour, black, 20 * (tones - i)));
    }
}

// One text over the filled and the empty part, readable on both.
void write_over(Picture& picture, const Stage& stage, const BoxF& filled, const BoxF& empty, PointF at, HAlign align,
                const FittedText& text, Colour fill, Colour ink) {
    const Colour on_fill = brightness(fill) < 140 ? white : black;
    if (!filled.empty())
        write(picture, stage.meter, at, align, text.tenths, on_fill, text.text, &filled);
    if (!empty.empty())
        write(picture, stage.meter, at, align, text.tenths, ink, text.text, &empty);
}

} // namespace

void bar_face(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Theme theme = theme_of(model);
    const Bar b = lay_out_bar(model, stage);
    paint_ground(picture, model, stage);
    paint_sunken_edge(picture, {b.groove.left - 1, b.groove.bottom - 1, b.groove.right + 1, b.groove.top + 1}, theme);
    picture.box(b.groove, theme.groove);
    paint_zone_strip(picture, model, b.zones, false);
    paint_title(picture, model, stage, b.layout);
    if (!b.label_size)
        return;
    const float label_gap = widest_label(model, stage.meter, b.label_size) + 6;
    const float tick = std::max(b.layout.body.height() * 0.045f, 3.0f);
    const float weight = std::clamp(std::round(b.layout.body.height() / 200), 1.0f, 2.0f);
    for (const Tick& t : ticks_of(model, b.zones.width(), 4, label_gap)) {
        const float x = std::round(b.zones.left + b.zones.width() * t.fraction - weight / 2);
        const float length = t.major ? tick : tick * 0.6f;
        picture.box({x, std::round(b.zones.bottom - length), x + weight, b.zones.bottom}, theme.text);
        if (!t.major)
            continue;
        const FontMetrics font = stage.meter.metrics(b.label_size);
        write(picture, stage.meter, {x + weight / 2, b.zones.bottom - tick - 2 - font.cap_height / 2}, HAlign::centre,
              b.label_size, theme.text, number_text(t.value));
    }
}

void bar_value(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Theme theme = theme_of(model);
    const Bar b = lay_out_bar(model, stage);
    const Colour colour = zone_colour(model, model.current);
    const float edge = std::round(b.groove.left + b.groove.width() * fraction_of(model, model.current));
    const BoxF filled = {b.groove.left, b.groove.bottom, edge, b.groove.top};
    const BoxF empty = {edge, b.groove.bottom, b.groove.right, b.groove.top};
    paint_round_bar(picture, filled, colour);

    const bool titled = has_inner_title(model);
    const FittedText percent =
        fit_number(stage.meter, percent_text(model), b.bar_size, b.groove.width() * (titled ? 0.35f : 0.9f));
    const PointF middle = b.groove.centre();
    if (titled) {
        const FittedText title = fit(stage.meter, model.title_text(), b.bar_size, b.groove.width() * 0.6f - 4,
                                     stage.meter.tenths(least_text));
        write_over(picture, stage, filled, empty, {b.groove.left + 4, middle.y}, HAlign::left, title, colour,
                   theme.text);
        write_over(picture, stage, filled, empty, {b.groove.right - 4, middle.y}, HAlign::right, percent, colour,
                   theme.text);
    } else {
        write_over(picture, stage, filled, empty, {std::round(middle.x), middle.y}, HAlign::centre, percent, colour,
                   theme.text);
    }
    paint_readout(picture, model, stage, b.readout);
}

} // namespace wnt

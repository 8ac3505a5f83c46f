#include <algorithm>
#include <cmath>

#include "widgets/gauge/views/readout.h"
#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

// The peak line: the course of the recent values as upright lines in their zones' colours, the highest one held.
// New values run from left to right and then over the oldest, so that a value changes two columns and no more.

namespace wnt {

namespace {

struct Plot {
    Layout layout;
    BoxF readout;
    BoxF area;
    BoxF zones;
    int label_size; ///< 0: none
    bool ticks;
    float column; ///< from line to line
    int columns;
};

Plot place_plot(const GaugeModel& model, const Stage& stage, UnitPlace unit) {
    Plot p = {lay_out(model, stage, unit), {}, {}, {}, 0, false, 2, 1};
    BoxF body = p.layout.body;
    if (body.height() >= 66 && body.width() >= 60) {
        const float tall = std::clamp(std::round(body.height() * 0.13f), 13.0f, 52.0f);
        const float wide = std::min(std::max(tall * 4.5f, body.width() * 0.3f), body.width());
        p.readout = plate_at(body.centre().x, body.bottom, wide, tall);
        body.bottom = p.readout.top + 3;
    } else {
        p.readout = take_lower_readout(body);
    }
    float labels = body.height() >= 20 && body.width() >= 30 ? 5 : 0; // ticks need no labels
    if (body.height() >= 40 && body.width() >= 60) {
        p.label_size =
            label_size_for(model, stage.meter, stage.meter.tenths(std::clamp(body.height() * 0.075f, 7.0f, 26.0f)),
                           body.width() * 0.35f - 8);
    }
    if (p.label_size) {
        labels = widest_label(model, stage.meter, p.label_size) + 8;
        const float cap = std::ceil(stage.meter.metrics(p.label_size).cap_height / 2);
        body.bottom += cap;
        body.top -= cap;
    }
    p.ticks = labels > 0;
    const float strip = std::clamp(std::round(body.width() * 0.025f), 2.0f, 14.0f);
    p.zones = {std::round(body.left + labels), std::round(body.bottom) + 1, std::round(body.left + labels + strip),
               std::round(body.top) - 1};
    p.area = {p.zones.right + 2, p.zones.bottom, std::round(body.right) - 1, p.zones.top};
    p.area.right = std::max(p.area.right, p.area.left + 1);
    p.area.top = std::max(p.area.top, p.area.bottom + 1);
    p.zones.top = p.area.top;
    p.column = std::clamp(std::floor(p.area.width() / 80), 2.0f, 6.0f);
    p.columns = std::clamp(static_cast<int>(p.area.width() / p.column), 1, ValueHistory::capacity - 2);
    return p;
}

Plot lay_out_plot(const GaugeModel& model, const Stage& stage) {
    return place_with_unit(model, stage, [&](UnitPlace unit) { return place_plot(model, stage, unit); });
}

float height_of(const GaugeModel& model, const Plot& p, std::int32_t value) {
    return std::round(p.area.bottom + p.area.height() * fraction_of(model, value));
}

// The column after the newest stays empty: it parts the newest values from the oldest.
void paint_columns(Picture& picture, const GaugeModel& model, const ValueHistory& history, const Plot& p) {
    const std::int64_t newest = history.count() - 1;
    const Colour ground = theme_of(model).plate;
    for (int column = 0; column < p.columns; ++column) {
        const std::int64_t age = (newest - column) % p.columns;
        const std::int64_t number = newest - (age < 0 ? age + p.columns : age);
        if (number < 0 || (p.columns > 2 && newest - number == p.columns - 1)) {
            paint_on_ground(picture, {}, 0, ground); // keeps the column's place in the list
            continue;
        }
        const float left = p.area.left + p.column * static_cast<float>(column);
        const std::int32_t value = history.at(number);
        const float top = std::max(height_of(model, p, value), p.area.bottom + 1);
        paint_on_ground(picture, {left, p.area.bottom, left + p.column - 1, top}, zone_colour(model, value), ground);
    }
}

// A line across the plot, with a pointer at its right end.
void paint_peak(Picture& picture, const Plot& p, float y, Colour colour) {
    picture.box({p.area.left, y, p.area.right, y + 1}, colour);
    const float half = std::clamp(std::min(p.area.height() * 0.03f, p.area.width() * 0.1f), 1.0f, 5.0f);
    const float back = p.area.right - half * 1.5f;
    const PointF mark[3] = {{p.area.right, y + 0.5f},
                            {back, std::min(y + 0.5f + half, p.area.top)},
                            {back, std::max(y + 0.5f - half, p.area.bottom)}};
    picture.polygon(mark, 3, colour);
}

} // namespace

void peak_face(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Theme theme = theme_of(model);
    const Plot p = lay_out_plot(model, stage);
    paint_ground(picture, model, stage);
    paint_titles(picture, model, stage, p.layout);
    paint_sunken_edge(picture, p.area.inset(-1), theme);
    picture.box(p.area, theme.plate);
    paint_zone_strip(picture, model, p.zones, true);

    const float gap = p.label_size ? stage.meter.metrics(p.label_size).cap_height * 2.0f : 14.0f;
    const float end = p.zones.left - 1;
    const BoxF whole = {0, 0, static_cast<float>(stage.width), static_cast<float>(stage.height)};
    for (const Tick& t : ticks_of(model, p.area.height(), 4, gap)) {
        const float y = std::round(p.area.bottom + p.area.height() * t.fraction - 0.5f);
        if (t.major)
            picture.box({p.area.left, y, p.area.right, y + 1}, blend(theme.plate, theme.text, 36));
        if (!p.ticks)
            continue;
        picture.box({end - (t.major ? 4.0f : 2.0f), y, end, y + 1}, theme.text);
        if (!t.major || !p.label_size)
            continue;
        write(picture, stage.meter, {end - 6, y + 0.5f}, HAlign::right, p.label_size, theme.text, number_text(t.value),
              &whole);
    }
}

void peak_value(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Theme theme = theme_of(model);
    const Plot p = lay_out_plot(model, stage);
    ValueHistory first;
    first.record(model.current); // what is shown before a value was set
    const ValueHistory& history = model.history.count() > 0 ? model.history : first;
    paint_columns(picture, model, history, p);
    paint_peak(picture, p, std::min(height_of(model, p, history.highest()), p.area.top - 1), theme.text);
    paint_readout(picture, model, stage, p.readout, p.layout.unit.empty());
}

} // namespace wnt

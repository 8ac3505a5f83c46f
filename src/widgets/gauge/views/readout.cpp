#include "widgets/gauge/views/readout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

// The value as a number on a plate, and the places for it.

namespace wnt {

namespace {

constexpr float small_radius = 42; // pixels: below, a readout within a round instrument cannot be read

std::string widest_value(const GaugeModel& model, TextMeter& meter, int tenths) {
    std::string widest = number_text(model.current);
    for (const std::int32_t bound : {model.minimum, model.maximum}) {
        std::string text = number_text(bound);
        if (meter.width(text, tenths) > meter.width(widest, tenths))
            widest = std::move(text);
    }
    return widest;
}

// Size and places follow from the widest value, so that nothing jumps while the value moves.
struct Readout {
    BoxF inner;
    FittedText number; ///< the widest; empty when there is no room for it
    FittedText unit;   ///< with a blank before it
    bool whole;        ///< nothing of the unit is missing
};

std::string spaced_unit(const GaugeModel& model) {
    return std::string(" ").append(model.unit_text());
}

Readout lay_out_readout(const GaugeModel& model, const Stage& stage, const BoxF& plate, bool with_unit) {
    TextMeter& meter = stage.meter;
    Readout r = {plate.inset(1), {}, {}, true};
    const int size = meter.tenths(plate.height() * 0.72f);
    const int legible = meter.tenths(least_text);
    const float room = r.inner.width() - 2;
    const std::string widest = widest_value(model, meter, size);
    r.number = fit_number(meter, widest, size, room);
    if (!with_unit || !has_unit(model))
        return r;
    const int unit_size = std::max(size * 3 / 4, legible);
    const int least = std::max(unit_size * 6 / 10, legible);
    const auto measure = [&](int tenths) { return meter.width(spaced_unit(model), tenths); };
    r.unit = {spaced_unit(model), size_within(room - meter.width(widest, size), unit_size, least, measure)};
    r.whole = meter.width(widest, size) + measure(r.unit.tenths) <= room;
    if (r.whole)
        return r;
    // Both are to be seen: the number grows smaller, what is left of the room takes the beginning of the unit.
    for (const auto& [most, share] : {std::pair{size, 0.65f}, {legible, 1.0f}}) {
        r.number = fit_number(meter, widest, most, room * share);
        const float left = r.number.text.empty() ? room : room - meter.width(widest, r.number.tenths);
        r.unit = fit(meter, model.unit_text(), legible, left - meter.width(" ", legible), legible);
        if (!r.number.text.empty() && !r.unit.text.empty())
            break;
    }
    if (!r.unit.text.empty())
        r.unit.text = std::string(" ").append(r.unit.text);
    return r;
}

} // namespace

void paint_readout(Picture& picture, const GaugeModel& model, const Stage& stage, const BoxF& plate, bool with_unit) {
    if (plate.empty())
        return;
    const Readout r = lay_out_readout(model, stage, plate, with_unit);
    if (r.number.text.empty() && r.unit.text.empty())
        return;
    const Colour colour = zone_colour(model, model.current);
    const Colour ground = ground_for(colour);
    paint_sunken_edge(picture, plate, theme_of(model));
    picture.box(r.inner, ground);
    const float slot = stage.meter.width(r.number.text, r.number.tenths);
    const float left = std::round(plate.centre().x - (slot + stage.meter.width(r.unit.text, r.unit.tenths)) / 2);
    const float middle = plate.centre().y;
    const bool alone = r.unit.text.empty();
    const PointF at = {alone ? std::round(plate.centre().x) : left + slot, middle};
    if (!r.number.text.empty())
        write(picture, stage.meter, at, alone ? HAlign::centre : HAlign::right, r.number.tenths, colour,
              number_text(model.current), &r.inner);
    if (!alone)
        write(picture, stage.meter, {left + slot, middle}, HAlign::left, r.unit.tenths, blend(ground, colour, 190),
              r.unit.text, &r.inner);
}

UnitShown unit_shown(const GaugeModel& model, const Stage& stage, const BoxF& plate) {
    if (plate.empty())
        return UnitShown::nothing;
    const Readout r = lay_out_readout(model, stage, plate, true);
    return r.whole ? UnitShown::whole : r.unit.text.empty() ? UnitShown::nothing : UnitShown::beginning;
}

BoxF plate_at(float middle, float bottom, float wide, float tall) {
    const float x = std::round(middle - wide / 2);
    return {x, std::round(bottom), std::round(x + wide), std::round(bottom + tall)};
}

BoxF take_lower_readout(BoxF& body) {
    constexpr float strip = 11;
    if (body.height() < 3.2f * strip || body.width() < 1.6f * strip)
        return {};
    const BoxF plate = plate_at(body.centre().x, body.bottom, std::min(body.width(), strip * 3.2f), strip);
    body.bottom = plate.top + 1;
    return plate;
}

BoxF take_side_readout(BoxF& body, float instrument_width) {
    const float gap = std::min(body.height() * 0.08f, 6.0f);
    const float height = std::clamp(body.height() * 0.38f, 9.0f, 30.0f);
    const float width = std::min(body.width() - instrument_width - gap, height * 4.2f);
    if (width < 16 || body.height() < 14)
        return {};
    const float left = body.centre().x - (instrument_width + gap + width) / 2;
    const float middle = body.centre().y;
    body.left = left;
    body.right = left + instrument_width;
    return {std::round(body.right + gap), std::round(middle - height / 2), std::round(body.right + gap + width),
            std::round(middle + height / 2)};
}

BoxF take_outer_readout(BoxF& body) {
    if (body.height() / 2 >= small_radius && body.width() / 2 >= small_radius)
        return {};
    // Where there is little width, the instrument leaves a part of its own to the number.
    const float share = body.width() < 1.9f * body.height() ? 0.8f : 1.0f;
    const BoxF beside = take_side_readout(body, body.height() * share);
    return beside.empty() ? take_lower_readout(body) : beside;
}

} // namespace wnt

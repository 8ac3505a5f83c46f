#include "widgets/gauge/views/readout.h"

#include <algorithm>
#include <cmath>

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

} // namespace

void paint_readout(Picture& picture, const GaugeModel& model, const Stage& stage, const BoxF& plate, bool with_unit) {
    if (plate.empty())
        return;
    const Colour colour = zone_colour(model, model.current);
    const Colour ground = ground_for(colour);
    const BoxF inner = plate.inset(1);
    // Size and places follow from the widest value, so that nothing jumps while the value moves.
    const int size = stage.meter.tenths(plate.height() * 0.72f);
    const int unit_size = size * 3 / 4;
    const float room = inner.width() - 2;
    const std::string widest = widest_value(model, stage.meter, size);
    std::string unit;
    if (with_unit && !model.no_title && !model.unit_text().empty() && unit_size >= stage.meter.tenths(least_text))
        unit.append(1, ' ').append(model.unit_text());
    if (stage.meter.width(widest, size) + stage.meter.width(unit, unit_size) > room)
        unit.clear();
    const FittedText number = fit_number(stage.meter, widest, size, room);
    if (number.text.empty())
        return;
    const int fitted = number.tenths;
    paint_sunken_edge(picture, plate, theme_of(model));
    picture.box(inner, ground);
    const float slot = stage.meter.width(widest, fitted);
    const float left = std::round(plate.centre().x - (slot + stage.meter.width(unit, unit_size)) / 2);
    const float middle = plate.centre().y;
    const HAlign align = unit.empty() ? HAlign::centre : HAlign::right;
    const float x = unit.empty() ? std::round(plate.centre().x) : left + slot;
    write(picture, stage.meter, {x, middle}, align, fitted, colour, number_text(model.current), &inner);
    if (!unit.empty())
        write(picture, stage.meter, {left + slot, middle}, HAlign::left, unit_size, blend(ground, colour, 190), unit,
              &inner);
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

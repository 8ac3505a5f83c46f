#include "widgets/views/view_parts.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "script/colours.h"
#include "script/keywords.h"

namespace wnt {

namespace {

constexpr Colour white = 0xFFFFFF;
constexpr Colour black = 0x000000;
constexpr float small_radius = 42; // pixels: below, a readout within a round instrument cannot be read
constexpr float least_text = 6;    // pixels: below, digits cannot be told apart

bool is_dark(Colour colour) {
    return brightness(colour) < 128;
}

void paint_border(Picture& picture, const BoxF& outer, float height, int sides, Colour top_left, Colour bottom_right) {
    // Upper and left sides last: the corners belong to the light.
    if (sides & side_right)
        picture.box({outer.right - height, outer.bottom, outer.right, outer.top}, bottom_right);
    if (sides & side_bottom)
        picture.box({outer.left, outer.bottom, outer.right, outer.bottom + height}, bottom_right);
    if (sides & side_left)
        picture.box({outer.left, outer.bottom, outer.left + height, outer.top}, top_left);
    if (sides & side_top)
        picture.box({outer.left, outer.top - height, outer.right, outer.top}, top_left);
}

bool has_border(const GaugeModel& model) {
    return model.border_type >= 1 && model.border_type <= 3 && model.border_height > 0;
}

} // namespace

Theme theme_of(const GaugeModel& model) {
    Theme t;
    t.back = static_cast<Colour>(model.background) & white;
    t.text = indexed_colour(model.text_colour);
    t.sun = static_cast<Colour>(model.sun) & white;
    t.shadow = static_cast<Colour>(model.shadow) & white;
    t.plate = is_dark(t.text) ? blend(t.back, white, 225) : blend(t.back, black, 190);
    t.groove = blend(t.plate, is_dark(t.text) ? black : white, 30);
    return t;
}

Colour indexed_colour(int index) {
    const int entry = index % colour_count;
    return colour_values[entry > 0 ? entry : 0];
}

Colour zone_colour(const GaugeModel& model, std::int32_t value) {
    return indexed_colour(model.getmarkercolour(value));
}

Colour ground_for(Colour colour) {
    return is_dark(colour) ? Colour{0xF4F8F8} : Colour{0x241E1C};
}

FittedText fit(TextMeter& meter, std::string_view text, int tenths, float width, int least) {
    FittedText fitted{std::string(text), tenths};
    if (text.empty() || width <= 0) {
        fitted.text.clear();
        return fitted;
    }
    const float wanted = meter.width(text, tenths);
    if (wanted > width) { // text grows with its size; rounding of glyphs is caught by the loop below
        fitted.tenths = std::max(least, static_cast<int>(static_cast<float>(tenths) * width / wanted));
        while (fitted.tenths > least && meter.width(text, fitted.tenths) > width)
            fitted.tenths = std::max(least, fitted.tenths - 5);
    }
    std::size_t kept = text.size();
    while (kept > 0 && meter.width(fitted.text, fitted.tenths) > width)
        fitted.text.assign(text.substr(0, --kept)).append("..");
    if (kept == 0)
        fitted.text.clear();
    return fitted;
}

FittedText fit_number(TextMeter& meter, std::string_view number, int tenths, float width) {
    const int least = meter.tenths(least_text);
    while (tenths >= least && meter.width(number, tenths) > width)
        tenths -= 5;
    return {tenths >= least ? std::string(number) : std::string(), tenths};
}

void write(Picture& picture, TextMeter& meter, PointF at, HAlign align, int tenths, Colour colour,
           std::string_view text, const BoxF* clip) {
    const FontMetrics font = meter.metrics(tenths);
    const float baseline = std::round(at.y - font.cap_height / 2);
    picture.text(meter, {at.x, baseline - font.descent}, align, tenths, colour, text, clip);
}

BoxF inside_border(const GaugeModel& model, const Stage& stage) {
    const auto width = static_cast<float>(stage.width);
    const auto height = static_cast<float>(stage.height);
    const float border = has_border(model) ? static_cast<float>(model.border_height) : 0.0f;
    const float margin = border + std::clamp(std::min(width, height) * 0.03f, 1.0f, 10.0f);
    return {margin, margin, width - margin, height - margin};
}

void paint_ground(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Theme theme = theme_of(model);
    const BoxF whole = {0, 0, static_cast<float>(stage.width), static_cast<float>(stage.height)};
    picture.box(whole, theme.back);
    if (!has_border(model))
        return;
    const auto height = static_cast<float>(model.border_height);
    const bool flat = model.border_type == 1;
    const bool raised = model.border_type == 2;
    paint_border(picture, whole, height, model.border_sides, raised && !flat ? theme.sun : theme.shadow,
                 raised || flat ? theme.shadow : theme.sun);
}

Layout lay_out(const GaugeModel& model, const Stage& stage, bool title_on_bar) {
    const BoxF inside = inside_border(model, stage);
    Layout layout = {{}, inside, 0};
    const float size = std::clamp(std::min(inside.height() * 0.085f, inside.width() * 0.14f), 8.0f, 32.0f);
    const bool shown = !model.no_title && !model.title_text().empty() && !title_on_bar;
    if (!shown || inside.height() < 48 || inside.width() < 40)
        return layout;
    layout.title_size = stage.meter.tenths(size);
    const float line = std::ceil(stage.meter.metrics(layout.title_size).height());
    layout.title = {inside.left, inside.top - line, inside.right, inside.top};
    layout.body.top = layout.title.bottom - std::floor(size * 0.25f);
    return layout;
}

void paint_title(Picture& picture, const GaugeModel& model, const Stage& stage, const Layout& layout) {
    if (layout.title.empty())
        return;
    const FittedText title =
        fit(stage.meter, model.title_text(), layout.title_size, layout.title.width() - 2, stage.meter.tenths(8));
    const PointF at = {std::round(layout.title.centre().x), layout.title.bottom};
    picture.text(stage.meter, at, HAlign::centre, title.tenths, theme_of(model).text, title.text, &layout.title);
}

void paint_edge(Picture& picture, const BoxF& box, const Theme& theme, bool raised) {
    const Colour dark = blend(theme.back, black, 110);
    const Colour light = blend(theme.back, white, 200);
    paint_border(picture, box, 1, side_left | side_right | side_top | side_bottom, raised ? light : dark,
                 raised ? dark : light);
}

namespace {

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
    const int fitted = fit_number(stage.meter, widest, size, room).tenths;
    if (fitted < stage.meter.tenths(least_text))
        return;
    paint_edge(picture, plate, theme_of(model), false);
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

BoxF take_lower_readout(BoxF& body) {
    constexpr float strip = 11;
    if (body.height() < 3.2f * strip || body.width() < 1.6f * strip)
        return {};
    const float half = std::min(body.width() / 2, strip * 1.6f);
    const float x = body.centre().x;
    const BoxF plate = {std::round(x - half), std::round(body.bottom), std::round(x + half),
                        std::round(body.bottom + strip)};
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
        picture.box(part, zone.colour);
    }
}

float fraction_of(const GaugeModel& model, std::int32_t value) {
    return static_cast<float>(scale_fraction(model.minimum, model.maximum, value));
}

namespace {

// A label tells the truth when its whole number lies within half a pixel of the tick.
bool labelled_truly(const GaugeModel& model, const Tick& tick, float length) {
    return std::abs(fraction_of(model, tick.value) - tick.fraction) * length <= 0.5f || model.minimum == model.maximum;
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

BoxF take_outer_readout(BoxF& body) {
    if (body.height() / 2 >= small_radius && body.width() / 2 >= small_radius)
        return {};
    // Where there is little width, the instrument leaves a part of its own to the number.
    const float share = body.width() < 1.9f * body.height() ? 0.8f : 1.0f;
    const BoxF beside = take_side_readout(body, body.height() * share);
    return beside.empty() ? take_lower_readout(body) : beside;
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
    const int least = meter.tenths(least_text);
    while (tenths >= least && widest_label(model, meter, tenths) > width)
        tenths -= 5;
    return tenths >= least ? tenths : 0;
}

} // namespace wnt

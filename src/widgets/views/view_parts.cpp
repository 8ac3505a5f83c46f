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

bool is_dark(Colour colour) {
    return brightness(colour) < 128;
}

void paint_border(Picture& picture, const BoxF& outer, float height, int sides, Colour top_left,
                  Colour bottom_right) {
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
    t.faint = blend(t.plate, t.text, 110);
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

int text_size(float pixels) {
    return static_cast<int>(std::lround(pixels * 7.5f)); // 720 tenths of a point at 96 pixels an inch
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
    const float size = std::clamp(std::min(inside.height() * 0.085f, inside.width() * 0.14f), 8.0f, 20.0f);
    const bool shown = !model.no_title && !model.title_text().empty() && !title_on_bar;
    if (!shown || inside.height() < 48 || inside.width() < 40)
        return layout;
    layout.title_size = text_size(size);
    const float line = std::ceil(stage.meter.metrics(layout.title_size).height());
    layout.title = {inside.left, inside.top - line, inside.right, inside.top};
    layout.body.top = layout.title.bottom - std::floor(size * 0.25f);
    return layout;
}

void paint_title(Picture& picture, const GaugeModel& model, const Stage& stage, const Layout& layout, HAlign align) {
    if (layout.title.empty())
        return;
    const FittedText title =
        fit(stage.meter, model.title_text(), layout.title_size, layout.title.width() - 2, text_size(8));
    const float x = align == HAlign::centre ? std::round(layout.title.centre().x) : layout.title.left;
    picture.text(stage.meter, {x, layout.title.bottom}, align, title.tenths, theme_of(model).text, title.text,
                 &layout.title);
}

void paint_edge(Picture& picture, const BoxF& box, const Theme& theme, bool raised) {
    const Colour dark = blend(theme.back, black, 110);
    const Colour light = blend(theme.back, white, 200);
    paint_border(picture, box, 1, side_left | side_right | side_top | side_bottom, raised ? light : dark,
                 raised ? dark : light);
}

void paint_readout(Picture& picture, const GaugeModel& model, const Stage& stage, const BoxF& plate,
                   bool with_unit) {
    if (plate.empty())
        return;
    const Colour colour = zone_colour(model, model.current);
    const Colour ground = ground_for(colour);
    const BoxF inner = plate.inset(1);
    paint_edge(picture, plate, theme_of(model), false);
    picture.box(inner, ground);
    const int size = text_size(std::min(plate.height() * 0.72f, 40.0f));
    const std::string number = number_text(model.current);
    std::string unit;
    if (with_unit && !model.no_title && !model.unit_text().empty())
        unit.append(1, ' ').append(model.unit_text());
    const float room = inner.width() - 4;
    const int unit_size = size * 3 / 4;
    float unit_width = stage.meter.width(unit, unit_size);
    if (stage.meter.width(number, size) + unit_width > room) {
        unit.clear();
        unit_width = 0;
    }
    const FittedText value = fit(stage.meter, number, size, room, text_size(5));
    const float value_width = stage.meter.width(value.text, value.tenths);
    const PointF middle = plate.centre();
    const float left = std::round(middle.x - (value_width + unit_width) / 2);
    write(picture, stage.meter, {left, middle.y}, HAlign::left, value.tenths, colour, value.text, &inner);
    if (!unit.empty())
        write(picture, stage.meter, {left + value_width, middle.y}, HAlign::left, unit_size,
              blend(ground, colour, 190), unit, &inner);
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

std::vector<Tick> ticks_of(const GaugeModel& model, float length, float least_tick, float least_label) {
    const TickSteps steps = tick_steps(model.minimum, model.maximum, model.scales, static_cast<std::int32_t>(length),
                                       static_cast<std::int32_t>(std::ceil(least_tick)),
                                       static_cast<std::int32_t>(std::ceil(least_label)));
    std::vector<Tick> ticks;
    for (std::int32_t i = 0; i <= model.scales; i += steps.minor)
        ticks.push_back({static_cast<float>(i) / static_cast<float>(model.scales),
                         division_value(model.minimum, model.maximum, model.scales, i), i % steps.major == 0});
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
    const int least = text_size(6);
    while (tenths >= least && widest_label(model, meter, tenths) > width)
        tenths -= 5;
    return tenths >= least ? tenths : 0;
}

} // namespace wnt

#include "widgets/gauge/views/view_parts.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "script/colours.h"
#include "script/keywords.h"

namespace wnt {

namespace {

constexpr std::uint32_t colour_bits = 0xFFFFFF; // of a stored colour value

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
    return model.border_type >= border_flat && model.border_type <= border_sunk && model.border_height > 0;
}

} // namespace

Theme theme_of(const GaugeModel& model) {
    Theme t;
    t.back = static_cast<Colour>(model.background) & colour_bits;
    t.text = indexed_colour(model.text_colour);
    t.sun = static_cast<Colour>(model.sun) & colour_bits;
    t.shadow = static_cast<Colour>(model.shadow) & colour_bits;
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

bool alike(Colour a, Colour b) {
    int distance = 0;
    for (int shift = 0; shift < 24; shift += 8)
        distance += std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF));
    return distance < 72;
}

Colour edge_of(Colour colour) {
    return blend(colour, is_dark(colour) ? white : black, 110);
}

void paint_on_ground(Picture& picture, const BoxF& box, Colour colour, Colour ground) {
    const bool edged = alike(colour, ground);
    picture.box(box, edged ? edge_of(colour) : colour);
    picture.box(edged ? box.inset(1) : BoxF{}, colour);
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
    fitted.tenths = size_within(width, tenths, least, [&](int size) { return meter.width(text, size); });
    std::size_t kept = text.size();
    while (kept > 0 && meter.width(fitted.text, fitted.tenths) > width)
        fitted.text.assign(text.substr(0, --kept)).append("..");
    if (kept == 0) // no room for the dots
        fitted.text = meter.width(text.substr(0, 1), fitted.tenths) <= width ? text.substr(0, 1) : "";
    return fitted;
}

FittedText fit_number(TextMeter& meter, std::string_view number, int tenths, float width) {
    const auto measure = [&](int size) { return meter.width(number, size); };
    const int least = meter.tenths(least_text);
    const int fitted = size_within(width, tenths, least, measure);
    return {fitted >= least && measure(fitted) <= width ? std::string(number) : std::string(), fitted};
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
    const bool flat = model.border_type == border_flat;
    const bool raised = model.border_type == border_raised;
    paint_border(picture, whole, height, model.border_sides, raised ? theme.sun : theme.shadow,
                 raised || flat ? theme.shadow : theme.sun);
}

bool has_title(const GaugeModel& model) {
    return !model.no_title && !model.title_text().empty();
}

bool has_inner_title(const GaugeModel& model) {
    return model.bar_title && has_title(model);
}

bool has_unit(const GaugeModel& model) {
    return !model.no_title && !model.unit_text().empty();
}

namespace {

constexpr float least_room = 14; // for a line of text and something of the view above or below it
constexpr float least_line = 8;  // for a line of text beside the view
constexpr float low = 18;        // a title would leave too little below it

bool is_wide(const BoxF& body) {
    return body.width() > 3 * body.height();
}

float width_beside(const BoxF& body, const Stage& stage, std::string_view text, int tenths) {
    return std::min(stage.meter.width(text, tenths) + 2, body.width() * 0.25f);
}

void take_title(Layout& layout, const GaugeModel& model, const Stage& stage) {
    const BoxF inside = layout.body;
    const bool beside = inside.height() < low && is_wide(inside);
    if (inside.height() < (beside ? least_line : least_room) || inside.width() < least_text)
        return;
    const float least = inside.height() < 48 ? least_text : 8.0f;
    const float size = std::clamp(std::min(inside.height() * 0.085f, inside.width() * 0.14f), least, 32.0f);
    layout.title_size = stage.meter.tenths(size);
    layout.title = inside;
    if (beside) {
        const float width = width_beside(inside, stage, model.title_text(), layout.title_size);
        layout.title.right = std::ceil(inside.left + width);
        layout.body.left = layout.title.right + 3;
    } else {
        layout.title.bottom = inside.top - std::ceil(stage.meter.metrics(layout.title_size).height());
        layout.body.top = layout.title.bottom - std::floor(size * 0.25f);
    }
}

void take_unit(Layout& layout, const GaugeModel& model, const Stage& stage) {
    const BoxF body = layout.body;
    const bool beside = is_wide(body);
    if (body.height() < (beside ? least_line : least_room) || body.width() < least_text)
        return;
    const float size = beside ? body.height() * 0.3f : std::min(body.height() * 0.075f, body.width() * 0.12f);
    layout.unit_size = stage.meter.tenths(std::clamp(size, 7.0f, 28.0f));
    layout.unit = body;
    if (beside) {
        const float width = width_beside(body, stage, model.unit_text(), layout.unit_size);
        layout.unit.left = std::round(body.right - width);
        layout.body.right = layout.unit.left - 3;
    } else {
        layout.unit.top = body.bottom + std::ceil(stage.meter.metrics(layout.unit_size).height());
        layout.body.bottom = layout.unit.top + std::floor(size * 0.25f);
    }
}

// A line of text in a box of its own.
void paint_line(Picture& picture, const GaugeModel& model, const Stage& stage, const BoxF& box, std::string_view text,
                int tenths, float least) {
    if (box.empty())
        return;
    const FittedText fitted = fit(stage.meter, text, tenths, box.width() - 2, stage.meter.tenths(least));
    const float height = stage.meter.metrics(tenths).height();
    const PointF at = {std::round(box.centre().x), std::round(box.centre().y - height / 2)};
    picture.text(stage.meter, at, HAlign::centre, fitted.tenths, theme_of(model).text, fitted.text, &box);
}

} // namespace

Layout lay_out(const GaugeModel& model, const Stage& stage, UnitPlace unit, bool title_on_bar) {
    Layout layout = {{}, {}, inside_border(model, stage), 0, 0};
    if (has_title(model) && !title_on_bar)
        take_title(layout, model, stage);
    if (has_unit(model) && unit == UnitPlace::apart)
        take_unit(layout, model, stage);
    return layout;
}

void paint_titles(Picture& picture, const GaugeModel& model, const Stage& stage, const Layout& layout) {
    paint_line(picture, model, stage, layout.title, model.title_text(), layout.title_size, 8);
    paint_line(picture, model, stage, layout.unit, model.unit_text(), layout.unit_size, least_text);
}

void paint_sunken_edge(Picture& picture, const BoxF& box, const Theme& theme) {
    paint_border(picture, box, 1, side_left | side_right | side_top | side_bottom, blend(theme.back, black, 110),
                 blend(theme.back, white, 200));
}

} // namespace wnt

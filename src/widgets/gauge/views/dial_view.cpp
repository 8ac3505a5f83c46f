#include <algorithm>
#include <cmath>

#include "widgets/gauge/views/readout.h"
#include "widgets/gauge/views/round_scale.h"
#include "widgets/gauge/views/scale_parts.h"
#include "widgets/gauge/views/view_parts.h"

// The analogue dial: a round scale over three quarters of a turn, with a tapered needle.

namespace wnt {

namespace {

constexpr float least_labelled_radius = 26;
constexpr float least_written_radius = 46; // for unit and title between the labels

struct Dial {
    Layout layout;
    RoundScale scale;
    float radius;
    int label_size;
    int writing_size;
    BoxF readout;
    bool readout_on_face;
    float title_width; ///< of a title on the face; 0: it stands above
    bool unit_on_face;
};

Dial place_dial(const GaugeModel& model, const Stage& stage, bool title_on_face) {
    Dial d = {};
    d.layout = lay_out(model, stage, title_on_face);
    BoxF& body = d.layout.body;
    d.readout = take_outer_readout(body);
    d.readout_on_face = d.readout.empty();
    d.radius = std::max(std::min(body.width(), body.height()) / 2 - 1, 1.0f);
    d.scale = {body.centre(), d.radius};
    d.writing_size = stage.meter.tenths(std::clamp(d.radius * 0.125f, 6.5f, 34.0f));
    if (d.radius >= least_labelled_radius)
        d.label_size = label_size_for(model, stage.meter, d.writing_size, d.radius * 0.5f);
    const float label = d.label_size ? widest_label(model, stage.meter, d.label_size) : 0;
    const bool writable = d.radius >= least_written_radius;
    const float between_labels = 2 * (d.radius * 0.55f - label);
    d.title_width = title_on_face && writable && between_labels >= d.radius * 0.5f ? between_labels : 0;
    // Wide labels at the ends of the scale need the place between them.
    d.unit_on_face = d.readout_on_face && !model.no_title && writable && label <= d.radius * 0.34f;
    if (!d.readout_on_face)
        return d;
    const PointF c = d.scale.centre;
    const float half_width = d.radius * 0.33f;
    d.readout = {std::round(c.x - half_width), std::round(c.y - d.radius * 0.74f), std::round(c.x + half_width),
                 std::round(c.y - d.radius * 0.50f)};
    return d;
}

// A title that finds no place among the labels goes above the dial.
Dial lay_out_dial(const GaugeModel& model, const Stage& stage) {
    const bool inner = has_inner_title(model);
    const Dial d = place_dial(model, stage, inner);
    return inner && d.title_width == 0 ? place_dial(model, stage, false) : d;
}

// The needle points along +x in its own frame, of length 1; it is turned and scaled once.
constexpr PointF needle_outline[] = {{-0.22f, 0.040f}, {0.0f, 0.056f},  {0.97f, 0.012f},  {1.0f, 0.0f},
                                     {0.97f, -0.012f}, {0.0f, -0.056f}, {-0.22f, -0.040f}};
constexpr PointF needle_left[] = {{-0.20f, 0.0f}, {-0.20f, 0.026f}, {0.0f, 0.040f}, {0.96f, 0.004f}, {0.96f, 0.0f}};
constexpr PointF needle_right[] = {{-0.20f, 0.0f}, {0.96f, 0.0f}, {0.96f, -0.004f}, {0.0f, -0.040f}, {-0.20f, -0.026f}};

template <int n>
void paint_turned(Picture& picture, const PointF (&shape)[n], PointF origin, float length, float angle, Colour colour) {
    PointF turned[n];
    const float c = std::cos(angle) * length;
    const float s = std::sin(angle) * length;
    for (int i = 0; i < n; ++i)
        turned[i] = {origin.x + shape[i].x * c - shape[i].y * s, origin.y + shape[i].x * s + shape[i].y * c};
    picture.polygon(turned, n, colour);
}

// The light comes from the top left: the side of the needle that faces it is the bright one.
void paint_needle(Picture& picture, const Dial& d, float angle, Colour colour) {
    const float length = d.radius * 0.76f;
    const bool left_lit = std::cos(angle + pi / 2 - light_angle) >= 0;
    const Colour bright = blend(colour, white, 70);
    const Colour dim = blend(colour, black, 50);
    paint_turned(picture, needle_outline, d.scale.centre, length, angle, blend(colour, black, 150));
    paint_turned(picture, needle_left, d.scale.centre, length, angle, left_lit ? bright : dim);
    paint_turned(picture, needle_right, d.scale.centre, length, angle, left_lit ? dim : bright);
}

// A cap lit from the top left. It lies over the needle, so it is drawn with every value: few figures.
void paint_hub(Picture& picture, PointF centre, float radius) {
    const float shift = radius * 0.14f;
    picture.disc(centre, radius, 0x303030);
    picture.disc({centre.x - shift * 0.4f, centre.y + shift * 0.4f}, radius * 0.80f, 0x6A6A6A);
    picture.disc({centre.x - shift, centre.y + shift}, radius * 0.52f, 0x9A9A9A);
}

// A small mark at the rim shows where the value came from.
void paint_previous(Picture& picture, const GaugeModel& model, const Dial& d, Colour colour) {
    if (!model.has_previous) {
        picture.box({}, colour); // keeps the mark's place in the list
        return;
    }
    const float a = d.scale.angle(fraction_of(model, model.previous));
    const float half = 0.035f;
    const auto at = [&](float angle, float distance) {
        return PointF{d.scale.centre.x + std::cos(angle) * distance, d.scale.centre.y + std::sin(angle) * distance};
    };
    const PointF mark[3] = {at(a, d.radius * 0.80f), at(a + half, d.radius * 0.885f), at(a - half, d.radius * 0.885f)};
    picture.polygon(mark, 3, colour);
}

} // namespace

void dial_face(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Theme theme = theme_of(model);
    const Dial d = lay_out_dial(model, stage);
    paint_ground(picture, model, stage);
    const PointF c = d.scale.centre;
    const float r = d.radius;
    const Colour bright = blend(theme.shadow, theme.sun, 190);
    paint_bezel(picture, c, r * 0.955f, r, theme.shadow, bright);
    paint_bezel(picture, c, r * 0.92f, r * 0.955f, theme.sun, blend(theme.shadow, theme.sun, 60));
    picture.disc(c, r * 0.925f, theme.plate);
    paint_round_zones(picture, model, d.scale, r * 0.80f, r * 0.885f);
    paint_round_ticks(picture, model, stage, d.scale, {r * 0.80f, r * 0.70f, r * 0.75f, r * 0.67f, true, d.label_size});
    if (d.unit_on_face) {
        const FittedText unit =
            fit(stage.meter, model.unit_text(), d.writing_size, r * 0.62f, stage.meter.tenths(least_text));
        write(picture, stage.meter, {c.x, c.y - r * 0.36f}, HAlign::centre, unit.tenths, theme.text, unit.text);
    }
    if (d.title_width > 0) {
        const FittedText title =
            fit(stage.meter, model.title_text(), d.writing_size, d.title_width, stage.meter.tenths(least_text));
        write(picture, stage.meter, {c.x, c.y + r * 0.30f}, HAlign::centre, title.tenths, theme.text, title.text);
    } else {
        paint_title(picture, model, stage, d.layout);
    }
}

void dial_value(Picture& picture, const GaugeModel& model, const Stage& stage) {
    const Dial d = lay_out_dial(model, stage);
    const Colour colour = zone_colour(model, model.current);
    paint_previous(picture, model, d, 0x606060);
    paint_needle(picture, d, d.scale.angle(fraction_of(model, model.current)), colour);
    paint_hub(picture, d.scale.centre, std::max(d.radius * 0.10f, 1.5f));
    paint_readout(picture, model, stage, d.readout, !d.unit_on_face);
}

} // namespace wnt

#include "gauge_scenes.h"
#include "widgets/gauge/gauge_scale.h"
#include "widgets/gauge/views/scale_parts.h"
#include "widgets/painting/shape_raster.h"

#include <gmock/gmock.h>

#include <cmath>
#include <map>

using namespace wnt;

namespace {

// What of a scene's shapes is seen, upper row first.
struct Shapes {
    explicit Shapes(const Scene& scene) {
        ShapeRaster raster;
        raster.begin({pixels_.data(), stage, stage}, {0, 0, stage, stage}, 4);
        for (const Picture* picture : {&scene.face, &scene.value})
            for (const auto& f : picture->figures()) {
                if (f.kind == Picture::Kind::box)
                    raster.box(f.bounds, f.colour);
                else if (f.kind == Picture::Kind::polygon)
                    raster.polygon(picture->points(f), static_cast<int>(f.count), f.colour);
            }
        raster.finish();
    }
    float brightness_of(const BoxF& area) const {
        float sum = 0;
        int count = 0;
        for (int y = static_cast<int>(area.bottom); y < static_cast<int>(area.top); ++y)
            for (int x = static_cast<int>(area.left); x < static_cast<int>(area.right); ++x, ++count)
                sum += static_cast<float>(brightness(pixels_[static_cast<std::size_t>((stage - 1 - y) * stage + x)]));
        return sum / static_cast<float>(count);
    }

private:
    std::vector<std::uint32_t> pixels_ = std::vector<std::uint32_t>(stage * stage);
};

TEST(GaugeViews, LightComesFromAboveAndFromTheLeft) {
    const Scene knob(zoned(gauge_turn_knob, 200), stage, stage);
    const Shapes cap(knob);
    EXPECT_GT(cap.brightness_of({90, 125, 115, 150}), cap.brightness_of({125, 90, 150, 115}) + 8);
    int shadows = 0;
    for (const auto& f : knob.face.figures())
        for (int i = 1; i <= 3; ++i)
            if (f.bounds.width() > 80 && f.colour == blend(0xF5F5F5, black, 28 * i)) {
                ++shadows;
                EXPECT_TRUE(f.bounds.centre().x > middle.x && f.bounds.centre().y < middle.y) << i;
            }
    EXPECT_EQ(shadows, 3);

    const Scene dial(zoned(gauge_analog, 130), stage, stage);
    const Shapes rim(dial);
    EXPECT_GT(rim.brightness_of({42, 196, 45, 199}), rim.brightness_of({196, 42, 199, 45}) + 20);
    // What is stacked on a cap or hub lies nearer to the light.
    for (const auto& [picture, ground] : {std::pair{&knob.face, 0xB0B0B0u}, std::pair{&dial.value, 0x303030u}}) {
        const auto& all = picture->figures();
        const auto first =
            std::ranges::find_if(all, [colour = ground](const auto& f) { return f.colour == colour && f.count > 8; }) -
            all.begin();
        ASSERT_LT(first + 2, std::ssize(all));
        for (auto i = first + 1; i <= first + 2; ++i) {
            const PointF at = all[static_cast<std::size_t>(i)].bounds.centre();
            const PointF below = all[static_cast<std::size_t>(i - 1)].bounds.centre();
            EXPECT_TRUE(at.x < below.x && at.y > below.y) << i;
        }
    }

    const Scene bar(zoned(gauge_percent_bar, 200), stage, stage);
    EXPECT_EQ(extent(bar.face, theme_of(zoned(gauge_percent_bar, 0)).groove).width(), extent(bar.value, red).width());
    const BoxF filled = extent(bar.value, red);
    const float third = filled.height() / 3;
    const Shapes round(bar);
    EXPECT_GT(round.brightness_of({filled.left, filled.top - third, filled.right, filled.top}),
              round.brightness_of({filled.left, filled.bottom, filled.right, filled.bottom + third}) + 20);

    const Scene thermometer(zoned(gauge_thermometer, 200), stage, stage);
    const BoxF column = extent(thermometer.value, red);
    const float x = column.centre().x;
    const Shapes glass(thermometer);
    EXPECT_GT(glass.brightness_of({x - 6, column.centre().y, x, column.top - 8}),
              glass.brightness_of({x, column.centre().y, x + 6, column.top - 8}) + 10);
    EXPECT_LT(extent(thermometer.face, blend(0xF5F5F5, 0, 110)).left,
              extent(thermometer.face, theme_of(zoned(gauge_thermometer, 0)).plate).left);
}

TEST(GaugeViews, StraightTicksDifferByRank) {
    for (const int type : {gauge_percent_bar, gauge_thermometer, gauge_peak_line}) {
        const Scene scene(zoned(type, 10, {":CLRTEXT=MAGENTA", ":SCALES=40"}), stage, stage);
        std::vector<float> lengths;
        for (const auto& f : scene.face.figures())
            if (f.kind == Picture::Kind::box && f.colour == 0xFF00FF)
                lengths.push_back(std::max(f.bounds.width(), f.bounds.height()));
        const auto [shortest, longest] = std::ranges::minmax(lengths);
        EXPECT_LT(shortest, 0.8f * longest) << type;
    }
    const Scene peak(zoned(gauge_peak_line, 200), stage, stage);
    EXPECT_LE(extent(peak.value, black).top, extent(peak.face, red).top);
}

TEST(GaugeScale, TicksAndLabelsKeepTheirDistances) {
    for (const int scales : {1, 3, 7, 20, 97, 333, 999})
        for (const float length : {57.0f, 130.0f, 400.0f, 997.0f}) {
            GaugeModel model = zoned(gauge_percent_bar, 10);
            model.scales = scales;
            const auto ticks = ticks_of(model, length, 4, 30);
            SCOPED_TRACE(testing::Message() << scales << " on " << length);
            const Tick* label = nullptr;
            for (std::size_t i = 0; i < ticks.size(); ++i) {
                if (i > 0) {
                    EXPECT_GE((ticks[i].fraction - ticks[i - 1].fraction) * length, 3.9f) << i;
                }
                if (!ticks[i].major)
                    continue;
                EXPECT_LE(std::abs(static_cast<float>(ticks[i].value) / 200 - ticks[i].fraction) * length, 0.51f);
                if (label) {
                    EXPECT_GE((ticks[i].fraction - label->fraction) * length, 29) << i;
                }
                label = &ticks[i];
            }
            EXPECT_EQ(ticks.front().fraction, 0);
            EXPECT_TRUE(ticks.back().fraction == 1 && ticks.back().major);
        }
}

TEST(GaugeScale, OfOneValueIsThatValuesZoneThroughout) {
    const auto zones = zones_of(model_of(gauge_analog, {":MINVAL=7", ":MAXVAL=7"}));
    ASSERT_EQ(zones.size(), 1u);
    EXPECT_TRUE(zones[0].from == 0 && zones[0].to == 1);
}

TEST(GaugeViews, OutlinesLeaveAZoneItsColour) {
    const auto outlined = [](const Picture& picture) {
        const auto& all = picture.figures();
        for (std::size_t i = 0; i + 1 < all.size(); ++i) {
            const BoxF& outer = all[i].bounds;
            const BoxF& inner = all[i + 1].bounds;
            if (all[i].colour == edge_of(white) && all[i + 1].colour == white && !inner.empty() &&
                inner.left >= outer.left && inner.right <= outer.right && inner.bottom >= outer.bottom &&
                inner.top <= outer.top)
                return inner.width() < outer.width() && inner.width() >= outer.width() - 6 &&
                       inner.height() >= outer.height() - 6;
        }
        return false;
    };
    const Lines white_zone = {":CLEARMARKS", ":SETMARK=60,WHITE", ":SETMARK=90,RED"};
    for (const int type : {gauge_percent_bar, gauge_thermometer, gauge_analog, gauge_peak_line, gauge_turn_knob}) {
        GaugeModel model = model_of(type, white_zone);
        model.set_current_value(70); // another zone's colour on the value
        EXPECT_TRUE(outlined(Scene(model, 200, 200).face)) << type;
    }
    const Picture glass = Scene(model_of(gauge_thermometer, {":CLEARMARKS", ":SETMARK=1,WHITE"}), 200, 200).value;
    EXPECT_EQ(std::ranges::count_if(glass.figures(), [](const auto& f) { return f.colour == edge_of(white); }), 2);
}

TEST(GaugeViews, RoundTicksDifferByRankAndPointersKeepToTheirPlaces) {
    const Scene dial(zoned(gauge_analog, 10, {":CLRTEXT=MAGENTA", ":SCALES=40"}), stage, stage);
    std::vector<std::pair<float, float>> ticks; // width and length
    for (const auto& f : dial.face.figures())
        if (f.kind == Picture::Kind::polygon && f.colour == 0xFF00FF) {
            const PointF* p = dial.face.points(f);
            ticks.emplace_back(std::hypot(p[0].x - p[3].x, p[0].y - p[3].y),
                               std::hypot(p[0].x - p[1].x, p[0].y - p[1].y));
        }
    const auto [thin, thick] = std::ranges::minmax(ticks);
    EXPECT_LT(thin.first, 0.7f * thick.first);
    EXPECT_LT(thin.second, 0.8f * thick.second);
    EXPECT_NEAR(thick.first, 2, 0.05f);

    GaugeModel model = zoned(gauge_analog, 40);
    model.set_current_value(150);
    const Scene moved(model, stage, stage);
    EXPECT_NEAR(angle_of(extent(moved.value, 0x606060).centre()), angle_at(40), 2);
    for (const PointF p : corners_of(moved.value, 0x606060))
        EXPECT_NEAR(reach(p) / 111.8f, 0.84f, 0.06f);

    const Scene needle(zoned(gauge_analog, 10), stage, stage);
    for (const PointF p : corners_of(needle.value, blend(blue, black, 150))) {
        const bool ahead = std::cos((angle_of(p) - angle_at(10)) * pi / 180) > 0;
        EXPECT_LT(reach(p) / 111.8f, ahead ? 0.80f : 0.2f); // it ends between the ticks and the zones
    }

    const Scene knob(zoned(gauge_turn_knob, 130), stage, stage);
    const auto zone = corners_of(knob.face, red); // the zones lie around the cap
    for (const PointF p : corners_of(knob.value, 0x404040))
        EXPECT_LT(reach(p), reach(*std::ranges::min_element(zone, {}, reach)) - 2);
}

TEST(GaugeViews, TextOnTheBarIsReadableOnItsFill) {
    for (const auto& [colour, ink] : {std::pair{"DARKBLUE", white}, std::pair{"YELLOW", black}}) {
        const std::string mark = std::string(":SETMARK=1000,") + colour;
        const Lines lines = {":CLEARMARKS", mark.c_str(), ":CLRTEXT=CYAN", ":CURVAL=50"};
        const Scene scene(model_of(gauge_percent_bar, lines), stage, stage);
        const float edge = scene.value.figures()[0].bounds.right; // of the filled part
        std::vector<Colour> inks;
        for (const Writing& w : writings_of(scene))
            if (w.text == " 50 %") {
                EXPECT_TRUE(inks.empty() ? w.bounds.right <= edge : w.bounds.left >= edge) << colour;
                inks.push_back(w.colour);
            }
        EXPECT_EQ(inks, (std::vector{ink, Colour{0xFFFF00}})) << colour;
    }
}

TEST(GaugeViews, PercentagesAreRounded) {
    for (const auto& [value, text] : {std::pair{":CURVAL=1", " 33 %"}, {":CURVAL=2", " 67 %"}, {":CURVAL=3", "100 %"}})
        EXPECT_TRUE(writes(Scene(model_of(gauge_percent_bar, {":MAXVAL=3", value}), 300, 80), text)) << text;
    const Scene titled(model_of(gauge_percent_bar, {":BARTITLE=1", ":TITLE=Level", ":CURVAL=100"}), 300, 80);
    for (const Writing& w : writings_of(titled))
        EXPECT_TRUE(w.text != "100 %" || (w.bounds.left < 280 && w.bounds.right < 300)) << "at the bar's end";
}

// The size follows from the widest number of the range.
TEST(GaugeViews, ReadoutsKeepTheirSizeWhileTheValueMoves) {
    for (const int type : {gauge_thermometer, gauge_analog, gauge_turn_knob}) {
        std::vector<int> sizes;
        for (const int value : {7, -1'000'000}) {
            GaugeModel model = model_of(type, {":MINVAL=-1000000", ":MAXVAL=9"});
            model.set_current_value(value);
            for (const Writing& w : writings_of({model, 160, 160}))
                if (!w.on_face && w.text == std::to_string(value))
                    sizes.push_back(w.tenths);
        }
        ASSERT_EQ(sizes.size(), 2u) << type;
        EXPECT_EQ(sizes[0], sizes[1]) << type;
    }
}

TEST(GaugeViews, EndsOfADigitalScaleStandAtTheirEnds) {
    std::map<std::string, float> left;
    for (const Writing& w : writings_of({zoned(gauge_digital, 10), stage, stage}))
        left[w.text] = w.bounds.left;
    EXPECT_LT(left.at("0"), left.at("200"));
    EXPECT_EQ((std::vector{brightness(red), brightness(green), brightness(blue)}), (std::vector{76, 150, 27}));
}

TEST(GaugeViews, WhatIsTooLongEndsInDots) {
    EvenMeter meter; // six units a letter
    for (const auto& [width, shown] :
         {std::pair{60.5f, "abcdefghij"}, {59.0f, "abcdefg.."}, {30.5f, "abc.."}, {17.0f, "a"}, {5.0f, ""}})
        EXPECT_EQ(fit(meter, "abcdefghij", 80, width, 80).text, shown) << width;
}

TEST(GaugeViews, ReadoutsStandInTheirPlates) {
    for (const int type : {gauge_thermometer, gauge_analog, gauge_peak_line, gauge_turn_knob}) {
        const Scene scene(zoned(type, 137), stage, stage);
        const BoxF plate = extent(scene.value, ground_for(red));
        const Shapes shapes(scene); // sunk: dark to the upper left
        EXPECT_LT(shapes.brightness_of({plate.left - 1, plate.bottom, plate.left, plate.top}) + 20,
                  shapes.brightness_of({plate.right, plate.bottom, plate.right + 1, plate.top}))
            << type;
        bool found = false;
        for (const Writing& w : writings_of(scene))
            if (w.text == "137") {
                found = true;
                EXPECT_LT(w.bounds.height(), plate.height() + 4) << type;
                EXPECT_NEAR(w.bounds.centre().y, plate.centre().y, 4) << type;
                EXPECT_TRUE(w.bounds.left > plate.left && w.bounds.right < plate.right) << type;
            }
        EXPECT_TRUE(found) << type;
    }
}

TEST(GaugeViews, AGapFollowsTheNewestPeak) {
    GaugeModel model = zoned(gauge_peak_line, 10);
    for (int i = 0; i < 500; ++i)
        model.set_current_value(100 + i % 2);
    const Scene scene(model, stage, stage);
    std::vector<bool> shown; // column by column, each of two figures
    const auto& figures = scene.value.figures();
    for (std::size_t i = 0; i < figures.size() && (figures[i].bounds.empty() || figures[i].colour != black); i += 2)
        shown.push_back(!figures[i].bounds.empty());
    ASSERT_GT(shown.size(), 10u);
    const auto newest = static_cast<std::size_t>(model.history.count() - 1);
    EXPECT_EQ(std::ranges::count(shown, false), 1);
    EXPECT_FALSE(shown[(newest + 1) % shown.size()]);
}

} // namespace

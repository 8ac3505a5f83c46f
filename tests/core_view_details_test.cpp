#include "gauge_scenes.h"
#include "widgets/gauge/gauge_scale.h"
#include "widgets/gauge/views/scale_parts.h"

#include <gmock/gmock.h>

using namespace wnt;

namespace {

float distance(PointF p) {
    return std::hypot(p.x - middle.x, p.y - middle.y);
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
                if (i > 0)
                    EXPECT_GE((ticks[i].fraction - ticks[i - 1].fraction) * length, 3.9f) << i;
                if (!ticks[i].major)
                    continue;
                if (label)
                    EXPECT_GE((ticks[i].fraction - label->fraction) * length, 29) << i;
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
                return inner.width() >= outer.width() - 6 && inner.height() >= outer.height() - 6;
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
    std::vector<float> widths;
    for (const auto& f : dial.face.figures())
        if (f.kind == Picture::Kind::polygon && f.colour == 0xFF00FF) {
            const PointF* p = dial.face.points(f);
            widths.push_back(std::hypot(p[0].x - p[3].x, p[0].y - p[3].y));
        }
    const auto [thin, thick] = std::ranges::minmax(widths);
    EXPECT_LT(thin, 0.7f * thick);

    GaugeModel model = zoned(gauge_analog, 40);
    model.set_current_value(150);
    const Scene moved(model, stage, stage);
    for (const auto& f : moved.value.figures())
        for (std::uint32_t i = 0; f.colour == 0x606060 && i < f.count; ++i)
            EXPECT_NEAR(distance(moved.value.points(f)[i]) / 111.8f, 0.84f, 0.06f);

    const Scene knob(zoned(gauge_turn_knob, 130, {":SETMARK=199,BLUE"}), stage, stage);
    float cap = 1e9f;
    for (const auto& f : knob.face.figures()) // the zones lie around the cap
        for (std::uint32_t i = 0; f.colour == red && f.kind == Picture::Kind::polygon && i < f.count; ++i)
            cap = std::min(cap, distance(knob.face.points(f)[i]));
    for (const auto& f : knob.value.figures())
        for (std::uint32_t i = 0; f.colour == 0x404040 && f.kind == Picture::Kind::polygon && i < f.count; ++i)
            EXPECT_LT(distance(knob.value.points(f)[i]), cap - 2);
}

TEST(GaugeViews, TitlesOfTheFaceGiveWayToLabels) {
    GaugeModel model =
        model_of(gauge_analog, {":BARTITLE=1", ":TITLE=T", ":MINVAL=-2147483648", ":MAXVAL=2147483647", ":SCALES=8"});
    for (const int size : {60, 90, 140, 300})
        EXPECT_TRUE(writes({model, size, size}, "T")) << size;
}

TEST(GaugeViews, TextOnTheBarIsReadableOnItsFill) {
    for (const auto& [colour, ink] : {std::pair{"DARKBLUE", white}, std::pair{"YELLOW", black}}) {
        const std::string mark = std::string(":SETMARK=1000,") + colour;
        const Scene scene(model_of(gauge_percent_bar, {":CLEARMARKS", mark.c_str(), ":CURVAL=100"}), stage, stage);
        bool written = false;
        for (const auto& f : scene.value.figures())
            if (f.kind == Picture::Kind::text && scene.value.characters(f) == "100 %") {
                written = true;
                EXPECT_EQ(f.colour, ink) << colour;
            }
        EXPECT_TRUE(written) << colour;
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

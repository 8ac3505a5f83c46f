#include "gauge_scenes.h"
#include "widgets/gauge/gauge_scale.h"
#include "widgets/gauge/views/scale_parts.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace wnt;

namespace {

TEST(GaugeScale, OfOneValueIsThatValuesZoneThroughout) {
    const auto zones = zones_of(model_of(gauge_analog, {":MINVAL=7", ":MAXVAL=7"}));
    ASSERT_EQ(zones.size(), 1u);
    EXPECT_TRUE(zones[0].from == 0 && zones[0].to == 1);
}

// The size follows from the widest number of the range.
TEST(GaugeViews, ReadoutsKeepTheirSizeWhileTheValueMoves) {
    for (const int type : {gauge_digital, gauge_thermometer, gauge_analog, gauge_turn_knob}) {
        std::vector<std::size_t> sizes; // of the text, or segments of the display, lit or not
        for (const int value : {7, -1'000'000}) {
            GaugeModel model = model_of(type, {":MINVAL=-1000000", ":MAXVAL=9"});
            model.set_current_value(value);
            const Scene scene(model, 160, 160);
            if (type == gauge_digital)
                sizes.push_back(scene.value.figures().size());
            for (const Writing& w : writings_of(scene))
                if (type != gauge_digital && !w.on_face && w.text == std::to_string(value))
                    sizes.push_back(static_cast<std::size_t>(w.tenths));
        }
        ASSERT_EQ(sizes.size(), 2u) << type;
        EXPECT_EQ(sizes[0], sizes[1]) << type;
    }
}

TEST(GaugeViews, WhatIsTooLongEndsInDots) {
    EvenMeter meter; // six units a letter
    for (const auto& [width, shown] :
         {std::pair{60.5f, "abcdefghij"}, {59.0f, "abcdefg.."}, {30.5f, "abc.."}, {17.0f, "a"}, {5.0f, ""}})
        EXPECT_EQ(fit(meter, "abcdefghij", 80, width, 80).text, shown) << width;
}

TEST(GaugeViews, AGapFollowsTheNewestPeak) {
    GaugeModel model = zoned(gauge_peak_line, 10);
    for (int i = 0; i < 500; ++i)
        model.set_current_value(100 + i % 2);
    const Scene scene(model, 240, 240);
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

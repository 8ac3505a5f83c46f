#include "widgets/gauge_model.h"
#include "widgets/gauge_scale.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string_view>
#include <utility>

using namespace wnt;

namespace {

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

GaugeModel model_of(std::initializer_list<std::string_view> lines) {
    GaugeModel model(0xC8D0D4, 0xFFFFFF, 0x404040);
    for (std::string_view line : lines)
        model.load_line(line);
    return model;
}

TEST(GaugeModel, BuiltInScriptShowsTheSample) {
    GaugeModel model(0xC8D0D4, 0xFFFFFF, 0x404040);
    EXPECT_EQ(model.scales, 100);
    EXPECT_EQ(model.border_height, 2);
    EXPECT_EQ(model.getmarkercolour(1), 6); // without marks
    for (std::string_view line : gauge_built_in_script)
        model.load_line(line);
    model.end_script();
    EXPECT_EQ(model.id_text(), "GAUGE01");
    EXPECT_EQ(model.title_text(), "Titeltext dieses GAUGE Widgets");
    EXPECT_EQ(model.unit_text(), "Unit");
    EXPECT_EQ(model.type, gauge_peak_line);
    EXPECT_EQ(model.current, 76);
    EXPECT_EQ(model.scales, 20);
    EXPECT_EQ(model.mark_count, 7);
    EXPECT_EQ(model.border_sides, 15);
    EXPECT_EQ(model.border_height, 0);
    EXPECT_EQ(model.background, 0xC8D0D4u); // its colour lines are switched off
    EXPECT_EQ(model.repaint_mask, repaint_face);
    EXPECT_EQ(model.getmarkercolour(99), 12); // the first mark, 100, holds everything below it
    EXPECT_EQ(model.getmarkercolour(100), 1);
}

TEST(GaugeModel, EveryKeyMarksItsPartForRepaint) {
    const std::pair<std::string_view, int> cases[] = {
        {":MSG=x", 0},
        {":TYPE=ANALOG", 1},
        {":ID=x", 0},
        {":TITLE=x", 1},
        {":UNITTITLE=x", 1},
        {":MINVAL=1", 1},
        {":MAXVAL=1", 1},
        {":CURVAL=1", 2},
        {":SETMARK=1,RED", 2},
        {":CLEARMARKS", 2},
        {":SCALES=999", 1},
        {":SCALES=1000", 0},
        {":SCALES=0", 0},
        {":BORDERTYPE=FLAT", 1},
        {":BORDERSTYLE=TOP", 0},
        {":BORDERHEIGHT=1", 1},
        {":CLRBORDER=RED", 0},
        {":CLRTEXT=RED", 1},
        {":CLRBACK=RED", 1},
        {":CLRSUN=RED", 1},
        {":CLRSHADOW=RED", 1},
        {":NOTITLE=X", 1},
        {":BARTITLE=X", 1},
        {":DEMO=X", 1},
        {":UPDATE", 0},
        {":title=x", 0},
        {":TITLES=x", 0},
        {"TYPE=ANALOG", 0},
        {":", 0},
    };
    for (const auto& [line, mask] : cases)
        EXPECT_EQ(model_of({line}).repaint_mask, mask) << line;
    EXPECT_EQ(model_of({":CURVAL=1", ":MINVAL=1", ":MAXVAL=9"}).repaint_mask, repaint_all); // bits, not a sum
    EXPECT_EQ(model_of({":TYPE=THERMOMETER", ":CLEARMARKS"}).repaint_mask, repaint_face);
}

TEST(GaugeModel, KeysReachTheirFields) {
    GaugeModel model = model_of({":CLRTEXT=BLUE", ":CLRBACK=GRAY", ":CLRSUN=WHITE", ":CLRSHADOW=grau", ":NOTITLE=X",
                                 ":BORDERTYPE=3DDOWN", ":BORDERSTYLE=TOPLEFT", ":BORDERHEIGHT=9", ":TYPE=ROUND"});
    EXPECT_EQ(model.text_colour, 2u);
    EXPECT_EQ(model.background, 9u);
    EXPECT_EQ(model.sun, 1u);
    EXPECT_EQ(model.shadow, 255u);
    EXPECT_TRUE(model.no_title);
    EXPECT_FALSE(model.bar_title || model.test_mode);
    EXPECT_EQ(model.border_type, 3);
    EXPECT_EQ(model.border_sides, 5);
    EXPECT_EQ(model.border_height, 5);
    EXPECT_EQ(model.type, -1);
    model.load_line(":BARTITLE=1");
    model.load_line(":DEMO=y");
    EXPECT_TRUE(model.bar_title && model.test_mode);
}

TEST(GaugeModel, ScriptClampsWhereSetterIgnores) {
    GaugeModel model = model_of({":CURVAL=500", ":MINVAL=1000", ":MAXVAL=10"});
    EXPECT_EQ(model.current, 100); // clamped against the range of before
    model.end_script();
    EXPECT_EQ(model.minimum, 10);
    EXPECT_EQ(model.maximum, 1000);
    EXPECT_TRUE(model.displayable);

    EXPECT_FALSE(model.set_current_value(9));
    EXPECT_FALSE(model.set_current_value(1001));
    EXPECT_FALSE(model.set_current_value(100));
    EXPECT_TRUE(model.set_current_value(10));
    EXPECT_EQ(model.previous, 100);
    EXPECT_EQ(model.repaint_mask, repaint_value); // the face's bit is gone

    model.set_range(50, 20); // stays inverted until a script ends
    EXPECT_EQ(model.minimum, 50);
    EXPECT_EQ(model.repaint_mask, repaint_all);
    EXPECT_FALSE(model.set_current_value(30));
    model.end_script();
    EXPECT_EQ(model.maximum, 50);
    EXPECT_FALSE(model.displayable); // 10 is outside

    model.set_titles("Pressure", nullptr);
    model.clear();
    EXPECT_EQ(model.maximum, 100);
    EXPECT_EQ(model.current, 50);
    EXPECT_EQ(model.title_text(), "Pressure");
    model.set_titles(nullptr, "bar");
    EXPECT_EQ(model.title_text(), "");
}

TEST(GaugeModel, MarksStopAtTenAndTheLastZoneHasTheFirstColour) {
    GaugeModel model = model_of({":SETMARK=10,RED", ":SETMARK=20,GREEN", ":SETMARK=30,BLUE"});
    const std::pair<int, int> colours[] = {{5, 6}, {10, 4}, {15, 4}, {20, 6}, {25, 6}, {30, 6}, {31, 2}};
    for (const auto& [value, colour] : colours)
        EXPECT_EQ(model.getmarkercolour(value), colour) << value;
    for (int i = 0; i < 7; ++i)
        model.add_mark(i, i);
    model.repaint_mask = 0;
    model.load_line(":SETMARK=99,CYAN");
    EXPECT_EQ(model.mark_count, 10);
    EXPECT_EQ(model.repaint_mask, 0);
    EXPECT_EQ(model.mark_values[9], 6);
    model.clear_marks();
    EXPECT_EQ(model.mark_count, 0);
}

TEST(GaugeModel, ViewSwitchAndScrollBarStayInBounds) {
    GaugeModel model;
    const std::pair<std::int32_t, std::int32_t> views[] = {{0, 1}, {5, 0}, {-1, 0}, {17, 0}, {highest, 0}};
    for (const auto& [from, to] : views) {
        model.set_type(from);
        model.switch_view();
        EXPECT_EQ(model.type, to) << from;
    }
    model.set_range(-10, highest);
    EXPECT_EQ(model.scroll_target(scroll_line_left, 5, 0), 4);
    EXPECT_EQ(model.scroll_target(scroll_page_left, -10, 0), -10);
    EXPECT_EQ(model.scroll_target(scroll_page_right, highest, 0), highest);
    EXPECT_EQ(model.scroll_target(scroll_thumb_track, 5, 77), 77);
    EXPECT_EQ(model.scroll_target(scroll_left_end, 5, 0), 1);
    EXPECT_EQ(model.scroll_target(scroll_right_end, 5, 0), highest);
    EXPECT_EQ(model.scroll_target(8, 5, 77), 5);
}

TEST(GaugeScale, ConvertsInEveryRange) {
    const struct {
        std::int32_t minimum, maximum, value, span, position;
    } cases[] = {
        {0, 100, 25, 200, 50}, {100, 0, 25, 200, 150},          {7, 7, 7, 200, 0},
        {0, 100, -5, 200, 0},  {0, 100, 500, 200, 200},         {100, 0, 500, 200, 0},
        {0, 3, 1, 100, 33},    {lowest, highest, 0, 100, 50},   {lowest, highest, highest, highest, highest},
        {0, 100, 25, -1, 0},   {highest, lowest, lowest, 9, 9},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(scale_position(c.minimum, c.maximum, c.value, c.span), c.position) << c.minimum << ' ' << c.value;
        if (c.span > 0) {
            EXPECT_NEAR(scale_fraction(c.minimum, c.maximum, c.value), double(c.position) / c.span, 0.5 / c.span);
        }
    }
    EXPECT_EQ(division_value(0, 100, 20, 3), 15);
    EXPECT_EQ(division_value(100, 0, 3, 1), 67);
    EXPECT_EQ(division_value(lowest, highest, 999, 999), highest);
    EXPECT_EQ(division_value(highest, lowest, 999, 999), lowest);
    EXPECT_EQ(division_value(0, 100, 0, 5), 100);
}

TEST(GaugeScale, ThinsToRoundSteps) {
    const struct {
        std::int32_t maximum, divisions, length, minor, major;
    } cases[] = {
        {100, 20, 400, 1, 2},   // ticks of 5 fit, labels of 10
        {100, 100, 150, 5, 20}, // 1.5 pixels a division
        {360, 12, 40, 2, 12},   // no round value: steps that end on the last division
        {100, 997, 300, 20,
         100}, // a prime number of divisions {0, 10, 400, 1, 1}, {100, 20, 0, 20, 20}, {100, 1, 5, 1, 1},
    };
    for (const auto& c : cases) {
        const TickSteps steps = tick_steps(0, c.maximum, c.divisions, c.length, 4, 30);
        EXPECT_EQ(steps.minor, c.minor) << c.divisions << " over " << c.length;
        EXPECT_EQ(steps.major, c.major) << c.divisions << " over " << c.length;
    }
}

TEST(GaugeScale, ZonesAgreeWithTheMarkColours) {
    const std::initializer_list<std::initializer_list<std::int32_t>> mark_sets = {
        {},
        {40},
        {10, 20},
        {10, 20, 30},
        {100, 20, 30, 40, 50, 60, 70},
        {50, 50, 10, 90, 50, 200, -4, 7, 7, 8},
        {lowest, highest}};
    for (const auto& marks : mark_sets) {
        GaugeModel model;
        model.set_range(120, -20);
        for (std::int32_t mark : marks)
            model.add_mark(mark, model.mark_count % 3);
        std::int32_t value = -20;
        for (const ColourZone& zone : colour_zones(model)) {
            ASSERT_EQ(zone.from, value);
            for (; value <= zone.to; ++value)
                ASSERT_EQ(model.getmarkercolour(value), zone.colour) << value;
        }
        EXPECT_EQ(value, 121);
    }
}

} // namespace

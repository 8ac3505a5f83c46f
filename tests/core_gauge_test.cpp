#include "widgets/gauge/gauge_scale.h"
#include "widgets/gauge/value_history.h"

#include <gmock/gmock.h>

#include <climits>

using namespace wnt;

namespace {

GaugeModel model_of(std::initializer_list<std::string_view> lines) {
    GaugeModel model(0xC8D0D4, 0xFFFFFF, 0x404040);
    for (std::string_view line : lines)
        model.load_line(line);
    return model;
}

TEST(ValueHistory, HoldsTheHighestOfAllSinceTheLastClear) {
    ValueHistory history;
    for (const int value : {-7, -9, -3})
        history.record(value);
    EXPECT_EQ(history.highest(), -3);
    for (int i = 0; i < 2 * ValueHistory::capacity; ++i)
        history.record(-100);
    EXPECT_EQ(history.highest(), -3);
    history.clear();
    history.record(-50);
    EXPECT_EQ(history.highest(), -50);
}

TEST(GaugeModel, BeginsWithASample) {
    GaugeModel model;
    for (const std::string_view line : gauge_built_in_script)
        model.load_line(line);
    EXPECT_THAT((std::vector{model.type, model.minimum, model.maximum, model.current, model.scales, model.border_type,
                             model.border_sides, model.border_height, static_cast<int>(model.text_colour)}),
                testing::ElementsAre(gauge_peak_line, 0, 100, 76, 20, 2, 15, 0, 0));
    EXPECT_THAT(model.mark_values, testing::ElementsAre(100, 20, 30, 40, 50, 60, 70, 0, 0, 0));
    EXPECT_THAT(model.mark_colours, testing::ElementsAre(12, 4, 11, 3, 14, 6, 1, 0, 0, 0));
    EXPECT_EQ(std::string(model.title_text()).append(model.unit_text()).append(field_text(model.id)),
              "Titeltext dieses GAUGE WidgetsUnitGAUGE01");
}

TEST(GaugeModel, EveryKeyMarksItsPartForRepaint) {
    const std::vector<std::string_view> cases[] = {
        {":MSG=x", ":ID=x", ":UNITTITLE=x", ":SCALES=1000", ":BORDERSTYLE=TOP", ":CLRBORDER=RED", ":UPDATE",
         ":title=x"},
        {":TYPE=ANALOG", ":TITLE=x", ":MINVAL=1", ":MAXVAL=1", ":SCALES=999", ":NOTITLE=X", ":BARTITLE=X", ":DEMO=X",
         ":BORDERTYPE=FLAT", ":BORDERHEIGHT=1", ":CLRTEXT=RED", ":CLRBACK=RED", ":CLRSUN=RED", ":CLRSHADOW=RED"},
        {":CURVAL=1", ":SETMARK=1,RED", ":CLEARMARKS"}};
    for (int mask : {0, 1, 2})
        for (const auto& line : cases[mask])
            EXPECT_EQ(model_of({line}).repaint_mask, mask) << line;
    EXPECT_EQ(model_of({":CURVAL=1", ":MINVAL=1", ":MAXVAL=9"}).repaint_mask, repaint_all); // bits, not a sum
    EXPECT_EQ(model_of({":TYPE=THERMOMETER", ":CLEARMARKS"}).repaint_mask, repaint_face);
    const GaugeModel model = model_of({":CLRTEXT=BLUE", ":CLRBACK=GRAY", ":CLRSUN=WHITE", ":CLRSHADOW=grau",
                                       ":NOTITLE=X", ":BORDERTYPE=3DDOWN", ":TYPE=ROUND"});
    EXPECT_TRUE(model.text_colour == 2 && model.background == 9 && model.sun == 1 && model.shadow == 255);
    EXPECT_TRUE(model.no_title && !model.bar_title && !model.test_mode && model.border_type == 3 && model.type == -1);
}

TEST(GaugeModel, EveryCallTellsWhatIsOutOfDate) {
    const std::pair<int, void (*)(GaugeModel&)> calls[] = {
        {repaint_all, [](GaugeModel& m) { m.set_range(0, 101); }},
        {repaint_all, [](GaugeModel& m) { m.set_titles("a", "b"); }},
        {repaint_all, [](GaugeModel& m) { m.clear(); }},
        {repaint_all, [](GaugeModel& m) { m.switch_view(); }},
        {repaint_face, [](GaugeModel& m) { m.set_type(1); }},
        {repaint_value, [](GaugeModel& m) { m.clear_marks(); }},
        {repaint_value, [](GaugeModel& m) { m.add_mark(5, 2); }},
    };
    for (const auto& [mask, call] : calls) {
        GaugeModel model = model_of({":CURVAL=90", ":SETMARK=9,RED"});
        model.set_current_value(20);
        model.repaint_mask = 0;
        const unsigned revision = model.face_revision;
        call(model);
        EXPECT_EQ(model.repaint_mask, mask);
        EXPECT_GT(model.face_revision, revision);
        const bool new_scale = model.maximum != 100;
        EXPECT_EQ(model.history.highest() == 90 && model.has_previous, !new_scale && model.current == 20);
    }
    GaugeModel model = model_of({":ID=pump", ":TYPE=TURNKNOB", ":SETMARK=9,RED"});
    model.set_range(-5, 100);
    model.switch_view(); // the last one
    model.clear_marks();
    EXPECT_TRUE(model.type == 0 && field_text(model.id) == "pump" && model.minimum == -5);
    EXPECT_TRUE(model.mark_values[0] == 0 && model.mark_colours[0] == 0);
    model.type = gauge_type_count - 2;
    model.switch_view();
    EXPECT_EQ(model.type, gauge_type_count - 1);
}

TEST(GaugeModel, ScriptClampsWhereSetterIgnores) {
    GaugeModel model = model_of({":CURVAL=500", ":MINVAL=1000", ":MAXVAL=10"});
    EXPECT_EQ(model.current, 100); // clamped against the range of before
    model.end_script();
    EXPECT_TRUE(model.minimum == 10 && model.maximum == 1000 && model.displayable);
    for (int refused : {9, 1001, 100})
        EXPECT_FALSE(model.set_current_value(refused)) << refused;
    EXPECT_TRUE(model.set_current_value(10) && model.previous == 100);
    EXPECT_EQ(model.repaint_mask, repaint_value); // the face's bit is gone

    model.set_range(50, 20);
    EXPECT_TRUE(model.minimum == 50 && !model.set_current_value(30)); // inverted until a script ends
    model.end_script();
    EXPECT_TRUE(model.maximum == 50 && !model.displayable); // 10 is outside

    model.set_titles("Pressure", nullptr);
    model.clear();
    EXPECT_TRUE(model.maximum == 100 && model.current == 50 && model.title_text() == "Pressure");
    EXPECT_TRUE(model.set_current_value(70));
    model.clear(); // of a range that stays, too
    EXPECT_FALSE(model.has_previous);
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
    EXPECT_TRUE(model.mark_count == 10 && model.repaint_mask == 0 && model.mark_values[9] == 6);
}

TEST(GaugeModel, ViewSwitchAndScrollBarStayInBounds) {
    GaugeModel model;
    const std::pair<int, int> views[] = {{0, 1}, {5, 0}, {-1, 0}, {17, 0}, {INT_MAX, 0}};
    for (const auto& [from, to] : views) {
        model.set_type(from);
        model.switch_view();
        EXPECT_EQ(model.type, to) << from;
    }
    model.set_range(-10, INT_MAX);
    const int cases[][3] = {
        {scroll_line_left, 5, 4},    {scroll_page_left, -10, -10}, {scroll_page_right, INT_MAX, INT_MAX},
        {scroll_thumb_track, 5, 77}, {scroll_left_end, 5, 1},      {scroll_right_end, 5, INT_MAX},
        {scroll_right_end + 1, 5, 5}};
    for (const auto& [request, position, target] : cases)
        EXPECT_EQ(model.scroll_target(request, position, 77), target) << request;
}

TEST(GaugeScale, ConvertsInEveryRange) {
    const std::tuple<int, int, int, double> cases[] = {
        {0, 100, 25, 0.25}, {100, 0, 25, 0.75},         {7, 7, 7, 0},
        {0, 100, -5, 0},    {100, 0, 500, 0},           {-3, 0, -1, 2.0 / 3},
        {0, 100, 500, 1},   {INT_MIN, INT_MAX, 0, 0.5}, {INT_MIN, INT_MAX, INT_MAX, 1}};
    for (const auto& [minimum, maximum, value, fraction] : cases)
        EXPECT_NEAR(scale_fraction(minimum, maximum, value), fraction, 1e-9) << minimum << ' ' << value;
    EXPECT_EQ(division_value(0, 100, 20, 3), 15);
    EXPECT_EQ(division_value(100, 0, 3, 1), 67);
    EXPECT_EQ(division_value(INT_MAX, INT_MIN, 999, 999), INT_MIN);
}

TEST(GaugeScale, ThinsToRoundSteps) {
    const int cases[][5] = {{100, 20, 400, 1, 2},     // ticks of 5 fit, labels of 10
                            {100, 100, 150, 5, 20},   // 1.5 pixels a division
                            {360, 12, 40, 2, 12},     // no round value: steps that end on the last division
                            {100, 997, 300, 20, 100}, // a prime number of divisions
                            {100, 999, 300, 20, 100}, // tens within half a pixel
                            {100, 999, 1600, 5, 20},  // twos within a thousandth of it
                            {10, 999, 500, 10, 100},  // ones
                            {0, 10, 0, 10, 10}};
    for (const auto& [maximum, divisions, length, minor, major] : cases) {
        const TickSteps steps = tick_steps(0, maximum, divisions, length, 4, 30);
        EXPECT_TRUE(steps.minor == minor && steps.major == major) << divisions << ": " << steps.minor;
    }
}

TEST(GaugeScale, ZonesAgreeWithTheMarkColours) {
    const std::initializer_list<std::initializer_list<int>> mark_sets = {
        {}, {40}, {10, 20, 30}, {100, 20, 30, 40}, {50, 50, 10, 90, 50, 200, -4, 7, 7, 8}, {INT_MIN, INT_MAX}};
    for (const auto& marks : mark_sets) {
        GaugeModel model;
        model.set_range(120, -20);
        for (int mark : marks)
            model.add_mark(mark, model.mark_count % 3);
        int value = -20;
        for (const ColourZone& zone : colour_zones(model)) {
            ASSERT_EQ(zone.from, value);
            for (; value <= zone.to; ++value)
                ASSERT_EQ(model.getmarkercolour(value), zone.colour) << value;
        }
        EXPECT_EQ(value, 121);
    }
}

} // namespace

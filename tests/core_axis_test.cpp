#include "test_random.h"
#include "widgets/axis/axis_labels.h"
#include "widgets/axis/axis_ticks.h"
#include "arithmetic.h"
#include "widgets/axis/time_value.h"

#include <gmock/gmock.h>

#include <climits>
#include <cmath>
#include <sstream>

using namespace wnt;
using Pair = std::pair<int, int>;
using testing::ElementsAre;

namespace {

constexpr std::int64_t day = hundredths_per_day;

AxisModel axis_of(int position, int length, float minimum = 0, float maximum = 100) {
    AxisModel axis;
    axis.position = position;
    axis.resize(axis.horizontal() ? length : 40, axis.horizontal() ? 40 : length);
    axis.set_range(minimum, maximum);
    return axis;
}

// What a conversion answers, and the pixel that it gives.
template <class Value>
Pair pixel_of(std::conditional_t<std::is_same_v<Value, float>, const AxisModel, AxisModel>& axis, Value value) {
    std::int32_t pixel = -12345;
    return {axis.value_to_screen(value, &pixel), pixel};
}

Pair clamped_pixel(const AxisModel& axis, float value) {
    std::int32_t pixel = -12345;
    return {axis.calc_pixel_coord(value, &pixel), pixel};
}

std::vector<int> fields(const TAxisdatetime& t) {
    return {t.day, t.month, t.year, t.hour, t.minute, t.second, t.hundredths};
}

TEST(AxisGrid, ChoosesNiceSteps) {
    // A raw step of exactly 1 is doubled; the logarithm of 0.01 must not fall below -2; a negative minimum skips -10 as
    // a labelled line; ranges without an answer keep the step that was.
    const float ranges[][3] = {{0, 100, 300}, {0, 1, 300},   {-12, 88, 150},     {0, 1000, 900},
                               {5, 5, 300},   {100, 0, 300}, {0, INFINITY, 300}, {NAN, 10, 300}};
    std::ostringstream grids;
    for (const auto& [minimum, maximum, length] : ranges) {
        const auto [count, lines, first, first_scale, step] = numeric_grid(minimum, maximum, length, 3.0f);
        grids << count << ' ' << lines << ' ' << first << ' ' << first_scale << ' ' << step << ", ";
    }
    EXPECT_EQ(grids.str(), "50 10 2 10 2, 50 10 0.02 0.1 0.02, 50 10 -10 0 2, 200 40 5 25 5, 0 0 6 15 3, -33 -6 102 "
                           "105 3, 2147483647 2147483647 3 15 3, 0 0 3 15 3, ");
    AxisModel axis = axis_of(axis_bottom, 300);
    axis.resize(120, 40);
    EXPECT_EQ(axis.grid.count, 20) << "anew for the size";
}

TEST(AxisConversion, EndsOfBothOrientations) {
    AxisModel across = axis_of(axis_top, 300), up = axis_of(axis_right, 300);
    const auto pixels = [](AxisModel& axis) {
        const float below = std::nextafter(0.0f, -1.0f), above = std::nextafter(100.0f, 200.0f);
        return std::vector{pixel_of(axis, below),   pixel_of(axis, 0.0f),     pixel_of(axis, 100.0f),
                           pixel_of(axis, above),   clamped_pixel(axis, -7),  clamped_pixel(axis, 0),
                           clamped_pixel(axis, 50), clamped_pixel(axis, 100), clamped_pixel(axis, 700)};
    };
    EXPECT_THAT(pixels(across), ElementsAre(Pair(-1, -1), Pair(0, 0), Pair(0, 300), Pair(1, 301), // free
                                            Pair(0, 0), Pair(1, 0), Pair(1, 150), Pair(1, 300), Pair(0, 300)));
    // The added half truncates to one short of the upper end.
    EXPECT_THAT(pixels(up), ElementsAre(Pair(-1, 301), Pair(0, 300), Pair(0, 1), Pair(1, -1), // free
                                        Pair(0, 300), Pair(1, 300), Pair(1, 150), Pair(1, 0), Pair(0, 0)));
    for (AxisModel* axis : {&across, &up}) {
        float value = -1;
        EXPECT_TRUE(axis->calc_float_coord(-1, &value) == 0 && axis->calc_float_coord(301, &value) == 0 && value == -1);
        EXPECT_EQ(axis->screen_to_value(-30, &value), 0);
        EXPECT_FLOAT_EQ(value, axis->horizontal() ? -10.0f : 110.0f);
        EXPECT_EQ(axis->screen_to_value(300, &value), 1);
        EXPECT_FLOAT_EQ(value, axis->horizontal() ? 100.0f : 0.0f);
    }
}

TEST(AxisConversion, EmptyRangesGiveTheOrigin) {
    AxisModel empty = axis_of(axis_bottom, 300, 5, 5);
    float value = 0;
    EXPECT_TRUE(pixel_of(empty, 5.0f) == Pair(0, 0) && clamped_pixel(empty, 5) == Pair(0, -12345));
    EXPECT_EQ(empty.calc_float_coord(5, &value), 0);
    EXPECT_EQ(pixel_of(empty, std::int64_t{0}), Pair(0, 0)); // a view without a span
    empty.set_range(0, 100);
    EXPECT_EQ(pixel_of(empty, NAN), Pair(0, 0));
    empty.set_range(3, 103);
    EXPECT_EQ(Pair(empty.scale_line_pos(0), empty.scale_line_pos(2)), Pair(21, 81)) << "of 10 and of 30";
}

TEST(AxisTicks, ShareAPixelOnlyOnce) {
    AxisModel axis = axis_of(axis_bottom, 40);
    // A labelled tick takes the place of one without a label on the same pixel.
    axis.grid = {100, 0, 1.0f, 0.0f, 1.0f};
    const auto labelled = [](const AxisTick& tick) { return !tick.label.empty(); };
    const auto ticks = value_ticks(axis, [](std::int64_t) { return nullptr; });
    EXPECT_EQ(Pair(std::ranges::count_if(ticks, labelled), ticks.size()), Pair(20, 41));
}

// Each tick's pixel, a short or a long stroke, and its label.
std::string shown(const std::vector<AxisTick>& ticks) {
    std::ostringstream text;
    for (const AxisTick& t : ticks)
        text << t.pixel << (t.length > 4 ? "|" : "'") << t.label << " ";
    return text.str();
}

TEST(AxisTicks, StandWithTheirLabels) {
    const char* const names[] = {"Mon", "Tue", nullptr, "a"};
    const auto texts = [&](std::int64_t i) { return names[i]; };
    EXPECT_EQ(shown(value_ticks(axis_of(axis_bottom, 100, -1, 1), texts)),
              "5' 10' 15' 20' 25|-0.5 30' 35' 40' 45' 50|0 55' 60' 65' 70' 75|0.5 80' 85' 90' 95' 100|1 ");
    EXPECT_EQ(
        shown(value_ticks(axis_of(axis_left, 100, -7, 114), texts)),
        "95|0 91' 87' 83' 79' 75|25 70' 66' 62' 58' 54|50 50' 46' 41' 37' 33|75 29' 25' 21' 17' 13|100 8' 4' -1' ");
    EXPECT_EQ(shown(value_ticks(axis_of(axis_left, 40), texts)), "37' 33' 29' 25' 21|50 17' 13' 9' 5' 1| ");
    AxisModel axis = axis_of(axis_bottom, 100, 7, 9);
    axis.type = axis_text;
    for (const int count : {4, 0}) {
        axis.set_texts(count);
        EXPECT_EQ(shown(value_ticks(axis, texts)), "0|Mon 25|Tue 50|No title specified 75|a ") << count;
        EXPECT_TRUE(axis.tick_width() == 25 && axis.maximum == 4 && axis.grid.scale_lines == 4) << count;
    }
    AxisModel across = axis_of(axis_bottom, 200), up = axis_of(axis_left, 200);
    for (AxisModel* each : {&across, &up})
        each->set_time_range(40'000 * day, 40'003 * day);
    EXPECT_EQ(shown(time_ticks(across)), "0|6.7.189 66|7.7.189 133|8.7.189 ");
    EXPECT_EQ(shown(time_ticks(up)), "200|6.7.189 134|7.7.189 67|8.7.189 ");
    EXPECT_TRUE(up.view_end.day == 9 && up.view_end.month == 7 && up.type == axis_numeric);
    across.resize(80, 40);
    across.set_time_range(40'000 * day, 40'007 * day); // the first of them far enough from each other
    EXPECT_EQ(shown(time_ticks(across)), "0|6.7.189 11| 22| 34| 45| 57|11.7.189 68| ");
    for (AxisModel* each : {&across, &up})
        each->set_view_time({1, 1, 2026, 0, 0, 0, 0}, {1, 1, 2026, 0, 1, 0, 0});
    EXPECT_EQ(shown(time_ticks(across)), "0' 0s 20'15s 40'30s 60'45s ");
    EXPECT_EQ(shown(time_ticks(up)), "200' 150' 100' 50' ");
    std::string long_spans; // by dates, and by times, whose year is 1900 less
    for (const int days : {500, 250, 100, 30}) {
        const TAxisdatetime start = {17, 5, 2026, 13, 45, 31, 7};
        TAxisdatetime end = split_time(time_value(start) + days * day);
        end.year += 1900;
        across.set_view_time(start, end);
        long_spans += shown(time_ticks(across)) + "/ ";
        across.set_time_range(time_value(start), time_value(end));
        long_spans += shown(time_ticks(across)) + "/ ";
    }
    EXPECT_EQ(long_spans, "36|126 / 18|126 77| / 23|7 52| / 28|8 57| / 10|Mai 34| 58| / 22|Jun 47| 71| / "
                          "17|23.5.126 37| 56| 75|13.6.126 / 12|21.5.126 31| 50| 70|11.6.126 / ");
    EXPECT_TRUE(up.view_start.year == 2026 && up.view_end.minute == 1 && up.type == axis_time);
    EXPECT_THAT(
        (std::vector{across.set_current_time(across.start_value), across.set_current_time(across.start_value + 1),
                     across.set_current_time(across.end_value)}),
        ElementsAre(-1, 0, 81));
    EXPECT_EQ(across.last_converted, across.end_value);
}

TEST(AxisTime, ProportionIsExactBeyond64Bits) {
    EXPECT_EQ(proportion(INT64_MAX, -7, 14), -(INT64_MAX / 2));
    EXPECT_EQ(proportion(INT64_MIN, INT64_MIN, INT64_MIN), -INT64_MAX);
    EXPECT_EQ(proportion(-7, 3, 2), -10);
    EXPECT_EQ(proportion(7, 3, 0), 0);
}

TEST(AxisTime, DayCountAndSplit) {
    EXPECT_EQ(time_value({1, 3, 1980, 0, 0, 0, 0}), 527'040'000);
    EXPECT_EQ(time_value({31, 12, 1980, 0, 0, 0, 0}), 366 * day);
    EXPECT_EQ(time_value({1, 1, 1981, 23, 59, 59, 99}), 367 * day - 1);
    for (int month : {0, -1, 13, INT_MAX, INT_MIN})
        EXPECT_EQ(time_value({5, month, 1980, 0, 0, 0, 0}), 5 * day);

    EXPECT_THAT(fields(split_time(day + 12'345'67)), ElementsAre(1, 1, 80, 3, 25, 45, 67));
    EXPECT_THAT(fields(split_time(0)), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST(AxisTime, RecordsAreRoundedDown) {
    const auto rounded = [](TimeRounding to) { return fields(rounded_down({6, 7, 126, 8, 9, 10, 11}, to)); };
    EXPECT_THAT(rounded(TimeRounding::none), ElementsAre(6, 7, 126, 8, 9, 10, 11));
    EXPECT_THAT(rounded(TimeRounding::minute), ElementsAre(6, 7, 126, 8, 9, 0, 0));
    EXPECT_THAT(rounded(TimeRounding::hour), ElementsAre(6, 7, 126, 8, 0, 0, 0));
    EXPECT_THAT(rounded(TimeRounding::day), ElementsAre(6, 7, 126, 0, 0, 0, 0));
    EXPECT_THAT(rounded(TimeRounding::month), ElementsAre(0, 7, 126, 0, 0, 0, 0));
    EXPECT_THAT(rounded(TimeRounding::year), ElementsAre(0, 0, 126, 0, 0, 0, 0));
}

TEST(AxisTime, LevelFollowsTheSpan) {
    const std::int64_t begins[] = {-400 * day, 1'600,   3'100,   12'000,   96'000,    186'000,
                                   720'000,    3 * day, 8 * day, 91 * day, 201 * day, 401 * day};
    std::ostringstream levels; // length of the ticks, interval, rounding and label
    for (const std::int64_t begin : begins) {
        const auto level = [&](std::int64_t span) { return time_level(16'000 * day, 16'000 * day + span); };
        const TimeLevel found = level(begin);
        EXPECT_EQ(level(begin - begin / 1'000'000 - 1).level, std::max(found.level - 1, 1)) << begin;
        levels << found.level << ": " << found.tick_length << ' ' << found.interval() << ' '
               << static_cast<int>(found.rounding) << ' ' << static_cast<int>(found.label) << ", ";
    }
    EXPECT_EQ(levels.str(), "1: 2 50 1 1, 2: 2 600 1 1, 3: 2 1500 1 1, 4: 3 6000 1 2, 5: 3 9000 1 2, 6: 3 18000 1 2, "
                            "7: 3 360000 2 3, 8: 5 8640000 3 4, 9: 5 60480000 3 4, 10: 5 259200000 4 5, "
                            "11: 7 777600000 4 6, 12: 7 3153600000 5 7, ");
}

TEST(AxisLabels, AreTrimmedAndBounded) {
    EXPECT_EQ(numeric_label(0.0625f) + " " + numeric_label(1.0625f) + " " + numeric_label(-10.0625f),
              "0.0625 1.062 -10.06");
    const std::pair<float, const char*> numbers[] = {{100, "100"}, {-0.5f, "-0.5"}, {5, "5"},      {0.25f, "0.25"},
                                                     {0, "0"},     {12.3f, "12.3"}, {1000, "1000"}};
    for (const auto& [value, text] : numbers)
        EXPECT_EQ(numeric_label(value), text);
    EXPECT_LE(numeric_label(-std::numeric_limits<float>::max()).size(), 49u);
    EXPECT_EQ(text_label(std::string(500, 'x').c_str()), std::string(49, 'x'));
    EXPECT_EQ(text_label(nullptr), "No title specified");

    const char* texts[] = {"", " 5s", " 4m", " 3h", "2.10.126", "Okt", "10", "126"};
    for (int kind = 0; kind < 8; ++kind)
        EXPECT_EQ(time_label(static_cast<TimeLabel>(kind), {2, 10, 126, 3, 4, 5, 6}), texts[kind]);
    for (int month : {0, 13, -1})
        EXPECT_EQ(time_label(TimeLabel::month_name, {1, month, 80, 0, 0, 0, 0}), "");
}

TEST(AxisConversion, HoldsAtAnyValueAndSize) {
    const float values[] = {0, -1, 1e-45f, 3e38f, -3e38f, INFINITY, -INFINITY, NAN};
    const int sizes[] = {0, 1, -5, INT_MAX, INT_MIN};
    const std::int64_t times[] = {0, -1, INT64_MIN, INT64_MAX, 40 * day};
    Random random(1);
    for (int i = 0; i < 20'000; ++i) {
        AxisModel axis = axis_of(random.upto(3), random.of(sizes), random.of(values), random.of(values));
        const float value = random.of(values);
        pixel_of(axis, value), clamped_pixel(axis, value);
        float back = NAN;
        axis.screen_to_value(truncated_int(value), &back);
        EXPECT_TRUE(std::isfinite(back));
        axis.scale_line_pos(truncated_int(value));
        axis.set_time_range(random.of(times), random.of(times));
        const std::int64_t time = random.of(times);
        pixel_of(axis, time);
        axis.set_current_time(time);
        axis.screen_to_value(static_cast<int>(time % 1000), &axis.current_day_value);
        const TimeGrid grid = axis.time_grid();
        int ticks = 0;
        for (auto tick = grid.first(); tick && ticks <= 20'000; tick = grid.after(*tick))
            ++ticks;
        EXPECT_LE(ticks, 20'000) << axis.start_value << ".." << axis.end_value;
    }
}

TEST(AxisTicks, AreNeverMoreThanPixels) {
    const auto no_texts = [](std::int64_t) { return nullptr; };
    for (float minimum : {0.0f, -3e38f, NAN, -INFINITY})
        for (float maximum : {1e-45f, 100.0f, 3e38f, INFINITY, NAN})
            for (int type : {axis_numeric, axis_text}) {
                AxisModel axis = axis_of(axis_bottom, 500, minimum, maximum);
                axis.type = type;
                axis.grid.count = INT_MAX;
                EXPECT_LE(value_ticks(axis, no_texts).size(), 502u) << minimum << ".." << maximum;
                axis.set_texts(INT_MAX);
                EXPECT_LE(value_ticks(axis, no_texts).size(), 502u);
            }
    AxisModel axis = axis_of(axis_bottom, 500);
    for (std::int64_t end : {day, 40'000 * day, INT64_MAX}) {
        axis.set_time_range(0, end);
        EXPECT_LE(time_ticks(axis).size(), 501u);
    }
}

} // namespace

#include "time/wnt_time.h"
#include "time_zone.h"
#include "widgets/calendar/calendar_days.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <climits>

using namespace wnt;
using namespace std::chrono;

namespace {

constexpr std::int64_t hour_seconds = 3600;
constexpr std::int64_t last_second = 32'535'215'999; // of the year 3000

CWntTime at(std::int64_t seconds) {
    CWntTime moment;
    moment.time = seconds;
    return moment;
}

std::int64_t seconds_at(sys_days day) {
    return sys_seconds(day).time_since_epoch().count();
}

std::int64_t noon(int y, int m, int d) {
    return seconds_at(year(y) / m / d) + 12 * hour_seconds;
}

// What every day of some years comes to, seen at two hours of standard time; the days counted from `lost` up to, but
// not including, `found` miss the hour that daylight saving took.
void check_days(const char* zone, double offset, int first_year, int last_year, int lost, int found) {
    set_zone(zone);
    for (year y{first_year}; y <= year{last_year}; ++y) {
        const sys_days start = y / January / 1;
        const unsigned first = weekday(start).c_encoding();
        const bool behind = 1 <= first && first <= 4;
        for (int day = 0; start + days(day) < sys_days((y + years(1)) / January / 1); ++day) {
            const int expected = day - (lost <= day && day < found);
            for (int hour : {1, 22}) {
                const std::int64_t local = seconds_at(start + days(day)) + hour * hour_seconds;
                const CWntTime moment = at(local - static_cast<std::int64_t>(offset * hour_seconds));
                ASSERT_EQ(moment.GetJulianDay(), expected) << zone << ' ' << int{y} << ' ' << day << ' ' << hour;
                ASSERT_EQ(moment.GetCalendarWeek(day), expected / 7 - behind) << zone << ' ' << int{y} << ' ' << day;
                ASSERT_EQ(weekday(start + days(moment.GetFirstWeekend() - 1)), Saturday) << zone << ' ' << int{y};
                ASSERT_TRUE(1 <= moment.GetFirstWeekend() && moment.GetFirstWeekend() <= 7) << int{y};
            }
        }
    }
}

TEST(Time, CountsTheDaysOfEveryYear) {
    check_days("UTC0", 0, 1971, 2110, 0, 0);
    check_days("JST-9", 9, 1996, 2005, 0, 0);
    check_days("NST3:30", -3.5, 2019, 2028, 0, 0);
    check_days("XXX-13", 13, 2996, 2999, 0, 0);
    // Where the clock is ahead of the year's first, a day is lost.
#ifdef _WIN32
    check_days("EST5EDT", -5, 2023, 2023, 71, 309);
    check_days("CET-1CEST", 1, 2023, 2023, 71, 309);
#else
    check_days("EST5EDT,M3.2.0,M11.1.0", -5, 2023, 2023, 71, 309);
    check_days("CET-1CEST,M3.5.0,M10.5.0/3", 1, 2023, 2023, 85, 302);
    check_days("LHT-10:30LHD-11,M10.1.0,M4.1.0", 10.5, 2023, 2023, 0, 0); // ahead from 1 January
    check_days("AST-10ADT,M10.1.0,M4.1.0/3", 10, 2024, 2024, 0, 0);
#endif
}

TEST(Time, NamesTheDayTwoDaysLate) {
    const char* const names[][2] = {{"Tue", "Tuesday"},  {"Wed", "Wednesday"}, {"Thu", "Thursday"}, {"Fri", "Friday"},
                                    {"Sat", "Saturday"}, {"Sun", "Sunday"},    {"Monday", nullptr}};
    set_zone("EST5EDT");
    std::int64_t midnight = seconds_at(2024y / January / 7) + 5 * hour_seconds; // of a Sunday
    for (const auto& [name, long_name] : names) {
        EXPECT_STREQ(at(midnight).GetWeekdayText(0), name);
        EXPECT_STREQ(at(midnight).GetWeekdayText(-1), long_name);
        midnight += 24 * hour_seconds;
    }
    for (std::int64_t seconds : {std::int64_t{-1}, last_second + 1, INT64_MIN, INT64_MAX}) {
        EXPECT_STREQ(at(seconds).GetWeekdayText(0), "Mon");
        EXPECT_STREQ(at(seconds).GetWeekdayText(1), "Monday");
    }
}

TEST(Time, ChecksItsValuesAndStaysAtZero) {
    using Values = std::array<int, 7>;
    struct Case {
        const char* zone;
        std::int32_t code;
        std::vector<Values> values;
    } cases[] = {{"UTC0", 0, {{2024, 2, 30, 0, 0, 0, -1}, {1970, 1, 1, 0, 0, 0, 0}, {3000, 12, 31, 23, 59, 59, 0}}},
                 {"UTC0", general_failure, {{1969, 12, 31, 0, 0, 0, 0}, {INT_MIN, 1, 1, 0, 0, 0, 0}}},
                 {"UTC0", invalid_argument, {{3001, 1, 1, 0, 0, 0, 0}, {INT_MAX, 12, 31, 23, 59, 59, -1}}},
                 {"CET-1CEST", 0, {{1970, 1, 1, 1, 0, 0, -1}}},
                 // The second one is an hour earlier with daylight saving.
                 {"CET-1CEST", invalid_argument, {{1970, 1, 1, 0, 59, 59, 0}, {1970, 1, 1, 1, 0, 0, 1}}}};
    const int outside[][2] = {{1, 0}, {1, 13}, {2, 0}, {2, 32}, {3, -1}, {3, 24}, {4, 60}, {5, 60}};
    for (const auto& [field, value] : outside) {
        cases[1].values.push_back({2024, 1, 1, 0, 0, 0, 0});
        cases[1].values.back()[field] = value;
    }
    for (const Case& c : cases) {
        set_zone(c.zone);
        for (const Values& v : c.values) {
            CWntTime moment;
            const auto make = [&] { moment = CWntTime(v[0], v[1], v[2], v[3], v[4], v[5], v[6]); };
            EXPECT_EQ(code_of(make), c.code) << c.zone << ' ' << testing::PrintToString(v);
            EXPECT_EQ(moment.time, 0);
        }
    }
}

TEST(Calendar, WeeksBeginOnMonday) {
    for (const char* zone : {"UTC0", "CET-1CEST", "EST5EDT", "NZST-12NZDT"}) {
        set_zone(zone);
        for (unsigned day = 2; day <= 8; ++day) { // a Monday to a Sunday of March 2026
            const LocalDate shown = local_date(noon(2026, 3, day));
            const LocalDate start = local_date(grid_start(noon(2026, 3, day)));
            const int weekday = (shown.day - 2) % 7; // from Monday, as the zone sees it
            EXPECT_EQ(start.day, weekday == 6 ? shown.day + 1 : shown.day - weekday) << zone << day;
        }
    }
    EXPECT_EQ(grid_start(-5), -5 + 2 * day_seconds); // no local date
    EXPECT_LT(grid_start(std::numeric_limits<std::int64_t>::max()), std::int64_t{1} << 61);
    // No correction for daylight saving: after its end the weeks of a midnight begin an hour, and a date, too early.
    set_zone("EST5EDT");
    const std::int64_t monday = grid_start(moved_to_month(noon(2026, 1, 26) + 8 * hour_seconds, 10));
    EXPECT_EQ(local_date(monday), (LocalDate{2026, 10, 26}));
    EXPECT_EQ(local_date(monday + week_seconds), (LocalDate{2026, 11, 1}));
}

TEST(Calendar, WeekNumbers) {
    set_zone("UTC0");
    const int cases[][4] = {{2026, 1, 5, 2}, {2026, 1, 12, 3}, {2025, 12, 29, 53}, {2024, 1, 1, 2}, {2024, 12, 30, 54}};
    for (const auto& [year, month, day, number] : cases)
        EXPECT_EQ(week_number(noon(year, month, day)), number) << year << month << day;
    EXPECT_EQ(code_of([] { week_number(-5); }), general_failure);
    set_zone("EST5EDT");
    EXPECT_EQ(code_of([] { week_number(3600); }), general_failure); // still 1969 there
    set_zone("CET-1CEST");
    EXPECT_EQ(code_of([] { week_number(noon(1970, 5, 4)); }), invalid_argument); // its first midnight lies before 0
}

TEST(Calendar, MonthsKeepTheDayOrRunOn) {
    for (const char* zone : {"UTC0", "CET-1CEST", "EST5EDT"}) {
        set_zone(zone);
        EXPECT_EQ(local_date(moved_to_month(noon(2026, 1, 31), 2)), (LocalDate{2026, 3, 3})) << zone;
        EXPECT_EQ(local_date(moved_to_month(noon(2024, 1, 31), 2)), (LocalDate{2024, 3, 2})) << zone;
        EXPECT_EQ(local_date(moved_to_month(noon(2026, 11, 21), 7)), (LocalDate{2026, 7, 21})) << zone;
    }
    set_zone("UTC0");
    EXPECT_EQ(moved_to_month(noon(2026, 11, 21), 12), noon(2026, 12, 21) - 12 * hour_seconds); // midnight
    for (std::int64_t none : {std::int64_t{-1}, std::int64_t{1} << 40})
        EXPECT_EQ(code_of([&] { moved_to_month(none, 5); }), general_failure);
}

} // namespace

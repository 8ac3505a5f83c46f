#include "time_zone.h"
#include "widgets/calendar/calendar_days.h"
#include "widgets/calendar/calendar_layout.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace wnt;

namespace {

std::int64_t at(int year, unsigned month, unsigned day, int hours = 12) {
    const std::chrono::sys_days days = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
    return days.time_since_epoch().count() * day_seconds + hours * 3600;
}

TEST(Calendar, LayoutOfAWindow) {
    constexpr CalendarLayout layout = calendar_layout(300, 200);
    EXPECT_TRUE(layout.column_width == 40 && layout.last_row == 4);
    EXPECT_TRUE(layout.grid.holds(17, 165) && !layout.grid.holds(16, 165) && !layout.grid.holds(17, 166));
    EXPECT_TRUE(layout.months.holds(16, 17) && layout.bottom_strip.holds(16, 16));
    EXPECT_TRUE(calendar_layout(300, 51).last_row == 0 && calendar_layout(300, 51).grid.empty());
    EXPECT_EQ(calendar_layout(300, 22).last_row, -1);
}

TEST(Calendar, WeeksBeginOnMonday) {
    for (const char* zone : {"UTC0", "CET-1CEST", "EST5EDT", "NZST-12NZDT"}) {
        set_zone(zone);
        for (unsigned day = 2; day <= 8; ++day) { // a Monday to a Sunday of March 2026
            const LocalDate shown = local_date(at(2026, 3, day));
            const LocalDate start = local_date(grid_start(at(2026, 3, day)));
            const int weekday = (shown.day - 2) % 7; // from Monday, as the zone sees it
            EXPECT_EQ(start.day, weekday == 6 ? shown.day + 1 : shown.day - weekday) << zone << day;
        }
    }
    EXPECT_EQ(grid_start(-5), -5 + 2 * day_seconds); // no local date
    EXPECT_LT(grid_start(std::numeric_limits<std::int64_t>::max()), std::int64_t{1} << 61);
    // No correction for daylight saving: after its end the weeks of a midnight begin an hour, and a date, too early.
    set_zone("EST5EDT");
    const std::int64_t monday = grid_start(moved_to_month(at(2026, 1, 26, 20), 10));
    EXPECT_EQ(local_date(monday), (LocalDate{2026, 10, 26}));
    EXPECT_EQ(local_date(monday + week_seconds), (LocalDate{2026, 11, 1}));
}

TEST(Calendar, WeekNumbers) {
    set_zone("UTC0");
    const int cases[][4] = {{2026, 1, 5, 2}, {2026, 1, 12, 3}, {2025, 12, 29, 53}, {2024, 1, 1, 2}, {2024, 12, 30, 54}};
    for (const auto& [year, month, day, number] : cases)
        EXPECT_EQ(week_number(at(year, month, day)), number) << year << month << day;
    EXPECT_EQ(code_of([] { week_number(-5); }), general_failure);
    set_zone("EST5EDT");
    EXPECT_EQ(code_of([] { week_number(3600); }), general_failure); // still 1969 there
    set_zone("CET-1CEST");
    EXPECT_EQ(code_of([] { week_number(at(1970, 5, 4)); }), invalid_argument); // its first midnight lies before 0
}

TEST(Calendar, MonthsKeepTheDayOrRunOn) {
    for (const char* zone : {"UTC0", "CET-1CEST", "EST5EDT"}) {
        set_zone(zone);
        EXPECT_EQ(local_date(moved_to_month(at(2026, 1, 31), 2)), (LocalDate{2026, 3, 3})) << zone;
        EXPECT_EQ(local_date(moved_to_month(at(2024, 1, 31), 2)), (LocalDate{2024, 3, 2})) << zone;
        EXPECT_EQ(local_date(moved_to_month(at(2026, 11, 21), 7)), (LocalDate{2026, 7, 21})) << zone;
    }
    set_zone("UTC0");
    EXPECT_EQ(moved_to_month(at(2026, 11, 21, 15), 12), at(2026, 12, 21, 0)); // midnight
    for (std::int64_t none : {std::int64_t{-1}, std::int64_t{1} << 40})
        EXPECT_EQ(code_of([&] { moved_to_month(none, 5); }), general_failure);
}

} // namespace

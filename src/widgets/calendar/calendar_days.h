#pragma once

#include <cstdint>

/// The calendar's day arithmetic. Moments are seconds since 1970, read in local time; days and weeks are always
/// 86,400 and 604,800 seconds, whatever daylight saving does.
namespace wnt {

inline constexpr std::int64_t day_seconds = 86'400;
inline constexpr std::int64_t week_seconds = 7 * day_seconds;

/// A local date; all 0 for a moment that has none.
struct LocalDate {
    int year = 0;
    int month = 0;
    int day = 0;

    friend bool operator==(const LocalDate&, const LocalDate&) = default;
};

LocalDate local_date(std::int64_t moment);

/// The first day of the grid that shows a date: the Monday on or before it, for a Sunday the Monday after it.
std::int64_t grid_start(std::int64_t shown);

/// The number written into a Monday's cell. Raises general_failure before 1970 and for a moment without a local date,
/// invalid_argument where the year's first midnight cannot be converted.
int week_number(std::int64_t monday);

/// Midnight of the same day in another month of the same year; a day beyond that month's end runs on into the next.
/// Raises general_failure before 1970 and for a date without a day, invalid_argument for a moment out of range.
std::int64_t moved_to_month(std::int64_t shown, int month);

} // namespace wnt

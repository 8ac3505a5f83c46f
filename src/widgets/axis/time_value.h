#pragma once

#include "widgets/axis/axis_types.h"

#include <cstdint>

namespace wnt {

inline constexpr std::int64_t hundredths_per_day = 8'640'000;

/// The time value of a record with a full year: hundredths of a second on a day count that has 1 January 1980 as day 1
/// and years of 365.25 days, so some neighbouring days share a number. A month outside 1..12 adds no days.
std::int64_t time_value(const TAxisdatetime& record);

/// The calendar fields of a time value, the year as year - 1900. Day 0 has neither day, month nor year.
TAxisdatetime split_time(std::int64_t time);

} // namespace wnt

#pragma once

#include <cstdint>

namespace wnt {

/// A date and time of day as people write it: the full year, months and days from 1.
struct CalendarTime {
    std::int32_t year = -1, month = -1, day = -1, hour = -1, minute = -1, second = -1;
};

/// The moment of a local date and time, daylight as in tm_isdst. Raises general_failure for a year before 1970 and for
/// fields outside their ranges, invalid_argument for a moment that cannot be converted. 30 February is 1 or 2 March.
std::int64_t moment_of(const CalendarTime& time, int daylight);

} // namespace wnt

#pragma once

#include <cstdint>
#include <ctime>
#include <optional>

/// The runtime's local-time conversions, the same on the target and where the core is tested: moments are seconds
/// since 1970 in UTC, from 0 to the end of the year 3000.
namespace wnt {

/// The calendar fields of a moment in local time; nothing for a moment out of range.
std::optional<std::tm> local_fields(std::int64_t seconds);

/// The moment of calendar fields in local time. tm_isdst positive: daylight saving in effect, 0: not, negative: as the
/// zone has it. Days beyond a month's end run on into the next month. Nothing for a moment out of range.
std::optional<std::int64_t> seconds_of(std::tm fields);

} // namespace wnt

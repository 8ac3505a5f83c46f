#pragma once

#include <cstddef>
#include <cstdint>

/// A moment on a time axis by its calendar fields. Time values count hundredths of a second; see CWntAxis for the two
/// meanings of the year.
struct TAxisdatetime {
    std::int32_t day;
    std::int32_t month; ///< 1..12; 0 adds no days
    std::int32_t year;  ///< full year where a host gives it, year - 1900 where the axis made it from a time value
    std::int32_t hour;
    std::int32_t minute;
    std::int32_t second;
    std::int32_t hundredths;
};

static_assert(sizeof(TAxisdatetime) == 28 && offsetof(TAxisdatetime, year) == 8 &&
                  offsetof(TAxisdatetime, hour) == 12 && offsetof(TAxisdatetime, hundredths) == 24,
              "TAxisdatetime crosses the library's border as seven 32-bit integers");

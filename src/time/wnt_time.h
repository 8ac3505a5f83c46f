#pragma once

#include <cstdint>

#include "zopwnt_api.h"

/// Calendar questions about one moment, in the local time of the process's zone.
///
///     CWntTime moment;
///     moment.time = _time64(nullptr);
///     int days = moment.GetJulianDay();
///
/// Questions that cannot be answered raise the framework's result-code exception: 0x80004005 for a moment that has no
/// local date or one before 1970, 0x80070057 when a midnight cannot be converted, which east of UTC holds for the whole
/// of 1970, because that year's first midnight lies before the first moment.
class ZOPWNT_API CWntTime {
public:
    CWntTime();
    /// Checks the values only: the moment stays 0. 0x80004005 for a year before 1970 and for values outside their
    /// ranges (months and days count from 1, a day up to 31 passes in every month), 0x80070057 for a moment that cannot
    /// be converted. daylight: positive in effect, 0 not, negative as the zone has it.
    CWntTime(int year, int month, int day, int hour, int minute, int second, int daylight);
    CWntTime(const CWntTime&) = default;
    CWntTime& operator=(const CWntTime&);
    CWntTime& operator=(CWntTime&&);

    /// Does nothing.
    void AddDays(int days);
    /// Does nothing.
    void Eastern();

    /// Whole days of 86,400 seconds from the year's first midnight to the day's: 0 for 1 January, and one less than the
    /// calendar has while the clock is ahead of 1 January's.
    int GetJulianDay() const;
    /// GetJulianDay() / 7, less 1 in a year that begins on Monday to Thursday.
    int GetCalendarWeek(int unused) const;
    /// The day of January, 1 to 7, that is the year's first Saturday.
    int GetFirstWeekend() const;
    /// The name of the weekday two days later, or of Monday for a moment that has no local date; on a Saturday "Monday"
    /// in short and null in full. The text is constant.
    char* GetWeekdayText(int longNames) const;

    std::int64_t time; ///< seconds since 1970 in UTC; 0 also when not set
};

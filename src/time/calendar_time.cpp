#include "time/calendar_time.h"

#include "time/local_time.h"
#include "time/result_error.h"

namespace wnt {

namespace {

bool valid(const CalendarTime& time) {
    const auto within = [](int number, int low, int high) { return low <= number && number <= high; };
    return time.year >= 1970 && within(time.month, 1, 12) && within(time.day, 1, 31) && within(time.hour, 0, 23) &&
           within(time.minute, 0, 59) && within(time.second, 0, 59);
}

} // namespace

std::int64_t moment_of(const CalendarTime& time, int daylight) {
    if (!valid(time))
        raise_result(general_failure);
    std::tm fields{};
    fields.tm_year = time.year - 1900;
    fields.tm_mon = time.month - 1;
    fields.tm_mday = time.day;
    fields.tm_hour = time.hour;
    fields.tm_min = time.minute;
    fields.tm_sec = time.second;
    fields.tm_isdst = daylight;
    const auto seconds = seconds_of(fields);
    if (!seconds)
        raise_result(invalid_argument);
    return *seconds;
}

} // namespace wnt

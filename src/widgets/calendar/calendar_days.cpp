#include "widgets/calendar/calendar_days.h"

#include <algorithm>

#include "time/calendar_time.h"
#include "time/local_time.h"
#include "time/result_error.h"

namespace wnt {

LocalDate local_date(std::int64_t moment) {
    const auto fields = local_fields(moment);
    return fields ? LocalDate{fields->tm_year + 1900, fields->tm_mon + 1, fields->tm_mday} : LocalDate{};
}

std::int64_t grid_start(std::int64_t shown) {
    constexpr std::int64_t farthest = std::int64_t{1} << 60; // room for any number of rows
    shown = std::clamp(shown, -farthest, farthest);
    const auto fields = local_fields(shown);
    const int after_monday = fields ? fields->tm_wday - 1 : -2; // Sunday is 0
    return shown - after_monday * day_seconds;
}

int week_number(std::int64_t monday) {
    const int year = local_date(monday).year;
    if (year < 1970)
        raise_result(general_failure);
    return static_cast<int>((monday - moment_of({year, 1, 1, 0, 0, 0}, -1)) / week_seconds) + 2;
}

std::int64_t moved_to_month(std::int64_t shown, int month) {
    const LocalDate date = local_date(shown);
    return moment_of({date.year, month, date.day, 0, 0, 0}, -1);
}

} // namespace wnt

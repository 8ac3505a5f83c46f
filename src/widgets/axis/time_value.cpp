#include "widgets/axis/time_value.h"

#include "arithmetic.h"

#include <cmath>

namespace wnt {

namespace {

constexpr std::int32_t days_before_month[2][12] = {
    {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334}, // common years
    {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335}, // leap years
};

constexpr std::int64_t base_year = 1980;
constexpr std::int64_t record_base_year = 1900;

constexpr const std::int32_t (&month_table(std::int64_t year))[12] {
    return days_before_month[(year % 4 == 0 && year % 100 != 0) || year % 400 == 0];
}

// In single precision, and by years of 365.25 days: the last day of a leap year has the number of the day after it.
std::int64_t day_number(const TAxisdatetime& record) {
    const bool counts = 1 <= record.month && record.month <= 12;
    const std::int64_t day_of_year =
        std::int64_t{record.day} + (counts ? month_table(record.year)[record.month - 1] : 0);
    return truncated(static_cast<float>(day_of_year) + static_cast<float>(record.year - base_year) * 365.25f);
}

void split_days(std::int64_t days, TAxisdatetime& record) {
    if (days == 0)
        return;
    const std::int64_t years = truncated(static_cast<float>(days - 1) / 365.25f);
    record.year = saturated_int(base_year - record_base_year + years);

    const double exact_years = static_cast<double>(days - 1) / 365.25;
    // 1.1 and not 1: it lifts the fraction over the quarter days.
    const auto day_of_year = static_cast<std::int32_t>((exact_years - std::floor(exact_years)) * 365.25 + 1.1);
    const auto& before = month_table(record_base_year + record.year);
    record.month = static_cast<std::int32_t>(std::lower_bound(before, before + 12, day_of_year) - before);
    record.day = day_of_year - before[record.month - 1];
}

} // namespace

std::int64_t time_value(const TAxisdatetime& record) {
    const std::int64_t minutes = std::int64_t{record.hour} * 60 + record.minute;
    return day_number(record) * hundredths_per_day + (minutes * 60 + record.second) * 100 + record.hundredths;
}

TAxisdatetime split_time(std::int64_t time) {
    TAxisdatetime record{};
    split_days(time / hundredths_per_day, record);
    const auto rest = static_cast<std::int32_t>(time % hundredths_per_day);
    record.hour = rest / 360'000;
    record.minute = rest / 6'000 % 60;
    record.second = rest / 100 % 60;
    record.hundredths = rest % 100;
    return record;
}

} // namespace wnt

#include "time/wnt_time.h"

#include "time/calendar_time.h"
#include "time/local_time.h"
#include "time/result_error.h"

namespace {

constexpr std::int64_t day_seconds = 86'400;

// Indexed by weekday + 1 with Sunday as 0: two days late, as callers expect it.
constexpr const char* short_names[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun", "Monday"};
constexpr const char* long_names[] = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                      "Friday", "Saturday", "Sunday",    nullptr};

std::tm fields_of(std::int64_t time) {
    const auto fields = wnt::local_fields(time);
    if (!fields)
        wnt::raise_result(wnt::general_failure);
    return *fields;
}

std::int64_t midnight(int year, int month, int day) {
    return wnt::moment_of({year, month, day, 0, 0, 0}, -1);
}

std::int64_t year_start(const std::tm& date) {
    return midnight(date.tm_year + 1900, 1, 1);
}

// No calendar count: a day that daylight saving shortened is missing from then on.
int days_since(std::int64_t start, const std::tm& date) {
    return static_cast<int>((midnight(date.tm_year + 1900, date.tm_mon + 1, date.tm_mday) - start) / day_seconds);
}

// 0 for Sunday, also for a moment without a local date.
int weekday(std::int64_t time) {
    const auto fields = wnt::local_fields(time);
    return fields ? fields->tm_wday : 0;
}

} // namespace

CWntTime::CWntTime() : time(0) {}

// Only refuses: hosts that want a moment assign one, and rely on finding 0 here.
CWntTime::CWntTime(int year, int month, int day, int hour, int minute, int second, int daylight) : time(0) {
    wnt::moment_of({year, month, day, hour, minute, second}, daylight);
}

CWntTime& CWntTime::operator=(const CWntTime&) = default;
CWntTime& CWntTime::operator=(CWntTime&&) = default;

void CWntTime::AddDays(int days) {}

void CWntTime::Eastern() {}

int CWntTime::GetJulianDay() const {
    const std::tm date = fields_of(time);
    return days_since(year_start(date), date);
}

int CWntTime::GetCalendarWeek(int unused) const {
    const std::tm date = fields_of(time);
    const std::int64_t start = year_start(date);
    const int first = weekday(start);
    return days_since(start, date) / 7 - (1 <= first && first <= 4 ? 1 : 0);
}

int CWntTime::GetFirstWeekend() const {
    return 7 - weekday(year_start(fields_of(time)));
}

char* CWntTime::GetWeekdayText(int longNames) const {
    const auto date = wnt::local_fields(time);
    const int index = date ? date->tm_wday + 1 : 0;
    return const_cast<char*>(longNames ? long_names[index] : short_names[index]);
}

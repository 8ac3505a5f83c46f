#include "recorded_days.h"

#include <cstdio>

namespace {

constexpr int days_of(int month, int year) {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 ? 28 + leap : 30 + (month + month / 8) % 2;
}

} // namespace

std::string recording_of(const RecordedDay& day) {
    char name[40];
    std::snprintf(name, sizeof name, "plant-%04d%02d%02d.txt", day.year, day.month, day.day);
    return name;
}

std::optional<RecordedDay> day_of_recording(const std::string& file_name) {
    RecordedDay day{};
    if (std::sscanf(file_name.c_str(), "plant-%4d%2d%2d", &day.year, &day.month, &day.day) != 3 || day.year < 1970 ||
        day.month < 1 || day.month > 12 || day.day < 1 || day.day > days_of(day.month, day.year) ||
        recording_of(day) != file_name)
        return std::nullopt;
    return day;
}

// The names that recordings of a day have: those that the strip chart gives to its daily parts.
#pragma once

#include <optional>
#include <string>

struct RecordedDay {
    int year, month, day;
    auto operator<=>(const RecordedDay&) const = default;
};

/// What recording is started with; the chart puts the day in front of the extension.
inline constexpr char recording_name[] = "plant.txt";

std::string recording_of(const RecordedDay& day);
/// Nothing for a file that is no day's recording; parts of a day (_2, _3) are none of their own.
std::optional<RecordedDay> day_of_recording(const std::string& file_name);

#pragma once

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string_view>

#include "pulse/pulse_header.h"
#include "time/calendar_time.h"

/// The text of pulse files: a header that names the curves, then a line for each sample.
///
///     2
///     Pressure left ;
///     Flow ;
///     2;17.50;14:03:59;16/11/2026;
namespace wnt {

enum class PulseFault { none, bad_text, too_many_lines };

/// Reads a header from a stream, with a protocol of what it found to the log, if there is one. A title comes back with
/// a blank behind each of its words; what exceeds 24 characters is dropped. On a fault the titles read so far stay.
PulseFault read_header(std::FILE* from, PulseHeader& header, std::FILE* log);

void write_header(std::FILE* to, const PulseHeader& header);

/// A sample as it stands in the file; its time is still text.
struct PulseSample {
    std::int32_t curve;
    float value;
    PulseText stamp;
};

/// Reads the next sample, as scanf("%d;%f;%24s") would; nothing unless it is complete.
std::optional<PulseSample> read_sample(std::FILE* from);

/// Writes a sample: the number of characters, or a negative number when it could not be written.
int write_sample(std::FILE* to, std::int32_t curve, float value, const std::tm& time);

/// Reads "14:03:59;16/11/2026;"; any one character separates two numbers. A part that is missing stays -1.
CalendarTime parse_stamp(std::string_view stamp);

} // namespace wnt

#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "pulse/pulse_series.h"
#include "time/calendar_time.h"
#include "widgets/axis/axis_types.h"

class CWntPulseFile;

namespace wnt {

/// Writes samples to pulse files: one, or one after the other by size or day.
class PulseRecorder {
public:
    PulseRecorder();
    ~PulseRecorder();

    /// Begins a file, or goes on behind an existing one of the same curves. Empty, or what the error is called; nothing
    /// changes while it runs.
    std::string start(const std::string& path, std::vector<std::string> titles);
    /// False, and error() tells why, where the disk did not take all that was put.
    bool stop();
    bool running() const { return file_ != nullptr; }
    /// It runs, and the curve was there when it began.
    bool records(int curve) const { return file_ && 0 <= curve && curve < static_cast<int>(titles_.size()); }
    /// A new file when the present one has reached this many bytes (0: none), or a day ends. Its name has the day, or
    /// a number, before its ending.
    void set_parts(std::int64_t bytes, bool daily) { most_bytes_ = bytes, daily_ = daily; }
    /// `seconds` since 1970. False when it could not be written: recording has stopped then, and error() tells why.
    bool put(int curve, double value, std::int64_t seconds);
    const std::string& error() const { return error_; }
    /// Of the present file.
    const std::string& path() const { return path_; }

private:
    std::string open(const std::string& path);
    using Clock = std::chrono::steady_clock;

    bool continues(const std::string& path) const;
    bool grown(bool at_once);
    std::string part_name(std::int64_t seconds) const;
    bool full() const { return most_bytes_ > 0 && size_ + written_ >= most_bytes_; }
    bool next_part(std::int64_t seconds);

    std::unique_ptr<CWntPulseFile> file_;
    std::vector<std::string> titles_;
    std::string first_path_, path_, error_;
    std::int64_t most_bytes_ = 0;
    bool daily_ = false;
    std::int64_t written_ = 0; // characters since the size was looked at
    std::int64_t size_ = 0;
    Clock::time_point looked_;
    std::int64_t day_ = -1;
    int part_ = 1;
};

/// Reads a pulse file piece by piece.
class PulseReader {
public:
    PulseReader();
    PulseReader(PulseReader&&) noexcept;
    PulseReader& operator=(PulseReader&&) noexcept;
    ~PulseReader();

    /// Empty, or what the file's error is called.
    std::string open(const std::string& path);
    const std::vector<std::string>& titles() const { return titles_; }
    /// Samples of one second lie evenly within it instead of at its beginning.
    void set_spread(bool spread) { spread_ = spread; }
    /// Hands out samples of up to so many records, with times as an axis counts them: false at the end of the file.
    /// Where stamps run back, because the clock was set, the samples stay in their order at the time that was reached.
    bool read(int records, const std::function<void(int curve, std::int64_t time, double value)>& take);
    std::int64_t records() const { return records_; }
    /// How much of the file was read, 0 to 1.
    double progress() const;
    /// It ended at what is no sample.
    bool broken() const { return broken_; }

private:
    struct Second {
        std::int64_t time = 0;
        std::vector<double> values;
    };
    static std::array<std::int64_t, 2> readings_of(const CalendarTime& stamp);
    void flush(int curve, const std::function<void(int, std::int64_t, double)>& take);
    std::int64_t onward(int curve, std::int64_t time);

    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> file_; // without the protocols of CWntPulseFile, a line or more a sample
    std::vector<std::string> titles_;
    std::vector<Second> seconds_;
    struct Onward {
        std::int64_t last = -PulseSeries::latest, shift = 0;
    };
    std::vector<Onward> onwards_;
    std::string stamp_; // of the last sample, and what it says
    std::array<std::int64_t, 2> times_{};
    bool dated_ = false;
    bool spread_ = false;
    std::int64_t records_ = 0;
    std::int64_t size_ = 0; // of the file
    bool broken_ = false;
};

/// The time of a moment (seconds since 1970) as an axis counts it, in hundredths, in local time without daylight
/// saving: it never runs back.
std::int64_t axis_time_of(std::int64_t seconds);
/// And back; nothing for times without a date.
std::optional<std::int64_t> moment_of_axis_time(std::int64_t time);
/// Its calendar fields, with the full year.
TAxisdatetime date_of_axis_time(std::int64_t time);
/// "2026-11-16 14:03:59.00"
std::string text_of_axis_time(std::int64_t time);

} // namespace wnt

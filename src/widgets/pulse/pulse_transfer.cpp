#include "widgets/pulse/pulse_transfer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "pulse/pulse_codec.h"
#include "pulse/wnt_pulse_file.h"
#include "time/calendar_time.h"
#include "time/local_time.h"
#include "time/result_error.h"
#include "widgets/axis/time_value.h"

namespace wnt {

namespace {

constexpr std::int64_t look_every = 4096; // characters between two looks at a file's size
constexpr int no_error = 0, cannot_open = 1, writing_failed = 9;

namespace chrono = std::chrono;
constexpr chrono::sys_days day_zero{chrono::year(1979) / 12 / 31}; // of an axis

std::string text_of(int error) {
    return CWntPulseFile::ErrorText(error);
}

// What other files hold may go on for long without a title's end.
bool begins_with_header(const std::string& path) {
    constexpr std::size_t longest_header = 16'384;
    std::string text(longest_header, 0);
    std::ifstream file(path, std::ios::binary);
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    const int curves = std::atoi(text.c_str());
    return 0 < curves && curves <= most_pulse_curves && std::ranges::count(text, ';') >= curves;
}

constexpr int most_parts = 100'000;

std::int64_t day_of(std::int64_t seconds) {
    const auto fields = local_fields(seconds);
    return fields ? fields->tm_year * 366 + fields->tm_yday : -1;
}

std::int64_t size_of(const std::string& path) {
    std::error_code failed;
    const auto size = std::filesystem::file_size(path, failed);
    return failed ? -1 : static_cast<std::int64_t>(size);
}

} // namespace

PulseRecorder::PulseRecorder() = default;
PulseRecorder::~PulseRecorder() = default;

std::string PulseRecorder::start(const std::string& path, std::vector<std::string> titles) {
    stop();
    std::error_code failed;
    const auto whole = std::filesystem::absolute(path, failed); // wherever the current folder goes
    first_path_ = failed ? path : whole.string();
    titles_ = std::move(titles);
    part_ = 1;
    const auto now = static_cast<std::int64_t>(std::time(nullptr));
    day_ = day_of(now);
    error_ = open(daily_ ? part_name(now) : first_path_);
    return error_;
}

void PulseRecorder::stop() {
    file_.reset();
}

std::string PulseRecorder::open(const std::string& path) {
    auto file = std::make_unique<CWntPulseFile>(CWntPulseFile::append);
    file->SetLineCount(static_cast<int>(titles_.size()));
    for (std::size_t i = 0; i < titles_.size(); ++i)
        file->SetLineTitle(static_cast<int>(i), titles_[i].c_str());
    if (const int error = file->Open(path.c_str()); error != no_error)
        return error == cannot_open ? "the file cannot be opened" : text_of(error);
    file_ = std::move(file);
    path_ = path;
    size_ = size_of(path);
    written_ = 0;
    return {};
}

// What a full disk refuses shows in the file's size alone.
bool PulseRecorder::grown() {
    if (written_ < look_every)
        return true;
    const std::int64_t size = size_of(path_);
    const bool as_expected = size >= size_ + written_;
    size_ = size;
    written_ = 0;
    return as_expected;
}

std::string PulseRecorder::part_name(std::int64_t seconds) const {
    const std::filesystem::path path(first_path_);
    char what[40] = "";
    if (const auto fields = local_fields(seconds); daily_ && fields)
        std::snprintf(what, sizeof what, "-%04d%02d%02d", fields->tm_year + 1900, fields->tm_mon + 1, fields->tm_mday);
    std::string name = path.stem().string() + what;
    if (part_ > 1)
        name += "_" + std::to_string(part_);
    return (path.parent_path() / (name + path.extension().string())).string();
}

bool PulseRecorder::next_part(std::int64_t seconds) {
    const bool next_day = daily_ && day_of(seconds) != day_;
    if (!next_day && !full())
        return true;
    part_ = next_day ? 1 : part_ + 1;
    day_ = day_of(seconds);
    do // those of an earlier time may be full
        error_ = open(part_name(seconds));
    while (error_.empty() && full() && ++part_ < most_parts);
    return error_.empty();
}

bool PulseRecorder::put(int curve, double value, std::int64_t seconds) {
    if (!records(curve))
        return false;
    bool written = next_part(seconds);
    if (written) {
        const int characters = file_->Put(curve, static_cast<float>(value), seconds);
        written_ += std::max(characters, 0);
        written = characters > 0 && grown();
        if (!written)
            error_ = text_of(writing_failed);
    }
    if (!written)
        stop();
    return written;
}

PulseReader::PulseReader() = default;
PulseReader::PulseReader(PulseReader&&) noexcept = default;
PulseReader& PulseReader::operator=(PulseReader&&) noexcept = default;
PulseReader::~PulseReader() = default;

std::string PulseReader::open(const std::string& path) {
    *this = PulseReader();
    std::error_code failed;
    PulseHeader header;
    if (!std::filesystem::is_regular_file(path, failed) || !begins_with_header(path))
        return "no file of samples";
    file_.reset(std::fopen(path.c_str(), "r"));
    if (!file_ || read_header(file_.get(), header, nullptr) != PulseFault::none) {
        file_.reset();
        return "no file of samples";
    }
    const std::uintmax_t size = std::filesystem::file_size(path, failed);
    size_ = failed ? 0 : static_cast<std::int64_t>(size);
    for (int i = 0; i < header.line_count; ++i) {
        std::string title = header.titles[i];
        title.erase(title.find_last_not_of(' ') + 1);
        titles_.push_back(std::move(title));
    }
    seconds_.assign(titles_.size(), {});
    onwards_.assign(titles_.size(), {});
    return {};
}

std::int64_t PulseReader::onward(int curve, std::int64_t time) {
    auto& [last, shift] = onwards_[static_cast<std::size_t>(curve)];
    shift = time >= last ? 0 : std::max(shift, last - time);
    return last = time + shift;
}

void PulseReader::flush(int curve, const std::function<void(int, std::int64_t, double)>& take) {
    Second& second = seconds_[static_cast<std::size_t>(curve)];
    const auto count = static_cast<std::int64_t>(second.values.size());
    for (std::int64_t i = 0; i < count; ++i)
        take(curve, onward(curve, second.time + (spread_ ? 100 * i / count : 0)),
             second.values[static_cast<std::size_t>(i)]);
    second.values.clear();
}

double PulseReader::progress() const {
    if (!file_)
        return 1;
#ifdef _WIN32
    const std::int64_t at = ::_ftelli64(file_.get());
#else
    const std::int64_t at = std::ftell(file_.get());
#endif
    return size_ > 0 ? std::clamp(static_cast<double>(at) / static_cast<double>(size_), 0.0, 1.0) : 0;
}

bool PulseReader::read(int records, const std::function<void(int, std::int64_t, double)>& take) {
    if (!file_)
        return false;
    for (int i = 0; i < records; ++i) {
        const auto sample = read_sample(file_.get());
        if (!sample) {
            broken_ = std::feof(file_.get()) == 0;
            for (std::size_t k = 0; k < seconds_.size(); ++k)
                flush(static_cast<int>(k), take);
            file_.reset();
            return false;
        }
        ++records_;
        if (stamp_ != sample->stamp) { // most samples come with others of their second
            stamp_ = sample->stamp;
            dated_ = without_result_error([&] { time_ = axis_time_of(moment_of(parse_stamp(sample->stamp), -1)); });
        }
        if (!dated_ || sample->curve < 0 || sample->curve >= static_cast<int>(seconds_.size()))
            continue;
        Second& second = seconds_[static_cast<std::size_t>(sample->curve)];
        if (second.time != time_)
            flush(sample->curve, take);
        second.time = time_;
        second.values.push_back(sample->value);
    }
    return true;
}

std::int64_t axis_time_of(std::int64_t seconds) {
    const auto fields = local_fields(seconds);
    if (!fields)
        return 0;
    const chrono::year_month_day date{chrono::year(fields->tm_year + 1900), chrono::month(fields->tm_mon + 1),
                                      chrono::day(fields->tm_mday)};
    const std::int64_t day = (chrono::sys_days(date) - day_zero).count();
    const int hours = fields->tm_hour - (fields->tm_isdst > 0 ? 1 : 0);
    return day * hundredths_per_day + ((hours * 60 + fields->tm_min) * 60 + fields->tm_sec) * 100;
}

TAxisdatetime date_of_axis_time(std::int64_t time) {
    const std::int64_t day = time / hundredths_per_day - (time % hundredths_per_day < 0);
    const auto rest = static_cast<std::int32_t>(time - day * hundredths_per_day);
    const chrono::year_month_day date(day_zero + chrono::days(std::clamp<std::int64_t>(day, -700'000, 10'000'000)));
    return {static_cast<std::int32_t>(static_cast<unsigned>(date.day())),
            static_cast<std::int32_t>(static_cast<unsigned>(date.month())),
            static_cast<int>(date.year()),
            rest / 360'000,
            rest / 6'000 % 60,
            rest / 100 % 60,
            rest % 100};
}

std::string text_of_axis_time(std::int64_t time) {
    const TAxisdatetime at = date_of_axis_time(time);
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d.%02d", at.year, at.month, at.day, at.hour,
                  at.minute, at.second, at.hundredths);
    return text;
}

std::optional<std::int64_t> moment_of_axis_time(std::int64_t time) {
    const TAxisdatetime date = date_of_axis_time(time);
    std::tm fields{};
    fields.tm_year = date.year - 1900;
    fields.tm_mon = date.month - 1;
    fields.tm_mday = date.day;
    fields.tm_hour = date.hour;
    fields.tm_min = date.minute;
    fields.tm_sec = date.second;
    fields.tm_isdst = 0;
    return seconds_of(fields);
}

} // namespace wnt

#include "widgets/pulse/pulse_transfer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "pulse/wnt_pulse_file.h"
#include "time/local_time.h"
#include "time/result_error.h"
#include "widgets/axis/time_value.h"

namespace wnt {

namespace {

constexpr std::int64_t look_every = 4096; // characters between two looks at a file's size
constexpr int no_error = 0;

namespace chrono = std::chrono;
constexpr chrono::sys_days day_zero{chrono::year(1979) / 12 / 31}; // of an axis

std::string text_of(int error) {
    return CWntPulseFile::ErrorText(error);
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
    first_path_ = path;
    titles_ = std::move(titles);
    part_ = 1;
    day_ = -1;
    error_ = open(path);
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
        return text_of(error);
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

std::string PulseRecorder::part_name(std::int64_t seconds) {
    const std::filesystem::path path(first_path_);
    char what[24] = "";
    if (const auto fields = local_fields(seconds); daily_ && fields)
        std::snprintf(what, sizeof what, "-%04d%02d%02d", fields->tm_year + 1900, fields->tm_mon + 1, fields->tm_mday);
    std::string name = path.stem().string() + what;
    if (part_ > 1)
        name += "_" + std::to_string(part_);
    return (path.parent_path() / (name + path.extension().string())).string();
}

bool PulseRecorder::next_part(std::int64_t seconds) {
    const auto fields = local_fields(seconds);
    const std::int64_t day = fields ? fields->tm_year * 366 + fields->tm_yday : day_;
    const bool next_day = daily_ && day != day_;
    const bool full = most_bytes_ > 0 && size_ + written_ >= most_bytes_;
    if (!next_day && !full)
        return true;
    part_ = next_day ? 1 : part_ + 1;
    day_ = day;
    error_ = open(part_name(seconds));
    return error_.empty();
}

bool PulseRecorder::put(int curve, double value, std::int64_t seconds) {
    if (!file_)
        return false;
    bool written = next_part(seconds);
    if (written) {
        const int characters = file_->Put(curve, static_cast<float>(value), seconds);
        written_ += std::max(characters, 0);
        written = characters > 0 && grown();
        if (!written)
            error_ = text_of(9);
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
    file_ = std::make_unique<CWntPulseFile>(CWntPulseFile::read);
    records_ = 0;
    titles_.clear();
    if (const int error = file_->Open(path.c_str()); error != no_error) {
        file_.reset();
        return text_of(error);
    }
    const auto count = static_cast<std::size_t>(std::clamp(file_->GetLineCount(), 0, most_pulse_curves));
    for (std::size_t i = 0; i < count; ++i) {
        std::string title = file_->GetLineTitle(static_cast<int>(i));
        title.erase(title.find_last_not_of(' ') + 1);
        titles_.push_back(std::move(title));
    }
    seconds_.assign(count, {});
    onwards_.assign(count, {});
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

bool PulseReader::read(int records, const std::function<void(int, std::int64_t, double)>& take) {
    if (!file_)
        return false;
    bool more = true;
    for (int i = 0; i < records && more; ++i) {
        int curve = 0;
        float value = 0;
        std::int64_t seconds = 0;
        if (!without_result_error([&] { more = file_->Get(&curve, &value, &seconds) == no_error; }))
            continue; // a date that is none was read past
        if (!more)
            break;
        ++records_;
        if (curve < 0 || curve >= static_cast<int>(seconds_.size()))
            continue;
        const std::int64_t time = axis_time_of(seconds);
        Second& second = seconds_[static_cast<std::size_t>(curve)];
        if (second.time != time || second.values.size() == 100)
            flush(curve, take);
        second.time = time;
        second.values.push_back(value);
    }
    if (!more) {
        for (std::size_t i = 0; i < seconds_.size(); ++i)
            flush(static_cast<int>(i), take);
        file_.reset();
    }
    return more;
}

std::int64_t axis_time_of(std::int64_t seconds) {
    auto fields = local_fields(seconds);
    if (fields && fields->tm_isdst > 0 && seconds >= 3600)
        fields = local_fields(seconds - 3600);
    if (!fields)
        return 0;
    const chrono::year_month_day date{chrono::year(fields->tm_year + 1900), chrono::month(fields->tm_mon + 1),
                                      chrono::day(fields->tm_mday)};
    const std::int64_t day = (chrono::sys_days(date) - day_zero).count();
    return day * hundredths_per_day + ((fields->tm_hour * 60 + fields->tm_min) * 60 + fields->tm_sec) * 100;
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

#include "widgets/pulse/pulse_transfer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

#include <sys/stat.h>

#include "pulse/pulse_codec.h"
#include "pulse/wnt_pulse_file.h"
#include "time/calendar_time.h"
#include "time/local_time.h"
#include "time/result_error.h"
#include "widgets/axis/time_value.h"

namespace wnt {

namespace {

constexpr std::int64_t look_every = 4096; // characters between two looks at a file's size
constexpr int no_error = 0, cannot_open = 1, already_open = 8, writing_failed = 9;
constexpr std::size_t most_in_second = 65'536; // more are not spread among each other

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

// Of the open file: a folder's entry may tell an older size until the file is closed.
std::int64_t size_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    return file ? static_cast<std::int64_t>(file.tellg()) : -1;
}

// Neither a folder nor a device.
bool is_file(const std::string& path) {
#ifdef _WIN32
    struct _stat64 info;
    return ::_stat64(path.c_str(), &info) == 0 && (info.st_mode & S_IFMT) == S_IFREG;
#else
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
#endif
}

// Wherever the current folder goes. Names stay in the bytes that they came in.
std::string absolute(const std::string& path) {
#ifdef _WIN32
    char whole[_MAX_PATH];
    return ::_fullpath(whole, path.c_str(), sizeof whole) ? whole : path;
#else
    std::error_code failed;
    const auto whole = std::filesystem::absolute(path, failed);
    return failed ? path : whole.string();
#endif
}

std::string without_trailing_blanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace

PulseRecorder::PulseRecorder() = default;
PulseRecorder::~PulseRecorder() = default;

std::string PulseRecorder::start(const std::string& path, std::vector<std::string> titles) {
    if (running())
        return text_of(already_open);
    first_path_ = absolute(path);
    titles_ = std::move(titles);
    part_ = 1;
    const auto now = static_cast<std::int64_t>(std::time(nullptr));
    day_ = day_of(now);
    error_ = open(daily_ ? part_name(now) : first_path_);
    return error_;
}

bool PulseRecorder::stop() {
    const bool written = !file_ || grown(true);
    if (!written)
        error_ = text_of(writing_failed);
    file_.reset();
    return written;
}

// What is there must be of the same curves: other records would be lost among them.
bool PulseRecorder::continues(const std::string& path) const {
    PulseReader there;
    if (size_of(path) <= 0)
        return true;
    if (!there.open(path).empty() || there.titles().size() != titles_.size())
        return false;
    return std::ranges::equal(there.titles(), titles_, {}, {}, without_trailing_blanks);
}

std::string PulseRecorder::open(const std::string& path) {
    if (!continues(path))
        return "the file holds something else";
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
    looked_ = Clock::now();
    return {};
}

// What a full disk refuses shows in the file's size alone.
bool PulseRecorder::grown(bool at_once) {
    const auto now = Clock::now();
    if (!at_once && written_ < look_every && now - looked_ < std::chrono::seconds(1))
        return true;
    looked_ = now;
    const std::int64_t size = size_of(path_);
    const bool as_expected = size >= size_ + written_;
    size_ = size;
    written_ = 0;
    return as_expected;
}

std::string PulseRecorder::part_name(std::int64_t seconds) const {
    const std::size_t name_at = first_path_.find_last_of("/\\:") + 1; // 0 without any
    const std::size_t dot = first_path_.find_last_of('.');
    const std::size_t stem_end = dot == std::string::npos || dot <= name_at ? first_path_.size() : dot;
    char what[40] = "";
    if (const auto fields = local_fields(seconds); daily_ && fields)
        std::snprintf(what, sizeof what, "-%04d%02d%02d", fields->tm_year + 1900, fields->tm_mon + 1, fields->tm_mday);
    std::string name = first_path_.substr(0, stem_end) + what;
    if (part_ > 1)
        name += "_" + std::to_string(part_);
    return name + first_path_.substr(stem_end);
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
        written = characters > 0 && grown(false);
        if (!written)
            error_ = text_of(writing_failed);
    }
    if (!written)
        file_.reset();
    return written;
}

PulseReader::PulseReader() = default;
PulseReader::PulseReader(PulseReader&&) noexcept = default;
PulseReader& PulseReader::operator=(PulseReader&&) noexcept = default;
PulseReader::~PulseReader() = default;

std::string PulseReader::open(const std::string& path) {
    *this = PulseReader();
    PulseHeader header;
    if (!is_file(path) || !begins_with_header(path))
        return "no file of samples";
    file_.reset(std::fopen(path.c_str(), "r"));
    if (!file_ || read_header(file_.get(), header, nullptr) != PulseFault::none) {
        file_.reset();
        return "no file of samples";
    }
    size_ = size_of(path);
    for (int i = 0; i < header.line_count; ++i)
        titles_.push_back(without_trailing_blanks(header.titles[i]));
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

// The hour after summer ends is there twice: what a stamp of it may mean, the earlier time first.
std::array<std::int64_t, 2> PulseReader::readings_of(const CalendarTime& stamp) {
    const std::int64_t moment = moment_of(stamp, -1), plain = axis_time_of(moment);
    std::array<std::int64_t, 2> times = {plain, plain};
    constexpr std::int64_t two_hours = 7200;
    const auto before = local_fields(moment - two_hours), behind = local_fields(moment + two_hours);
    if (!before || !behind || before->tm_isdst == behind->tm_isdst)
        return times;
    for (const int daylight : {0, 1})
        without_result_error([&] {
            const std::int64_t meant = moment_of(stamp, daylight);
            if (const auto fields = local_fields(meant); fields && fields->tm_isdst == daylight) {
                const std::int64_t time = axis_time_of(meant);
                times = {std::min(times[0], time), std::max(times[1], time)};
            }
        });
    return times;
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
            dated_ = without_result_error([&] { times_ = readings_of(parse_stamp(sample->stamp)); });
        }
        if (!dated_ || sample->curve < 0 || sample->curve >= static_cast<int>(seconds_.size()))
            continue;
        Second& second = seconds_[static_cast<std::size_t>(sample->curve)];
        const std::int64_t time = times_[0] >= second.time ? times_[0] : times_[1];
        if (second.time != time || second.values.size() == most_in_second)
            flush(sample->curve, take);
        second.time = time;
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

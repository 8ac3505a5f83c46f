#include "pulse/wnt_pulse_file.h"

#include "pulse/protocol.h"
#include "pulse/pulse_codec.h"
#include "time/local_time.h"
#include "time/result_error.h"

#include <cstring>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

enum Error {
    cannot_open = 1,
    wrong_mode = 4,
    not_open,
    reading_failed,
    out_of_range,
    already_open,
    writing_failed,
};

// From code 2 on. The misspellings are known to programs that compare the texts.
constexpr const char* error_texts[] = {
    "wrong use of get",         "wrong use of put", "wrong open mode",   "file not open",
    "error while reading data", "out of range",     "file already open", "errpr while writing data",
};
constexpr const char* other_text = "undifined error";

template <class Value> void store(Value* place, Value value) {
    if (place)
        *place = value;
}

} // namespace

CWntPulseFile::CWntPulseFile(int mode) : mode_(mode) {}

CWntPulseFile::CWntPulseFile(int mode, const char* name) : mode_(mode) {
    Open(name);
}

int CWntPulseFile::SetLineCount(int count) {
    if (count < 0 || count > wnt::most_pulse_curves)
        return fail(out_of_range);
    header_.line_count = count;
    return error_;
}

// The index right behind the last line is accepted on purpose.
int CWntPulseFile::SetLineTitle(int index, const char* text) {
    if (index < 0 || index > header_.line_count || index >= wnt::most_pulse_curves)
        return fail(out_of_range);
    const std::string_view title(text ? text : "");
    header_.titles[index][title.copy(header_.titles[index], wnt::pulse_text_size - 1)] = 0;
    return error_;
}

const char* CWntPulseFile::GetLineTitle(int index) const {
    return 0 <= index && index < wnt::most_pulse_curves ? header_.titles[index] : "";
}

int CWntPulseFile::Open(const char* name) {
    const std::string_view given(name ? name : "");
    name_[given.copy(name_, sizeof name_ - 1)] = 0;
    if (mode_ < read || mode_ > write)
        return fail(wrong_mode);
    if (error_)
        return error_;
    if (stream_)
        return fail(already_open);
    if (given.size() >= sizeof name_)
        return fail(cannot_open);
    const bool existed = mode_ == append && Stream(std::fopen(name_, "r"));
    constexpr const char* modes[] = {"r", "a+", "w"};
    stream_.reset(std::fopen(name_, modes[mode_ - read]));
    if (!stream_)
        return fail(cannot_open);
    if (mode_ == read)
        return ReadHeader();
    return existed ? error_ : WriteHeader();
}

int CWntPulseFile::Put(int curve, float value, std::int64_t time) {
    int written = 0;
    if (stream_ && !error_) {
        const auto fields = wnt::local_fields(time);
        if (!fields)
            wnt::raise_result(wnt::invalid_argument);
        begin_writing();
        written = wnt::write_sample(stream_.get(), curve, value, *fields);
        std::fflush(stream_.get());
    }
    if (written == 0)
        error_ = writing_failed;
    return written;
}

int CWntPulseFile::Get(int* curve, float* value, std::int64_t* time) {
    const Stream protocol = open_protocol("Get.out");
    wnt::note(protocol.get(), "%sd\n", "Start");
    wnt::note(protocol.get(), "error: %d\n", error_);
    if (!stream_)
        return fail(not_open);
    if (error_)
        return error_;
    was_read_ = true;
    const auto sample = wnt::read_sample(stream_.get());
    if (!sample)
        return fail(reading_failed);
    const wnt::CalendarTime stamp = wnt::parse_stamp(sample->stamp);
    wnt::note(protocol.get(), "i:%d\ny:%d m:%d d:%d  h:%d m:%d s:%d\n", 3, stamp.year, stamp.month, stamp.day,
              stamp.hour, stamp.minute, stamp.second);
    const std::int64_t seconds = wnt::moment_of(stamp, 0);
    store(curve, sample->curve);
    store(value, sample->value);
    store(time, seconds);
    return error_;
}

int CWntPulseFile::ReadHeader() {
    const Stream protocol = open_protocol("ReadHeader.out");
    wnt::note(protocol.get(), "Start\nerror: %d\n\n", error_);
    if (error_)
        return error_;
    if (!stream_)
        return fail(not_open);
    was_read_ = true;
    switch (wnt::read_header(stream_.get(), header_, protocol.get())) {
    case wnt::PulseFault::none:
        return error_;
    case wnt::PulseFault::too_many_lines:
        return fail(out_of_range);
    default:
        return fail(reading_failed);
    }
}

int CWntPulseFile::WriteHeader() {
    if (!stream_)
        return fail(not_open);
    if (error_)
        return error_;
    begin_writing();
    wnt::write_header(stream_.get(), header_);
    std::fflush(stream_.get());
    return error_;
}

char* CWntPulseFile::ErrorText(int code) {
    static char text[255];
    const bool known = code >= 2 && code - 2 < static_cast<int>(std::size(error_texts));
    std::strcpy(text, known ? error_texts[code - 2] : other_text);
    return text;
}

// Where it cannot be written, there is none.
CWntPulseFile::Stream CWntPulseFile::open_protocol(const char* name) {
    return Stream(std::fopen(name, "a"));
}

int CWntPulseFile::fail(int code) {
    if (error_ == 0)
        error_ = code;
    return error_;
}

// A stream that was read last takes output only after its position was set.
void CWntPulseFile::begin_writing() {
    if (std::exchange(was_read_, false))
        std::fseek(stream_.get(), 0, SEEK_CUR);
}

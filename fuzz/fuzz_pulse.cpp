// Reads a pulse file's header and samples. What was accepted is bounded and terminated, and comes back the same when it
// is written and read again.
#include "pulse/pulse_codec.h"
#include "time/local_time.h"
#include "time/result_error.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

using namespace wnt;

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

class MemoryFile {
public:
    explicit MemoryFile(std::string text) : text_(std::move(text)), stream_(fmemopen(text_.data(), text_.size(), "r")) {
        require(stream_);
    }
    ~MemoryFile() { std::fclose(stream_); }
    std::FILE* stream() { return stream_; }

private:
    std::string text_;
    std::FILE* stream_;
};

template <class Write> std::string written(Write write) {
    char* text = nullptr;
    std::size_t size = 0;
    std::FILE* stream = open_memstream(&text, &size);
    write(stream);
    std::fclose(stream);
    std::string result(text, size);
    std::free(text);
    return result;
}

bool terminated(const PulseText& text) {
    return std::memchr(text, 0, sizeof text) != nullptr;
}

void check_header(const PulseHeader& header) {
    MemoryFile again(written([&](std::FILE* to) { write_header(to, header); }));
    PulseHeader back;
    require(read_header(again.stream(), back, nullptr) == PulseFault::none && back.line_count == header.line_count);
    for (int i = 0; i < header.line_count; ++i)
        require(terminated(header.titles[i]) && std::strcmp(back.titles[i], header.titles[i]) == 0);
}

std::optional<std::int64_t> moment_in(const PulseText& stamp) {
    try {
        return moment_of(parse_stamp(stamp), 0);
    } catch (const ResultError&) {
        return std::nullopt;
    }
}

void check_sample(const PulseSample& sample) {
    require(terminated(sample.stamp));
    const auto seconds = moment_in(sample.stamp);
    if (!seconds || !std::isfinite(sample.value))
        return;
    const auto fields = local_fields(*seconds);
    require(fields.has_value());
    MemoryFile again(written([&](std::FILE* to) { write_sample(to, sample.curve, sample.value, *fields); }));
    const auto back = read_sample(again.stream());
    require(back && back->curve == sample.curve && std::abs(back->value - sample.value) <= 0.006F);
    require(moment_in(back->stamp) == seconds);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    static const int zone_set = setenv("TZ", "UTC0", 1);
    require(zone_set == 0);
    MemoryFile file(std::string(reinterpret_cast<const char*>(data), size));
    PulseHeader header;
    if (read_header(file.stream(), header, nullptr) == PulseFault::none)
        check_header(header);
    require(0 <= header.line_count && header.line_count <= most_pulse_curves);
    while (const auto sample = read_sample(file.stream()))
        check_sample(*sample);
    return 0;
}

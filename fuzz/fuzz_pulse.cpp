// Reads a pulse file's header and samples. What was accepted is bounded and terminated, and comes back the same when it
// is written and read again.
#include "pulse/pulse_codec.h"
#include "require.h"
#include "time/local_time.h"
#include "time_zone.h"

#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

using namespace wnt;

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Without bytes an empty file, to be written and read.
File memory_file(std::size_t size, void* bytes = nullptr) {
    File file(fmemopen(bytes, size, bytes ? "r" : "w+"), std::fclose);
    require(file != nullptr);
    return file;
}

bool terminated(const PulseText& text) {
    return std::memchr(text, 0, sizeof text) != nullptr;
}

void check_header(const PulseHeader& header) {
    const File again = memory_file(1024);
    write_header(again.get(), header);
    std::rewind(again.get());
    PulseHeader back;
    require(read_header(again.get(), back, nullptr) == PulseFault::none && back.line_count == header.line_count);
    for (int i = 0; i < header.line_count; ++i)
        require(terminated(header.titles[i]) && std::strcmp(back.titles[i], header.titles[i]) == 0);
}

std::optional<std::int64_t> moment_in(const PulseText& stamp) {
    std::optional<std::int64_t> moment;
    code_of([&] { moment = moment_of(parse_stamp(stamp), 0); });
    return moment;
}

void check_sample(const PulseSample& sample) {
    require(terminated(sample.stamp));
    const auto seconds = moment_in(sample.stamp);
    if (!seconds || !std::isfinite(sample.value))
        return;
    const auto fields = local_fields(*seconds);
    require(fields.has_value());
    const File again = memory_file(1024);
    write_sample(again.get(), sample.curve, sample.value, *fields);
    std::rewind(again.get());
    const auto back = read_sample(again.get());
    require(back && back->curve == sample.curve && std::abs(back->value - sample.value) <= 0.006F);
    require(moment_in(back->stamp) == seconds);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    [[maybe_unused]] static const int once = (set_zone("UTC0"), 0);
    std::vector<std::uint8_t> bytes(data, data + size);
    const File file = memory_file(size, bytes.data());
    PulseHeader header;
    if (read_header(file.get(), header, nullptr) == PulseFault::none)
        check_header(header);
    require(0 <= header.line_count && header.line_count <= most_pulse_curves);
    while (const auto sample = read_sample(file.get()))
        check_sample(*sample);
    return 0;
}

#include "time/local_time.h"

namespace wnt {

namespace {

constexpr std::int64_t last_second = 32'535'215'999; // 31 December 3000, 23:59:59 UTC

bool in_range(std::int64_t seconds) {
    return 0 <= seconds && seconds <= last_second;
}

} // namespace

std::optional<std::tm> local_fields(std::int64_t seconds) {
    std::tm fields{};
    if (!in_range(seconds))
        return std::nullopt;
#ifdef _WIN32
    if (::_localtime64_s(&fields, &seconds) != 0)
        return std::nullopt;
#else
    const std::time_t time = seconds;
    if (!::localtime_r(&time, &fields))
        return std::nullopt;
#endif
    return fields;
}

std::optional<std::int64_t> seconds_of(std::tm fields) {
#ifdef _WIN32
    const std::int64_t seconds = ::_mktime64(&fields);
#else
    const std::int64_t seconds = std::mktime(&fields);
#endif
    return in_range(seconds) ? std::optional(seconds) : std::nullopt;
}

} // namespace wnt

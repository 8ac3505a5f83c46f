#pragma once

#include "time/result_error.h"

#include <cstdlib>
#include <ctime>

/// Sets the process's time zone, in the notation of the TZ variable. The target's runtime reads no rules behind the
/// names: there, daylight saving is always in effect from March to November.
inline void set_zone(const char* zone) {
#ifdef _WIN32
    _putenv_s("TZ", zone);
    _tzset();
#else
    setenv("TZ", zone, 1);
    tzset();
#endif
}

/// The result code that a call raises, or 0.
std::int32_t code_of(auto call) {
    try {
        call();
    } catch (const wnt::ResultError& error) {
        return error.code;
    }
    return 0;
}

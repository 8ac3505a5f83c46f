#pragma once

#include <cstdint>

namespace wnt {

inline constexpr std::int32_t general_failure = static_cast<std::int32_t>(0x80004005);
inline constexpr std::int32_t invalid_argument = static_cast<std::int32_t>(0x80070057);

/// What raise_result() throws in a program that is built without the application framework.
struct ResultError {
    std::int32_t code;
};

/// Raises a result code: within the library as the framework's exception, otherwise as a ResultError.
[[noreturn]] void raise_result(std::int32_t code);

} // namespace wnt

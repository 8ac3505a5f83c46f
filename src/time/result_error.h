#pragma once

#include <cstdint>
#include <functional>

namespace wnt {

inline constexpr std::int32_t general_failure = static_cast<std::int32_t>(0x80004005);
inline constexpr std::int32_t invalid_argument = static_cast<std::int32_t>(0x80070057);

/// What raise_result() throws in a program that is built without the application framework.
struct ResultError {
    std::int32_t code;
};

/// Raises a result code: within the library as the framework's exception, otherwise as a ResultError.
[[noreturn]] void raise_result(std::int32_t code);

/// Does the work; false where that raised a result code.
bool without_result_error(const std::function<void()>& work);

} // namespace wnt

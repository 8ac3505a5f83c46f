#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

/// Arithmetic that wraps around, and arithmetic that ends at the limits of its type where it would leave them.
namespace wnt {

namespace wrapped {

constexpr std::int32_t narrow(std::int64_t number) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}
constexpr std::int32_t add(std::int32_t a, std::int32_t b) {
    return narrow(std::int64_t{a} + b);
}
constexpr std::int32_t subtract(std::int32_t a, std::int32_t b) {
    return narrow(std::int64_t{a} - b);
}
constexpr std::int32_t multiply(std::int32_t a, std::int32_t b) {
    return narrow(std::int64_t{a} * b);
}

} // namespace wrapped

constexpr std::int32_t saturated_int(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// Truncates toward zero; not-a-number gives 0.
inline std::int64_t truncated(float value) {
    constexpr float limit = 9223372036854775808.0f; // 2^63
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<std::int64_t>::max();
    return value <= -limit ? std::numeric_limits<std::int64_t>::min() : static_cast<std::int64_t>(value);
}

inline std::int32_t truncated_int(float value) {
    return saturated_int(truncated(value));
}

/// Infinities become the largest numbers, not-a-number becomes 0.
inline float finite(float value) {
    constexpr float limit = std::numeric_limits<float>::max();
    return std::isnan(value) ? 0.0f : std::clamp(value, -limit, limit);
}

constexpr std::int64_t saturated_sum(std::int64_t a, std::int64_t b) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (b > 0 && a > Limits::max() - b)
        return Limits::max();
    return b < 0 && a < Limits::min() - b ? Limits::min() : a + b;
}

constexpr std::int64_t saturated_difference(std::int64_t a, std::int64_t b) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (b < 0 && a > Limits::max() + b)
        return Limits::max();
    return b > 0 && a < Limits::min() + b ? Limits::min() : a - b;
}

/// factor * value / divisor, truncated, exact even where the product needs more than 64 bits; 0 for a divisor of 0.
std::int64_t proportion(std::int64_t factor, std::int64_t value, std::int64_t divisor);

} // namespace wnt

#include "arithmetic.h"

namespace wnt {

namespace {

constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();

std::uint64_t magnitude(std::int64_t value) {
    const auto bits = static_cast<std::uint64_t>(value);
    return value < 0 ? 0 - bits : bits;
}

// Long multiplication, most significant bit of the factor first, that divides as it goes: remainder < divisor holds
// throughout, so twice a remainder fits as long as the divisor is at most 2^63.
std::uint64_t long_proportion(std::uint64_t factor, std::uint64_t value, std::uint64_t divisor) {
    const std::uint64_t whole = value / divisor;
    const std::uint64_t rest = value % divisor;
    std::uint64_t quotient = 0;
    std::uint64_t remainder = 0;
    const auto add = [&](std::uint64_t more_whole, std::uint64_t more_rest) {
        const bool carry = remainder >= divisor - more_rest;
        remainder = carry ? remainder - (divisor - more_rest) : remainder + more_rest;
        quotient += more_whole + carry;
        return quotient <= largest;
    };
    for (int bit = 63; bit >= 0; --bit) {
        if (!add(quotient, remainder) || ((factor >> bit & 1) && !add(whole, rest)))
            return largest;
    }
    return quotient;
}

} // namespace

std::int64_t proportion(std::int64_t factor, std::int64_t value, std::int64_t divisor) {
    if (divisor == 0 || factor == 0 || value == 0)
        return 0;
    const std::uint64_t a = magnitude(factor);
    const std::uint64_t b = magnitude(value);
    const std::uint64_t c = magnitude(divisor);
    const std::uint64_t quotient = std::min(b <= largest / a ? a * b / c : long_proportion(a, b, c), largest);
    const bool negative = (factor < 0) != (value < 0) ? divisor > 0 : divisor < 0;
    return negative ? -static_cast<std::int64_t>(quotient) : static_cast<std::int64_t>(quotient);
}

} // namespace wnt

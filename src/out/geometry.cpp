#include "out/geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace wnt {

namespace {

constexpr double radians_per_unit = 9.587379924316406e-05;

// Kept as it is: with the full value of pi some directions would come out one degree apart.
constexpr double half_turn = 3.14159;

// The halving below keeps numerator and denominator of the meeting point's share in 15 bits.
constexpr std::int64_t largest_denominator = 32767;

std::int32_t cross(detail::Vector a, detail::Vector b) {
    return wrapped::subtract(wrapped::multiply(a.x, b.y), wrapped::multiply(a.y, b.x));
}

int scaled(double factor, int r) {
    return wrapped::narrow(static_cast<std::int64_t>(factor * r));
}

} // namespace

int intsin(std::uint16_t angle, int r) {
    return scaled(std::sin(angle * radians_per_unit), r);
}

int intcos(std::uint16_t angle, int r) {
    return scaled(std::cos(angle * radians_per_unit), r);
}

int muldiv(int a, int b, int c) {
    return c == 0 ? 0 : wrapped::narrow(std::int64_t{a} * b / c);
}

int aproxroot(std::int32_t n) {
    if (n < 0)
        return 1;
    const auto number = static_cast<std::uint32_t>(n);
    std::uint32_t bound = 1;
    std::uint32_t rest = number;
    do {
        bound *= 2;
        rest >>= 1;
    } while (bound <= rest);
    std::uint32_t guess = bound >> 1 | rest;
    std::uint32_t last;
    do {
        last = guess;
        guess = (guess + 1 + number / guess) >> 1;
    } while (guess != last);
    return static_cast<int>(guess);
}

int getangle(int dy, int dx, int num, int den) {
    if (num != den && den != 0)
        dx = muldiv(wrapped::multiply(dx, num), 1, den);
    double degrees = dy > 0 ? 90 : -90;
    if (dx != 0)
        degrees = 2 * std::atan(static_cast<double>(dy) / dx) / half_turn * 90;
    const int angle = static_cast<int>(degrees);
    if (dx < 0)
        return angle + 180;
    return dy < 0 ? angle + 360 : std::abs(angle);
}

int points_center(int a, int b, int c) {
    const std::int64_t low = std::max<std::int64_t>(std::min(a, 0), std::int64_t{b} + std::min(c, 0));
    const std::int64_t high = std::min<std::int64_t>(std::max(a, 0), std::int64_t{b} + std::max(c, 0));
    return wrapped::narrow((high + low) >> 1);
}

int points_testincircle(int dx, int dy, int r) {
    using wrapped::multiply;
    return wrapped::add(multiply(dx, dx), multiply(dy, dy)) < multiply(r, r);
}

detail::Vector detail::intersection_offset(Vector along, Vector other, Vector across) {
    const std::int32_t determinant = cross(along, across);
    if (determinant == 0)
        return {points_center(along.x, other.x, across.x), points_center(along.y, other.y, across.y)};
    std::int64_t denominator = std::abs(std::int64_t{determinant});
    const std::int64_t numerator = cross(other, across);
    std::int64_t share = std::clamp<std::int64_t>(determinant < 0 ? -numerator : numerator, 0, denominator);
    for (; denominator > largest_denominator; denominator >>= 1)
        share >>= 1;
    const auto part = [&](std::int32_t length) {
        return muldiv(length, static_cast<int>(share), static_cast<int>(denominator));
    };
    return {part(along.x), part(along.y)};
}

} // namespace wnt

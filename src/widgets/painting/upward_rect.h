#pragma once

namespace wnt {

/// Edges inclusive, y upwards: top is at or above bottom where there is anything inside.
struct UpwardRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr bool holds(int x, int y) const { return left <= x && x <= right && bottom <= y && y <= top; }
    constexpr bool empty() const { return right < left || top < bottom; }
};

} // namespace wnt

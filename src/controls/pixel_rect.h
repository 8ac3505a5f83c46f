#pragma once

namespace wnt {

/// Client coordinates: y downwards, right and bottom exclusive.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

} // namespace wnt

#pragma once

#include <cstdint>
#include <vector>

/// Devices scan a figure row by row even where nothing of it shows, and take minutes or fail over figures of millions
/// of pixels. Figures are cut to a range far larger than any surface before they are handed over.
namespace wnt {

constexpr int device_range = 1 << 17;

constexpr bool in_device_range(std::int64_t coordinate) {
    return -device_range <= coordinate && coordinate <= device_range;
}

/// True for all points of the array at once; a point type has members x and y.
template <class Point> bool in_device_range(const Point* pts, int n) {
    for (int i = 0; i < n; ++i) {
        if (!in_device_range(pts[i].x) || !in_device_range(pts[i].y))
            return false;
    }
    return true;
}

struct DevicePoint {
    double x;
    double y;
};

/// The part of a polygon that lies in the range.
std::vector<DevicePoint> polygon_in_range(std::vector<DevicePoint> points);

/// Cuts the segment to the range: false when nothing of it is inside.
bool segment_in_range(DevicePoint& from, DevicePoint& to);

} // namespace wnt

#include "out/device_range.h"

#include <algorithm>

namespace wnt {

namespace {

// One side of the range: inside where sign * coordinate <= device_range.
struct Side {
    double DevicePoint::*coordinate;
    double sign;

    double beyond(const DevicePoint& p) const { return sign * p.*coordinate - device_range; }
};

constexpr Side sides[4] = {{&DevicePoint::x, 1}, {&DevicePoint::x, -1}, {&DevicePoint::y, 1}, {&DevicePoint::y, -1}};

DevicePoint crossing(const DevicePoint& a, const DevicePoint& b, const Side& side) {
    const double t = side.beyond(a) / (side.beyond(a) - side.beyond(b));
    return {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
}

} // namespace

std::vector<DevicePoint> polygon_in_range(std::vector<DevicePoint> points) {
    for (const Side& side : sides) {
        std::vector<DevicePoint> kept;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const DevicePoint& from = points[i == 0 ? points.size() - 1 : i - 1];
            const DevicePoint& to = points[i];
            if ((side.beyond(from) > 0) != (side.beyond(to) > 0))
                kept.push_back(crossing(from, to, side));
            if (side.beyond(to) <= 0)
                kept.push_back(to);
        }
        points = std::move(kept);
    }
    return points;
}

bool segment_in_range(DevicePoint& from, DevicePoint& to) {
    for (const Side& side : sides) {
        const bool from_out = side.beyond(from) > 0;
        const bool to_out = side.beyond(to) > 0;
        if (from_out && to_out)
            return false;
        if (from_out)
            from = crossing(from, to, side);
        else if (to_out)
            to = crossing(from, to, side);
    }
    return true;
}

} // namespace wnt

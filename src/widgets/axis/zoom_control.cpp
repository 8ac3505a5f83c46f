#include "widgets/axis/zoom_control.h"

#include <algorithm>

namespace wnt {

namespace {

constexpr std::int32_t grip = 5;

// A box along one direction.
struct Stretch {
    std::int32_t& start;
    std::int32_t& end;
};

Stretch along(AxisRect& box, bool horizontal) {
    return horizontal ? Stretch{box.left, box.right} : Stretch{box.top, box.bottom};
}

void move(Stretch slider, const Stretch& box, std::int32_t way) {
    const std::int32_t kept = std::max(way, box.start - slider.start);
    slider.start = std::min(slider.start + kept, box.end);
    slider.end = std::min(slider.end + kept, box.end);
}

} // namespace

void ZoomControl::lay_out(const AxisModel& axis, bool with_slider) {
    const AxisRect& r = axis.rect;
    switch (axis.position) {
    case axis_top:
        box = {r.left + 2, r.top + 7, r.right - 2, r.top + 2}; // intended: reversed, so nothing hits it
        break;
    case axis_left:
        box = {r.left, r.top, r.left + 8, r.bottom};
        break;
    case axis_bottom:
        box = {r.left, r.bottom - 9, r.right, r.bottom - 1};
        break;
    case axis_right:
        box = {r.right - 8, r.top, r.right, r.bottom};
        break;
    default:
        break;
    }
    if (with_slider)
        slider = box;
}

bool ZoomControl::part(bool horizontal, double& from, double& to) const {
    AxisRect boxes[] = {box, slider};
    const Stretch whole = along(boxes[0], horizontal), covered = along(boxes[1], horizontal);
    const std::int32_t start = std::max(covered.start, whole.start), end = std::min(covered.end, whole.end);
    if (start >= end)
        return false;
    const double length = whole.end - whole.start;
    from = (horizontal ? start - whole.start : whole.end - end) / length;
    to = (horizontal ? end - whole.start : whole.end - start) / length;
    return true;
}

bool ZoomControl::hit(std::int32_t x, std::int32_t y) const {
    return box.left <= x && x < box.right && box.top <= y && y < box.bottom;
}

ZoomGrip ZoomControl::grip_at(bool horizontal, std::int32_t x, std::int32_t y) const {
    const std::int32_t start = horizontal ? slider.left : slider.top;
    const std::int32_t end = horizontal ? slider.right : slider.bottom;
    const std::int32_t at = horizontal ? x : y;
    if (at < start || at >= end)
        return ZoomGrip::none;
    return at < start + grip || at >= end - grip ? ZoomGrip::enlarge : ZoomGrip::move;
}

ZoomGrip ZoomControl::hover(bool horizontal, std::int32_t x, std::int32_t y) {
    const ZoomGrip found = grip_at(horizontal, x, y);
    enlarging = found == ZoomGrip::enlarge;
    far_end = (horizontal ? x - slider.left : y - slider.top) >= grip;
    return found;
}

void ZoomControl::drag(bool horizontal, std::int32_t x, std::int32_t y) {
    const std::int32_t at = horizontal ? x : y;
    const Stretch s = along(slider, horizontal);
    if (enlarging)
        (far_end ? s.end : s.start) = at;
    else
        move(s, along(box, horizontal), at - (horizontal ? last_x : last_y));
    last_x = x;
    last_y = y;
}

} // namespace wnt

#include "out/wnt_out.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "out/device_range.h"
#include "out/device_state.h"

namespace {

constexpr int copied_points = 20;
constexpr int widest_line = 0x7FFF;

wnt::DevicePoint precise(const POINT& p) {
    return {static_cast<double>(p.x), static_cast<double>(p.y)};
}

POINT point_of(const Tpt& p) {
    return {p.x, p.y};
}

POINT rounded(const wnt::DevicePoint& p) {
    return {std::lround(p.x), std::lround(p.y)};
}

void draw_far_polygon(HDC dc, const POINT* pts, int n) {
    std::vector<wnt::DevicePoint> whole(n);
    std::transform(pts, pts + n, whole.begin(), precise);
    const auto kept = wnt::polygon_in_range(std::move(whole));
    std::vector<POINT> near_points(kept.size());
    std::transform(kept.begin(), kept.end(), near_points.begin(), rounded);
    ::Polygon(dc, near_points.data(), static_cast<int>(near_points.size()));
}

void draw_polygon(HDC dc, const POINT* pts, int n) {
    if (wnt::in_device_range(pts, n)) {
        ::Polygon(dc, pts, n);
        return;
    }
    try {
        draw_far_polygon(dc, pts, n);
    } catch (const std::bad_alloc&) { // not drawn: the caller's points are yet to be flipped back
    }
}

void draw_polyline(HDC dc, const POINT* pts, int n) {
    if (wnt::in_device_range(pts, n)) {
        ::Polyline(dc, pts, n);
        return;
    }
    for (int i = 1; i < n; ++i) {
        wnt::DevicePoint from = precise(pts[i - 1]);
        wnt::DevicePoint to = precise(pts[i]);
        if (!wnt::segment_in_range(from, to))
            continue;
        const POINT segment[2] = {rounded(from), rounded(to)};
        ::Polyline(dc, segment, 2);
    }
}

} // namespace

void CWntOut::flip_points(POINT* pts, int n) const {
    for (int i = 0; i < n; ++i)
        pts[i].y = flip(pts[i].y);
}

void CWntOut::dopoly(POINT* pts, int n, long fill) {
    if (!ready() || !pts || n < 1)
        return;
    RECT bounds;
    calcpolywind(&bounds, pts, n);
    if (!clipit(bounds.left, bounds.bottom, bounds.right, bounds.top))
        return;
    const int mix = ::GetBkMode(dc);
    flip_points(pts, n);
    ::SetBkMode(dc, fillcolour_ & 0x1000 ? TRANSPARENT : OPAQUE); // intended: decided by a bit of the colour
    ::SetPolyFillMode(dc, ALTERNATE);
    const COLORREF outline = linecolour_;
    if (!fill)
        linecolour(fillcolour_, 0);
    draw_polygon(dc, pts, n);
    flip_points(pts, n);
    if (!fill)
        linecolour(outline, 0);
    ::SetBkMode(dc, mix);
}

void CWntOut::poly_copy(const Tpt* pts, int n, long fill) {
    if (!ready() || !pts || n < 1)
        return;
    POINT copy[copied_points];
    n = std::min(n, copied_points);
    std::transform(pts, pts + n, copy, point_of);
    dopoly(copy, n, fill);
}

void CWntOut::fillpoly(Tpt* pts, int n) {
    poly_copy(pts, n, 1);
}

void CWntOut::fillpoly(POINT* pts, int n) {
    dopoly(pts, n, 1);
}

void CWntOut::solidpoly(Tpt* pts, int n) {
    poly_copy(pts, n, 0);
}

void CWntOut::solidpoly(POINT* pts, int n) {
    dopoly(pts, n, 0);
}

void CWntOut::geomline(Tpt* pts, int n, int width) {
    if (!ready() || !pts || n < 1)
        return;
    std::unique_ptr<POINT[]> copy(new (std::nothrow) POINT[n]);
    if (!copy)
        return;
    std::transform(pts, pts + n, copy.get(), point_of);
    geomline(copy.get(), n, width);
}

void CWntOut::geomline(POINT* pts, int n, int width) {
    if (!ready() || !pts || n < 2)
        return;
    flip_points(pts, n);
    if (width == 0) {
        draw_polyline(dc, pts, n);
    } else {
        wnt::GdiObject<HPEN> wide(
            ::CreatePen(PS_SOLID, std::clamp(width, -widest_line, widest_line - 1) + 1, fillcolour_));
        wnt::SelectGuard selected(dc, wide.get());
        draw_polyline(dc, pts, n);
    }
    flip_points(pts, n);
}

template <class Point> void CWntOut::draw_crosslines(const Point* pts, int n, int step) {
    if (!ready() || !pts)
        return;
    for (int i = 0; i < n; ++i) {
        ::MoveToEx(dc, pts[i].x, flip(pts[i].y), nullptr);
        ::LineTo(dc, pts[i + step].x, flip(pts[i + step].y));
    }
}

void CWntOut::crosslines(Tpt* pts, int n, int step) {
    draw_crosslines(pts, n, step);
}

void CWntOut::crosslines(POINT* pts, int n, int step) {
    draw_crosslines(pts, n, step);
}

void CWntOut::trackpoly(Tpt* pts, int n) {
    if (!ready())
        return;
    wnt::XorGuard mix(dc);
    solidpoly(pts, n);
}

void CWntOut::trackpoly(POINT* pts, int n) {
    if (!ready())
        return;
    wnt::XorGuard mix(dc);
    solidpoly(pts, n);
}

#pragma once

#include <cstdint>

#include "arithmetic.h"

/// Integer geometry in library coordinates (y up). A point type has members x and y, a rectangle type left, top,
/// right and bottom with top as the upper y, all signed and 32 bits wide.
namespace wnt {

/// Sine of a binary angle (65536 units a turn, 0 along +x, growing towards +y) times r, truncated towards zero.
int intsin(std::uint16_t angle, int r);

/// Cosine of a binary angle times r, truncated towards zero.
int intcos(std::uint16_t angle, int r);

/// a * b / c with a 64-bit product, truncated towards zero; 0 when c is 0.
int muldiv(int a, int b, int c);

/// Square root rounded to the nearest, at least 1; numbers k(k + 1) go up. Negative numbers give 1.
int aproxroot(std::int32_t n);

/// Direction of the vector (dx * num / den, dy) in whole degrees 0..360, counter-clockwise from +x. The empty vector
/// gives 90, one just below +x 360.
int getangle(int dy, int dx, int num, int den);

/// Middle of the overlap of the intervals 0 to a and b to b + c; either may run backwards.
int points_center(int a, int b, int c);

/// 1 when dx * dx + dy * dy < r * r.
int points_testincircle(int dx, int dy, int r);

namespace detail {

struct Vector {
    std::int32_t x;
    std::int32_t y;
};

/// The way from `from` along the segment by `along` to where it meets the line through (from + other) in the
/// direction `across`, clamped to the segment; for parallels to the middle of the overlap.
Vector intersection_offset(Vector along, Vector other, Vector across);

} // namespace detail

/// The point of the segment (x1, y1)-(x2, y2) where it meets the line through (x3, y3) and (x4, y4), clamped to the
/// segment; for parallels the middle of their overlap.
template <class Point>
void points_intersect(Point* out, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    if (!out)
        return;
    using wrapped::subtract;
    const detail::Vector offset =
        detail::intersection_offset({subtract(x2, x1), subtract(y2, y1)}, {subtract(x3, x1), subtract(y3, y1)},
                                    {subtract(x4, x3), subtract(y4, y3)});
    out->x = wrapped::add(x1, offset.x);
    out->y = wrapped::add(y1, offset.y);
}

/// Moves the end (x1, y1) of the segment onto the rectangle along the segment: 0 when the segment is seen to miss it,
/// which is also the answer to a horizontal segment above or below and a vertical one beside it.
template <class Point, class Rect> int points_partclip(Point* out, const Rect* r, int x1, int y1, int x2, int y2) {
    if (!out || !r)
        return 0;
    using wrapped::add, wrapped::subtract;
    const int dx = subtract(x1, x2);
    const int dy = subtract(y1, y2);
    int x = x1;
    out->x = x1;
    out->y = y1;
    if (y1 < r->bottom || y1 > r->top) {
        if (dy == 0)
            return 0;
        const int limit = y1 < r->bottom ? r->bottom : r->top;
        x = add(muldiv(dx, subtract(limit, y2), dy), x2);
        out->x = x;
        out->y = limit;
        if ((x < r->left && x2 < r->left) || (x > r->right && x2 > r->right))
            return 0;
    }
    if (r->left <= x && x <= r->right)
        return 1;
    if (dx == 0)
        return 0;
    const int limit = x < r->left ? r->left : r->right;
    out->x = limit;
    out->y = add(muldiv(dy, subtract(limit, x2), dx), y2);
    return 1;
}

/// Clips the segment to the rectangle: on 1 out[0] and out[1] hold its ends, 0 when nothing of it is inside.
template <class Point, class Rect> int points_clipline(Point* out, const Rect* r, int x1, int y1, int x2, int y2) {
    if (!out || !r)
        return 0;
    const bool beside = (x1 < r->left && x2 < r->left) || (x1 > r->right && x2 > r->right);
    const bool apart = (y1 < r->bottom && y2 < r->bottom) || (y1 > r->top && y2 > r->top);
    if (beside || apart || !points_partclip(&out[0], r, x1, y1, x2, y2))
        return 0;
    return points_partclip(&out[1], r, x2, y2, x1, y1) != 0;
}

/// For three points: 1 when "the path p[1], p[0], p[2] turns clockwise" (1 or 0) differs from `sense`, else 0.
template <class Point> int points_testclock(const Point* p, int sense) {
    if (!p)
        return 0;
    using wrapped::subtract, wrapped::multiply;
    const int clockwise = multiply(subtract(p[0].y, p[1].y), subtract(p[2].x, p[0].x)) >
                          multiply(subtract(p[0].x, p[1].x), subtract(p[2].y, p[0].y));
    return clockwise != sense;
}

/// 1 when (x, y) lies inside the convex polygon of n clockwise vertices; a point on an edge is outside, and a polygon
/// without vertices holds everything. 0 without points.
template <class Point> int points_testinpoly(int x, int y, const Point* poly, int n) {
    if (!poly && n > 0)
        return 0;
    for (int i = 0; i < n; ++i) {
        Point corner[3] = {poly[i], poly[i == 0 ? n - 1 : i - 1], {}};
        corner[2].x = x;
        corner[2].y = y;
        if (!points_testclock(corner, 0))
            return 0;
    }
    return 1;
}

/// 1 when left <= x < right and bottom <= ymax - y <= top. That the right edge is outside and that the point alone is
/// flipped to device form is intended.
template <class Rect> int points_testinrect(int x, int y, const Rect& r, int ymax) {
    const int flipped = wrapped::subtract(ymax, y);
    return r.left <= x && x < r.right && r.bottom <= flipped && flipped <= r.top;
}

/// Bounding rectangle of the points; with n below 2 it is the first point. Nothing without points.
template <class Rect, class Point> void calcpolywind(Rect* out, const Point* pts, int n) {
    if (!out || !pts)
        return;
    out->left = out->right = pts[0].x;
    out->top = out->bottom = pts[0].y;
    for (int i = 1; i < n; ++i) {
        if (pts[i].x < out->left)
            out->left = pts[i].x;
        if (pts[i].x > out->right)
            out->right = pts[i].x;
        if (pts[i].y < out->bottom)
            out->bottom = pts[i].y;
        if (pts[i].y > out->top)
            out->top = pts[i].y;
    }
}

} // namespace wnt

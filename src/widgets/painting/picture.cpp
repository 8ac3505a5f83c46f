#include "widgets/painting/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace wnt {

namespace {

constexpr int most_corners = 400;
constexpr int corner_step = 8; // of whole circles

// Enough corners that a circle of this radius deviates by less than a tenth of a pixel.
int corners_for(float radius, float angle) {
    const float turn = std::sqrt(std::max(radius, 1.0f)) * 7.5f;
    const float part = turn * std::abs(angle) / (2 * std::numbers::pi_v<float>);
    return std::clamp(static_cast<int>(std::ceil(part)), 1, most_corners);
}

using Circles = std::array<std::vector<PointF>, most_corners / corner_step>;

Circles make_unit_circles() {
    Circles circles;
    for (std::size_t k = 0; k < circles.size(); ++k) {
        const int corners = static_cast<int>(k + 1) * corner_step;
        for (int i = 0; i < corners; ++i) {
            const float angle = 2 * std::numbers::pi_v<float> * static_cast<float>(i) / static_cast<float>(corners);
            circles[k].push_back({std::cos(angle), std::sin(angle)});
        }
    }
    return circles;
}

// The corners of a circle of radius 1, at least as many as asked for. They are made once, since every value's picture
// has discs.
const std::vector<PointF>& unit_circle(int corners) {
    static const Circles circles = make_unit_circles();
    return circles[static_cast<std::size_t>((corners - 1) / corner_step)];
}

BoxF bounds_of(const PointF* points, int count) {
    BoxF b = {points[0].x, points[0].y, points[0].x, points[0].y};
    for (int i = 1; i < count; ++i)
        b = hull(b, {points[i].x, points[i].y, points[i].x, points[i].y});
    return b;
}

} // namespace

BoxF intersection(const BoxF& a, const BoxF& b) {
    return {std::max(a.left, b.left), std::max(a.bottom, b.bottom), std::min(a.right, b.right), std::min(a.top, b.top)};
}

BoxF hull(const BoxF& a, const BoxF& b) {
    return {std::min(a.left, b.left), std::min(a.bottom, b.bottom), std::max(a.right, b.right), std::max(a.top, b.top)};
}

Colour blend(Colour a, Colour b, int weight) {
    Colour result = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int from = static_cast<int>(a >> shift & 0xFF);
        const int to = static_cast<int>(b >> shift & 0xFF);
        result |= static_cast<Colour>(from + (to - from) * weight / 256) << shift;
    }
    return result;
}

int brightness(Colour colour) {
    return static_cast<int>((colour & 0xFF) * 77 + (colour >> 8 & 0xFF) * 151 + (colour >> 16 & 0xFF) * 28) >> 8;
}

void Picture::clear() {
    figures_.clear();
    points_.clear();
    characters_.clear();
}

void Picture::box(const BoxF& area, Colour colour) {
    // An empty box keeps its place, so that lists compare figure by figure.
    figures_.push_back({Kind::box, {}, colour, 0, 0, 0, area.empty() ? BoxF{} : area, {}});
}

void Picture::polygon(const PointF* points, int count, Colour colour) {
    if (count < 3)
        return;
    const auto first = static_cast<std::uint32_t>(points_.size());
    points_.insert(points_.end(), points, points + count);
    figures_.push_back(
        {Kind::polygon, {}, colour, 0, first, static_cast<std::uint32_t>(count), bounds_of(points, count), {}});
}

void Picture::disc(PointF centre, float radius, Colour colour) {
    if (!(radius > 0)) {
        box({}, 0); // keeps its place
        return;
    }
    PointF corners[most_corners];
    const std::vector<PointF>& circle = unit_circle(corners_for(radius, 2 * std::numbers::pi_v<float>));
    for (std::size_t i = 0; i < circle.size(); ++i)
        corners[i] = {centre.x + radius * circle[i].x, centre.y + radius * circle[i].y};
    polygon(corners, static_cast<int>(circle.size()), colour);
}

void Picture::ring_sector(PointF centre, float inner, float outer, float from, float to, Colour colour) {
    if (!(outer > inner) || from == to)
        return;
    PointF corners[2 * most_corners + 2];
    const int n = corners_for(outer, to - from);
    for (int i = 0; i <= n; ++i) {
        const float angle = from + (to - from) * static_cast<float>(i) / static_cast<float>(n);
        const float c = std::cos(angle);
        const float s = std::sin(angle);
        corners[i] = {centre.x + outer * c, centre.y + outer * s};
        corners[2 * n + 1 - i] = {centre.x + inner * c, centre.y + inner * s};
    }
    polygon(corners, 2 * n + 2, colour);
}

void Picture::stroke(PointF from, PointF to, float width, Colour colour) {
    const float dx = to.x - from.x;
    const float dy = to.y - from.y;
    const float length = std::sqrt(dx * dx + dy * dy);
    if (!(length > 0))
        return;
    const float nx = -dy / length * width / 2;
    const float ny = dx / length * width / 2;
    const PointF corners[4] = {
        {from.x + nx, from.y + ny}, {to.x + nx, to.y + ny}, {to.x - nx, to.y - ny}, {from.x - nx, from.y - ny}};
    polygon(corners, 4, colour);
}

void Picture::text(TextMeter& meter, PointF at, HAlign align, int tenths, Colour colour, std::string_view text,
                   const BoxF* clip) {
    if (text.empty() || tenths <= 0)
        return;
    const float width = meter.width(text, tenths);
    const float left = align == HAlign::left ? at.x : align == HAlign::right ? at.x - width : at.x - width / 2;
    // A glyph may lean over its cell by a pixel.
    BoxF cell = {std::floor(left) - 1, std::floor(at.y), std::ceil(left + width) + 1,
                 std::ceil(at.y + meter.metrics(tenths).height())};
    if (clip)
        cell = intersection(cell, *clip);
    if (cell.empty())
        return;
    const auto first = static_cast<std::uint32_t>(characters_.size());
    characters_.insert(characters_.end(), text.begin(), text.end());
    figures_.push_back({Kind::text, align, colour, tenths, first, static_cast<std::uint32_t>(text.size()), cell, at});
}

bool Picture::same(const Picture& a, const Picture& b, std::size_t i) {
    const Figure& f = a.figures_[i];
    const Figure& g = b.figures_[i];
    if (f.kind != g.kind || f.align != g.align || f.colour != g.colour || f.tenths != g.tenths || f.count != g.count ||
        f.bounds != g.bounds || f.at != g.at)
        return false;
    if (f.kind == Kind::text)
        return a.characters(f) == b.characters(g);
    return f.kind == Kind::box || std::equal(a.points(f), a.points(f) + f.count, b.points(g));
}

} // namespace wnt

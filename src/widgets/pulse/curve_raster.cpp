#include "widgets/pulse/curve_raster.h"

#include <algorithm>
#include <cmath>

namespace wnt {

namespace {

struct Pattern {
    std::uint32_t bits; // the lowest first
    int period;         // 0: no gaps
};

// By the surface's line styles.
constexpr Pattern solid{1, 0}, dotted{0b0011, 4}, dashed{0b0000'1111'1111, 12}, dash_dot{0b000'11'000'1111'1111, 16},
    dash_dot_dot{0b000'11'000'11'000'1111'1111, 21};
constexpr Pattern patterns[] = {solid, solid, dotted, dashed, dash_dot, dotted, dashed, dash_dot_dot};

const Pattern& pattern_of(const CurveStyle& style) {
    return 0 <= style.line && style.line < static_cast<int>(std::size(patterns)) ? patterns[style.line] : solid;
}

CurveStyle bounded(CurveStyle style) {
    style.thickness = std::clamp(style.thickness, 1, 4);
    return style;
}

} // namespace

CurveRaster::CurveRaster(const PlotCanvas& canvas, const PlotArea& area, std::int64_t origin, const ValueScale& scale,
                         const CurveStyle& style)
    : canvas_(canvas), area_{std::max(area.left, 0), std::max(area.top, 0), std::min(area.right, canvas.width),
                             std::min(area.bottom, canvas.height)},
      origin_(origin), scale_(scale), style_(bounded(style)) {}

CurveRaster::~CurveRaster() {
    if (lonely_)
        mark(*lonely_);
}

void CurveRaster::run(const ColumnRun& run) {
    const Place first{run.column - origin_, scale_.row(run.first)};
    if (lonely_ && first.x - lonely_->x >= mark_distance)
        mark(*lonely_);
    lonely_.reset();
    if (style_.marks && run.samples == 1 && (!last_ || first.x - last_->x >= mark_distance))
        lonely_ = first;
    if (run.joined && last_)
        connect(*last_, first);
    upright(first.x, scale_.row(run.high), scale_.row(run.low));
    last_ = {first.x, scale_.row(run.last)};
}

bool CurveRaster::covered(std::int64_t column, double low, double high) {
    const std::int64_t x = column - origin_;
    const int reach = style_.thickness - 1;
    if (x + reach < area_.left || x >= area_.right)
        return true;
    const auto top = std::max(scale_.row(high), area_.top - reach);
    const auto bottom = std::min(scale_.row(low), area_.bottom - 1);
    for (std::int32_t row = top; row <= bottom; ++row) {
        if (!shown(x, row))
            continue;
        for (auto y = std::max(row, area_.top); y <= std::min(row + reach, area_.bottom - 1); ++y)
            for (auto at = std::max<std::int64_t>(x, area_.left);
                 at <= std::min<std::int64_t>(x + reach, area_.right - 1); ++at)
                if (canvas_.row(y)[at] != style_.colour)
                    return false;
    }
    return true;
}

void CurveRaster::connect(const Place& from, const Place& to) {
    if (style_.steps) {
        flat_line(from, {to.x, from.row});
        upright(to.x, std::min(from.row, to.row), std::max(from.row, to.row));
    } else if (to.x - from.x >= std::abs(to.row - from.row)) {
        flat_line(from, to);
    } else {
        steep_line(from, to);
    }
}

// One row a column. The ends count from the line's beginning, so that a part of a line is as the whole has it.
void CurveRaster::flat_line(const Place& from, const Place& to) {
    const std::int64_t end = std::min<std::int64_t>(to.x, area_.right - 1);
    const double slope =
        to.x == from.x ? 0 : static_cast<double>(to.row - from.row) / static_cast<double>(to.x - from.x);
    for (std::int64_t x = std::max<std::int64_t>(from.x, area_.left - style_.thickness); x <= end; ++x) {
        const auto row =
            from.row + static_cast<std::int32_t>(std::floor(static_cast<double>(x - from.x) * slope + 0.5));
        upright(x, row, row);
    }
}

// One column a row: of each column the rows whose middle lies nearest to it.
void CurveRaster::steep_line(const Place& from, const Place& to) {
    const std::int64_t columns = to.x - from.x;
    const std::int32_t rows = to.row - from.row;
    const double slope = columns == 0 ? 0 : std::abs(rows) / static_cast<double>(columns);
    const int down = rows < 0 ? -1 : 1;
    const std::int64_t end = std::min<std::int64_t>(to.x, area_.right - 1);
    for (std::int64_t x = std::max<std::int64_t>(from.x, area_.left - style_.thickness); x <= end; ++x) {
        const auto step = static_cast<double>(x - from.x);
        const int first = x == from.x ? 0 : static_cast<int>(std::floor((step - 0.5) * slope)) + 1;
        const int last = x == to.x ? std::abs(rows) : static_cast<int>(std::floor((step + 0.5) * slope));
        const std::int32_t a = from.row + down * first, b = from.row + down * last;
        upright(x, std::min(a, b), std::max(a, b));
    }
}

bool CurveRaster::shown(std::int64_t x, std::int32_t row) const {
    const Pattern& pattern = pattern_of(style_);
    if (pattern.period == 0)
        return true;
    const std::int64_t phase = (x + origin_ + row) % pattern.period;
    return pattern.bits >> (phase < 0 ? phase + pattern.period : phase) & 1;
}

void CurveRaster::upright(std::int64_t x, std::int32_t top, std::int32_t bottom) {
    const int reach = style_.thickness - 1;
    if (x + reach < area_.left || x >= area_.right)
        return;
    top = std::max(top, area_.top - reach);
    bottom = std::min(bottom, area_.bottom - 1);
    if (pattern_of(style_).period == 0)
        return paint(static_cast<std::int32_t>(x), top, bottom);
    for (std::int32_t row = top; row <= bottom; ++row)
        if (shown(x, row))
            paint(static_cast<std::int32_t>(x), row, row);
}

// As thick as the style wants it, to the right and downwards.
void CurveRaster::paint(std::int32_t x, std::int32_t top, std::int32_t bottom) {
    if (top > bottom)
        return;
    const std::int32_t left = std::max(x, area_.left), right = std::min(x + style_.thickness, area_.right);
    bottom = std::min(bottom + style_.thickness, area_.bottom);
    for (std::int32_t row = std::max(top, area_.top); row < bottom; ++row) {
        std::uint32_t* const pixels = canvas_.row(row);
        for (std::int32_t at = left; at < right; ++at)
            pixels[at] = style_.colour;
    }
}

// A small square, whatever the line's pattern.
void CurveRaster::mark(const Place& at) {
    const int reach = 1 + style_.thickness;
    for (std::int64_t x = at.x - reach; x <= at.x + reach; ++x)
        if (area_.left - style_.thickness < x && x < area_.right)
            paint(static_cast<std::int32_t>(x), std::max(at.row - reach, area_.top - reach),
                  std::min(at.row + reach, area_.bottom));
}

} // namespace wnt

#include "widgets/pulse/pulse_picture.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace wnt {

namespace {

bool same(const PlotCurve& a, const PlotCurve& b) {
    return a.series == b.series && a.scale == b.scale && a.style == b.style && a.longest_pause == b.longest_pause;
}

// Joined with those that it touches.
void add(std::vector<PulsePicture::Stretch>& stretches, PulsePicture::Stretch added) {
    if (added.left >= added.right)
        return;
    std::erase_if(stretches, [&](const PulsePicture::Stretch& other) {
        const bool touches = other.left <= added.right && added.left <= other.right;
        if (touches)
            added = {std::min(added.left, other.left), std::max(added.right, other.right)};
        return touches;
    });
    stretches.push_back(added);
}

} // namespace

void PulsePicture::show(const PlotScene& scene, bool anew) {
    const std::int64_t width = scene.columns.width;
    const std::int64_t moved = scene.origin - scene_.origin;
    drawn_ = {{0, width}};
    moved_ = 0;
    if (!anew && follows(scene) && -width < moved && moved < width && same_grid(scene, moved)) {
        drawn_ = stale(scene, moved);
        moved_ = moved;
        move(moved);
    }
    remember(scene);
    for (const Stretch& stretch : drawn_)
        draw(stretch);
}

// But for the origin and for what was appended.
bool PulsePicture::follows(const PlotScene& scene) const {
    return !pixels_.empty() && scene.columns.span == scene_.columns.span &&
           scene.columns.width == scene_.columns.width && scene.height == scene_.height &&
           scene.background == scene_.background && scene.grid == scene_.grid && scene.grid_rows == scene_.grid_rows &&
           std::equal(scene.curves.begin(), scene.curves.end(), scene_.curves.begin(), scene_.curves.end(), same);
}

// On the columns that stay.
bool PulsePicture::same_grid(const PlotScene& scene, std::int64_t moved) const {
    const std::int64_t from = std::max(scene.origin, scene_.origin);
    const std::int64_t to = from + scene.columns.width - std::abs(moved);
    const auto staying = [&](const std::vector<std::int64_t>& columns) {
        return std::pair(std::lower_bound(columns.begin(), columns.end(), from),
                         std::lower_bound(columns.begin(), columns.end(), to));
    };
    const auto [now, now_end] = staying(scene.grid_columns);
    const auto [before, before_end] = staying(scene_.grid_columns);
    return std::equal(now, now_end, before, before_end);
}

// What moving leaves open, what new samples change and what lost samples leave behind.
std::vector<PulsePicture::Stretch> PulsePicture::stale(const PlotScene& scene, std::int64_t moved) const {
    const std::int64_t width = scene.columns.width;
    Stretch fresh{moved < 0 ? 0 : width - moved, moved < 0 ? -moved : width};
    std::int64_t changed = width, left_over = 0;
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const PulseSeries& series = *scene.curves[i].series;
        const Shown& before = shown_[i];
        const int margin = CurveRaster::margin(scene.curves[i].style);
        if (series.end() < before.end || series.first() > before.end || (before.first == before.end && series.size()))
            return {{0, width}}; // begun anew, or nothing of what was shown is left
        if (series.end() != before.end)
            changed = std::min(changed, before.newest_column - scene.origin - margin);
        if (series.first() != before.first && series.first() != series.end())
            left_over = std::max(left_over, scene.columns.column(series[series.first()].time) - scene.origin + margin);
        if (series.size() == 0 && before.first != before.end)
            return {{0, width}};
    }
    std::vector<Stretch> result;
    for (const Stretch& stretch :
         {Stretch{0, std::min(left_over, width)}, Stretch{std::max<std::int64_t>(changed, 0), width}, fresh})
        add(result, stretch);
    return result;
}

void PulsePicture::move(std::int64_t columns) {
    const std::ptrdiff_t width = scene_.columns.width, wanted = offset_ + columns;
    if (0 <= wanted && wanted <= width) {
        offset_ = wanted;
        return;
    }
    // The other way round there is most room where scrolling goes on.
    const std::ptrdiff_t start = columns > 0 ? 0 : width;
    const std::ptrdiff_t kept = width - std::abs(columns);
    const std::ptrdiff_t from = offset_ + std::max<std::int64_t>(columns, 0),
                         to = start + std::max<std::int64_t>(-columns, 0);
    for (std::int32_t row = 0; row < scene_.height; ++row) {
        std::uint32_t* const pixels = pixels_.data() + row * stride();
        std::memmove(pixels + to, pixels + from, static_cast<std::size_t>(kept) * sizeof *pixels);
    }
    offset_ = start;
}

void PulsePicture::remember(const PlotScene& scene) {
    const std::size_t size = std::size_t{2} * scene.columns.width * scene.height;
    if (pixels_.size() != size || scene.columns.width != scene_.columns.width) {
        pixels_.resize(size); // first: without memory all stays as it was
        offset_ = 0;
    }
    scene_ = scene;
    shown_.clear();
    for (const PlotCurve& curve : scene.curves)
        shown_.push_back({curve.series->first(), curve.series->end(),
                          curve.series->size() ? scene.columns.column(curve.series->newest()) : 0});
}

void PulsePicture::draw(const Stretch& stretch) {
    const auto left = static_cast<std::int32_t>(stretch.left), right = static_cast<std::int32_t>(stretch.right);
    const auto fill = [&](std::int32_t row, std::uint32_t colour) {
        std::fill(canvas().row(row) + left, canvas().row(row) + right, colour);
    };
    for (std::int32_t row = 0; row < scene_.height; ++row)
        fill(row, scene_.background);
    for (const std::int32_t row : scene_.grid_rows)
        if (0 <= row && row < scene_.height)
            fill(row, scene_.grid);
    for (const std::int64_t column : scene_.grid_columns)
        if (const std::int64_t x = column - scene_.origin; left <= x && x < right)
            for (std::int32_t row = 0; row < scene_.height; ++row)
                canvas().row(row)[x] = scene_.grid;
    for (const PlotCurve& curve : scene_.curves) {
        CurveRaster raster(canvas(), {left, 0, right, scene_.height}, scene_.origin, curve.scale, curve.style);
        const int margin = CurveRaster::margin(curve.style);
        paint_columns(*curve.series, scene_.columns, scene_.origin + left - margin, scene_.origin + right + margin,
                      curve.longest_pause, raster);
    }
}

} // namespace wnt

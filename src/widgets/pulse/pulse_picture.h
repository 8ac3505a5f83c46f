#pragma once

#include "pulse/pulse_columns.h"
#include "widgets/pulse/curve_raster.h"
#include "widgets/pulse/value_scale.h"

#include <cstdint>
#include <vector>

namespace wnt {

struct PlotCurve {
    const PulseSeries* series;
    ValueScale scale; ///< of the plot's height
    CurveStyle style;
    std::int64_t longest_pause; ///< hundredths; a longer one is a gap
};

/// What a plot shows. Colours are 0x00RRGGBB.
struct PlotScene {
    ColumnScale columns;     ///< its width is the plot's
    std::int64_t origin = 0; ///< the column at the left edge
    std::int32_t height = 1;
    std::uint32_t background = 0xFFFFFF;
    std::uint32_t grid = 0xC0C0C0;
    std::vector<std::int64_t> grid_columns; ///< ascending
    std::vector<std::int32_t> grid_rows;
    std::vector<PlotCurve> curves; ///< later ones over earlier ones
};

/// A plot's pixels, which follow the scene: what stays the same is kept, new columns alone are drawn. The result is
/// what drawing everything anew gives, pixel for pixel.
class PulsePicture {
public:
    static constexpr std::int32_t most_width = 1 << 13, most_height = 1 << 13;

    /// Series must live as long as they are shown. Draws everything where `anew` is set or the scene differs in more
    /// than its origin and what was appended to the series.
    void show(const PlotScene& scene, bool anew = false);

    PlotCanvas canvas() { return {pixels_.data() + offset_, scene_.columns.width, scene_.height, stride()}; }
    /// Of the canvas in its rows.
    std::ptrdiff_t offset() const { return offset_; }
    struct Stretch { ///< of x
        std::int64_t left, right;
    };
    /// What the last show() did: by how many columns what was there went to the left, and which it drew after that,
    /// each once.
    std::int64_t moved() const { return moved_; }
    const std::vector<Stretch>& drawn() const { return drawn_; }

private:
    struct Shown { // of a series
        std::uint64_t first, end;
        std::int64_t newest_column;
    };

    bool follows(const PlotScene& scene) const;
    bool same_grid(const PlotScene& scene, std::int64_t moved) const;
    std::vector<Stretch> stale(const PlotScene& scene, std::int64_t moved) const;
    void move(std::int64_t columns);
    void draw(const Stretch& stretch);
    void remember(const PlotScene& scene);

    PlotScene scene_;
    std::vector<Shown> shown_;
    std::ptrdiff_t stride() const { return std::ptrdiff_t{2} * scene_.columns.width; }

    // Rows twice as long as the plot, which slides along them: only at their end pixels have to be moved back.
    std::vector<std::uint32_t> pixels_;
    std::ptrdiff_t offset_ = 0;
    std::int64_t moved_ = 0;
    std::vector<Stretch> drawn_;
};

} // namespace wnt

#pragma once

#include "pulse/pulse_columns.h"
#include "widgets/pulse/value_scale.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace wnt {

/// A picture in memory, 0x00RRGGBB, the upper row first; a row begins `stride` pixels behind the one above.
struct PlotCanvas {
    std::uint32_t* pixels;
    std::int32_t width;
    std::int32_t height;
    std::ptrdiff_t stride;

    std::uint32_t* row(std::int32_t y) const { return pixels + y * stride; }
};

/// A part of it; right and bottom exclusive.
struct PlotArea {
    std::int32_t left, top, right, bottom;
};

struct CurveStyle {
    std::uint32_t colour = 0; ///< 0x00RRGGBB
    int line = 0;             ///< a surface's line style, 0 to 7
    int thickness = 1;        ///< 1 to 4 pixels
    bool steps = false;       ///< a value holds until the next one
    bool marks = false;       ///< samples far from their neighbours are marked

    friend bool operator==(const CurveStyle&, const CurveStyle&) = default;
};

/// Draws a curve's runs into a part of a canvas; every pixel of a line, and the pattern of its style, depends on its
/// ends and its place in time alone, not on what part of it is drawn.
class CurveRaster final : public ColumnPainter {
public:
    /// Columns further away than this from a part have no pixel of theirs in it.
    static int margin(const CurveStyle& style) { return style.marks ? 16 : 4; }

    /// `origin` is the column at the canvas's left edge; nothing outside the area is touched.
    CurveRaster(const PlotCanvas& canvas, const PlotArea& area, std::int64_t origin, const ValueScale& scale,
                const CurveStyle& style);
    ~CurveRaster();

    void run(const ColumnRun& run) override;
    bool covered(std::int64_t column, double low, double high) override;

private:
    static constexpr int mark_distance = 8;

    struct Place {
        std::int64_t x;
        std::int32_t row;
    };

    void connect(const Place& from, const Place& to);
    void flat_line(const Place& from, const Place& to);
    void steep_line(const Place& from, const Place& to);
    void upright(std::int64_t x, std::int32_t top, std::int32_t bottom);
    void paint(std::int32_t x, std::int32_t top, std::int32_t bottom);
    void mark(const Place& at);
    bool shown(std::int64_t x, std::int32_t row) const;

    const PlotCanvas canvas_;
    PlotArea area_;
    const std::int64_t origin_;
    const ValueScale scale_;
    const CurveStyle style_;
    std::optional<Place> last_;
    std::optional<Place> lonely_; // a sample that is marked if the next one is far
};

} // namespace wnt

#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "widgets/painting/picture.h"

namespace wnt {

/// A 32-bit picture in memory (0x00RRGGBB), the upper row first.
struct Canvas {
    std::uint32_t* pixels;
    int width;
    int height;
};

/// A part of a canvas: pixels counted from the upper left, right and bottom exclusive.
struct CanvasArea {
    int left, top, right, bottom;
};

/// Draws shapes with smooth edges into an area of a canvas. Every pixel counts as scale x scale subpixels, each of the
/// colour of the last shape over it, and comes out as their average; only pixels at edges are ever taken apart. Which
/// subpixels a polygon covers, its outline included, is what the platform's own polygon calls would cover.
class ShapeRaster {
public:
    /// `scale` is 1, 2 or 4. The shapes' coordinates count upwards from the canvas's lower left corner.
    void begin(const Canvas& canvas, const CanvasArea& area, int scale);
    void box(const BoxF& box, Colour colour);
    void polygon(const PointF* points, int count, Colour colour);
    /// Puts the averages into the canvas.
    void finish();

private:
    struct Point { // subpixels, y downwards
        int x, y;
    };
    using Block = std::array<std::uint32_t, 16>; // a pixel taken apart, row by row

    struct Range {
        int first, end;
    };
    struct Crossing { // of an edge and a row of subpixels
        int x;        // the first subpixel right of the edge
        int from, to; // the outline, with what lies between it and x
    };

    using Runs = std::array<Range, 4>; // of subpixels, one in each row of a row of pixels

    bool reach(int left, int top, int right, int bottom);
    void cover(int y, const Runs& runs);
    template <int shift> void cover_scaled(int y, Runs runs);
    void cover_row(int row, Range run);
    void fill(int x, int y, int count);
    template <int shift> void take_apart(Range pixels, int y, const Runs& runs);
    std::uint32_t add_block(std::size_t place, std::uint32_t* pixel);
    std::size_t place_of(int x, int y) const;

    bool goes_down_and_up_once() const;
    template <class Take> void walk_edges(Take take) const;
    template <class Take> void walk_level(const Point& a, const Point& b, Take& take) const;
    template <class Take> void walk_steep(const Point& upper, const Point& lower, Take& take) const;
    template <class Take> void walk_flat(const Point& upper, const Point& lower, Take& take) const;
    void fill_spans();
    void count_crossings();
    void cross(int y, bool last, const Crossing& crossing);
    void fill_between_crossings();
    static Range run_between(const Crossing& a, const Crossing& b);

    Canvas canvas_ = {};
    CanvasArea area_ = {};
    int shift_ = 0; // subpixels a pixel each way, as a power of 2
    // Of the present shape: the pixels that it may touch, and its subpixel rows.
    CanvasArea reach_ = {};
    Range rows_ = {};
    std::uint32_t colour_ = 0;
    std::vector<Point> corners_;
    std::vector<Range> spans_;        // of each row, where each is one run
    std::vector<Crossing> crossings_; // row by row
    std::vector<int> ends_;           // where each row's crossings end
    // Of the area: for each pixel 0 or the number of its block, counted from 1.
    std::vector<std::uint32_t> parted_;
    std::vector<Block> blocks_;
    struct Place {
        std::size_t place;
        std::uint32_t* pixel;
    };
    std::vector<Place> places_; // of the blocks
};

} // namespace wnt

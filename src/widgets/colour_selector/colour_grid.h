#pragma once

namespace wnt {

/// The layout of a colour selector's panel: a sample strip at the top, below it the palette in rows of eight cells.
/// Pixels, y upwards from the panel's lower edge.
struct ColourGrid {
    static constexpr int columns = 8;

    int colours = 0; ///< of the palette; those beyond a multiple of eight are not shown
    int width = 0;
    int height = 0;
    bool inset = false; ///< room for a 3-D edge round each cell

    int rows() const { return colours / columns; }
    int cell_width() const { return width / columns; }
    int cell_height() const { return height / (rows() + 1); }
    int margin() const { return inset ? cell_width() / columns : 0; }
    /// Left and lower edge of the cell of a colour.
    int cell_left(int colour) const { return colour % columns * cell_width(); }
    int cell_bottom(int colour) const { return height - (colour / columns + 2) * cell_height(); }
    bool holds(int colour) const { return colour >= 0 && colour < colours; }

    /// The colour at a position: -1 in the sample strip. Positions outside give numbers outside the palette, and a
    /// panel without room for cells a number that means nothing.
    int hit(int x, int y) const;
};

} // namespace wnt

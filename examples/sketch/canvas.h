// Draws on a device through the library's surface, in the drawing's own units.
#pragma once

#include <zopwnt.h>

#include <vector>

/// How a figure is drawn. Colours are places in the surface's palette of sixteen.
struct FigureStyle {
    static constexpr int no_fill = -1;
    static constexpr int colours = 16;
    static constexpr int patterns = 5;     // solid, dotted, dashed, dash-dot, dash-dot-dot
    static constexpr int widest_line = 50; // tenths of a millimetre

    int line_colour = 0;
    int fill_colour = no_fill;
    int pattern = 0;
    int width = 1; // tenths of a millimetre; the thinnest line that a device has, at least

    bool IsValid() const;
    bool operator==(const FigureStyle&) const = default;
};

/// Units are tenths of a millimetre from the sheet's lower left corner, y growing upwards as on the surface.
class Canvas {
public:
    /// The device context stays the caller's. `origin`: the sheet's lower left corner in the surface's pixels, which
    /// count upwards from the last of `size.cy` rows. `scale`: pixels a unit.
    Canvas(CDC& dc, CSize size, CPoint origin, double scale);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// Points must be closed (the last the first) where they are filled.
    void Fill(const std::vector<CPoint>& points, int colour);
    void Stroke(const std::vector<CPoint>& points, const FigureStyle& style);
    /// Left end and lower edge of the text's cell; the height of its letters.
    void Text(CPoint at, int height, const CString& text, int colour);
    /// All pixels of a rectangle, in any colour.
    void Box(const CRect& box, COLORREF colour);
    /// A dotted frame with a handle at each corner, a few pixels outside the box.
    void Selection(const CRect& box);

private:
    std::vector<POINT> ToPixels(const std::vector<CPoint>& points) const;
    CPoint ToPixel(CPoint point) const;
    void Pen(int colour, int surface_style);
    void Dashes(const std::vector<POINT>& points, int pattern, int width);

    CWntOut out_;
    CPoint origin_;
    double scale_;
};

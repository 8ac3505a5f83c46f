#include "canvas.h"

#include <algorithm>
#include <cmath>

namespace {

// The surface's number of each pattern, and the lengths of strokes and gaps in widths of the line. The ends of wide
// lines are round: half a width of every gap is theirs at each side.
struct Pattern {
    int surface_style;
    std::vector<int> lengths;
};
const Pattern patterns[FigureStyle::patterns] = {
    {0, {}}, {2, {1, 3}}, {3, {4, 3}}, {4, {4, 3, 1, 3}}, {7, {4, 3, 1, 3, 1, 3}}};

double length_of(const std::vector<POINT>& points) {
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i)
        length += std::hypot(points[i].x - points[i - 1].x, points[i].y - points[i - 1].y);
    return length;
}

} // namespace

bool FigureStyle::IsValid() const {
    const auto in = [](int value, int first, int behind) { return value >= first && value < behind; };
    return in(line_colour, 0, colours) && in(fill_colour, no_fill, colours) && in(pattern, 0, patterns) &&
           in(width, 1, widest_line + 1);
}

Canvas::Canvas(CDC& dc, CSize size, CPoint origin, double scale) : origin_(origin), scale_(scale) {
    dc.SetBkMode(TRANSPARENT);
    out_.targetmode = 1; // there is no window: neither its clip nor its extent counts
    out_.reset(dc.GetSafeHdc());
    out_.xmax = size.cx - 1;
    out_.ymax = size.cy - 1;
}

Canvas::~Canvas() {
    out_.endpaint();
}

CPoint Canvas::ToPixel(CPoint point) const {
    return CPoint(origin_.x + std::lround(point.x * scale_), origin_.y + std::lround(point.y * scale_));
}

std::vector<POINT> Canvas::ToPixels(const std::vector<CPoint>& points) const {
    std::vector<POINT> pixels(points.size());
    std::transform(points.begin(), points.end(), pixels.begin(), [this](CPoint p) { return ToPixel(p); });
    return pixels;
}

// The surface takes a colour that is in force as no change, whatever the style: another one comes between.
void Canvas::Pen(int colour, int surface_style) {
    const COLORREF value = out_.rgbcolor(colour);
    out_.linecolour(value ^ 0x808080, 0);
    out_.linecolour(value, surface_style);
}

void Canvas::Fill(const std::vector<CPoint>& points, int colour) {
    if (colour < 0)
        return;
    auto pixels = ToPixels(points);
    const COLORREF value = out_.rgbcolor(colour);
    out_.fillcolour(value ^ 0x808080, 0);
    out_.fillcolour(value, 0);
    out_.solidpoly(pixels.data(), static_cast<int>(pixels.size()));
}

void Canvas::Stroke(const std::vector<CPoint>& points, const FigureStyle& style) {
    auto pixels = ToPixels(points);
    const int width = std::max(1, static_cast<int>(std::lround(style.width * scale_)));
    if (width == 1) { // the surface's own patterns
        Pen(style.line_colour, patterns[style.pattern].surface_style);
        out_.geomline(pixels.data(), static_cast<int>(pixels.size()), 0);
        return;
    }
    out_.fillcolour(out_.rgbcolor(style.line_colour), 0);
    if (style.pattern == 0)
        out_.geomline(pixels.data(), static_cast<int>(pixels.size()), width - 1);
    else
        Dashes(pixels, style.pattern, width);
}

// Goes along the line and draws a stroke wherever one is due.
void Canvas::Dashes(const std::vector<POINT>& points, int pattern, int width) {
    constexpr double most = 20000; // strokes: beyond it nobody sees them
    const std::vector<int>& lengths = patterns[pattern].lengths;
    const double whole = length_of(points);
    const bool solid = whole / width > most;
    std::size_t part = 0;
    double left = solid ? whole + 1 : lengths[0] * width;
    std::vector<POINT> stroke = {points.front()};
    const auto draw = [&] {
        if (part % 2 == 0 && stroke.size() > 1)
            out_.geomline(stroke.data(), static_cast<int>(stroke.size()), width - 1);
    };
    for (std::size_t i = 1; i < points.size(); ++i) {
        double x = points[i - 1].x, y = points[i - 1].y;
        for (;;) {
            const double dx = points[i].x - x, dy = points[i].y - y, rest = std::hypot(dx, dy);
            if (rest < left) {
                left -= rest;
                stroke.push_back(points[i]);
                break;
            }
            x += dx * left / rest;
            y += dy * left / rest;
            const POINT corner = {std::lround(x), std::lround(y)};
            stroke.push_back(corner);
            draw();
            stroke = {corner};
            part = (part + 1) % lengths.size();
            left = lengths[part] * width;
        }
    }
    draw();
}

// The surface knows sizes in tenths of a point of the screen, on every device.
void Canvas::Text(CPoint at, int height, const CString& text, int colour) {
    const CWindowDC screen(nullptr);
    const int dots_per_inch = std::max(screen.GetDeviceCaps(LOGPIXELSY), 1);
    out_.fontsize = static_cast<int>(std::lround(height * scale_ * 720 / dots_per_inch));
    if (out_.fontsize == 0)
        return; // smaller than any letter
    Pen(colour, 0);
    CString copy = text;
    const CPoint pixel = ToPixel(at);
    out_.chars(pixel.x, pixel.y, copy.GetBuffer(), 0);
    copy.ReleaseBuffer();
}

void Canvas::Box(const CRect& box, COLORREF colour) {
    const CPoint low = ToPixel(box.TopLeft()), high = ToPixel(box.BottomRight());
    out_.fillcolour(colour ^ 0x808080, 0);
    out_.fillcolour(colour, 0);
    out_.boxa2(low.x, low.y, high.x, high.y);
}

void Canvas::Selection(const CRect& box) {
    constexpr int distance = 5, handle = 2;
    const COLORREF colour = ::GetSysColor(COLOR_HIGHLIGHT);
    const CPoint low = ToPixel(box.TopLeft()) - CSize(distance, distance);
    const CPoint high = ToPixel(box.BottomRight()) + CSize(distance, distance);
    out_.linecolour(colour ^ 0x808080, 0);
    out_.linecolour(colour, 2);
    out_.boxr0(low.x, low.y, high.x - low.x, high.y - low.y);
    out_.fillcolour(colour ^ 0x808080, 0);
    out_.fillcolour(colour, 0);
    for (const int x : {low.x, high.x})
        for (const int y : {low.y, high.y})
            out_.boxa2(x - handle, y - handle, x + handle, y + handle);
}

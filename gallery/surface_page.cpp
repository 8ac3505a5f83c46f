#include <algorithm>

#include "page.h"

// Every drawing primitive of the surface, in captioned cells.

namespace {

constexpr int columns = 4;
constexpr int rows = 3;

struct Cell {
    int x, y, w, h; // lower-left corner and size of the drawing area
};

void caption(CWntOut& out, const Cell& c, const char* text) {
    out.linecolour(0, 0);
    out.settext(0, 0, 0, 15, 0, 0);
    out.chars(c.x, c.y + c.h + 4, const_cast<char*>(text), 0);
}

void lines(CWntOut& out, const Cell& c) {
    caption(out, c, "line styles 0 to 7");
    for (int style = 0; style < 8; ++style) {
        out.linecolour(RGB(0, style, 128), style); // a new colour each: a style alone is no change
        out.hline(c.x, c.y + c.h - 6 - style * (c.h - 10) / 8, c.w - 10);
    }
}

void fills(CWntOut& out, const Cell& c) {
    caption(out, c, "fill styles 1 to 7");
    out.linecolour(0, 0);
    const int w = (c.w - 10) / 4;
    const int h = (c.h - 10) / 2;
    for (int style = 1; style < 8; ++style) {
        const int i = style - 1;
        out.fillcolour(RGB(0, 96 + style, 64), style);
        out.boxr1(c.x + i % 4 * w, c.y + c.h - (i / 4 + 1) * h, w - 6, h - 6);
    }
}

void boxes(CWntOut& out, const Cell& c) {
    caption(out, c, "boxr0, boxr1, boxr2, drawshadow");
    const int w = (c.w - 16) / 2;
    const int h = (c.h - 16) / 2;
    out.linecolour(14, 0);
    out.fillcolour(3, 0);
    out.boxr0(c.x, c.y + h + 8, w - 8, h - 6);
    out.boxr1(c.x + w, c.y + h + 8, w - 8, h - 6);
    out.boxr2(c.x, c.y + 2, w - 8, h - 6);
    out.fillcolour(RGB(200, 204, 208), 0); // on paper its light edges could not be seen
    out.boxr2(c.x + w - 4, c.y, w, h - 2);
    out.drawshadow(c.x + w, c.y + 4, c.x + w + w / 2 - 8, c.y + h - 6, 1);
    out.drawshadow(c.x + w + w / 2, c.y + 4, c.x + 2 * w - 8, c.y + h - 6, 0);
}

void polygons(CWntOut& out, const Cell& c) {
    caption(out, c, "fillpoly, solidpoly");
    auto star = [&](int cx, int cy, int r, POINT(&points)[5]) {
        for (int i = 0; i < 5; ++i) {
            const auto angle = static_cast<unsigned short>(16384 + i * 2 * 65536 / 5);
            points[i] = {cx + out.intcos(angle, r), cy + out.intsin(angle, r)};
        }
    };
    POINT points[5];
    const int r = std::min(c.w / 4, c.h / 2) - 4;
    out.linecolour(2, 0);
    out.fillcolour(7, 0);
    star(c.x + c.w / 4, c.y + c.h / 2, r, points);
    out.fillpoly(points, 5);
    out.fillcolour(13, 0);
    star(c.x + 3 * c.w / 4, c.y + c.h / 2, r, points);
    out.solidpoly(points, 5);
}

void circles(CWntOut& out, const Cell& c) {
    caption(out, c, "drawcircle, fillcircle");
    const int r = std::min(c.w / 4, c.h / 2) - 6;
    out.linecolour(6, 0);
    for (int i = 0; i < 4; ++i)
        out.drawcircle(c.x + c.w / 4, c.y + c.h / 2, r - i * r / 4);
    out.linecolour(10, 0);
    out.fillcolour(4, 0);
    out.fillcircle(c.x + 3 * c.w / 4, c.y + c.h / 2, r, r * 2 / 3);
}

void pies(CWntOut& out, const Cell& c) {
    caption(out, c, "pieslice");
    static constexpr int parts[] = {0, 5200, 9000, 11800, 14000, 16384};
    const int r = std::min(c.w, c.h) / 2 - 6;
    out.linecolour(0, 0);
    for (int i = 0; i + 1 < static_cast<int>(std::size(parts)); ++i) {
        out.fillcolour(2 + i, 0);
        out.pieslice(c.x + c.w / 2, c.y + c.h / 2, r, r, parts[i], parts[i + 1]);
    }
}

void markers(CWntOut& out, const Cell& c) {
    caption(out, c, "markers 0 to 5, drawmarker");
    for (int shape = 0; shape < 6; ++shape) {
        POINT at = {c.x + 10 + shape * (c.w - 20) / 6, c.y + c.h - 18};
        out.linecolour(RGB(128, 0, shape * 24), 0);
        out.markers(&at, 1, shape);
        out.drawmarker(at.x + 4, c.y + c.h / 2 - 8, 10, shape);
    }
}

void curve(CWntOut& out, const Cell& c, int width, int y) {
    POINT points[40];
    for (int i = 0; i < 40; ++i)
        points[i] = {c.x + i * (c.w - 12) / 39, c.y + y + out.intsin(static_cast<unsigned short>(i * 3400), c.h / 10)};
    out.geomline(points, 40, width);
}

void polylines(CWntOut& out, const Cell& c) {
    caption(out, c, "geomline, width 0, 2, 6");
    out.linecolour(0, 0);
    out.fillcolour(15, 0);
    curve(out, c, 0, c.h * 5 / 6);
    curve(out, c, 2, c.h / 2);
    curve(out, c, 6, c.h / 6);
}

void connections(CWntOut& out, const Cell& c) {
    caption(out, c, "crosslines");
    constexpr int n = 24;
    Tpt points[2 * n];
    for (int i = 0; i < n; ++i) {
        points[i] = {c.x + i * (c.w - 12) / n, c.y};
        points[i + n] = {c.x + c.w - 12 - i * (c.w - 12) / n, c.y + c.h - 4};
    }
    out.linecolour(12, 0);
    out.crosslines(points, n, n);
}

void tracking(CWntOut& out, const Cell& c) {
    caption(out, c, "trackbox over a fill (XOR)");
    out.fillcolour(10, 0);
    out.boxr2(c.x, c.y, c.w / 2, c.h - 8);
    out.linecolour(3, 0);
    out.fillcolour(5, 0);
    out.trackbox(c.x + c.w / 4, c.y + c.h / 4, c.w / 2, c.h / 3, 0x200);
    out.trackline(c.x, c.y, c.x + c.w - 12, c.y + c.h - 8);
}

void clipping(CWntOut& out, const Cell& c) {
    caption(out, c, "setclip, excludeclip");
    out.setclip(c.x, c.y, c.x + c.w - 12, c.y + c.h - 8);
    out.excludeclip(c.x + c.w / 3, c.y + c.h / 3, c.x + c.w / 2, c.y + c.h * 2 / 3);
    for (int i = -c.h; i < c.w; i += 6) {
        out.linecolour(RGB(255, 128, 0), 0);
        out.line(c.x + i, c.y, c.x + i + c.h, c.y + c.h);
    }
    out.resetclip();
}

void palette(CWntOut& out, const Cell& c) {
    caption(out, c, "the 16 colours");
    const int w = (c.w - 8) / 8;
    const int h = (c.h - 8) / 2;
    for (int i = 0; i < 16; ++i) {
        out.linecolour(8, 0);
        out.fillcolour(i, 0);
        out.boxr1(c.x + i % 8 * w, c.y + (1 - i / 8) * h, w - 3, h - 3);
    }
}

void paint(CWntOut& out) {
    FillSurface(out, RGB(250, 250, 250));
    using Painter = void (*)(CWntOut&, const Cell&);
    static constexpr Painter painters[columns * rows] = {lines,   fills,     boxes,       polygons, circles,  pies,
                                                         markers, polylines, connections, tracking, clipping, palette};
    const int w = out.xmax / columns;
    const int h = out.ymax / rows;
    for (int i = 0; i < columns * rows; ++i) {
        const Cell cell = {i % columns * w + 12, out.ymax - (i / columns + 1) * h + 10, w - 16, h - 36};
        if (cell.w > 40 && cell.h > 30)
            painters[i](out, cell);
    }
}

} // namespace

std::unique_ptr<CGalleryPage> MakeSurfacePage() {
    return std::make_unique<CPaintedPage>("Surface: primitives", "surface", paint);
}

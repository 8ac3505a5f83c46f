#include "out/wnt_out.h"

#include <algorithm>

#include "arithmetic.h"
#include "out/device_state.h"

namespace wrapped = wnt::wrapped;

void CWntOut::drawcross(int x, int y, int s) {
    line(wrapped::subtract(x, s), wrapped::add(y, s), wrapped::add(x, s), wrapped::subtract(y, s));
    line(wrapped::subtract(x, s), wrapped::subtract(y, s), wrapped::add(x, s), wrapped::add(y, s));
}

void CWntOut::drawplus(int x, int y, int s) {
    line(wrapped::subtract(x, s), y, wrapped::add(x, s), y);
    line(x, wrapped::add(y, s), x, wrapped::subtract(y, s));
}

void CWntOut::drawmarker(int x, int y, int size, int shape) {
    const int left = wrapped::subtract(x, size);
    const int right = wrapped::add(x, size);
    const int lower = wrapped::subtract(y, size);
    const int upper = wrapped::add(y, size);
    switch (shape) {
    case 0:
        drawcross(x, y, size);
        break;
    case 1:
        drawplus(x, y, size);
        break;
    case 2:
        drawcircle(x, y, size);
        break;
    case 3:
        drawcross(x, y, size);
        drawplus(x, y, size);
        break;
    case 4:
        line(left, lower, left, upper);
        line(left, upper, right, upper);
        line(right, upper, right, lower);
        line(right, lower, left, lower);
        break;
    case 5:
        drawcircle(x, y, std::max(size >> 2, 2));
        break;
    default:
        break;
    }
}

void CWntOut::markers(POINT* pts, int n, int shape) {
    if (!ready() || !pts || n < 1)
        return;
    wnt::GdiObject<HPEN> wide(::CreatePen(PS_SOLID, 2, linecolour_));
    wnt::SelectGuard selected(dc, wide.get());
    for (int i = 0; i < n; ++i)
        drawmarker(pts[i].x, pts[i].y, 5, shape);
}

void CWntOut::drawbitmap(unsigned, RECT*, RECT*, int) {}

void CWntOut::drawtransparentbitmap(unsigned, RECT*, RECT*, int, COLORREF, COLORREF) {}

#include "out/wnt_out.h"

#include <algorithm>

#include "arithmetic.h"
#include "out/device_state.h"

namespace wrapped = wnt::wrapped;

void CWntOut::line(int x1, int y1, int x2, int y2) {
    if (!ready())
        return;
    // A polyline leaves its last pixel out: the step to the right sets the end point. It is a line of its own, so that
    // a patterned pen begins anew and never has its gap there.
    const int end_y = flip(y2);
    const POINT ends[4] = {{x1, flip(y1)}, {x2, end_y}, {x2, end_y}, {wrapped::add(x2, 1), end_y}};
    constexpr DWORD counts[2] = {2, 2};
    ::PolyPolyline(dc, ends, counts, 2);
}

void CWntOut::hline(int x, int y, int len) {
    line(x, y, wrapped::add(x, len), y);
}

void CWntOut::vline(int x, int y, int len) {
    line(x, y, x, wrapped::add(y, len));
}

void CWntOut::box(int x1, int y1, int x2, int y2, int mode) {
    if (!ready())
        return;
    const int left = std::min(x1, x2);
    const int top = std::min(flip(y1), flip(y2));
    const int right = wrapped::add(std::max(x1, x2), 1);
    const int bottom = wrapped::add(std::max(flip(y1), flip(y2)), 1);
    if (x1 == x2 && y1 == y2 && (mode == 0 || mode == 1)) {
        line(x1, y1, x1, y1); // all outline; the platform draws no rectangle of one pixel
    } else if (mode == 0) {
        wnt::SelectGuard hollow(dc, ::GetStockObject(NULL_BRUSH));
        ::Rectangle(dc, left, top, right, bottom);
    } else if (mode == 1) {
        ::Rectangle(dc, left, top, right, bottom);
    } else if (mode == 2) { // without an outline a rectangle is one pixel smaller
        wnt::SelectGuard empty(dc, ::GetStockObject(NULL_PEN));
        ::Rectangle(dc, left, top, wrapped::add(right, 1), wrapped::add(bottom, 1));
    }
}

void CWntOut::boxa1(int x1, int y1, int x2, int y2) {
    box(x1, y1, x2, y2, 1);
}

void CWntOut::boxa2(int x1, int y1, int x2, int y2) {
    box(x1, y1, x2, y2, 2);
}

void CWntOut::boxr0(int x, int y, int w, int h) {
    box(x, y, wrapped::add(x, w), wrapped::add(y, h), 0);
}

void CWntOut::boxr1(int x, int y, int w, int h) {
    box(x, y, wrapped::add(x, w), wrapped::add(y, h), 1);
}

void CWntOut::boxr2(int x, int y, int w, int h) {
    box(x, y, wrapped::add(x, w), wrapped::add(y, h), 2);
}

void CWntOut::drawshadow(int x1, int y1, int x2, int y2, int raised) {
    if (!ready())
        return;
    const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW);
    linecolour(raised ? light : dark, 0);
    line(x1, y1, x1, y2);
    line(x1, y2, x2, y2);
    linecolour(raised ? dark : light, 0);
    line(x2, y1, x2, y2);
    line(x1, y1, x2, y1);
}

void CWntOut::trackline(int x1, int y1, int x2, int y2) {
    if (!ready())
        return;
    wnt::XorGuard mix(dc);
    line(x1, y1, x2, y2);
}

void CWntOut::trackbox(int x, int y, int w, int h, int flags) {
    if (!ready())
        return;
    wnt::XorGuard mix(dc);
    if (w && h)
        box(x, y, wrapped::add(x, w), wrapped::add(y, h), (flags >> 8) & 3);
    else
        line(x, y, wrapped::add(x, w), wrapped::add(y, h));
}

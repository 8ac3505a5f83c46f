#include "out/wnt_out.h"

#include <cstdlib>

#include "out/device_range.h"
#include "out/device_state.h"
#include "out/geometry.h"

namespace wrapped = wnt::wrapped;

namespace {

// Devices fail over round figures of a million pixels; such a figure is not drawn.
bool drawable(int x, int y, int rx, int ry) {
    const std::int64_t reach_x = std::abs(std::int64_t{rx});
    const std::int64_t reach_y = std::abs(std::int64_t{ry});
    return wnt::in_device_range(x - reach_x) && wnt::in_device_range(x + reach_x) &&
           wnt::in_device_range(y - reach_y) && wnt::in_device_range(y + reach_y);
}

} // namespace

void CWntOut::drawcircle(int x, int y, int r) {
    if (!ready() || !drawable(x, y, r, r))
        return;
    const int middle = flip(y);
    ::Arc(dc, x - r, middle - r, x + r, middle + r, x + r, middle, x + r, middle);
}

void CWntOut::fillcircle(int x, int y, int rx, int ry) {
    if (!ready() || !drawable(x, y, rx, ry))
        return;
    const int middle = flip(y);
    wnt::GdiObject<HRGN> region(::CreateEllipticRgn(x - rx, middle - ry, x + rx + 2, middle + ry + 1));
    if (!region)
        return;
    // Intended: the colour is handed over as the mix mode; other values than the two modes change nothing.
    const int mix = ::SetBkMode(dc, static_cast<int>(fillcolour_));
    ::PaintRgn(dc, region.get());
    wnt::GdiObject<HBRUSH> frame(::CreateSolidBrush(linecolour_));
    ::FrameRgn(dc, region.get(), frame.get(), 1, 1);
    if (mix)
        ::SetBkMode(dc, mix);
}

void CWntOut::pieslice(int x, int y, int rx, int ry, int a1, int a2) {
    if (!ready() || !drawable(x, y, rx, ry))
        return;
    const auto b1 = static_cast<unsigned short>(wrapped::multiply(a1, 4));
    const auto b2 = static_cast<unsigned short>(wrapped::multiply(a2, 4));
    const int middle = flip(y);
    const int start_rise = intsin(b1, ry);
    const int end_rise = intsin(b2, ry);
    const int sx = x + intcos(b1, rx);
    const int sy = middle - start_rise;
    int ex = x + intcos(b2, rx);
    int ey = middle - end_rise;

    const int dx = sx - ex;
    const int dy = end_rise - start_rise;
    if (wrapped::add(wrapped::multiply(dx, dx), wrapped::multiply(dy, dy)) < 2) {
        if (wrapped::subtract(a2, a1) < 4097)
            return; // too thin to see
        ex = sx;    // a whole turn
        ey = sy;
    }
    ::Pie(dc, x - rx, middle - ry + 1, x + rx + 1, middle + ry, sx, sy, ex, ey);
}

void CWntOut::piesection(int x, int y, int rx, int ry, int a1, int a2, int) {
    pieslice(x, y, rx, ry, a1, a2);
}

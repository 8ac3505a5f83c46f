#include "out/wnt_out.h"

#include "arithmetic.h"
#include "out/device_state.h"

namespace wrapped = wnt::wrapped;

// Corners inclusive, y1 the lower edge, become the device's half-open rectangle.
RECT CWntOut::device_rect(int x1, int y1, int x2, int y2) const {
    return {x1, flip(y2), wrapped::add(x2, 1), wrapped::add(flip(y1), 1)};
}

RECT CWntOut::library_rect(const RECT& device) const {
    return {device.left, flip(device.top), wrapped::subtract(device.right, 1), wrapped::add(flip(device.bottom), 1)};
}

RECT CWntOut::update_rect() const {
    RECT update = {};
    if (m_hWnd)
        ::GetUpdateRect(m_hWnd, &update, FALSE);
    return library_rect(update);
}

void CWntOut::setclip(int x1, int y1, int x2, int y2) {
    if (!ready())
        return;
    const RECT area = device_rect(x1, y1, x2, y2);
    wnt::GdiObject<HRGN> region(::CreateRectRgn(area.left, area.top, area.right, area.bottom));
    if (region) {
        ::SelectClipRgn(dc, region.get());
        ::GetClipBox(dc, &cliprect);
    } else {
        cliprect = area;
    }
    clipset = 1;
}

void CWntOut::setclip(RECT* r) {
    if (r)
        setclip(r->left, r->bottom, r->right, r->top);
}

void CWntOut::resetclip() {
    if (!ready())
        return;
    setclip(0, 0, xmax, ymax);
    clipset = 0;
}

void CWntOut::queryclip(RECT* r) {
    if (!ready() || !r)
        return;
    *r = update_rect();
    cliprect = *r;
    clipset = 1;
}

int CWntOut::testclip(int x1, int y1, int x2, int y2) {
    if (!this)
        return 0;
    if ((outmode == 2 || outmode == 4) && targetmode == 1)
        return 1;
    RECT clip;
    if (!dc || ::GetClipBox(dc, &clip) == ERROR)
        return 0;
    clip = library_rect(clip);
    return x1 <= clip.right && x2 >= clip.left && y1 <= clip.top && y2 >= clip.bottom;
}

int CWntOut::clipit(int, int, int, int) {
    return 1; // every figure is handed to the device, which clips it
}

void CWntOut::excludeclip(int x1, int y1, int x2, int y2) {
    if (!ready() || outmode)
        return;
    const RECT area = device_rect(x1, y1, x2, y2);
    ::ExcludeClipRect(dc, area.left, area.top, area.right, area.bottom);
}

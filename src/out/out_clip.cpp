#include "out/wnt_out.h"

#include "out/device_state.h"
#include "out/geometry.h"

namespace wrapped = wnt::wrapped;

void CWntOut::setclip(int x1, int y1, int x2, int y2) {
    if (!ready())
        return;
    const RECT area = {x1, flip(y2), wrapped::add(x2, 1), wrapped::add(flip(y1), 1)};
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
    if (x1 > clip.right - 1 || x2 < clip.left || y1 > flip(clip.top) || y2 < wrapped::add(flip(clip.bottom), 1))
        return 0;
    return 1;
}

int CWntOut::clipit(int, int, int, int) {
    return 1; // every figure is handed to the device, which clips it
}

void CWntOut::excludeclip(int x1, int y1, int x2, int y2) {
    if (ready() && !outmode)
        ::ExcludeClipRect(dc, x1, flip(y2), wrapped::add(x2, 1), wrapped::add(flip(y1), 1));
}

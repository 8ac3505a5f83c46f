#include "widgets/painting/surface_buffer.h"

#include "widgets/painting/surface_owner.h"

namespace wnt {

namespace {

// Farther away nothing shows, and a painter may add sizes to coordinates.
bool within_reach(const UpwardRect& part) {
    constexpr int reach = 1 << 20;
    const auto near_enough = [](int value) { return -reach < value && value < reach; };
    return near_enough(part.left) && near_enough(part.top) && near_enough(part.right) && near_enough(part.bottom);
}

} // namespace

SurfaceBuffer::SurfaceBuffer(CWntOut& out) : out_(out) {
    if (!begin_painting(out))
        return;
    window_ = out.dc;
    if (!bitmap_.create(window_, out.xmax + 1, out.ymax + 1))
        return;
    out.reset(bitmap_.dc());
    prime_colours(out);
}

SurfaceBuffer::~SurfaceBuffer() {
    const int ymax = out_.ymax;
    if (window_)
        out_.endpaint();
    if (!bitmap_)
        return;
    for (const UpwardRect& part : parts_)
        ::BitBlt(window_, part.left, ymax - part.top, part.right - part.left + 1, part.top - part.bottom + 1,
                 bitmap_.dc(), part.left, ymax - part.top, SRCCOPY);
}

SurfacePainting::SurfacePainting(CWntOut& out, Open& open) : out_(out), open_(open), opened_(!open) {
    if (opened_)
        open = std::make_unique<SurfaceBuffer>(out);
}

SurfacePainting::SurfacePainting(CWntOut& out, Open& open, const UpwardRect& part) : SurfacePainting(out, open) {
    clipped_ = *open && !part.empty() && within_reach(part);
    if (!clipped_)
        return;
    open->show(part);
    out.setclip(part.left, part.bottom, part.right, part.top);
}

SurfacePainting::~SurfacePainting() {
    if (clipped_)
        out_.resetclip();
    if (opened_)
        open_.reset();
}

} // namespace wnt

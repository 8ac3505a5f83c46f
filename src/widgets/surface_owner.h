#pragma once

#include "out/wnt_out.h"

namespace wnt {

// What every widget needs that paints through a surface of its own.

/// Right after reset() white lines and black fills count as in force without being so: one call each with another
/// colour makes the surface tell the truth.
inline void prime_colours(CWntOut& out) {
    out.linecolour(COLORREF{0x010101}, 0);
    out.fillcolour(COLORREF{0x010101}, 0);
}

/// reset() with colours that can be relied on; false when nothing can be drawn.
inline bool begin_painting(CWntOut& out) {
    if (!out.reset())
        return false;
    prime_colours(out);
    return true;
}

/// With children clipped away, a widget would not be told when its surface is uncovered.
inline void keep_children_unclipped(CREATESTRUCT& create) {
    create.style &= ~static_cast<LONG>(WS_CLIPCHILDREN);
}

} // namespace wnt

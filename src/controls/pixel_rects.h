#pragma once

#include <afxwin.h>

#include "controls/pixel_rect.h"

namespace wnt {

inline CRect rect_of(const PixelRect& r) {
    return CRect(r.left, r.top, r.right, r.bottom);
}

inline PixelRect pixels_of(const CRect& r) {
    return {r.left, r.top, r.right, r.bottom};
}

} // namespace wnt

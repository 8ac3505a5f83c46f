#pragma once

#include <afxwin.h>

#include "controls/pixel_rect.h"

// What the toolbar's files share.

namespace wnt {

/// Stands for an item's index.
inline constexpr int tool_chevron = -2;
inline constexpr int no_tool = -1;

inline CRect rect_of(const PixelRect& r) {
    return CRect(r.left, r.top, r.right, r.bottom);
}

} // namespace wnt

#pragma once

#include "controls/pixel_rects.h"

// What the toolbar's files share.

namespace wnt {

/// Stands for an item's index.
inline constexpr int tool_chevron = -2;
inline constexpr int no_tool = -1;

} // namespace wnt

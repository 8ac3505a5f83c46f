#pragma once

#include "controls/wnt_tool_bar.h"

/// A press that became a drag of the item.
struct CWntToolBar::Drag {
    int from;   ///< the item
    int to;     ///< before which one it would go
    HWND focus; ///< where it goes back to; null: it stays
};

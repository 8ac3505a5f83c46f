#pragma once

#include <afxwin.h>

#include "controls/tabs_layout.h"

namespace wnt {

class ControlFont;
class PaintPass;

/// Something that the pointer can be on.
struct TabsPoint {
    enum Part { nothing, tab, close, back, on, menu };
    Part part = nothing;
    int index = -1; ///< of the tab

    friend bool operator==(const TabsPoint&, const TabsPoint&) = default;
};

/// What a strip of tabs shows.
struct TabsLook {
    const TabsModel& model;
    const TabsLayout& layout;
    const TabsSizes& sizes;
    ControlFont& font;
    TabsPoint hot;
    bool pressed; ///< what is hot is pressed
    int gap;      ///< where a dragged tab would go; -1: nowhere
    bool focused;
};

/// On a pass over the strip's window.
void paint_tabs(PaintPass& pass, const TabsLook& look);

/// On a pass over the window with strip and page: the ground, and the border's three sides beyond the strip.
void paint_page_border(PaintPass& pass, const TabsModel& model, const TabsLayout& layout);

} // namespace wnt

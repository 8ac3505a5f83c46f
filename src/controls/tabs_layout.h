#pragma once

#include <span>
#include <vector>

#include "controls/tabs_model.h"

namespace wnt {

/// Sizes of a strip of tabs, in pixels.
struct TabsSizes {
    int lift;   ///< by which the selected tab is larger, at its ends and at its outer edge
    int depth;  ///< of the strip, the page's border included
    int button; ///< length of an arrow, or of the menu's button
    int pad;    ///< at a tab's ends
    int gap;    ///< between icon, text and close mark
    int icon;
    int close;
    int least; ///< length of a tab

    /// For a percentage of the sizes at 96 dots an inch and a text of this height.
    static TabsSizes at(int scale, int text_height);
    /// What a tab needs along the strip.
    int length(int text_width, bool has_icon, bool closable) const;
};

/// Where a tab's parts lie; empty: it has none.
struct TabParts {
    PixelRect icon, text, close;
};

/// Where everything lies, in the client coordinates of the window with strip and page. What does not fit is left out
/// whole: an empty rectangle.
struct TabsLayout {
    TabsSide side = TabsSide::top;
    PixelRect strip;             ///< with the page's border at its inner edge
    PixelRect page;              ///< what strip and border leave
    std::vector<PixelRect> tabs; ///< as they lie unselected
    PixelRect back, on;          ///< arrows
    PixelRect menu;              ///< its button
    int first = 0;               ///< tab that is shown
    int shown = 0;               ///< so many

    bool shows(int tab) const { return tab >= first && tab < first + shown; }
    bool overflows() const { return shown < static_cast<int>(tabs.size()); }
    /// The same rectangle turned so that a strip at the top would have it.
    PixelRect along(const PixelRect& box) const;
    /// And back.
    PixelRect in_client(const PixelRect& box) const;
    /// The selected tab is larger and reaches over the page's border.
    PixelRect lifted(int tab, const TabsSizes& sizes) const;
    TabParts parts(int tab, const TabsSizes& sizes, bool has_icon, bool closable) const;
    /// At a point: a tab, or -1.
    int tab_at(int x, int y) const;
    /// Position among all tabs before which a tab that is dropped there would stand.
    int gap_at(int x, int y) const;
    /// The line that shows that place, `thick` pixels.
    PixelRect gap_mark(int gap, int thick) const;
};

/// Lays out tabs of these lengths. `first` is the first one that should be shown, `wanted` one that must be (-1: none).
TabsLayout lay_out_tabs(const TabsModel& model, const TabsSizes& sizes, std::span<const int> lengths, int width,
                        int height, int first, int wanted);

} // namespace wnt

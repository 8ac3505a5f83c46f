#pragma once

#include "widgets/painting/upward_rect.h"

namespace wnt {

inline constexpr int headline_height = 16;
inline constexpr int week_height = 30;

/// Where the parts of a calendar lie in a window.
struct CalendarLayout {
    UpwardRect top_strip;
    UpwardRect bottom_strip;
    UpwardRect headline;
    UpwardRect months;
    UpwardRect grid;
    int column_width = 0;
    int last_row = 0; ///< The first row is 0; negative in a window without room for one.
};

constexpr CalendarLayout calendar_layout(int width, int height) {
    constexpr int h = headline_height;
    CalendarLayout layout;
    layout.top_strip = {0, height - 1, width - 1, height - h - 1};
    layout.bottom_strip = {0, h, width - 1, 0};
    layout.headline = {0, height - h - 2, width - 1, height - 2 * h - 2};
    layout.months = {0, height - 2 * h - 3, h, h + 1};
    layout.grid = {h + 1, height - 2 * h - 3, width - 1, h + 1};
    layout.column_width = (width - 1 - (h + 1)) / 7;
    layout.last_row = ((height - 2 * h - 3) - (h + 1)) / week_height;
    return layout;
}

} // namespace wnt

#pragma once

#include <vector>

#include "controls/pixel_rect.h"

namespace wnt {

struct ChartSizes {
    int scale = 100; ///< percentage of the distances at 96 dots an inch
    int title = 0;   ///< height of the title's row; 0: none
    int legend = 0;  ///< height of a legend's row; 0: none
    int scroll_bar = 0;
    bool left_axis = false, right_axis = false, time_axis = false;
    std::vector<int> entries; ///< widths of the legend's entries
};

/// Pixels of the client area; what has no room is empty. The plot comes first: in small charts legend, title, scroll
/// bar and axes give way, in this order.
struct ChartLayout {
    PixelRect title, legend, left_axis, right_axis, time_axis, scroll_bar, plot;
    std::vector<PixelRect> entries; ///< of the legend, row by row; those that have no room are empty
};

ChartLayout lay_out_chart(int width, int height, const ChartSizes& sizes);

} // namespace wnt

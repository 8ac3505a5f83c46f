#include "widgets/pulse/chart_layout.h"

#include <algorithm>

namespace wnt {

namespace {

constexpr int least_plot_width = 60, least_plot_height = 40, margin = 6, axis_width = 46, axis_height = 30;

int scaled(int pixels, int scale) {
    return std::max((pixels * scale + 50) / 100, 1);
}

// Entries in rows, each row as long as there is room.
int legend_rows(const ChartSizes& sizes, int width, std::vector<PixelRect>& entries) {
    int x = 0, row = 0;
    for (const int entry : sizes.entries) {
        const int w = std::min(entry, width);
        if (x > 0 && x + w > width) {
            x = 0;
            ++row;
        }
        entries.push_back({x, row * sizes.legend, x + w, (row + 1) * sizes.legend});
        x += w;
    }
    return entries.empty() ? 0 : row + 1;
}

} // namespace

ChartLayout lay_out_chart(int width, int height, const ChartSizes& sizes) {
    ChartLayout result;
    width = std::max(width, 0);
    height = std::max(height, 0);
    const int edge = width > 2 * least_plot_width && height > 2 * least_plot_height ? scaled(margin, sizes.scale) : 0;
    PixelRect plot{edge, edge, std::max(width - edge, edge), std::max(height - edge, edge)};

    // By their worth; each takes its room only where the plot keeps the least it needs.
    const auto take = [&](int wanted, int room, int least) {
        return wanted > 0 && room - wanted >= least ? wanted : 0;
    };
    const int across = axis_width, along = axis_height;
    if (sizes.time_axis)
        result.time_axis.bottom = take(along, plot.height(), least_plot_height);
    if (sizes.left_axis && plot.height() > least_plot_height)
        result.left_axis.right = take(across, plot.width(), least_plot_width);
    if (sizes.right_axis && plot.height() > least_plot_height)
        result.right_axis.right = take(across, plot.width() - result.left_axis.right, least_plot_width);
    int room = plot.height() - result.time_axis.bottom;
    const int bar = take(sizes.scroll_bar, room, 2 * least_plot_height);
    room -= bar;
    const int title = take(sizes.title, room, least_plot_height);
    room -= title;
    std::vector<PixelRect> entries;
    const int rows = sizes.legend > 0 ? legend_rows(sizes, plot.width(), entries) : 0;
    const int legend = take(rows * sizes.legend, room, std::max(least_plot_height, room / 2));

    const int top = plot.top + title + legend, bottom = plot.bottom - bar - result.time_axis.bottom;
    const int left = plot.left + result.left_axis.right, right = plot.right - result.right_axis.right;
    if (title)
        result.title = {plot.left, plot.top, plot.right, plot.top + title};
    if (legend) {
        result.legend = {plot.left, plot.top + title, plot.right, top};
        for (PixelRect& entry : entries)
            entry = {entry.left + plot.left, entry.top + result.legend.top, entry.right + plot.left,
                     entry.bottom + result.legend.top};
    } else {
        std::fill(entries.begin(), entries.end(), PixelRect());
    }
    result.entries = std::move(entries);
    result.time_axis = result.time_axis.bottom ? PixelRect{left, bottom, right, bottom + along} : PixelRect();
    // Rows of upright axes count from 1 (see ValueScale).
    result.left_axis = result.left_axis.right ? PixelRect{left - across, top - 1, left, bottom - 1} : PixelRect();
    result.right_axis = result.right_axis.right ? PixelRect{right, top - 1, right + across, bottom - 1} : PixelRect();
    if (bar)
        result.scroll_bar = {left, plot.bottom - bar, right, plot.bottom};
    result.plot = {left, top, right, bottom};
    return result;
}

} // namespace wnt

#pragma once

#include "widgets/axis/axis_types.h"
#include "widgets/axis/numeric_grid.h"
#include "widgets/axis/time_grid.h"

#include <cstdint>

namespace wnt {

enum AxisType { axis_numeric, axis_text, axis_time };

/// Where the axis lies at its plot; its ticks sit on the opposite edge of the axis.
enum AxisPosition { axis_top, axis_left, axis_bottom, axis_right };

/// Pixels of the window's client area.
struct AxisRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

/// What an axis shows: a range of values, of text labels or of time on a stretch of pixels, with the conversions
/// between them. Horizontal axes grow from left to right, vertical ones from bottom to top. Where a division has no
/// answer (no pixels, an empty range) a conversion gives the origin, and results beyond a type stop at its limits.
/// A null result pointer makes a conversion return 0 and do nothing.
struct AxisModel {
    std::int32_t type = axis_numeric;    ///< An AxisType; any integer.
    std::int32_t position = axis_bottom; ///< An AxisPosition; any integer, bit 1 does not tell the orientation.
    float minimum = 0.0f;                ///< Of numeric and text axes.
    float maximum = 100.0f;
    AxisGrid grid;
    std::int32_t text_count = 0; ///< Labels of a text axis. The grid's count may be set to more.
    AxisRect rect;

    TAxisdatetime current_day{};
    std::int64_t current_day_value = 0;
    TAxisdatetime view_start{1, 1, 1980, 0, 0, 0, 0};
    std::int64_t start_value = 0;
    TAxisdatetime view_end{1, 1, 1980, 0, 0, 0, 0};
    std::int64_t end_value = 0;
    std::int64_t span = 0;
    std::int64_t last_converted = 0;

    bool horizontal() const { return (position & ~2) == 0; }

    /// right - left or bottom - top.
    std::int64_t length() const;

    /// Places the axis at 0, 0 and fits the grid of a numeric axis to the new length.
    void resize(std::int32_t width, std::int32_t height);

    void set_range(float new_minimum, float new_maximum);

    /// Computes the numeric grid, whatever the type.
    void make_range();

    /// Shows `count` labels, one a grid step; 0 changes nothing. The type stays.
    void set_texts(std::int32_t count);
    bool has_text(std::int64_t index) const { return 0 <= index && index < text_count; }

    /// Shows a stretch of time and becomes a time axis. The records hold full years.
    void set_view_time(const TAxisdatetime& start, const TAxisdatetime& end);

    /// Shows a stretch of time; the type stays. The records that it makes count years from 1900.
    void set_time_range(std::int64_t start, std::int64_t end);

    TimeGrid time_grid() const { return TimeGrid(view_start, start_value, end_value); }

    void set_current_day(std::int32_t year, std::int32_t month, std::int32_t day);

    /// Pixels a grid step; 1 without a grid.
    float pixel_per_grid() const;
    std::int32_t tick_width() const;

    /// Pixel of labelled line `index`, whether inside the range or not.
    std::int32_t scale_line_pos(std::int32_t index) const;

    /// Pixel to value: 0, and nothing stored, for a pixel outside the axis or an empty range, else 1.
    int calc_float_coord(std::int32_t pixel, float* value) const;

    /// Value to pixel, clamped: 1 for a value in the range, 0 for one outside. An empty range stores nothing.
    int calc_pixel_coord(float value, std::int32_t* pixel) const;

    /// Pixel to value: 1 for a pixel on the axis, 0 for one outside, which is converted too.
    int screen_to_value(std::int32_t pixel, float* value) const;
    int screen_to_value(std::int32_t pixel, std::int64_t* time) const;

    /// Value to pixel: 0 inside; -1 below and 1 above, with the pixel just beyond that end.
    int value_to_screen(float value, std::int32_t* pixel) const;
    int value_to_screen(std::int64_t time, std::int32_t* pixel);

    /// Pixel of a time within the view.
    std::int32_t pixel_of(std::int64_t time) const;

    /// Pixel of a time, or the one just beyond the axis for a time at or past an end. Unlike the other conversions it
    /// runs downwards on a vertical axis.
    std::int32_t set_current_time(std::int64_t time);

    /// The same for a time counted from the start of the current day.
    std::int32_t set_current_offset(std::int32_t offset);
};

} // namespace wnt

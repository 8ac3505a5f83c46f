#include "widgets/axis/axis_model.h"

#include "arithmetic.h"
#include "widgets/axis/time_value.h"

namespace wnt {

namespace {

// The axis as a line: where its values start, the signed length to the far end, and the direction of growing values.
struct Line {
    std::int64_t origin;
    std::int64_t length;
    int forward;

    std::int32_t before() const { return saturated_int(origin - forward); }
    std::int32_t beyond() const { return saturated_int(origin + length + forward); }

    // The pixel at an offset from the origin, kept on the axis.
    std::int32_t at(std::int64_t offset) const {
        const std::int64_t low = std::min<std::int64_t>(length, 0);
        const std::int64_t high = std::max<std::int64_t>(length, 0);
        return saturated_int(origin + std::clamp(offset, low, high));
    }
};

Line line_of(const AxisModel& axis) {
    const AxisRect& rect = axis.rect;
    if (axis.horizontal())
        return {rect.left, std::int64_t{rect.right} - rect.left, 1};
    return {rect.bottom, std::int64_t{rect.top} - rect.bottom, -1};
}

bool on_axis(const AxisModel& axis, std::int32_t pixel) {
    const AxisRect& rect = axis.rect;
    return axis.horizontal() ? rect.left <= pixel && pixel <= rect.right : rect.top <= pixel && pixel <= rect.bottom;
}

bool in_range(const AxisModel& axis, float value) {
    return axis.minimum <= value && value <= axis.maximum;
}

bool has_grid(const AxisModel& axis) {
    return axis.grid.count != 0 && axis_numeric <= axis.type && axis.type <= axis_time;
}

} // namespace

std::int64_t AxisModel::length() const {
    return horizontal() ? std::int64_t{rect.right} - rect.left : std::int64_t{rect.bottom} - rect.top;
}

void AxisModel::resize(std::int32_t width, std::int32_t height) {
    rect = {0, 0, width, height};
    if (type == axis_numeric)
        make_range();
}

void AxisModel::set_range(float new_minimum, float new_maximum) {
    minimum = new_minimum;
    maximum = new_maximum;
    make_range();
}

void AxisModel::make_range() {
    grid = numeric_grid(minimum, maximum, static_cast<float>(std::max(length(), -length())), grid.step);
}

void AxisModel::set_texts(std::int32_t count) {
    if (count == 0)
        return;
    text_count = count;
    grid.count = count;
    grid.scale_lines = count;
    grid.first_value = 0.0f;
    grid.step = 1.0f;
    minimum = 0.0f;
    maximum = static_cast<float>(count);
}

void AxisModel::set_view_time(const TAxisdatetime& start, const TAxisdatetime& end) {
    view_start = start;
    view_end = end;
    start_value = time_value(start);
    end_value = time_value(end);
    span = saturated_difference(end_value, start_value);
    type = axis_time;
}

void AxisModel::set_time_range(std::int64_t start, std::int64_t end) {
    start_value = start;
    end_value = end;
    view_start = split_time(start);
    view_end = split_time(end);
    span = saturated_difference(end, start);
}

void AxisModel::set_current_day(std::int32_t year, std::int32_t month, std::int32_t day) {
    current_day = {day, month, year, 0, 0, 0, 0};
    current_day_value = time_value(current_day);
}

float AxisModel::pixel_per_grid() const {
    return has_grid(*this) ? static_cast<float>(length()) / static_cast<float>(grid.count) : 1.0f;
}

std::int32_t AxisModel::tick_width() const {
    return has_grid(*this) ? saturated_int(length() / grid.count) : 1;
}

std::int32_t AxisModel::scale_line_pos(std::int32_t index) const {
    const float steps = type == axis_numeric ? steps_per_scale_line : 1.0f;
    std::int32_t pixel = 0;
    value_to_screen(static_cast<float>(index) * steps * grid.step + grid.first_scale_value, &pixel);
    return pixel;
}

int AxisModel::calc_float_coord(std::int32_t pixel, float* value) const {
    if (!value || !on_axis(*this, pixel) || minimum == maximum)
        return 0;
    const Line line = line_of(*this);
    const auto length = static_cast<float>(line.length);
    const auto offset = static_cast<float>(pixel - line.origin);
    // Through percent, which rounds a little differently from a direct proportion: intended.
    const float above = line.length == 0 ? 0.0f : 100.0f / length * offset * ((maximum - minimum) / 100.0f);
    *value = finite(above + minimum);
    return 1;
}

int AxisModel::calc_pixel_coord(float value, std::int32_t* pixel) const {
    if (!pixel || minimum == maximum)
        return 0;
    const auto pixels = static_cast<float>(length());
    const float percent = 100.0f / (maximum - minimum) * (value - minimum);
    const float offset = std::min(std::max(pixels * percent / 100.0f, 0.0f), pixels);
    const Line line = line_of(*this);
    *pixel = line.at(line.forward * truncated(offset));
    return in_range(*this, value);
}

int AxisModel::screen_to_value(std::int32_t pixel, float* value) const {
    if (!value)
        return 0;
    const Line line = line_of(*this);
    const auto offset = static_cast<float>(pixel - line.origin);
    const float above = line.length == 0 ? 0.0f : (maximum - minimum) * offset / static_cast<float>(line.length);
    *value = finite(above + minimum);
    return on_axis(*this, pixel);
}

int AxisModel::screen_to_value(std::int32_t pixel, std::int64_t* time) const {
    if (!time)
        return 0;
    const Line line = line_of(*this);
    *time = saturated_sum(proportion(pixel - line.origin, span, line.length), start_value);
    return on_axis(*this, pixel);
}

int AxisModel::value_to_screen(float value, std::int32_t* pixel) const {
    if (!pixel)
        return 0;
    const Line line = line_of(*this);
    if (value > maximum) {
        *pixel = line.beyond();
        return 1;
    }
    if (value < minimum) {
        *pixel = line.before();
        return -1;
    }
    // The half is added to the negative length of a vertical axis as well: its maximum ends one pixel short.
    const float offset = (value - minimum) * static_cast<float>(line.length) / (maximum - minimum) + 0.5f;
    *pixel = line.at(minimum == maximum ? 0 : truncated(offset));
    return 0;
}

int AxisModel::value_to_screen(std::int64_t time, std::int32_t* pixel) {
    if (!pixel)
        return 0;
    last_converted = time;
    const Line line = line_of(*this);
    if (time < start_value) {
        *pixel = line.before();
        return -1;
    }
    if (time > end_value) {
        *pixel = line.beyond();
        return 1;
    }
    *pixel = pixel_of(time);
    return 0;
}

std::int32_t AxisModel::pixel_of(std::int64_t time) const {
    const Line line = line_of(*this);
    return line.at(proportion(line.length, saturated_difference(time, start_value), span));
}

std::int32_t AxisModel::set_current_time(std::int64_t time) {
    last_converted = time;
    const std::int64_t low = horizontal() ? rect.left : rect.top;
    if (time <= start_value)
        return saturated_int(low - 1);
    if (time >= end_value)
        return saturated_int(low + length() + 1);
    return saturated_int(proportion(length(), saturated_difference(time, start_value), span) + low);
}

std::int32_t AxisModel::set_current_offset(std::int32_t offset) {
    return set_current_time(saturated_sum(current_day_value, offset));
}

} // namespace wnt

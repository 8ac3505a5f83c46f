#include "widgets/axis/axis_ticks.h"

#include "arithmetic.h"
#include "widgets/axis/axis_labels.h"
#include "widgets/axis/time_value.h"

#include <cstdlib>

namespace wnt {

namespace {

constexpr std::int32_t major_length = 6;
constexpr std::int32_t minor_length = 2;
constexpr std::int32_t unlabelled_top = 8; // rows of a vertical numeric axis
constexpr std::int64_t steps_per_pixel = 8;

// Steps to go at once: a grid of millions of steps is finer than the pixels many times over.
std::int64_t stride_of(const AxisModel& axis) {
    const float in_range = (axis.maximum - axis.grid.first_value) / axis.grid.step;
    const std::int64_t count = axis.grid.count;
    const std::int64_t steps = std::isnan(in_range) ? count : std::min(count, truncated(in_range));
    const std::int64_t pixels = std::max<std::int64_t>(std::abs(axis.length()), 1);
    return std::max<std::int64_t>(steps / (pixels * steps_per_pixel), 1);
}

std::string value_label(const AxisModel& axis, const AxisTexts& texts, std::int64_t index, float value,
                        std::int32_t pixel) {
    if (axis.type == axis_text)
        return text_label(axis.has_text(index) ? texts(index) : nullptr);
    return axis.horizontal() || pixel > unlabelled_top ? numeric_label(value) : std::string();
}

// What the labels of a time axis have to keep clear of.
class TimeLabels {
public:
    TimeLabels(const AxisModel& axis, const TimeGrid& grid) : axis_(axis), grid_(grid) {}

    std::string at(std::int32_t pixel, std::int64_t time) {
        if (!is_clear(pixel))
            return {};
        std::string text = time_label(grid_.level().label, split_time(time));
        if (text == text_)
            return {};
        pixel_ = pixel;
        text_ = text;
        return text;
    }

private:
    // Intended: a vertical axis compares pixels with a time value. Views set by records show no labels therefore.
    bool is_clear(std::int64_t pixel) const {
        if (axis_.horizontal())
            return pixel > pixel_ + 6 * grid_.level().level;
        return std::abs(pixel - pixel_) > grid_.origin();
    }

    const AxisModel& axis_;
    const TimeGrid& grid_;
    std::int64_t pixel_ = -1000;
    std::string text_;
};

} // namespace

std::vector<AxisTick> value_ticks(const AxisModel& axis, const AxisTexts& texts) {
    std::vector<AxisTick> ticks;
    ticks.reserve(64);
    const std::int64_t stride = stride_of(axis);
    int side = 0;
    for (std::int64_t i = 0; i < axis.grid.count && side <= 0; i += stride) {
        const float value = static_cast<float>(i) * axis.grid.step + axis.grid.first_value;
        std::int32_t pixel = 0;
        side = axis.value_to_screen(value, &pixel);
        const bool major = axis.type == axis_text || is_scale_line(value, axis.grid.step);
        if (!ticks.empty() && ticks.back().pixel == pixel) {
            if (!major || ticks.back().length == major_length)
                continue;
            ticks.pop_back(); // the label stays
        }
        if (major)
            ticks.push_back({pixel, major_length, value_label(axis, texts, i, value, pixel)});
        else
            ticks.push_back({pixel, minor_length, {}});
    }
    return ticks;
}

std::vector<AxisTick> time_ticks(const AxisModel& axis) {
    std::vector<AxisTick> ticks;
    const TimeGrid grid = axis.time_grid();
    TimeLabels labels(axis, grid);
    for (auto tick = grid.first(); tick; tick = grid.after(*tick)) {
        const std::int32_t pixel = axis.pixel_of(*tick);
        if (ticks.empty() || ticks.back().pixel != pixel)
            ticks.push_back({pixel, grid.level().tick_length, labels.at(pixel, *tick)});
    }
    return ticks;
}

} // namespace wnt

#include "widgets/axis/numeric_grid.h"

#include "arithmetic.h"

#include <cmath>

namespace wnt {

namespace {

constexpr float least_step_pixels = 3.0f;

// Without 1, on purpose: a raw step that is itself a power of ten is doubled.
constexpr float step_multipliers[] = {2.0f, 5.0f, 10.0f};

float nice_step(float raw, float previous_step) {
    // The logarithm in single precision: 0.01f then lies at -2 and not just below it.
    const auto magnitude = static_cast<float>(std::pow(10.0, std::floor(std::log10(raw))));
    const float normalised = raw / magnitude;
    for (float multiplier : step_multipliers) {
        const float step = multiplier * magnitude;
        if (multiplier >= normalised)
            return std::isnormal(step) ? step : previous_step;
    }
    return previous_step;
}

} // namespace

AxisGrid numeric_grid(float minimum, float maximum, float length, float previous_step) {
    const float span = maximum - minimum;
    const float step = length > 0 ? nice_step(span * least_step_pixels / length, previous_step) : previous_step;

    AxisGrid grid;
    grid.step = step;
    grid.count = truncated_int(span / step);
    grid.scale_lines = truncated_int(span / step / steps_per_scale_line);
    const std::int64_t below = truncated_int(minimum / step);
    grid.first_value = finite(static_cast<float>(below + 1) * step);
    // Intended: a negative minimum skips one multiple, because the truncation goes toward zero.
    const std::int64_t scale_below = truncated_int(minimum / step / -steps_per_scale_line);
    grid.first_scale_value = finite(static_cast<float>(1 - scale_below) * step * steps_per_scale_line);
    return grid;
}

bool is_scale_line(float value, float step) {
    const float lines = value / (step * steps_per_scale_line);
    const float fraction = lines - std::floor(lines);
    return fraction < 0.01f || fraction > 0.99f;
}

} // namespace wnt

#pragma once

#include <cstdint>

namespace wnt {

/// The grid of an axis: where its lines lie and how many there are.
struct AxisGrid {
    std::int32_t count = 100;       ///< Grid steps across the axis.
    std::int32_t scale_lines = 0;   ///< Labelled lines.
    float first_value = 0.0f;       ///< Value of the first grid line.
    float first_scale_value = 0.0f; ///< Value of the first labelled line.
    float step = 1.0f;              ///< Distance of two grid lines; never 0.
};

/// Grid steps from one labelled line of a numeric axis to the next.
inline constexpr float steps_per_scale_line = 5.0f;

/// The grid of a numeric range on `length` pixels: steps of 2, 5 or 10 times a power of ten, about 3 pixels or more
/// wide. Where no such step exists (an empty, inverted or infinite range, no pixels) the step stays `previous_step`.
AxisGrid numeric_grid(float minimum, float maximum, float length, float previous_step);

/// True for a grid line that carries a label: a whole multiple of the labelled distance, within a hundredth of it.
bool is_scale_line(float value, float step);

} // namespace wnt

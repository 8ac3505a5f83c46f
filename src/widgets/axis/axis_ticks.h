#pragma once

#include "widgets/axis/axis_model.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace wnt {

/// One line of an axis' grid.
struct AxisTick {
    std::int32_t pixel;  ///< Along the axis.
    std::int32_t length; ///< Pixels across the axis.
    std::string label;   ///< Empty: none.
};

/// Answers the label of a grid step, or null where the host gave none.
using AxisTexts = std::function<const char*(std::int64_t index)>;

/// The ticks of a numeric or a text axis, at most one a pixel, from the first to the first one beyond the range.
std::vector<AxisTick> value_ticks(const AxisModel& axis, const AxisTexts& texts);

/// The ticks of a time axis, at most one a pixel.
std::vector<AxisTick> time_ticks(const AxisModel& axis);

} // namespace wnt

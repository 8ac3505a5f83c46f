#pragma once

#include "widgets/axis/axis_types.h"
#include "widgets/axis/time_grid.h"

#include <string>

namespace wnt {

/// Labels are cut to this many characters.
inline constexpr int longest_axis_label = 49;

/// Four significant digits or more, without trailing zeros.
std::string numeric_label(float value);

/// A null text gives the text that an axis without labels shows.
std::string text_label(const char* text);

/// The label of a tick with these fields; empty where the level has no labels or the month no name.
std::string time_label(TimeLabel kind, const TAxisdatetime& record);

} // namespace wnt

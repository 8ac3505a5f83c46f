#pragma once

#include "widgets/axis/axis_types.h"

#include <cstdint>
#include <optional>

namespace wnt {

/// The field below which the start of a time grid is cleared, from the finest to the coarsest.
enum class TimeRounding { none, minute, hour, day, month, year };

/// What the ticks of a time axis are labelled with.
enum class TimeLabel { none, seconds, minutes, hours, date, month_name, month_number, year };

/// How a time axis shows spans of one size.
struct TimeLevel {
    std::int32_t level;
    std::int32_t label_group; ///< Kept with the level; labels follow `label`.
    std::int32_t tick_length; ///< Pixels.
    std::int32_t numerator;
    std::int32_t divisor;
    std::int64_t unit; ///< Hundredths.
    TimeRounding rounding;
    TimeLabel label;

    constexpr std::int64_t interval() const { return numerator / divisor * unit; }
};

/// The level for a view from `start` to `end`.
const TimeLevel& time_level(std::int64_t start, std::int64_t end);

/// The record with everything below the field cleared; a cleared day or month is 0.
TAxisdatetime rounded_down(TAxisdatetime record, TimeRounding rounding);

/// The ticks of a time axis, from the first in the view to the last before its end:
/// `for (auto tick = grid.first(); tick; tick = grid.after(*tick))`.
class TimeGrid {
public:
    /// Views so long that they hold more ticks than this, ten thousand years, keep one of several.
    static constexpr std::int64_t most_ticks = 10'000;

    TimeGrid(const TAxisdatetime& start_record, std::int64_t start, std::int64_t end);

    const TimeLevel& level() const { return level_; }

    /// The tick from which all are counted. May lie far outside the view.
    std::int64_t origin() const { return origin_; }

    std::optional<std::int64_t> first() const;
    std::optional<std::int64_t> after(std::int64_t tick) const;

private:
    std::optional<std::int64_t> inside(std::int64_t from, std::uint64_t distance) const;

    const TimeLevel& level_;
    std::int64_t origin_;
    std::int64_t start_;
    std::int64_t end_;
    std::uint64_t stride_;
};

} // namespace wnt

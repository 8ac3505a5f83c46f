#include "widgets/axis/time_grid.h"

#include "arithmetic.h"
#include "widgets/axis/time_value.h"

namespace wnt {

namespace {

// clang-format off
constexpr TimeLevel levels[] = {
    // level, label group, tick length, interval, start rounded down to, label
    { 0,  0, 1, 100, 10,           1, TimeRounding::none,   TimeLabel::none},         // 0.1 s
    { 1,  0, 2,  60, 12,          10, TimeRounding::minute, TimeLabel::seconds},      // 0.5 s
    { 2,  1, 2,  60, 15,         150, TimeRounding::minute, TimeLabel::seconds},      // 6 s
    { 3,  1, 2,  60, 12,         300, TimeRounding::minute, TimeLabel::seconds},      // 15 s
    { 4,  1, 3,  60,  6,         600, TimeRounding::minute, TimeLabel::minutes},      // 1 min
    { 5,  4, 3,  15, 15,       9'000, TimeRounding::minute, TimeLabel::minutes},      // 1.5 min
    { 6,  4, 3,  30, 30,      18'000, TimeRounding::minute, TimeLabel::minutes},      // 3 min
    { 7,  4, 3,  60,  6,      36'000, TimeRounding::hour,   TimeLabel::hours},        // 1 h
    { 8,  7, 5,  24, 24,   8'640'000, TimeRounding::day,    TimeLabel::date},         // 1 day
    { 9,  7, 5,   7,  7,  60'480'000, TimeRounding::day,    TimeLabel::date},         // 7 days
    {10,  7, 5,  30, 30, 259'200'000, TimeRounding::month,  TimeLabel::month_name},   // 30 days
    {11, 10, 7,   3,  3, 777'600'000, TimeRounding::month,  TimeLabel::month_number}, // 90 days
    {12, 10, 7,  12, 12, 3'153'600'000, TimeRounding::year, TimeLabel::year},         // 365 days
};
// clang-format on

struct LevelRule {
    std::int64_t least;
    int level;
};

// Spans in whole days, then in hundredths; the first rule that holds.
constexpr LevelRule day_rules[] = {{401, 12}, {201, 11}, {91, 10}, {8, 9}, {3, 8}};
constexpr LevelRule hundredths_rules[] = {{720'000, 7}, {186'000, 6}, {96'000, 5}, {12'000, 4}, {3'100, 3}, {1'600, 2}};
constexpr int shortest_level = 1;

} // namespace

const TimeLevel& time_level(std::int64_t start, std::int64_t end) {
    const std::int64_t span = truncated(static_cast<float>(saturated_difference(end, start)));
    for (const LevelRule& rule : day_rules) {
        if (span / hundredths_per_day >= rule.least)
            return levels[rule.level];
    }
    for (const LevelRule& rule : hundredths_rules) {
        if (span >= rule.least)
            return levels[rule.level];
    }
    return levels[shortest_level];
}

TAxisdatetime rounded_down(TAxisdatetime record, TimeRounding rounding) {
    if (rounding >= TimeRounding::minute)
        record.second = record.hundredths = 0;
    if (rounding >= TimeRounding::hour)
        record.minute = 0;
    if (rounding >= TimeRounding::day)
        record.hour = 0;
    if (rounding >= TimeRounding::month)
        record.day = 0; // intended: the first tick lies on the day before the first of the month
    if (rounding >= TimeRounding::year)
        record.month = 0;
    return record;
}

TimeGrid::TimeGrid(const TAxisdatetime& start_record, std::int64_t start, std::int64_t end)
    : level_(time_level(start, end)), origin_(time_value(rounded_down(start_record, level_.rounding))), start_(start),
      end_(end) {
    const std::int64_t ticks = saturated_difference(end, start) / level_.interval();
    stride_ = static_cast<std::uint64_t>(level_.interval() * (std::max<std::int64_t>(ticks, 0) / most_ticks + 1));
}

std::optional<std::int64_t> TimeGrid::first() const {
    if (origin_ >= start_)
        return inside(origin_, 0);
    // A record whose year counts from 1900 puts the origin centuries before the view: the distance is computed.
    const std::uint64_t distance = static_cast<std::uint64_t>(start_) - static_cast<std::uint64_t>(origin_);
    const std::uint64_t beyond = distance % stride_;
    return inside(start_, beyond == 0 ? 0 : stride_ - beyond);
}

std::optional<std::int64_t> TimeGrid::after(std::int64_t tick) const {
    return inside(tick, stride_);
}

std::optional<std::int64_t> TimeGrid::inside(std::int64_t from, std::uint64_t distance) const {
    if (from >= end_ || distance >= static_cast<std::uint64_t>(end_) - static_cast<std::uint64_t>(from))
        return std::nullopt;
    return from + static_cast<std::int64_t>(distance);
}

} // namespace wnt

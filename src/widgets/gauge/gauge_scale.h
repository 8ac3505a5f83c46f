#pragma once

#include "widgets/gauge/gauge_model.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace wnt {

/// Share of the scale, 0..1, at which the value stands: 0 at `minimum`, 1 at `maximum`, whichever is the larger;
/// values outside are clamped, and an empty scale gives 0.
double scale_fraction(std::int32_t minimum, std::int32_t maximum, std::int32_t value);

/// Value at division 0..divisions of the scale, rounded to the nearest; other divisions are clamped.
std::int32_t division_value(std::int32_t minimum, std::int32_t maximum, std::int32_t divisions, std::int32_t division);

/// How far from its whole number a label may stand on a scale of some pixels: half a pixel, or a thousandth of a long
/// one.
constexpr double label_tolerance(double length) {
    return std::max(0.5, length / 1000);
}

/// Which divisions are drawn: every `minor`-th gets a tick, every `major`-th, a multiple of it, a label.
struct TickSteps {
    std::int32_t minor;
    std::int32_t major;
};

/// Thins a scale of 1..999 divisions over `length` pixels so that ticks and labels keep their least distances. Where
/// divisions must be left out, steps of 1, 2 or 5 times a power of ten in value come first, then steps that end on
/// the last division, then round numbers of divisions. Labels that would not be whole numbers give way to round values
/// that divisions lie close to. Where nothing fits, the two ends remain.
TickSteps tick_steps(std::int32_t minimum, std::int32_t maximum, std::int32_t divisions, std::int32_t length,
                     std::int32_t least_tick, std::int32_t least_label);

/// A run of values of one colour, both ends included.
struct ColourZone {
    std::int32_t from;
    std::int32_t to;
    int colour;
};

/// Neighbouring runs differ in colour; together they cover the range in ascending order.
struct ColourZones {
    static constexpr int capacity = GaugeModel::mark_capacity + 2;
    std::array<ColourZone, capacity> zones;
    int count = 0;

    const ColourZone* begin() const { return zones.data(); }
    const ColourZone* end() const { return zones.data() + count; }
};

/// The runs of the model's range: for each value the colour that `getmarkercolour` gives it.
ColourZones colour_zones(const GaugeModel& model);

} // namespace wnt

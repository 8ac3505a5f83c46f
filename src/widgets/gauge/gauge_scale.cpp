#include "widgets/gauge/gauge_scale.h"

#include <algorithm>
#include <cstdlib>

namespace wnt {

namespace {

// A value's distance along the scale and the scale's length, both from the minimum and never negative.
struct Along {
    std::int64_t distance;
    std::int64_t length;
};

Along along_scale(std::int64_t minimum, std::int64_t maximum, std::int64_t value) {
    const std::int64_t sign = maximum < minimum ? -1 : 1;
    const std::int64_t length = sign * (maximum - minimum);
    return {std::clamp<std::int64_t>(sign * (value - minimum), 0, length), length};
}

// number * numerator / denominator, rounded to the nearest. The callers' products stay below 2^63.
std::int64_t share(std::int64_t number, std::int64_t numerator, std::int64_t denominator) {
    return (number * numerator + denominator / 2) / denominator;
}

bool is_round(std::int64_t number) {
    while (number >= 10 && number % 10 == 0)
        number /= 10;
    return number == 1 || number == 2 || number == 5;
}

// The least of 1, 2, 5, 10, 20, ... that reaches the number.
std::int32_t round_up(std::int32_t number) {
    for (std::int32_t power = 1;; power *= 10) {
        for (std::int32_t digit : {1, 2, 5}) {
            if (digit * power >= number)
                return digit * power;
        }
    }
}

// A step of at least `least` divisions, in whole units; `range` is the scale's length in values.
std::int32_t thinned_step(std::int64_t range, std::int32_t divisions, std::int32_t unit, std::int32_t least) {
    if (least <= unit)
        return unit;
    const std::int32_t first = (least + unit - 1) / unit * unit;
    std::int32_t even = 0;
    for (std::int32_t step = first; step <= std::min(divisions, 4 * least); step += unit) {
        if (divisions % step != 0)
            continue;
        if (range * step % divisions == 0 && is_round(range * step / divisions))
            return step;
        if (even == 0)
            even = step;
    }
    if (even != 0)
        return even;
    return std::min(round_up(first / unit), divisions / unit) * unit;
}

// Steps close to round values where divisions lie on none: every multiple of `major` is then a round value within the
// tolerance of labels, and `minor` parts it evenly. A `major` of 0 where there are no such steps.
TickSteps near_round_steps(std::int64_t range, std::int32_t divisions, std::int32_t length, TickSteps least) {
    for (std::int64_t power = 1; power <= range; power *= 10) {
        for (const std::int64_t value : {power, 2 * power, 5 * power}) {
            const auto major = static_cast<std::int32_t>(share(divisions, value, range));
            if (value > range || major < least.major)
                continue;
            const std::int64_t drift = std::abs(range * major - divisions * value) * (divisions / major);
            if (static_cast<double>(drift) * length > label_tolerance(length) * static_cast<double>(range) * divisions)
                continue;
            for (std::int32_t minor = std::max(least.minor, 1); minor <= 4 * least.minor; ++minor) {
                const std::int32_t parts = major / minor;
                if (major % minor == 0 && 1000 * value % parts == 0 && is_round(1000 * value / parts))
                    return {minor, major};
            }
        }
    }
    return {0, 0};
}

// Divisions that a distance in pixels spans, rounded up.
std::int32_t divisions_across(std::int32_t divisions, std::int32_t length, std::int32_t distance) {
    const std::int64_t pixels = std::max(length, 1);
    const std::int64_t across = (std::int64_t{std::max(distance, 0)} * divisions + pixels - 1) / pixels;
    return static_cast<std::int32_t>(std::min<std::int64_t>(across, divisions));
}

} // namespace

double scale_fraction(std::int32_t minimum, std::int32_t maximum, std::int32_t value) {
    const Along along = along_scale(minimum, maximum, value);
    return along.length == 0 ? 0.0 : static_cast<double>(along.distance) / static_cast<double>(along.length);
}

std::int32_t division_value(std::int32_t minimum, std::int32_t maximum, std::int32_t divisions, std::int32_t division) {
    const std::int32_t count = std::max(divisions, 1);
    const std::int64_t length = along_scale(minimum, maximum, minimum).length;
    const std::int64_t distance = share(length, std::clamp(division, 0, count), count);
    return static_cast<std::int32_t>(maximum < minimum ? minimum - distance : minimum + distance);
}

TickSteps tick_steps(std::int32_t minimum, std::int32_t maximum, std::int32_t divisions, std::int32_t length,
                     std::int32_t least_tick, std::int32_t least_label) {
    const std::int64_t range = along_scale(minimum, maximum, minimum).length;
    const std::int32_t count = std::clamp(divisions, 1, GaugeModel::most_scales);
    const TickSteps least = {divisions_across(count, length, least_tick), divisions_across(count, length, least_label)};
    const std::int32_t minor = thinned_step(range, count, 1, least.minor);
    const TickSteps steps = {minor, thinned_step(range, count, minor, least.major)};
    if (range == 0 || range * steps.major % count == 0)
        return steps;
    const TickSteps round = near_round_steps(range, count, length, least);
    return round.major > 0 ? round : steps;
}

ColourZones colour_zones(const GaugeModel& model) {
    const std::int64_t low = std::min(model.minimum, model.maximum);
    const std::int64_t high = std::max(model.minimum, model.maximum);

    // A colour can change at a mark and just above the last one, nowhere else.
    std::array<std::int64_t, ColourZones::capacity> starts;
    int count = 0;
    starts[count++] = low;
    for (int i = 0; i < model.mark_count; ++i)
        starts[count++] = model.mark_values[i];
    if (model.mark_count > 0)
        starts[count++] = std::int64_t{model.mark_values[model.mark_count - 1]} + 1;
    std::sort(starts.begin(), starts.begin() + count);

    ColourZones result;
    for (int i = 0; i < count; ++i) {
        if (starts[i] < low || starts[i] > high)
            continue;
        const auto from = static_cast<std::int32_t>(starts[i]);
        const int colour = model.getmarkercolour(from);
        ColourZone* last = result.count > 0 ? &result.zones[result.count - 1] : nullptr;
        if (last && last->colour == colour)
            continue;
        if (last)
            last->to = from - 1;
        result.zones[result.count++] = {from, static_cast<std::int32_t>(high), colour};
    }
    return result;
}

} // namespace wnt

#include "widgets/pulse/value_scale.h"

#include <algorithm>
#include <cmath>

namespace wnt {

namespace {

// Of a scale. Rows lie half a row off the values' multiples, but for the lowest one: see CWntAxis.
struct Rows {
    double low, factor;
    std::int32_t base;

    static constexpr double limit = ValueScale::beyond;

    explicit Rows(const ValueScale& scale)
        : low(scale.low), factor(scale.high == scale.low ? 0 : scale.height / (scale.high - scale.low)),
          base(scale.height - 1 + 2 * ValueScale::beyond) {}

    std::int32_t operator()(double value) const {
        double above = (value - low) * factor;
        above = above < limit ? above : limit; // false for what is no number
        above = above > -limit ? above : -limit;
        above -= above < 0.5 ? 0 : 0.5;
        return base - static_cast<std::int32_t>(above + 2 * limit); // positive, so that truncation floors
    }
};

// 1, 2 or 5 times a power of ten.
struct Step {
    double multiplier, power, inverse; // power or inverse is 1: whole numbers of both signs of the exponent are exact

    double size() const { return multiplier * power / inverse; }
    double times(double count) const { return count * multiplier * power / inverse; }
};

Step round_step(double raw) {
    const double exponent = std::floor(std::log10(raw));
    Step step{1, exponent > 0 ? std::pow(10.0, exponent) : 1, exponent < 0 ? std::pow(10.0, -exponent) : 1};
    for (const double multiplier : {1.0, 2.0, 5.0, 10.0}) {
        step.multiplier = multiplier;
        if (raw <= step.size())
            break;
    }
    return step;
}

} // namespace

std::int32_t ValueScale::row(double value) const {
    return Rows(*this)(value);
}

void ValueScale::rows(const double* values, std::size_t count, std::int32_t* to) const {
    const Rows row(*this);
    for (std::size_t i = 0; i < count; ++i)
        to[i] = row(values[i]);
}

double ValueScale::value(std::int32_t row) const {
    return low + (static_cast<double>(height) - row) * (high - low) / std::max(height, 1);
}

ValueScale fitted(const ValueScale& present, double low, double high) {
    if (!(low <= high))
        return present;
    const double shown = present.high - present.low;
    if (present.low <= low && high <= present.high && high - low >= 0.4 * shown)
        return present;
    double extent = high - low;
    const double magnitude = std::max(std::abs(low), std::abs(high));
    if (extent <= magnitude * 1e-6) // a level line, whose last digits' noise is not spread over the plot
        extent = magnitude > 0 ? std::max(magnitude * 0.01, 1e-30) : 1;
    const Step step = round_step(extent / 5);
    ValueScale result = present;
    result.low = step.times(std::floor(low / step.size()));
    result.high = step.times(std::ceil(high / step.size()));
    if (result.low == result.high) {
        result.low -= step.size();
        result.high += step.size();
    }
    const bool usable =
        std::isfinite(result.low) && std::isfinite(result.high) && std::isfinite(result.high - result.low);
    return usable ? result : present;
}

} // namespace wnt

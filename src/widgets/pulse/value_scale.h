#pragma once

#include <cstddef>
#include <cstdint>

namespace wnt {

/// Values on the rows of a plot, row 0 uppermost, as an upright axis has them whose window begins a row above the plot:
/// the least value at the lowest row, the greatest at row 0.
struct ValueScale {
    /// Rows beyond the plot, so far off that they are never seen; nearer ones are exact, so that lines to them are.
    static constexpr std::int32_t beyond = 1 << 20;

    double low = 0;
    double high = 100;
    std::int32_t height = 1;

    std::int32_t row(double value) const;
    /// The same for many.
    void rows(const double* values, std::size_t count, std::int32_t* rows) const;
    /// The value in the middle of a row.
    double value(std::int32_t row) const;

    friend bool operator==(const ValueScale&, const ValueScale&) = default;
};

/// The range with round ends that shows what lies between two values: the present one as long as it shows them on at
/// least two fifths of its height, so that it changes rarely and in steps. Without values (low > high) the present one.
ValueScale fitted(const ValueScale& present, double low, double high);

} // namespace wnt

#pragma once

#include "pulse/pulse_series.h"

#include <cstdint>

namespace wnt {

/// Pixel columns of a time axis, numbered from the time 0 whatever is shown: scrolling changes no sample's column.
struct ColumnScale {
    static constexpr std::int32_t most_width = 1 << 14;

    std::int64_t span = 6000; ///< hundredths on `width` columns; at least 1
    std::int32_t width = 1;   ///< 1 .. most_width

    std::int64_t column(std::int64_t time) const { return floored(time * width, span); }
    /// The first time that falls into the column.
    std::int64_t time(std::int64_t column) const { return -floored(-column * span, width); }

private:
    static std::int64_t floored(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0); }
};

/// Samples of one column that a line joins without a gap.
struct ColumnRun {
    std::int64_t column;
    std::uint64_t samples;
    double first;
    double low;
    double high;
    double last;
    bool joined; ///< with the last value of the run before
};

class ColumnPainter {
public:
    virtual void run(const ColumnRun& run) = 0;
    /// Everything between two values of the column is painted already: runs within it would change nothing.
    virtual bool covered(std::int64_t column, double low, double high) = 0;

protected:
    ~ColumnPainter() = default;
};

/// Hands the runs of the columns [from, to) to the painter, with the last sample before them and the first one behind,
/// to which lines lead. A hole and a pause longer than `longest_pause` part two runs. First, least, greatest and last
/// value of a run paint what a line through all its samples does: they share a column of pixels.
void paint_columns(const PulseSeries& series, const ColumnScale& scale, std::int64_t from, std::int64_t to,
                   std::int64_t longest_pause, ColumnPainter& painter);

} // namespace wnt

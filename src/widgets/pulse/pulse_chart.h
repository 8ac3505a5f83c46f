#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pulse/pulse_header.h"
#include "pulse/pulse_series.h"

namespace wnt {

/// Colours are 0x00BBGGRR.
struct ChartCurve {
    std::string title; ///< at most 24 characters, as a file keeps them
    std::uint32_t colour = 0;
    double low = 0; ///< below `high`
    double high = 100;
    int style = 0; ///< a surface's line style
    bool steps = false;
    bool marks = true;
    bool shown = true;
    std::unique_ptr<PulseSeries> samples;
};

inline constexpr std::string_view chart_keys[] = {"MSG",   "TITLE",   "SPAN",    "GAP",    "CURVE", "CLEARCURVES",
                                                  "STYLE", "STEPS",   "MARKS",   "GRID",   "AXES",  "LEGEND",
                                                  "FIT",   "CLRBACK", "CLRTEXT", "CLRGRID"};

/// What a strip chart shows, and what a script line does to it.
class PulseChart {
public:
    /// Of all curves together.
    static constexpr std::size_t most_samples = 100'000'000;
    static constexpr int no_curve = -1;

    std::string title;
    std::int64_t span = 6000; ///< hundredths
    static constexpr std::int64_t default_pause = 1000;
    std::int64_t longest_pause = default_pause; ///< hundredths; a longer one is a gap; 0: none is
    int axes = 0b1011;                          ///< SideBits: left, right, bottom
    bool grid = true;
    bool legend = true;
    bool fit = false;
    std::uint32_t background = 0xFFFFFF, text = 0, grid_colour = 0xD0D0D0;

    const std::vector<ChartCurve>& curves() const { return curves_; }
    bool has(int curve) const { return 0 <= curve && curve < static_cast<int>(curves_.size()); }
    ChartCurve& curve(int index) { return curves_[static_cast<std::size_t>(index)]; }

    /// The curve's number, or no_curve: for an eleventh one, a range that is empty or no numbers, or without room.
    int add_curve(std::string_view title, std::uint32_t colour, double low, double high);
    void clear_curves() { curves_.clear(); }
    bool set_range(int curve, double low, double high);
    /// Each curve's samples, the newest of those that there are. False, and nothing changed, for 0 and for more than
    /// all curves may have together.
    bool set_capacity(std::size_t samples);
    std::size_t capacity() const { return capacity_; }

    /// Curves with the same range share it: which range is each curve's, counted from 0 in the order of the curves that
    /// are shown first and then of the others.
    std::vector<int> ranges() const;
    /// The value of a curve at a time: the last sample's until then. Nothing before the first, in a gap and after a
    /// pause that is longer than any.
    std::optional<double> value_at(int curve, std::int64_t time) const;
    /// What the histories hold; nothing without samples.
    std::optional<std::int64_t> oldest() const;
    std::optional<std::int64_t> newest() const;
    std::int64_t effective_pause() const;
    /// Between most samples of the slowest curve; 0 without any.
    std::int64_t usual_pause() const;

    /// True when it changed something that is seen. Unknown keys, words and numbers change nothing.
    bool load_line(std::string_view line);

private:
    bool load_curve(std::string_view value);

    std::vector<ChartCurve> curves_;
    std::size_t capacity_ = PulseSeries::default_capacity;
};

} // namespace wnt

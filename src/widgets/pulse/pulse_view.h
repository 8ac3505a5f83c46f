#pragma once

#include "pulse/pulse_columns.h"

#include <cstdint>
#include <optional>

namespace wnt {

/// Which stretch of time a plot shows. Live, its right edge is now; looking back, it stays where it is while samples
/// go on arriving. Times in hundredths of a second; x in pixels of the plot.
class PulseView {
public:
    static constexpr std::int64_t shortest_span = 100;
    static constexpr std::int64_t longest_span = 10 * 366 * std::int64_t{8'640'000};

    bool live() const { return live_; }
    const ColumnScale& columns() const { return columns_; }
    std::int64_t span() const { return columns_.span; }
    /// The column at the left edge.
    std::int64_t origin() const { return origin_; }
    std::int64_t start() const { return columns_.time(origin_); }
    /// The first time right of the plot.
    std::int64_t end() const { return columns_.time(origin_ + columns_.width); }
    std::int64_t time(std::int64_t x) const { return columns_.time(origin_ + x); }
    std::int64_t x(std::int64_t time) const { return columns_.column(time) - origin_; }

    /// 1 .. ColumnScale::most_width; the time at the right edge stays, however often the width changes.
    void resize(std::int32_t width);
    /// Clamped; the time at x stays there, or live, now at the right edge.
    void zoom(std::int64_t span, std::int64_t x);
    /// Shows a stretch, within the history or not, and looks back.
    void show(std::int64_t start, std::int64_t end);
    /// Moves to later times; looks back, or is live again where that brings now back. Stops at the ends of the history.
    void scroll(std::int64_t columns);
    /// What the history holds, and the time that is now; a live view follows.
    void set_history(std::int64_t oldest, std::int64_t now);
    /// Live again at the right edge, or looking back where it is.
    void set_live(bool live);

private:
    void keep_in_history();
    /// The origin that has the time's last column at the right edge.
    std::int64_t origin_before(std::int64_t time) const;

    ColumnScale columns_;
    std::int64_t origin_ = 0;
    std::int64_t oldest_ = 0;
    std::int64_t now_ = 0;
    bool live_ = true;
    std::optional<std::int64_t> kept_end_; // while nothing but the width changes
};

} // namespace wnt

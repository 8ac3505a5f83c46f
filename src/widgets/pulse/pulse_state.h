#pragma once

#include <afxwin.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <utility>

#include "controls/pixel_rects.h"
#include "widgets/pulse/chart_layout.h"
#include "widgets/pulse/pulse_chart.h"
#include "widgets/pulse/pulse_picture.h"
#include "widgets/pulse/pulse_transfer.h"
#include "widgets/pulse/pulse_view.h"
#include "widgets/pulse/wnt_pulse.h"

struct CWntPulse::State {
    static constexpr std::int64_t clock_tolerance = 1000; // hundredths

    enum class Drag { none, pan, stretch };

    wnt::PulseChart chart;
    wnt::PulseView view;
    wnt::PulsePicture picture;
    wnt::ChartLayout layout;
    std::array<wnt::ValueScale, wnt::most_pulse_curves> scales; // of the curves, as shown
    std::array<std::pair<float, float>, 2> axis_ranges{};       // of the left and the right axis
    std::array<std::optional<std::int64_t>, 2> cursors;
    wnt::PulseRecorder recorder;
    wnt::PulseReader reader;
    CFont title_font, font;
    bool reading = false;
    bool tip_shown = false;
    int scale = 100;
    bool ticking = false;          // the timer runs: while samples arrive
    ULONGLONG surroundings_at = 0; // when they were brought up to date
    bool idle = false;             // it runs slowly, for the clock alone
    bool by_clock = false;         // samples bear the present time
    std::int64_t known_newest = 0;
    bool stale = false;        // samples arrived since the last picture
    bool legend_stale = false; // and since the legend was written
    bool anew = true;          // the picture must be drawn anew
    bool presented = false;    // the window shows the picture, all of it and nothing over it
    Drag drag = Drag::none;
    CPoint drag_start, drag_at;
    bool dragged = false;
    std::int64_t drag_origin = 0;
    int wheel = 0;

    /// Something lies over the curves.
    bool overlaid() const { return cursors[0] || cursors[1] || drag == Drag::stretch || reading; }
    const wnt::PixelRect& plot() const { return layout.plot; }
    /// Of a cursor, within the plot; nothing for one that is not seen.
    std::optional<int> seen_column(int which) const {
        const auto& cursor = cursors[static_cast<std::size_t>(which)];
        const std::int64_t x = cursor ? view.x(*cursor) : -1;
        return 0 <= x && x < plot().width() ? std::optional(static_cast<int>(x)) : std::nullopt;
    }
    bool in_plot(CPoint point) const {
        const wnt::PixelRect& r = plot();
        return r.left <= point.x && point.x < r.right && r.top <= point.y && point.y < r.bottom;
    }
    /// Now is the newest sample's time; where samples come with the clock's time, it goes on when none come any more.
    void know_history() {
        const auto newest = chart.newest();
        if (!newest)
            return;
        const std::int64_t clock = CWntPulse::Now();
        if (*newest != known_newest) {
            known_newest = *newest;
            by_clock = std::abs(clock - *newest) < clock_tolerance;
        }
        view.set_history(*chart.oldest(), by_clock ? std::max(*newest, clock) : *newest);
    }
    /// What is shown of them, with what lines lead to at both ends.
    wnt::PulseBlock seen_of(const wnt::PulseSeries& samples) const {
        std::uint64_t from = samples.seek(view.start(), samples.end()), to = samples.seek(view.end(), samples.end());
        const std::int64_t pause = chart.effective_pause();
        if (from > samples.first() && view.start() - samples[from - 1].time <= pause)
            --from;
        if (to < samples.end() && samples[to].time - view.end() <= pause)
            ++to;
        return samples.summary(from, to);
    }
    /// What the scroll bar goes over: the history, and what is shown.
    std::pair<std::int64_t, std::int64_t> scrolled() const {
        return {std::min(chart.oldest().value_or(view.start()), view.start()),
                std::max(chart.newest().value_or(view.end()), view.end())};
    }
    std::int64_t time_at(int x) const { return view.time(x - plot().left); }
};

namespace wnt {

inline constexpr UINT axis_zoom_command = 100, axis_properties_command = 101;
inline constexpr UINT_PTR pulse_tick_timer = 1, pulse_read_timer = 2, pulse_tip_timer = 3;

} // namespace wnt

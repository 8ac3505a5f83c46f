#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "widgets/painting/paint_pass.h"
#include "widgets/pulse/pulse_state.h"

using namespace wnt;

namespace {

constexpr UINT tip_milliseconds = 200; // between looks at whether the tip has to go with the window
constexpr UINT single_line = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

std::string value_text(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

std::string span_text(std::int64_t hundredths) {
    const char* sign = hundredths < 0 ? "-" : "+";
    hundredths = std::abs(hundredths);
    char text[80];
    std::snprintf(text, sizeof text, "%s%lld:%02d:%02d.%02d", sign, static_cast<long long>(hundredths / 360'000),
                  static_cast<int>(hundredths / 6'000 % 60), static_cast<int>(hundredths / 100 % 60),
                  static_cast<int>(hundredths % 100));
    return text;
}

COLORREF faded(COLORREF text, COLORREF ground) {
    return RGB((GetRValue(text) + GetRValue(ground)) / 2, (GetGValue(text) + GetGValue(ground)) / 2,
               (GetBValue(text) + GetBValue(ground)) / 2);
}

} // namespace

BOOL CWntPulse::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CWntPulse::OnPaint() {
    State& s = *state_;
    if (std::exchange(s.stale, false)) // painted before the next tick, as when it is printed
        refresh(false);
    const CRect plot = rect_of(s.plot());
    CRect dirty;
    GetUpdateRect(&dirty);
    CRect outside;
    const bool plot_touched = CRect().IntersectRect(&dirty, &plot) != FALSE;
    if (plot_touched && std::exchange(s.presented, false)) // what was uncovered may have been moved since
        InvalidateRect(plot, FALSE);
    const bool plot_alone = !outside.SubtractRect(&dirty, &plot);
    if (plot_alone && !s.overlaid()) { // finished pixels
        CPaintDC dc(this);
        paint_plot(dc);
        return;
    }
    PaintPass pass(*this);
    paint(pass, !plot_alone, plot_touched);
    if (::GetFocus() == m_hWnd && !plot_alone)
        pass.focus(focus_place());
}

// The same into any device context, whatever lies over the window.
LRESULT CWntPulse::OnPrintClient(WPARAM wParam, LPARAM) {
    const auto onto = reinterpret_cast<HDC>(wParam);
    if (!onto)
        return 0;
    if (std::exchange(state_->stale, false))
        refresh(false);
    PaintPass pass(*this, onto);
    paint(pass, true, true);
    return 0;
}

void CWntPulse::paint(PaintPass& pass, bool surroundings, bool plot) {
    State& s = *state_;
    if (surroundings) {
        pass.fill(pass.area(), ::GetSysColor(COLOR_BTNFACE));
        pass.text(rect_of(s.layout.title), s.chart.title.c_str(), DT_CENTER | single_line, ::GetSysColor(COLOR_BTNTEXT),
                  &state_->title_font);
        paint_legend(pass);
    }
    if (plot) {
        paint_plot(pass.dc());
        paint_overlay(pass);
    }
}

// Where no axis lies over it.
CRect CWntPulse::focus_place() const {
    CRect place;
    place.UnionRect(rect_of(state_->layout.title), rect_of(state_->layout.legend));
    if (place.IsRectEmpty()) {
        place = rect_of(state_->plot());
        place.InflateRect(2, 2);
    }
    return place;
}

void CWntPulse::paint_legend(PaintPass& pass) {
    State& s = *state_;
    const COLORREF ground = ::GetSysColor(COLOR_BTNFACE), ink = ::GetSysColor(COLOR_BTNTEXT);
    const auto newest = s.chart.newest();
    for (int i = 0; i < GetCurveCount() && i < static_cast<int>(s.layout.entries.size()); ++i) {
        CRect entry = rect_of(s.layout.entries[static_cast<std::size_t>(i)]);
        if (entry.IsRectEmpty())
            continue;
        const ChartCurve& curve = s.chart.curve(i);
        const int side = std::max(static_cast<int>(entry.Height()) / 2, 3);
        const CRect sample(CPoint(entry.left + side / 2, entry.CenterPoint().y - side / 2), CSize(side, side));
        pass.fill(sample, curve.shown ? curve.colour : ground);
        pass.frame(sample, curve.shown ? ink : curve.colour);
        entry.left = sample.right + side / 2;
        entry.right -= side;
        const COLORREF colour = curve.shown ? ink : faded(ink, ground);
        // The present value; the name gives way to it.
        const auto value = newest ? s.chart.value_at(i, *newest) : std::nullopt;
        const std::string shown = value ? "  " + value_text(*value) : "";
        CFont* const before = pass.dc().SelectObject(&s.font);
        const CString title(curve.title.c_str());
        constexpr int overhang = 2; // of a last letter beyond its width
        const int number = pass.dc().GetTextExtent(shown.c_str()).cx,
                  name = pass.dc().GetTextExtent(title).cx + overhang;
        pass.dc().SelectObject(before);
        CRect place(entry.left, entry.top,
                    std::min<int>(entry.left + name, std::max<int>(entry.right - number, entry.left)), entry.bottom);
        pass.text(place, title, DT_LEFT | single_line, colour, &s.font);
        place = CRect(place.right, entry.top, entry.right, entry.bottom);
        pass.text(place, shown.c_str(), DT_LEFT | single_line, colour, &s.font);
    }
}

// What lies over the curves.
void CWntPulse::paint_overlay(PaintPass& pass) {
    State& s = *state_;
    const CRect plot = rect_of(s.plot());
    const int thickness = std::max(s.scale / 100, 1);
    for (int which = 0; which < 2; ++which) {
        const auto x = s.seen_column(which);
        if (!x)
            continue;
        const int left = plot.left + *x;
        const int step = which == 0 ? plot.Height() : 8; // the second one is dashed
        for (int y = plot.top; y < plot.bottom; y += step)
            pass.fill(CRect(left, y, std::min<int>(left + thickness, plot.right),
                            std::min<int>(y + (which == 0 ? step : 5), plot.bottom)),
                      s.chart.text);
    }
    if (s.drag == State::Drag::stretch) {
        CRect band(s.drag_start, s.drag_at);
        band.NormalizeRect();
        band.top = plot.top;
        band.bottom = plot.bottom;
        band.IntersectRect(band, plot);
        pass.frame(band, s.chart.text);
    }
    if (s.reading) {
        const double progress = s.reader.progress();
        char text[100];
        std::snprintf(text, sizeof text, "Reading: %lld records, %d %%. Escape cancels.",
                      static_cast<long long>(s.reader.records()), static_cast<int>(100 * progress));
        CRect place = plot;
        place.bottom = std::min<int>(place.top + 24 * std::max(s.scale, 100) / 100, place.bottom);
        pass.text(place, text, DT_CENTER | single_line, s.chart.text, &s.font);
        place.top = std::max<int>(place.bottom - 3 * thickness, place.top);
        place.right = place.left + static_cast<int>(place.Width() * progress);
        pass.fill(place, s.chart.text);
    }
}

void CWntPulse::update_tip() {
    State& s = *state_;
    const int which = s.seen_column(0) ? 0 : 1;
    const auto at = s.cursors[static_cast<std::size_t>(which)];
    const auto x = s.seen_column(which);
    if (!tip_.m_hWnd || !x || ::GetFocus() != m_hWnd || !IsWindowVisible()) {
        if (std::exchange(s.tip_shown, false)) {
            KillTimer(pulse_tip_timer);
            tip_.HideTip();
        }
        return;
    }
    if (!std::exchange(s.tip_shown, true))
        SetTimer(pulse_tip_timer, tip_milliseconds, nullptr);
    WntTip tip;
    tip.title = text_of_axis_time(*at).c_str();
    const auto other = s.cursors[static_cast<std::size_t>(1 - which)];
    if (other)
        tip.title += CString("\n") + span_text(*other - *at).c_str();
    for (int i = 0; i < GetCurveCount(); ++i) {
        const ChartCurve& curve = s.chart.curve(i);
        if (!curve.shown)
            continue;
        const auto value = s.chart.value_at(i, *at), second = other ? s.chart.value_at(i, *other) : std::nullopt;
        std::string line = curve.title + ": " + (value ? value_text(*value) : "-");
        if (value && second) {
            const double difference = *second - *value;
            line += std::string(difference < 0 ? " (" : " (+") + value_text(difference) + ")";
        }
        tip.text += CString(tip.text.IsEmpty() ? "" : "\n") + line.c_str();
    }
    CPoint screen(s.plot().left + *x, s.plot().top + s.plot().height() / 4);
    ClientToScreen(&screen);
    tip_.TrackTip(tip, screen);
}

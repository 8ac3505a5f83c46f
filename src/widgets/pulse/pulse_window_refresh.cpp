#include <algorithm>
#include <limits>
#include <utility>

#include "controls/control_font.h"
#include "screen_scale.h"
#include "script/keywords.h"
#include "widgets/axis/axis_model.h"
#include "widgets/painting/borrowed_context.h"
#include "widgets/painting/surface_owner.h"
#include "widgets/pulse/pulse_state.h"

// What follows from the model, the view and the window's size: layout, ranges, axes, scroll bar and picture.

using namespace wnt;

namespace {

constexpr ULONGLONG surroundings_milliseconds = 200;
constexpr int least_grid_distance = 50;
constexpr int title_pixels = 14, text_pixels = 12; // of the characters at 96 dots an inch
constexpr int scroll_steps = 1000;
constexpr ValueScale no_scale{0, 0, 1};

float float_of(double value) {
    constexpr double limit = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -limit, limit));
}

COLORREF swapped(std::uint32_t colour) {
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

// The axis' ticks, thinned out. They are counted from the axis' own origin: where that changes, the lines do, too.
std::vector<std::int64_t> grid_columns(const PulseView& view) {
    AxisModel axis;
    axis.position = axis_bottom;
    axis.type = axis_time;
    axis.set_time_range(view.start(), view.end());
    const TimeGrid grid = axis.time_grid();
    const std::int64_t interval = std::max<std::int64_t>(grid.level().interval(), 1);
    const std::int64_t ticks = std::max<std::int64_t>(view.span() / interval, 1);
    const std::int64_t room = std::max<std::int64_t>(view.columns().width / least_grid_distance, 1);
    std::int64_t stride = 1;
    for (const int factor : {2, 5, 10, 20, 30, 60, 120, 600, 3600})
        if (ticks / stride > room)
            stride = factor;
    std::vector<std::int64_t> result;
    for (auto tick = grid.first(); tick && result.size() < 1000; tick = grid.after(*tick))
        if ((*tick / interval) % stride == 0)
            result.push_back(view.columns().column(*tick));
    return result;
}

// Of the client area, its children's places included: what changes many times a second is drawn through one device
// context, since some systems bring the whole window to the screen where several take turns.
class WholeContext : public BorrowedContext {
public:
    explicit WholeContext(CWnd& window)
        : BorrowedContext(::GetDCEx(window.m_hWnd, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS)), window_(window.m_hWnd) {}
    ~WholeContext() override { ::ReleaseDC(window_, m_hDC); }

private:
    const HWND window_;
};

// By itself, whether or not its parents are.
bool is_shown(const CWnd& window) {
    return window.m_hWnd && window.GetStyle() & WS_VISIBLE;
}

std::vector<std::int32_t> grid_rows(CWntAxis& axis) {
    std::vector<std::int32_t> rows;
    const int lines = std::clamp(axis.GetScaleLineCount() + 1, 0, 200);
    for (int i = -1; i < lines; ++i)                 // the count is from the first label above the minimum or below
        rows.push_back(axis.GetScaleLinePos(i) - 1); // see ValueScale
    return rows;
}

} // namespace

void CWntPulse::rescale(bool settings_changed) {
    const int scale = state_->scale = screen_scale(settings_changed);
    make_control_font(state_->title_font, title_pixels, scale, FW_BOLD);
    make_control_font(state_->font, text_pixels, scale, FW_NORMAL);
    arrange();
}

// After texts, curves or colours changed.
void CWntPulse::restyle() {
    if (m_hWnd)
        arrange();
}

void CWntPulse::OnSettingChange(UINT flags, LPCTSTR section) {
    CWnd::OnSettingChange(flags, section);
    rescale(true);
}

void CWntPulse::lay_out(int, int) {
    if (left_.m_hWnd)
        arrange();
}

void CWntPulse::arrange() {
    const PulseChart& chart = state_->chart;
    ChartSizes sizes;
    sizes.scale = state_->scale;
    CClientDC dc(this);
    TEXTMETRIC metrics;
    CFont* const before = dc.SelectObject(&state_->title_font);
    dc.GetTextMetrics(&metrics);
    if (!chart.title.empty())
        sizes.title = metrics.tmHeight + metrics.tmHeight / 4;
    dc.SelectObject(&state_->font);
    dc.GetTextMetrics(&metrics);
    if (chart.legend && !chart.curves().empty())
        sizes.legend = metrics.tmHeight + metrics.tmHeight / 3;
    for (const ChartCurve& curve : chart.curves()) // a sample, the title, and room for a value
        sizes.entries.push_back(dc.GetTextExtent((curve.title + "  -0000.00").c_str()).cx + 2 * metrics.tmHeight);
    dc.SelectObject(before);
    const std::vector<int> ranges = chart.ranges();
    const int right_range = chart.axes & side_left ? 1 : 0;
    sizes.left_axis = (chart.axes & side_left) && !ranges.empty();
    sizes.right_axis = (chart.axes & side_right) && std::ranges::find(ranges, right_range) != ranges.end();
    sizes.time_axis = (chart.axes & side_bottom) != 0;
    sizes.scroll_bar = ::GetSystemMetrics(SM_CYHSCROLL);
    CRect client;
    GetClientRect(&client);
    state_->layout = lay_out_chart(std::min<int>(client.Width(), PulsePicture::most_width),
                                   std::min<int>(client.Height(), PulsePicture::most_height), sizes);
    const ChartLayout& layout = state_->layout;
    const StillThere self(*this);
    const auto place = [&](CWnd& child, const PixelRect& r) {
        if (self)
            place_child(child, r.left, r.top, r.width(), r.height(), r.width() > 0);
    };
    place(left_, layout.left_axis);
    place(right_, layout.right_axis);
    place(time_, layout.time_axis);
    if (self)
        time_.cover();
    place(scroll_, layout.scroll_bar);
    if (!self)
        return;
    state_->view.resize(std::max(layout.plot.width(), 1));
    Invalidate(FALSE);
    refresh(true);
}

void CWntPulse::update_ranges() {
    PulseChart& chart = state_->chart;
    const std::vector<int> ranges = chart.ranges();
    const std::int32_t height = std::clamp(state_->plot().height(), 1, PulsePicture::most_height);
    const auto count = static_cast<std::size_t>(GetCurveCount());
    auto& scales = state_->scales;
    std::fill(scales.begin() + static_cast<std::ptrdiff_t>(count), scales.end(), no_scale);
    for (std::size_t i = 0; i < count; ++i) {
        const ChartCurve& curve = chart.curves()[i];
        const auto first = static_cast<std::size_t>(std::ranges::find(ranges, ranges[i]) - ranges.begin());
        if (!chart.fit) {
            scales[i] = {curve.low, curve.high, height};
        } else if (first < i) {
            scales[i] = scales[first]; // they share it
        } else {
            PulseBlock seen;
            for (std::size_t k = i; k < count; ++k)
                if (const PulseSeries& samples = *chart.curves()[k].samples;
                    ranges[k] == ranges[i] && chart.curves()[k].shown)
                    seen.include(state_->seen_of(samples));
            if (!(scales[i].low < scales[i].high))
                scales[i] = {curve.low, curve.high, height};
            scales[i] = fitted(scales[i], seen.low, seen.high);
            scales[i].height = height;
        }
    }
}

void CWntPulse::update_axes(CDC* onto) {
    const std::vector<int> ranges = state_->chart.ranges();
    const auto show = [&](CWntAxis& axis, int range) {
        const auto curve = std::ranges::find(ranges, range);
        if (curve == ranges.end() || !is_shown(axis))
            return;
        const ValueScale& scale = state_->scales[static_cast<std::size_t>(curve - ranges.begin())];
        const std::pair shown(float_of(scale.low), float_of(scale.high));
        if (std::exchange(state_->axis_ranges[static_cast<std::size_t>(&axis == &right_)], shown) != shown)
            axis.SetRange(shown.first, shown.second);
    };
    show(left_, 0);
    show(right_, state_->chart.axes & side_left ? 1 : 0);
    if (!is_shown(time_))
        return;
    std::int64_t start = 0, end = 0;
    time_.ScreenToValue(0, &start);
    time_.ScreenToValue(state_->plot().width(), &end);
    if (start == state_->view.start() && end == state_->view.end())
        return;
    if (!onto) {
        time_.SetRange(state_->view.start(), state_->view.end());
        return;
    }
    CPoint corner(0, 0);
    time_.MapWindowPoints(this, &corner, 1);
    const CPoint before = onto->SetViewportOrg(corner);
    time_.FollowRange(state_->view.start(), state_->view.end(), onto);
    onto->SetViewportOrg(before);
}

void CWntPulse::update_scroll_bar() {
    const PulseView& view = state_->view;
    const auto [first, last] = state_->scrolled();
    const double whole = static_cast<double>(last - first);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL | SIF_DISABLENOSCROLL;
    info.nMax = scroll_steps;
    info.nPage =
        static_cast<UINT>(std::clamp(static_cast<int>(view.span() / whole * scroll_steps), 1, scroll_steps + 1));
    info.nPos = static_cast<int>((view.start() - first) / whole * scroll_steps);
    SCROLLINFO shown = {};
    scroll_.GetScrollInfo(&shown);
    if (shown.nPage != info.nPage || shown.nPos != info.nPos || shown.nMax != info.nMax)
        scroll_.SetScrollInfo(&info);
}

// Brings everything up to the view and the samples.
void CWntPulse::refresh(bool anew) {
    if (!m_hWnd)
        return;
    State& s = *state_;
    s.know_history();
    update_ranges();
    s.anew = s.anew || anew;
    if (s.anew || s.overlaid()) {
        update_axes(nullptr);
        InvalidateRect(rect_of(s.plot()), FALSE);
    } else {
        WholeContext dc(*this);
        update_axes(dc.m_hDC ? &dc : nullptr);
        follow(dc);
    }
    if (anew || !s.ticking || ::GetTickCount64() - s.surroundings_at >= surroundings_milliseconds)
        update_surroundings();
    update_tip();
}

// The scroll bar, and the values of the legend, which are read rather than watched.
void CWntPulse::update_surroundings() {
    State& s = *state_;
    s.surroundings_at = ::GetTickCount64();
    update_scroll_bar();
    if (const CRect legend = rect_of(s.layout.legend); std::exchange(s.legend_stale, false) && !legend.IsRectEmpty())
        InvalidateRect(legend, FALSE);
}

void CWntPulse::view_changed() {
    state_->chart.span = state_->view.span();
    refresh(false);
    tell(WNT_PULSE_VIEW);
}

// Brings the picture up to the view.
void CWntPulse::draw_plot() {
    State& s = *state_;
    PlotScene scene;
    scene.columns = s.view.columns();
    scene.origin = s.view.origin();
    scene.height = std::min(s.plot().height(), PulsePicture::most_height);
    scene.background = swapped(s.chart.background);
    scene.grid = swapped(s.chart.grid_colour);
    if (s.chart.grid) {
        scene.grid_columns = grid_columns(s.view);
        if (is_shown(left_) || is_shown(right_))
            scene.grid_rows = grid_rows(is_shown(left_) ? left_ : right_);
    }
    const int thickness = std::max(s.scale / 100, 1);
    for (int i = 0; i < GetCurveCount(); ++i) {
        const ChartCurve& curve = s.chart.curve(i);
        if (curve.shown)
            scene.curves.push_back({curve.samples.get(),
                                    s.scales[static_cast<std::size_t>(i)],
                                    {swapped(curve.colour), curve.style, thickness, curve.steps, curve.marks},
                                    s.chart.effective_pause()});
    }
    s.picture.show(scene, std::exchange(s.anew, false));
}

void CWntPulse::copy_columns(CDC& dc, int from, int to) {
    const CRect plot = rect_of(state_->plot());
    const PlotCanvas canvas = state_->picture.canvas();
    BITMAPINFO info = {};
    info.bmiHeader = {
        sizeof info.bmiHeader, static_cast<LONG>(canvas.stride), -canvas.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const auto offset = static_cast<int>(state_->picture.offset());
    ::SetDIBitsToDevice(dc, plot.left + from, plot.top, static_cast<DWORD>(to - from), canvas.height, offset + from, 0,
                        0, canvas.height, canvas.pixels - offset, &info, DIB_RGB_COLORS);
}

void CWntPulse::paint_plot(CDC& dc) {
    if (rect_of(state_->plot()).IsRectEmpty())
        return;
    draw_plot();
    copy_columns(dc, 0, state_->picture.canvas().width);
}

// Finished pixels, at once. Where the window shows the last picture, all of it, they are moved there: the system does
// that three times as fast as it takes them all.
void CWntPulse::follow(CDC& dc) {
    State& s = *state_;
    const CRect plot = rect_of(s.plot());
    if (plot.IsRectEmpty())
        return;
    draw_plot();
    dc.IntersectClipRect(plot);
    CRect seen;
    const bool whole = dc.GetClipBox(&seen) == SIMPLEREGION && seen == plot;
    const auto moved = static_cast<int>(s.picture.moved());
    if (whole && s.presented) {
        if (moved != 0)
            dc.BitBlt(plot.left + std::max(-moved, 0), plot.top, plot.Width() - std::abs(moved), plot.Height(), &dc,
                      plot.left + std::max(moved, 0), plot.top, SRCCOPY);
        for (const auto& [left, right] : s.picture.drawn())
            copy_columns(dc, static_cast<int>(left), static_cast<int>(right));
    } else {
        copy_columns(dc, 0, plot.Width());
    }
    s.presented = whole;
}

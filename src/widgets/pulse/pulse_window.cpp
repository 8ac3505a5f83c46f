#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "screen_scale.h"
#include "script/keywords.h"
#include "script/script_line.h"
#include "script/values.h"
#include "script_on_disk.h"
#include "widgets/axis/axis_model.h"
#include "widgets/axis/time_value.h"
#include "widgets/painting/surface_owner.h"
#include "widgets/pulse/pulse_state.h"

using namespace wnt;

namespace {

constexpr UINT left_id = 1, right_id = 2, time_id = 3, scroll_id = 4;
constexpr UINT tick_milliseconds = 33; // a picture at most so often
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

void make_font(CFont& font, int pixels, int scale, int weight) {
    font.DeleteObject();
    font.CreateFont(-::MulDiv(pixels, scale, 100), 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
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

// By itself, whether or not its parents are.
bool is_shown(const CWnd& window) {
    return window.m_hWnd && window.GetStyle() & WS_VISIBLE;
}

std::vector<std::int32_t> grid_rows(CWntAxis& axis) {
    std::vector<std::int32_t> rows;
    const int lines = std::clamp(axis.GetScaleLineCount() + 1, 0, 200);
    for (int i = 0; i < lines; ++i)
        rows.push_back(axis.GetScaleLinePos(i) - 1); // see ValueScale
    return rows;
}

} // namespace

CWntPulse::CWntPulse() : ControlWindow("WntPulse", Draws::itself), state_(std::make_unique<State>()) {}

CWntPulse::~CWntPulse() {
    DestroyWindow(); // while its handlers and what they use still exist
}

BOOL CWntPulse::PreCreateWindow(CREATESTRUCT& create) {
    const BOOL result = ControlWindow::PreCreateWindow(create);
    create.style |= WS_CLIPCHILDREN;
    return result;
}

bool CWntPulse::build() {
    const CRect nowhere(0, 0, 0, 0);
    const auto axis = [&](CWntAxis& made, int position, int type, UINT id) {
        if (!made.Create(nullptr, "", WS_CHILD, nowhere, this, id))
            return false;
        made.SetFlags(position, 0, type);
        return true;
    };
    if (!axis(left_, axis_left, axis_numeric, left_id) || !axis(right_, axis_right, axis_numeric, right_id) ||
        !axis(time_, axis_bottom, axis_time, time_id) || !scroll_.Create(WS_CHILD | SBS_HORZ, nowhere, this, scroll_id))
        return false;
    tip_.Create(this);
    DragAcceptFiles(TRUE);
    state_->view.zoom(state_->chart.span, 0);
    restyle();
    return true;
}

void CWntPulse::leave() {
    for (CWnd* child : {static_cast<CWnd*>(&left_), static_cast<CWnd*>(&right_), static_cast<CWnd*>(&time_),
                        static_cast<CWnd*>(&scroll_), static_cast<CWnd*>(&tip_)})
        child->DestroyWindow();
    forget_window();
}

// What belongs to a window, and not to the samples.
void CWntPulse::forget_window() {
    State& s = *state_;
    s.drag = State::Drag::none;
    s.stale = s.ticking = s.reading = s.tip_shown = false;
    s.anew = true;
    s.reader = PulseReader();
}

void CWntPulse::OnDestroy() {
    tip_.DestroyWindow();
    forget_window();
    CWnd::OnDestroy();
}

// A dialog's text names a script or is the title.
void CWntPulse::take_text(const CString& text) {
    if (names_script(text))
        LoadFromFile(text);
    else
        SetTitle(text);
}

unsigned char CWntPulse::LoadLine(const char* line, int mode) {
    if (!this || !line)
        return 0;
    if (mode == script_line) {
        state_->anew = state_->chart.load_line(line) || state_->anew;
        if (state_->chart.span != state_->view.span())
            state_->view.zoom(state_->chart.span, state_->view.columns().width / 2);
    } else if (mode == script_end) {
        restyle();
        if (m_hWnd)
            UpdateWindow();
    }
    return 0;
}

unsigned char CWntPulse::LoadFromFile(const char* path) {
    if (!this || !path)
        return 0;
    LoadLine("", script_begin);
    return feed_script_on_disk(path, [this](const char* line, int mode) { LoadLine(line, mode); });
}

void CWntPulse::SetTitle(const char* title) {
    if (!this)
        return;
    state_->chart.title = text_of(title).substr(0, title_capacity - 1);
    restyle();
}

void CWntPulse::SetColours(COLORREF background, COLORREF text, COLORREF grid) {
    if (!this)
        return;
    state_->chart.background = background & 0xFFFFFF;
    state_->chart.text = text & 0xFFFFFF;
    state_->chart.grid_colour = grid & 0xFFFFFF;
    restyle();
}

int CWntPulse::AddCurve(const char* title, COLORREF colour, double low, double high) {
    if (!this)
        return -1;
    const int added = state_->chart.add_curve(text_of(title), colour & 0xFFFFFF, low, high);
    restyle();
    return added;
}

void CWntPulse::RemoveCurves() {
    if (!this)
        return;
    state_->picture = PulsePicture(); // it knows the series
    state_->chart.clear_curves();
    restyle();
}

int CWntPulse::GetCurveCount() const {
    return this ? static_cast<int>(state_->chart.curves().size()) : 0;
}

int CWntPulse::SetRange(int curve, double low, double high) {
    if (!this || !state_->chart.set_range(curve, low, high))
        return 0;
    restyle();
    return 1;
}

int CWntPulse::SetColour(int curve, COLORREF colour) {
    if (!this || !state_->chart.has(curve))
        return 0;
    state_->chart.curve(curve).colour = colour & 0xFFFFFF;
    restyle();
    return 1;
}

int CWntPulse::SetLook(int curve, int style, int steps, int marks) {
    if (!this || !state_->chart.has(curve) || style < 0 || style > 7)
        return 0;
    ChartCurve& changed = state_->chart.curve(curve);
    changed.style = style;
    changed.steps = steps != 0;
    changed.marks = marks != 0;
    restyle();
    return 1;
}

int CWntPulse::ShowCurve(int curve, int shown) {
    if (!this || !state_->chart.has(curve) || state_->chart.curve(curve).shown == (shown != 0))
        return 0;
    state_->chart.curve(curve).shown = shown != 0;
    restyle();
    return 1;
}

int CWntPulse::IsCurveShown(int curve) const {
    return this && state_->chart.has(curve) && state_->chart.curve(curve).shown;
}

// The first call pairs the calendar with the clock that the user cannot set.
__int64 CWntPulse::Now() {
    const auto running = [] { return static_cast<std::int64_t>(::GetTickCount64() / 10); };
    static const std::int64_t start = [&] {
        SYSTEMTIME now;
        ::GetSystemTime(&now);
        return axis_time_of(CTime::GetCurrentTime().GetTime()) + now.wMilliseconds / 10 - running();
    }();
    return start + running();
}

int CWntPulse::AddSample(int curve, double value, __int64 time) {
    if (!this || !state_->chart.has(curve) || state_->reading ||
        !state_->chart.curve(curve).samples->append(time, value))
        return 0;
    if (state_->recorder.records(curve) && std::isfinite(value)) {
        const auto moment = moment_of_axis_time(time);
        if (moment && !state_->recorder.put(curve, value, *moment)) {
            samples_arrived();
            tell(WNT_PULSE_RECORDING);
            return 1;
        }
    }
    samples_arrived();
    return 1;
}

int CWntPulse::AddSample(int curve, double value) {
    return AddSample(curve, value, Now());
}

int CWntPulse::AddSamples(int curve, const double* values, const __int64* times, int count) {
    if (!this || !values || !times)
        return 0;
    const StillThere self(*this);
    const bool shown = m_hWnd != nullptr;
    int taken = 0;
    while (taken < count && AddSample(curve, values[taken], times[taken])) {
        ++taken;
        if (shown && !self)
            break; // the host ended it when it was told of a failed recording
    }
    return taken;
}

int CWntPulse::SetCapacity(int samples) {
    if (!this || samples < 1)
        return 0;
    state_->picture = PulsePicture();
    if (!state_->chart.set_capacity(static_cast<std::size_t>(samples)))
        return 0;
    restyle();
    return 1;
}

int CWntPulse::SetLongestPause(__int64 hundredths) {
    if (!this || hundredths < 0)
        return 0;
    state_->chart.longest_pause = hundredths;
    restyle();
    return 1;
}

int CWntPulse::GetSampleCount(int curve) const {
    return this && state_->chart.has(curve) ? static_cast<int>(state_->chart.curve(curve).samples->size()) : 0;
}

void CWntPulse::RemoveSamples() {
    if (!this)
        return;
    for (int i = 0; i < GetCurveCount(); ++i)
        state_->chart.curve(i).samples->clear();
    restyle();
}

int CWntPulse::SetLive(int live) {
    if (!this)
        return 0;
    state_->view.set_live(live != 0);
    refresh(false);
    return 1;
}

int CWntPulse::IsLive() const {
    return this && state_->view.live();
}

int CWntPulse::SetSpan(__int64 hundredths) {
    if (!this || hundredths < PulseView::shortest_span || hundredths > PulseView::longest_span)
        return 0;
    state_->chart.span = hundredths;
    state_->view.zoom(hundredths, state_->view.columns().width / 2);
    refresh(false);
    return 1;
}

__int64 CWntPulse::GetSpan() const {
    return this ? state_->view.span() : 0;
}

int CWntPulse::ShowTime(__int64 start, __int64 end) {
    if (!this || start >= end)
        return 0;
    state_->know_history();
    state_->view.show(start, end);
    refresh(false);
    return 1;
}

int CWntPulse::GetShownTime(__int64* start, __int64* end) const {
    if (!this || !start || !end)
        return 0;
    *start = state_->view.start();
    *end = state_->view.end();
    return 1;
}

void CWntPulse::SetFit(int fit) {
    if (!this)
        return;
    state_->chart.fit = fit != 0;
    refresh(false);
}

int CWntPulse::IsFit() const {
    return this && state_->chart.fit;
}

int CWntPulse::ValuesToScreen(int curve, const double* values, int count, int* rows) const {
    if (!this || !state_->chart.has(curve) || !values || !rows || count < 0)
        return 0;
    state_->scales[static_cast<std::size_t>(curve)].rows(values, static_cast<std::size_t>(count), rows);
    const int top = state_->plot().top;
    for (int i = 0; i < count; ++i)
        rows[i] += top;
    return 1;
}

int CWntPulse::SetCursor(int which, __int64 time) {
    if (!this || which < 0 || which > 1 || time < -PulseSeries::latest || time > PulseSeries::latest)
        return 0;
    state_->cursors[static_cast<std::size_t>(which)] = time;
    refresh(false);
    return 1;
}

int CWntPulse::HideCursor(int which) {
    if (!this || which < 0 || which > 1 || !state_->cursors[static_cast<std::size_t>(which)])
        return 0;
    state_->cursors[static_cast<std::size_t>(which)].reset();
    refresh(false);
    return 1;
}

int CWntPulse::GetCursor(int which, __int64* time) const {
    if (!this || which < 0 || which > 1 || !time || !state_->cursors[static_cast<std::size_t>(which)])
        return 0;
    *time = *state_->cursors[static_cast<std::size_t>(which)];
    return 1;
}

int CWntPulse::GetValueAt(int curve, __int64 time, double* value) const {
    const auto found = this && value ? state_->chart.value_at(curve, time) : std::nullopt;
    if (!found)
        return 0;
    *value = *found;
    return 1;
}

bool CWntPulse::tell(UINT code, int which, __int64 time) {
    if (!m_hWnd)
        return true;
    WntPulseNotify notification = {{}, which, time};
    bool alive = true;
    notify_parent(*this, notification.hdr, code, alive);
    return alive;
}

// Once for all that arrive between two pictures.
void CWntPulse::samples_arrived() {
    state_->legend_stale = true;
    state_->stale = true;
    if (m_hWnd && !std::exchange(state_->ticking, true))
        SetTimer(pulse_tick_timer, tick_milliseconds, nullptr);
}

void CWntPulse::OnTimer(UINT_PTR timer) {
    if (timer == pulse_tick_timer) {
        if (std::exchange(state_->stale, false)) {
            refresh(false);
        } else if (std::exchange(state_->ticking, false)) {
            KillTimer(pulse_tick_timer);
            update_surroundings();
        }
    } else if (timer == pulse_read_timer) {
        read_on();
    } else {
        Default();
    }
}

// After texts, curves or colours changed.
void CWntPulse::restyle() {
    if (!m_hWnd)
        return;
    const int scale = state_->scale = screen_scale(false);
    make_font(state_->title_font, title_pixels, scale, FW_BOLD);
    make_font(state_->font, text_pixels, scale, FW_NORMAL);
    arrange();
}

void CWntPulse::OnSettingChange(UINT flags, LPCTSTR section) {
    CWnd::OnSettingChange(flags, section);
    screen_scale(true);
    restyle();
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
        sizes.entries.push_back(dc.GetTextExtent((curve.title + "  -0.00000e+00").c_str()).cx + 2 * metrics.tmHeight);
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
                    seen.include(samples.summary(samples.seek(state_->view.start(), samples.end()),
                                                 samples.seek(state_->view.end(), samples.end())));
            if (!(scales[i].low < scales[i].high))
                scales[i] = {curve.low, curve.high, height};
            scales[i] = fitted(scales[i], seen.low, seen.high);
            scales[i].height = height;
        }
    }
}

void CWntPulse::update_axes() {
    const std::vector<int> ranges = state_->chart.ranges();
    const auto show = [&](CWntAxis& axis, int range) {
        const auto curve = std::ranges::find(ranges, range);
        if (curve == ranges.end() || !is_shown(axis))
            return;
        const ValueScale& scale = state_->scales[static_cast<std::size_t>(curve - ranges.begin())];
        const float least = float_of(scale.low), greatest = float_of(scale.high);
        float low = 0, high = 0;
        axis.ScreenToValue(state_->plot().height(), &low);
        axis.ScreenToValue(0, &high);
        if (low == least && high == greatest)
            return;
        axis.SetRange(least, greatest);
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
    time_.SetRange(state_->view.start(), state_->view.end());
}

void CWntPulse::update_scroll_bar() {
    const PulseView& view = state_->view;
    const auto oldest = state_->chart.oldest(), newest = state_->chart.newest();
    const std::int64_t first = std::min(oldest.value_or(view.start()), view.start());
    const std::int64_t last = std::max(newest.value_or(view.end()), view.end());
    const double whole = static_cast<double>(std::max<std::int64_t>(last - first, 1));
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
    update_axes();
    s.anew = s.anew || anew;
    if (s.anew || s.overlaid()) {
        InvalidateRect(rect_of(s.plot()), FALSE);
    } else { // finished pixels, at once
        CClientDC dc(this);
        paint_plot(dc);
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
    const CRect plot = rect_of(s.plot());
    if (plot.IsRectEmpty())
        return;
    PlotScene scene;
    scene.columns = s.view.columns();
    scene.origin = s.view.origin();
    scene.height = std::min(static_cast<std::int32_t>(plot.Height()), PulsePicture::most_height);
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

void CWntPulse::paint_plot(CDC& dc) {
    const CRect plot = rect_of(state_->plot());
    if (plot.IsRectEmpty())
        return;
    draw_plot();
    const PlotCanvas canvas = state_->picture.canvas();
    BITMAPINFO info = {};
    info.bmiHeader = {
        sizeof info.bmiHeader, static_cast<LONG>(canvas.stride), -canvas.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const auto offset = static_cast<int>(state_->picture.offset());
    ::SetDIBitsToDevice(dc, plot.left, plot.top, canvas.width, canvas.height, offset, 0, 0, canvas.height,
                        canvas.pixels - offset, &info, DIB_RGB_COLORS);
}

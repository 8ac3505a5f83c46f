#include <cmath>
#include <utility>

#include "script/keywords.h"
#include "script/script_line.h"
#include "script/values.h"
#include "script/script_on_disk.h"
#include "widgets/axis/axis_model.h"
#include "widgets/painting/surface_owner.h"
#include "widgets/pulse/pulse_state.h"

using namespace wnt;

namespace {

constexpr UINT left_id = 1, right_id = 2, time_id = 3, scroll_id = 4;
constexpr UINT tick_milliseconds = 33;  // a picture at most so often
constexpr UINT idle_milliseconds = 250; // and so often while no samples arrive

} // namespace

CWntPulse::CWntPulse() : ControlWindow("WntPulse", Draws::around_children), state_(std::make_unique<State>()) {}

CWntPulse::~CWntPulse() {
    DestroyWindow(); // while its handlers and what they use still exist
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
    rescale(false);
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
    s.stale = s.ticking = s.reading = s.tip_shown = s.presented = false;
    s.idle = false;
    s.anew = true;
    s.axis_ranges = {};
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
        const std::int64_t span = state_->chart.span;
        state_->anew = state_->chart.load_line(line) || state_->anew;
        if (state_->chart.curves().empty())
            state_->recorder.stop();
        if (state_->chart.span != span)
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
    if (m_hWnd)
        SetWindowText(state_->chart.title.c_str());
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
    state_->recorder.stop();
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

int CWntPulse::GetRange(int curve, double* low, double* high) const {
    if (!this || !low || !high || !state_->chart.has(curve))
        return 0;
    *low = state_->chart.curve(curve).low;
    *high = state_->chart.curve(curve).high;
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
        FILETIME now; // tenths of microseconds since 1601
        ::GetSystemTimeAsFileTime(&now);
        const auto hundredths =
            static_cast<std::int64_t>(ULARGE_INTEGER{{now.dwLowDateTime, now.dwHighDateTime}}.QuadPart / 100'000);
        constexpr std::int64_t from_1601_to_1970 = 11'644'473'600;
        return axis_time_of(hundredths / 100 - from_1601_to_1970) + hundredths % 100 - running();
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
    state_->chart.span = state_->view.span();
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

void CWntPulse::tell(UINT code, int which, __int64 time) {
    if (!m_hWnd)
        return;
    WntPulseNotify notification = {{}, which, time};
    bool alive = true;
    notify_parent(*this, notification.hdr, code, alive);
}

// Once for all that arrive between two pictures.
void CWntPulse::samples_arrived() {
    state_->legend_stale = true;
    state_->stale = true;
    if (!m_hWnd)
        return;
    const bool running = std::exchange(state_->ticking, true) && !std::exchange(state_->idle, false);
    if (!running)
        SetTimer(pulse_tick_timer, tick_milliseconds, nullptr);
}

void CWntPulse::tick() {
    State& s = *state_;
    if (std::exchange(s.stale, false))
        return refresh(false);
    update_surroundings();
    if (s.by_clock && s.view.live()) { // on into the time without samples
        if (!std::exchange(s.idle, true))
            SetTimer(pulse_tick_timer, idle_milliseconds, nullptr);
        refresh(false);
    } else if (std::exchange(s.ticking, false)) {
        s.idle = false;
        KillTimer(pulse_tick_timer);
    }
}

void CWntPulse::OnTimer(UINT_PTR timer) {
    if (timer == pulse_tick_timer) {
        tick();
    } else if (timer == pulse_tip_timer) {
        update_tip(); // the window may have been moved or hidden
    } else if (timer == pulse_read_timer) {
        read_on();
    } else {
        Default();
    }
}

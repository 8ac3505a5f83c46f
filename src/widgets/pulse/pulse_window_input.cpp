#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <utility>

#include "widgets/painting/surface_owner.h"
#include "widgets/pulse/pulse_state.h"

using namespace wnt;

namespace {

constexpr double zoom_step = 1.25;
constexpr int scroll_part = 10; // of the plot's width
constexpr UINT axis_double_click = 103;

bool down(int key) {
    return ::GetKeyState(key) < 0;
}

} // namespace

BEGIN_MESSAGE_MAP(CWntPulse, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_MESSAGE(WM_PRINTCLIENT, &CWntPulse::OnPrintClient)
ON_WM_TIMER()
ON_WM_SETTINGCHANGE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_WM_CAPTURECHANGED()
ON_WM_CONTEXTMENU()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_WM_GETDLGCODE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_HSCROLL()
ON_WM_DROPFILES()
ON_WM_DESTROY()
END_MESSAGE_MAP()

bool CWntPulse::legend_click(CPoint point) {
    const auto& entries = state_->layout.entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const int curve = static_cast<int>(i);
        if (!rect_of(entries[i]).PtInRect(point))
            continue;
        toggle_curve(curve);
        return true;
    }
    return false;
}

void CWntPulse::toggle_curve(int curve) {
    const StillThere self(*this);
    if (ShowCurve(curve, !IsCurveShown(curve)) && self)
        tell(WNT_PULSE_CURVE, curve);
}

void CWntPulse::OnLButtonDown(UINT flags, CPoint point) {
    const StillThere self(*this);
    SetFocus();
    if (!self || legend_click(point) || !state_->in_plot(point))
        return;
    State& s = *state_;
    s.drag = flags & MK_SHIFT ? State::Drag::stretch : State::Drag::pan;
    s.drag_start = s.drag_at = point;
    s.drag_origin = s.view.origin();
    s.dragged = false;
    SetCapture();
}

void CWntPulse::OnLButtonDblClk(UINT flags, CPoint point) {
    OnLButtonDown(flags, point);
}

void CWntPulse::OnMouseMove(UINT, CPoint point) {
    State& s = *state_;
    if (s.drag == State::Drag::none)
        return;
    const bool far_enough = std::abs(point.x - s.drag_start.x) >= ::GetSystemMetrics(SM_CXDRAG);
    s.dragged = s.dragged || far_enough;
    s.drag_at = point;
    if (!s.dragged)
        return;
    if (s.drag == State::Drag::stretch) {
        InvalidateRect(rect_of(s.plot()), FALSE);
        return;
    }
    const std::int64_t moved = s.drag_origin - s.view.origin() + s.drag_start.x - point.x;
    if (moved == 0)
        return;
    s.view.scroll(moved);
    view_changed();
}

void CWntPulse::OnLButtonUp(UINT flags, CPoint point) {
    State& s = *state_;
    const State::Drag drag = std::exchange(s.drag, State::Drag::none);
    if (drag == State::Drag::none)
        return;
    ::ReleaseCapture();
    InvalidateRect(rect_of(s.plot()), FALSE);
    if (!s.dragged) {
        put_cursor(flags & MK_CONTROL ? 1 : 0, s.time_at(point.x));
    } else if (drag == State::Drag::stretch) {
        const auto [from, to] = std::minmax({s.time_at(s.drag_start.x), s.time_at(point.x)});
        s.view.show(from, to);
        view_changed();
    }
}

void CWntPulse::TimeAxis::OnZoomed() {
    auto* const chart = dynamic_cast<CWntPulse*>(GetParent());
    if (!chart)
        return;
    PulseView& view = chart->state_->view;
    double from = 0, to = 1;
    const bool narrower = GetZoom(&from, &to) && (from > 0 || to < 1);
    cover();
    Invalidate(FALSE);
    if (!narrower)
        return;
    const auto at = [&, start = view.start(), span = static_cast<double>(view.span())](double share) {
        return start + static_cast<std::int64_t>(span * share);
    };
    view.show(at(from), at(to));
    chart->view_changed();
}

void CWntPulse::end_drag() {
    const State::Drag drag = std::exchange(state_->drag, State::Drag::none);
    if (drag == State::Drag::none)
        return;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    InvalidateRect(rect_of(state_->plot()), FALSE);
}

void CWntPulse::OnCaptureChanged(CWnd*) {
    end_drag();
}

void CWntPulse::OnContextMenu(CWnd*, CPoint point) {
    if (point == CPoint(-1, -1)) { // by the keyboard
        point = rect_of(state_->plot()).CenterPoint();
        ClientToScreen(&point);
    }
    show_menu(point);
}

void CWntPulse::zoom_at(int x, double factor) {
    if (state_->drag != State::Drag::none)
        return; // it goes on from where it began
    const double span = static_cast<double>(state_->view.span()) * factor;
    state_->view.zoom(static_cast<std::int64_t>(span + 0.5), x);
    view_changed();
}

BOOL CWntPulse::OnMouseWheel(UINT flags, short delta, CPoint point) {
    State& s = *state_;
    if (s.drag != State::Drag::none)
        return TRUE;
    s.wheel += delta;
    const int clicks = s.wheel / WHEEL_DELTA;
    s.wheel -= clicks * WHEEL_DELTA;
    if (clicks == 0)
        return TRUE;
    ScreenToClient(&point);
    if (flags & MK_SHIFT) {
        s.view.scroll(-clicks * std::max(s.view.columns().width / scroll_part, 1));
        view_changed();
        return TRUE;
    }
    double factor = 1;
    for (int i = 0; i < std::min(std::abs(clicks), 20); ++i)
        factor *= clicks > 0 ? 1 / zoom_step : zoom_step;
    zoom_at(point.x - s.plot().left, factor);
    return TRUE;
}

void CWntPulse::put_cursor(int which, __int64 time) {
    const StillThere self(*this);
    if (SetCursor(which, time) && self)
        tell(WNT_PULSE_CURSOR, which, time);
}

void CWntPulse::remove_cursors() {
    const auto removed = std::exchange(state_->cursors, {});
    const StillThere self(*this);
    refresh(false);
    for (int which = 0; which < 2 && self; ++which)
        if (const auto& at = removed[static_cast<std::size_t>(which)])
            tell(WNT_PULSE_CURSOR, which, *at);
}

// One that is not shown begins in the middle.
void CWntPulse::move_cursor(int which, int columns) {
    PulseView& view = state_->view;
    const auto cursor = state_->cursors[static_cast<std::size_t>(which)];
    const int width = view.columns().width;
    if (cursor) { // the view follows
        const std::int64_t at = view.x(*cursor) + columns;
        const StillThere self(*this);
        if (at < 0 || at >= width) {
            view.scroll(at < 0 ? at : at - width + 1);
            view_changed();
        }
        if (!self)
            return;
    }
    const std::int64_t x = cursor ? view.x(*cursor) + columns : width / 2;
    std::int64_t time = view.time(std::clamp<std::int64_t>(x, 0, width - 1));
    if (cursor && columns < 0) // where a hundredth is wider than a pixel
        time = std::min(time, *cursor - 1);
    else if (cursor)
        time = std::max(time, *cursor + 1);
    put_cursor(which, time);
}

// Escape is a dialog's own unless there is something here that it ends.
UINT CWntPulse::OnGetDlgCode() {
    const State& s = *state_;
    const MSG* const question = GetCurrentMessage();
    const auto* const key = question ? reinterpret_cast<const MSG*>(question->lParam) : nullptr;
    const bool escape =
        key && question->message == WM_GETDLGCODE && key->message == WM_KEYDOWN && key->wParam == VK_ESCAPE;
    const bool ends = s.reading || s.drag != State::Drag::none || s.cursors[0] || s.cursors[1];
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (escape && ends ? DLGC_WANTMESSAGE : 0);
}

void CWntPulse::OnKeyDown(UINT key, UINT, UINT) {
    State& s = *state_;
    const int width = s.view.columns().width;
    const auto scroll = [&](std::int64_t columns) {
        s.view.scroll(columns);
        view_changed();
    };
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT: {
        const int way = key == VK_LEFT ? -1 : 1;
        if (s.cursors[0] || s.cursors[1] || down(VK_SHIFT))
            return move_cursor(down(VK_SHIFT) || !s.cursors[0] ? 1 : 0, way * (down(VK_CONTROL) ? 10 : 1));
        return scroll(way * std::max(width / scroll_part, 1));
    }
    case VK_PRIOR:
        return scroll(-width);
    case VK_NEXT:
        return scroll(width);
    case VK_HOME:
        return scroll(std::int64_t{-1} << 40);
    case VK_END:
        s.view.set_live(true);
        return view_changed();
    case VK_SPACE:
        s.view.set_live(!s.view.live());
        return view_changed();
    case VK_ESCAPE:
        if (s.reading)
            return end_reading(0);
        if (s.drag != State::Drag::none)
            return end_drag();
        return remove_cursors();
    default:
        Default();
    }
}

void CWntPulse::OnChar(UINT character, UINT, UINT) {
    const int middle = state_->view.columns().width / 2;
    if ('0' <= character && character <= '9')
        toggle_curve(character == '0' ? 9 : static_cast<int>(character - '1'));
    else if (character == '+')
        zoom_at(middle, 1 / zoom_step);
    else if (character == '-')
        zoom_at(middle, zoom_step);
}

void CWntPulse::OnSetFocus(CWnd* old) {
    ControlWindow::OnSetFocus(old);
    Invalidate(FALSE);
    update_tip();
}

void CWntPulse::OnKillFocus(CWnd* next) {
    ControlWindow::OnKillFocus(next);
    Invalidate(FALSE);
    update_tip();
}

void CWntPulse::OnHScroll(UINT code, UINT position, CScrollBar* bar) {
    if (!bar || bar->m_hWnd != scroll_.m_hWnd)
        return ControlWindow::OnHScroll(code, position, bar);
    if (code == SB_ENDSCROLL)
        return;
    State& s = *state_;
    SCROLLINFO info = {};
    scroll_.GetScrollInfo(&info);
    const int width = s.view.columns().width;
    if (code == SB_THUMBTRACK || code == SB_THUMBPOSITION) {
        const auto [first, last] = s.scrolled();
        const double whole = static_cast<double>(last - first);
        const auto start = first + static_cast<std::int64_t>(whole * info.nTrackPos / std::max(info.nMax, 1));
        s.view.scroll(s.view.columns().column(start) - s.view.origin());
    } else if (code == SB_LEFT || code == SB_RIGHT) {
        s.view.scroll((code == SB_LEFT ? std::int64_t{-1} : std::int64_t{1}) << 40);
    } else {
        const int page = code == SB_PAGELEFT || code == SB_PAGERIGHT ? width : std::max(width / scroll_part, 1);
        s.view.scroll(code == SB_LINELEFT || code == SB_PAGELEFT ? -page : page);
    }
    view_changed();
}

BOOL CWntPulse::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* const told = reinterpret_cast<NMHDR*>(lParam);
    for (CWntAxis* axis : std::initializer_list<CWntAxis*>{&left_, &right_, &time_})
        if (told && told->code == axis_double_click && axis->m_hWnd && told->hwndFrom == axis->m_hWnd) {
            axis->SendMessage(WM_COMMAND, axis_properties_command);
            return TRUE;
        }
    return ControlWindow::OnNotify(wParam, lParam, result);
}

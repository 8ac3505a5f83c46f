#include <afxpriv.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "controls/tool_bar_drag.h"
#include "controls/tool_bar_model.h"
#include "controls/tool_bar_parts.h"
#include "controls/wnt_tool_bar.h"
#include "widgets/painting/surface_owner.h"

// Pointer and keyboard.

BEGIN_MESSAGE_MAP(CWntToolBar, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SETTINGCHANGE()
ON_WM_SYSCOLORCHANGE()
ON_WM_ENABLE()
ON_WM_DESTROY()
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CWntToolBar::OnIdleUpdate)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_MESSAGE(WM_MOUSELEAVE, &CWntToolBar::OnMouseLeave)
ON_WM_CAPTURECHANGED()
ON_WM_CANCELMODE()
ON_WM_KEYDOWN()
ON_WM_SYSKEYDOWN()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_MESSAGE(WM_GETDLGCODE, &CWntToolBar::OnDialogCode)
END_MESSAGE_MAP()

namespace {

constexpr UINT was_down = 0x4000; // of a key message's flags: it repeats

bool is_held(int key) {
    return ::GetKeyState(key) < 0;
}

bool has_open_list(HWND window) {
    return ::SendMessage(window, CB_GETDROPPEDSTATE, 0, 0) ||
           ::SendMessage(::GetParent(window), CB_GETDROPPEDSTATE, 0, 0);
}

} // namespace

void CWntToolBar::OnDestroy() {
    end_press(CPoint(), false);
    tips_->DestroyWindow();
    tip_count_ = 0;
    wnt::PaneWindow::OnDestroy();
}

bool CWntToolBar::is_usable(int index) const {
    if (place_of(index).IsRectEmpty())
        return false;
    return index == wnt::tool_chevron ||
           (model_->has(index) && wnt::is_button(model_->item(index).kind) && model_->item(index).enabled);
}

int CWntToolBar::hit(CPoint point) const {
    if (place_of(wnt::tool_chevron).PtInRect(point))
        return wnt::tool_chevron;
    return places_->at(point.x, point.y);
}

bool CWntToolBar::opens_menu(int index, CPoint point) const {
    if (index < 0)
        return false;
    const CRect place = place_of(index);
    const wnt::ToolParts parts =
        wnt::tool_parts(content_of(index), look(), {place.left, place.top, place.right, place.bottom});
    return model_->item(index).kind == wnt::ToolKind::drop_down || wnt::rect_of(parts.arrow).PtInRect(point);
}

void CWntToolBar::set_hot(int index) {
    if (hot_ == index)
        return;
    invalidate_item(hot_);
    hot_ = index;
    invalidate_item(hot_);
}

void CWntToolBar::OnLButtonDown(UINT, CPoint point) {
    const int at = hit(point);
    if (pressed_ != wnt::no_tool || at == wnt::no_tool || (!is_usable(at) && !model_->movable))
        return;
    tips_->HideTip();
    // Where items can be dragged, a menu waits for the button's release.
    if (at == wnt::tool_chevron || (is_usable(at) && !model_->movable && opens_menu(at, point))) {
        activate(at, true);
        return;
    }
    pressed_ = at;
    pressed_inside_ = is_usable(at);
    pressed_at_ = point;
    SetCapture();
    invalidate_item(at);
}

void CWntToolBar::OnLButtonDblClk(UINT flags, CPoint point) {
    OnLButtonDown(flags, point);
}

void CWntToolBar::OnMouseMove(UINT, CPoint point) {
    if (pressed_ == wnt::no_tool || ::GetCapture() != m_hWnd) {
        TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&leave);
        const int at = hit(point);
        set_hot(is_usable(at) ? at : wnt::no_tool);
        return;
    }
    if (drag_)
        return drag_to(point);
    const CPoint way = point - pressed_at_;
    if (model_->movable &&
        (std::abs(way.x) >= ::GetSystemMetrics(SM_CXDRAG) || std::abs(way.y) >= ::GetSystemMetrics(SM_CYDRAG)))
        return start_drag(point);
    const bool inside = is_usable(pressed_) && place_of(pressed_).PtInRect(point);
    if (inside != pressed_inside_) {
        pressed_inside_ = inside;
        invalidate_item(pressed_);
    }
}

LRESULT CWntToolBar::OnMouseLeave(WPARAM, LPARAM) {
    set_hot(wnt::no_tool);
    return 0;
}

void CWntToolBar::OnLButtonUp(UINT, CPoint point) {
    if (::GetCapture() == m_hWnd)
        end_press(point, true);
}

void CWntToolBar::OnCaptureChanged(CWnd*) {
    end_press(CPoint(), false);
}

void CWntToolBar::OnCancelMode() {
    end_press(CPoint(), false);
}

void CWntToolBar::end_press(CPoint point, bool keep) {
    const int was = std::exchange(pressed_, wnt::no_tool);
    const std::unique_ptr<Drag> drag = std::move(drag_);
    if (was == wnt::no_tool)
        return;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    invalidate_item(was);
    if (drag) {
        InvalidateRect(mark_at(drag->to), FALSE);
        const HWND to = drag->focus;
        if ((!to || ::GetFocus() != m_hWnd || give_focus(to)) && keep)
            drop_item(drag->from, drag->to);
    } else if (keep && pressed_inside_ && is_usable(was)) {
        activate(was, opens_menu(was, point));
    }
}

// -- Items dragged to other places ------------------------------------------------------------------------------------

// Escape comes to who has the focus.
void CWntToolBar::start_drag(CPoint point) {
    const HWND before = ::GetFocus();
    drag_.reset(new Drag{pressed_, pressed_, before == m_hWnd ? nullptr : before});
    if (!give_focus(m_hWnd))
        return;
    invalidate_item(pressed_);
    drag_to(point);
}

void CWntToolBar::drag_to(CPoint point) {
    if (!drag_)
        return;
    InvalidateRect(mark_at(drag_->to), FALSE);
    drag_->to = places_->insertion(point.x, point.y, model_->upright);
    InvalidateRect(mark_at(drag_->to), FALSE);
}

// A line before the item, or behind the last one that is shown.
CRect CWntToolBar::mark_at(int index) const {
    const int thick = std::max(::MulDiv(2, scale_, 100), 2);
    CRect place = place_of(index);
    const bool behind = place.IsRectEmpty();
    for (int i = std::min(index, model_->count()) - 1; i >= 0 && place.IsRectEmpty(); --i)
        place = place_of(i);
    if (model_->upright) {
        const int at = behind ? place.bottom : place.top;
        return CRect(place.left, at - thick / 2, place.right, at - thick / 2 + thick);
    }
    const int at = behind ? place.right : place.left;
    return CRect(at - thick / 2, place.top, at - thick / 2 + thick, place.bottom);
}

void CWntToolBar::drop_item(int from, int to) {
    if (!model_->has(from) || to == from || to == from + 1)
        return;
    CRect place = place_of(from);
    ClientToScreen(&place);
    WntToolNotify told = {{}, static_cast<UINT>(model_->item(from).id), from, to, nullptr, place};
    LRESULT refused = 0;
    const int added = model_->item(from).added;
    if (!tell(WNT_TOOL_MOVING, told, refused) || refused)
        return;
    from = model_->position_of(added);
    if (!model_->has(from) || !model_->move(from, told.to))
        return;
    const wnt::StillThere there(*this);
    items_changed();
    if (!there)
        return;
    told.to = told.index = told.to > from ? told.to - 1 : told.to;
    tell(WNT_TOOL_MOVED, told, refused);
}

// -- Keyboard ---------------------------------------------------------------------------------------------------------

bool CWntToolBar::activate(int index, bool menu) {
    if (index == wnt::tool_chevron)
        return open_overflow();
    const wnt::ToolKind kind = model_->item(index).kind;
    return kind == wnt::ToolKind::drop_down || (menu && wnt::has_menu(kind)) ? drop_menu(index) : press(index);
}

void CWntToolBar::set_focused(int index) {
    invalidate_item(focused_);
    focused_ = index;
    invalidate_item(focused_);
    if (index >= 0 && model_->item(index).kind == wnt::ToolKind::window) {
        ::SetFocus(static_cast<HWND>(model_->item(index).window));
        return;
    }
    if (!give_focus(m_hWnd))
        return;
    sync_tips();
    if (index >= 0)
        tips_->ShowTip(this, static_cast<UINT_PTR>(index + 1));
}

// What the focus goes through, the chevron last.
std::vector<int> CWntToolBar::focus_stops() const {
    std::vector<int> stops;
    for (int i = 0; i < model_->count(); ++i) {
        const HWND embedded = living(static_cast<HWND>(model_->item(i).window));
        const bool enterable = model_->item(i).kind == wnt::ToolKind::window && embedded &&
                               ::IsWindowEnabled(embedded) && ::GetWindowLongA(embedded, GWL_STYLE) & WS_TABSTOP;
        if (is_usable(i) || (enterable && !place_of(i).IsRectEmpty()))
            stops.push_back(i);
    }
    if (is_usable(wnt::tool_chevron))
        stops.push_back(wnt::tool_chevron);
    return stops;
}

void CWntToolBar::step_focus(int step) {
    const std::vector<int> stops = focus_stops();
    if (stops.empty())
        return;
    const int count = static_cast<int>(stops.size());
    int now = static_cast<int>(std::find(stops.begin(), stops.end(), focused_) - stops.begin());
    if (now == count) { // it was disabled: between those beside it
        const auto before = std::count_if(stops.begin(), stops.end(), [this](int i) { return i >= 0 && i < focused_; });
        now = static_cast<int>(before) - (step > 0 ? 1 : 0);
    }
    set_focused(stops[static_cast<std::size_t>((now + step + count) % count)]);
}

void CWntToolBar::OnKeyDown(UINT key, UINT, UINT flags) {
    if (key == VK_ESCAPE)
        return drag_ ? end_press(CPoint(), false) : give_focus_back();
    if (pressed_ != wnt::no_tool)
        return;
    const bool upright = model_->upright;
    const std::vector<int> stops = focus_stops();
    if (key == static_cast<UINT>(upright ? VK_UP : VK_LEFT))
        step_focus(-1);
    else if (key == static_cast<UINT>(upright ? VK_DOWN : VK_RIGHT))
        step_focus(1);
    else if (key == VK_HOME && !stops.empty())
        set_focused(stops.front());
    else if (key == VK_END && !stops.empty())
        set_focused(stops.back());
    else if ((key == VK_SPACE || key == VK_RETURN) && is_usable(focused_) && !(flags & was_down))
        activate(focused_, false);
    else if ((key == VK_F4 || key == static_cast<UINT>(upright ? VK_RIGHT : VK_DOWN)) && is_usable(focused_))
        open_focused();
    else
        Default();
}

void CWntToolBar::OnSysKeyDown(UINT key, UINT, UINT) {
    if (key == VK_DOWN && is_usable(focused_))
        open_focused();
    else
        Default();
}

void CWntToolBar::open_focused() {
    if (focused_ == wnt::tool_chevron || wnt::has_menu(model_->item(focused_).kind))
        activate(focused_, true);
}

void CWntToolBar::OnSetFocus(CWnd* old) {
    wnt::PaneWindow::OnSetFocus(old);
    const HWND before = old->GetSafeHwnd();
    if (before && before != m_hWnd && !::IsChild(m_hWnd, before))
        focus_before_ = before;
    if (!is_usable(focused_) && !drag_) {
        const std::vector<int> stops = focus_stops();
        const auto first = std::find_if(stops.begin(), stops.end(), [this](int i) { return is_usable(i); });
        focused_ = first == stops.end() ? wnt::no_tool : *first;
    }
    invalidate_item(focused_);
}

void CWntToolBar::OnKillFocus(CWnd* next) {
    wnt::PaneWindow::OnKillFocus(next);
    invalidate_item(focused_);
    tips_->HideTip();
}

// False when who lost it destroyed the bar.
bool CWntToolBar::give_focus(HWND to) {
    const wnt::StillThere self(*this);
    if (::GetFocus() != to)
        ::SetFocus(to);
    return static_cast<bool>(self);
}

void CWntToolBar::give_focus_back() {
    const HWND to = focus_before_;
    const bool there = to && ::IsWindow(to) && ::IsWindowVisible(to) && ::IsWindowEnabled(to);
    ::SetFocus(there ? to : ::GetParent(m_hWnd));
}

int CWntToolBar::FilterKey(const MSG* message) {
    if (!this || !m_hWnd || !message || message->message != WM_KEYDOWN || message->wParam != VK_F6 ||
        is_held(VK_CONTROL) || is_held(VK_SHIFT) || is_held(VK_MENU) || !IsWindowVisible() || !IsWindowEnabled())
        return 0;
    const HWND focus = ::GetFocus();
    if (focus == m_hWnd || ::IsChild(m_hWnd, focus)) {
        give_focus_back();
        return 1;
    }
    if (focus_stops().empty())
        return 0;
    if (!give_focus(m_hWnd))
        return 1;
    const std::vector<int> stops = focus_stops(); // anew: who lost the focus may have changed the items
    if (focused_ != wnt::no_tool)
        set_focused(focused_);
    else if (!stops.empty())
        set_focused(stops.front());
    return 1;
}

// Keys of an embedded window that concern the bar.
bool CWntToolBar::filter_embedded(const MSG& message) {
    if (message.message != WM_KEYDOWN || !::IsChild(m_hWnd, message.hwnd))
        return false;
    for (int i = 0; i < model_->count(); ++i) {
        const HWND embedded = static_cast<HWND>(model_->item(i).window);
        if (embedded && (embedded == message.hwnd || ::IsChild(embedded, message.hwnd)))
            focused_ = i;
    }
    if (message.wParam == VK_TAB && !is_held(VK_CONTROL)) {
        const bool back = is_held(VK_SHIFT);
        const std::vector<int> stops = focus_stops();
        if (stops.empty() || focused_ == (back ? stops.front() : stops.back()))
            return false; // a dialog goes on behind the bar
        step_focus(back ? -1 : 1);
        return true;
    }
    if (message.wParam == VK_ESCAPE && !has_open_list(message.hwnd)) {
        give_focus_back();
        return true;
    }
    return false;
}

BOOL CWntToolBar::PreTranslateMessage(MSG* message) {
    if (message && m_hWnd) {
        sync_tips();
        tips_->RelayEvent(message);
        if (FilterKey(message) || filter_embedded(*message))
            return TRUE;
    }
    return wnt::PaneWindow::PreTranslateMessage(message);
}

LRESULT CWntToolBar::OnDialogCode(WPARAM, LPARAM lParam) {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    const bool ours = message && message->message == WM_KEYDOWN &&
                      (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE || drag_);
    return DLGC_WANTARROWS | (ours ? DLGC_WANTMESSAGE : 0);
}

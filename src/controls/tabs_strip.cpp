#include "controls/tabs_strip.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "controls/wnt_tabs.h"
#include "controls/pixel_rects.h"
#include "screen_scale.h"
#include "widgets/painting/paint_pass.h"
#include "widgets/painting/surface_owner.h"

namespace wnt {

namespace {

constexpr UINT_PTR repeat_timer = 1;
constexpr UINT repeat_time = 200; // milliseconds

} // namespace

BEGIN_MESSAGE_MAP(TabsStrip, ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_CAPTURECHANGED()
ON_WM_CANCELMODE()
ON_WM_KEYDOWN()
ON_WM_SYSKEYDOWN()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_GETDLGCODE()
ON_WM_DESTROY()
ON_WM_TIMER()
END_MESSAGE_MAP()

TabsStrip::TabsStrip(CWntTabs& tabs) : ControlWindow("WntTabsStrip", Draws::itself), tabs_(tabs) {}

TabsStrip::~TabsStrip() {
    DestroyWindow(); // while its handlers and what they use still exist
}

// Its window is no child of the strip's.
void TabsStrip::OnDestroy() {
    tips_.DestroyWindow();
    tip_count_ = 0;
    hot_ = pressed_ = {};
    gap_ = -1;
    ControlWindow::OnDestroy();
}

void TabsStrip::rescale(bool settings_changed) {
    scale_ = screen_scale(settings_changed);
    font_ = std::make_unique<ControlFont>(scale_, false);
}

void TabsStrip::measure() {
    if (!font_)
        return;
    sizes_ = TabsSizes::at(scale_, font_->row());
    lengths_.clear();
    for (int i = 0; i < tabs_.model_->count(); ++i) {
        const Tab& tab = tabs_.model_->at(i);
        int mark = -1;
        lengths_.push_back(sizes_.length(font_->width(plain_text(tab.text, mark)), tab.icon != nullptr, tab.closable));
    }
}

void TabsStrip::arrange(int width, int height, int wanted) {
    if (!m_hWnd || !font_)
        return;
    layout_ = lay_out_tabs(*tabs_.model_, sizes_, lengths_, width, height, layout_.first, wanted);
    const PixelRect& r = layout_.strip;
    hot_ = pressed_ = {};
    end_press();
    SetWindowPos(nullptr, r.left, r.top, r.width(), r.height(), SWP_NOZORDER | SWP_NOACTIVATE);
    place_tips();
    Invalidate(FALSE);
}

// One for each tab that is seen and has one.
void TabsStrip::place_tips() {
    for (int id = 1; id <= tip_count_; ++id)
        tips_.DelTool(this, static_cast<UINT_PTR>(id));
    tip_count_ = 0;
    for (int i = layout_.first; i < layout_.first + layout_.shown; ++i) {
        const std::string& text = tabs_.model_->at(i).tip;
        if (text.empty() || (!tips_.m_hWnd && !tips_.Create(this)))
            continue;
        const CRect place = box(layout_.tabs[static_cast<std::size_t>(i)]);
        tips_.AddTip(this, {"", text.c_str()}, &place, static_cast<UINT_PTR>(++tip_count_));
    }
}

BOOL TabsStrip::PreTranslateMessage(MSG* message) {
    if (tips_.m_hWnd)
        tips_.RelayEvent(message);
    return ControlWindow::PreTranslateMessage(message);
}

TabsPoint TabsStrip::hit(CPoint point) const {
    point += CPoint(layout_.strip.left, layout_.strip.top);
    if (layout_.back.contains(point.x, point.y))
        return {TabsPoint::back};
    if (layout_.on.contains(point.x, point.y))
        return {TabsPoint::on};
    if (layout_.menu.contains(point.x, point.y))
        return {TabsPoint::menu};
    const int index = layout_.tab_at(point.x, point.y);
    if (index < 0)
        return {};
    const Tab& tab = tabs_.model_->at(index);
    const bool close =
        tab.closable && layout_.parts(index, sizes_, tab.icon != nullptr, true).close.contains(point.x, point.y);
    return {close ? TabsPoint::close : TabsPoint::tab, index};
}

CRect TabsStrip::box(const PixelRect& r) const {
    return rect_of(r) - CPoint(layout_.strip.left, layout_.strip.top);
}

void TabsStrip::repaint(const TabsPoint& at) {
    const PixelRect none;
    const PixelRect& place = at.part == TabsPoint::back   ? layout_.back
                             : at.part == TabsPoint::on   ? layout_.on
                             : at.part == TabsPoint::menu ? layout_.menu
                             : layout_.shows(at.index)    ? layout_.tabs[static_cast<std::size_t>(at.index)]
                                                          : none;
    InvalidateRect(box(place), FALSE);
}

BOOL TabsStrip::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void TabsStrip::OnPaint() {
    PaintPass pass(*this);
    paint_tabs(pass, {*tabs_.model_, layout_, sizes_, *font_, hot_, pressed_.part != TabsPoint::nothing, gap_,
                      ::GetFocus() == m_hWnd});
}

// While the button is held, only what it was pressed on is lit.
void TabsStrip::hover(const TabsPoint& at) {
    const TabsPoint lit = pressed_.part == TabsPoint::nothing || pressed_ == at ? at : TabsPoint{};
    if (lit == hot_)
        return;
    repaint(hot_);
    hot_ = lit;
    repaint(hot_);
}

void TabsStrip::OnMouseMove(UINT, CPoint point) {
    TRACKMOUSEEVENT leaving = {sizeof leaving, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&leaving);
    hover(hit(point));
    if (pressed_.part == TabsPoint::tab && tabs_.model_->movable)
        drag_to(point);
}

void TabsStrip::OnMouseLeave() {
    hover({});
}

void TabsStrip::drag_to(CPoint point) {
    const CPoint way = point - pressed_at_;
    const bool far_enough =
        std::abs(way.x) > ::GetSystemMetrics(SM_CXDRAG) || std::abs(way.y) > ::GetSystemMetrics(SM_CYDRAG);
    if (gap_ < 0 && !far_enough)
        return;
    const int gap = layout_.gap_at(point.x + layout_.strip.left, point.y + layout_.strip.top);
    if (gap == gap_)
        return;
    for (const int shown : {gap_, gap})
        if (shown >= 0)
            InvalidateRect(box(layout_.gap_mark(shown, std::max(sizes_.lift, 2))), FALSE);
    gap_ = gap;
}

void TabsStrip::end_press() {
    const TabsPoint pressed = std::exchange(pressed_, {});
    KillTimer(repeat_timer);
    if (gap_ >= 0)
        InvalidateRect(box(layout_.gap_mark(std::exchange(gap_, -1), std::max(sizes_.lift, 2))), FALSE);
    if (pressed.part != TabsPoint::nothing)
        repaint(pressed);
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

void TabsStrip::OnLButtonDown(UINT, CPoint point) {
    end_press();
    const StillThere self(*this);
    if (GetStyle() & WS_TABSTOP)
        SetFocus();
    if (!self)
        return; // who lost the focus destroyed it
    const TabsPoint at = hit(point);
    if (at.part == TabsPoint::nothing)
        return;
    if (at.part == TabsPoint::menu)
        return open_menu();
    if (at.part == TabsPoint::tab && (!tabs_.select_by_user(at.index) || hit(point) != at))
        return;
    if (::GetKeyState(VK_LBUTTON) >= 0)
        return; // a message box of the host's took its release
    pressed_ = hot_ = at;
    pressed_at_ = point;
    SetCapture();
    repaint(at);
    if (at.part == TabsPoint::back || at.part == TabsPoint::on) {
        SetTimer(repeat_timer, repeat_time, nullptr);
        scroll(at.part == TabsPoint::on ? 1 : -1);
    }
}

void TabsStrip::OnLButtonDblClk(UINT flags, CPoint point) {
    OnLButtonDown(flags, point);
}

void TabsStrip::OnLButtonUp(UINT, CPoint point) {
    const TabsPoint pressed = pressed_;
    const int gap = gap_;
    const TabsPoint at = hit(point);
    end_press();
    hover(at);
    if (pressed.part == TabsPoint::close && at == pressed)
        tabs_.close_by_user(at.index);
    else if (gap >= 0 && tabs_.model_->has(pressed.index))
        tabs_.move_by_user(pressed.index, gap > pressed.index ? gap - 1 : gap);
}

void TabsStrip::OnCaptureChanged(CWnd*) {
    end_press();
}

void TabsStrip::OnCancelMode() {
    end_press();
}

void TabsStrip::scroll(int step) {
    CRect owner;
    tabs_.GetClientRect(&owner);
    const int first = std::max(layout_.first + step, 0);
    layout_ = lay_out_tabs(*tabs_.model_, sizes_, lengths_, owner.Width(), owner.Height(), first, -1);
    place_tips();
    Invalidate(FALSE);
}

// A held arrow goes on.
void TabsStrip::OnTimer(UINT_PTR timer) {
    if (timer != repeat_timer)
        return ControlWindow::OnTimer(timer);
    if (hot_ == pressed_ && (pressed_.part == TabsPoint::back || pressed_.part == TabsPoint::on))
        scroll(pressed_.part == TabsPoint::on ? 1 : -1);
}

// With the tabs that are not seen, by their ids: places may change while it is open.
void TabsStrip::open_menu() {
    CMenu menu;
    if (layout_.menu.width() == 0 || !menu.CreatePopupMenu())
        return;
    for (int i = 0; i < tabs_.model_->count(); ++i) {
        if (layout_.shows(i))
            continue;
        const Tab& tab = tabs_.model_->at(i);
        menu.AppendMenu(MF_STRING | (tab.enabled ? 0u : MF_GRAYED), static_cast<UINT_PTR>(tab.id), tab.text.c_str());
    }
    CRect button = box(layout_.menu);
    ClientToScreen(&button);
    const StillThere self(*this);
    const int chosen = menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, button.left, button.bottom, this);
    if (chosen > 0 && self)
        tabs_.select_by_user(tabs_.model_->position_of(chosen));
}

UINT TabsStrip::OnGetDlgCode() {
    return pressed_.part != TabsPoint::nothing ? DLGC_WANTALLKEYS : DLGC_WANTARROWS;
}

void TabsStrip::select_by_key(UINT key) {
    const TabsModel& model = *tabs_.model_;
    const int last = model.count() - 1;
    const int at = model.selected();
    const int to = key == VK_HOME                   ? model.enabled_from(0, true)
                   : key == VK_END                  ? model.enabled_from(last, false)
                   : key == VK_LEFT || key == VK_UP ? model.enabled_from(at - 1, false)
                                                    : model.enabled_from(at + 1, true);
    if (to >= 0)
        tabs_.select_by_user(to);
}

void TabsStrip::move_by_key(int step) {
    const int at = tabs_.model_->selected();
    if (tabs_.model_->movable && tabs_.model_->has(at) && tabs_.model_->has(at + step))
        tabs_.move_by_user(at, at + step);
}

void TabsStrip::OnKeyDown(UINT key, UINT, UINT) {
    if (key == VK_ESCAPE)
        return end_press();
    const bool upright = layout_.side == TabsSide::left || layout_.side == TabsSide::right;
    const bool back = key == static_cast<UINT>(upright ? VK_UP : VK_LEFT);
    const bool on = key == static_cast<UINT>(upright ? VK_DOWN : VK_RIGHT);
    const bool control = ::GetKeyState(VK_CONTROL) < 0;
    if ((back || on) && control)
        move_by_key(on ? 1 : -1);
    else if (back || on || key == VK_HOME || key == VK_END)
        select_by_key(key);
    else if (key == VK_DELETE && tabs_.model_->selected() >= 0 && tabs_.model_->at(tabs_.model_->selected()).closable)
        tabs_.close_by_user(tabs_.model_->selected());
    else
        Default();
}

void TabsStrip::OnSysKeyDown(UINT key, UINT, UINT) {
    if (key == VK_DOWN)
        open_menu();
    else
        Default();
}

void TabsStrip::OnSetFocus(CWnd* old) {
    ControlWindow::OnSetFocus(old);
    repaint({TabsPoint::tab, tabs_.model_->selected()});
}

void TabsStrip::OnKillFocus(CWnd* next) {
    ControlWindow::OnKillFocus(next);
    repaint({TabsPoint::tab, tabs_.model_->selected()});
}

} // namespace wnt

#include "controls/wnt_frame_ex.h"

#include <algorithm>

#include "controls/frame_model.h"
#include "script/colours.h"
#include "widgets/painting/paint_pass.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr UINT content_id = 1;
constexpr UINT across_id = 2;
constexpr UINT down_id = 3;
constexpr int header_height = 22; // pixels at 96 dots an inch
constexpr int mark_width = 20;
constexpr int line_step = 16; // pixels
constexpr int longest = 1 << 20;

COLORREF ground_of(const wnt::FrameModel& model) {
    return model.background == wnt::system_colour ? ::GetSysColor(COLOR_BTNFACE) : wnt::colour_values[model.background];
}

// By itself, whether or not its parents are.
bool is_shown(const CScrollBar& bar) {
    return bar.m_hWnd && bar.GetStyle() & WS_VISIBLE;
}

// A triangle that points down where the content is shown, to the right where it is folded.
void paint_mark(wnt::PaintPass& pass, CPoint middle, int reach, bool folded, COLORREF colour) {
    const auto up = [&](int y) { return pass.area().Height() - 1 - y; };
    const int back = reach / 2;
    Tpt corners[3];
    if (folded) {
        corners[0] = {middle.x - back, up(middle.y - reach)};
        corners[1] = {middle.x - back, up(middle.y + reach)};
        corners[2] = {middle.x + reach - back, up(middle.y)};
    } else {
        corners[0] = {middle.x - reach, up(middle.y - back)};
        corners[1] = {middle.x + reach, up(middle.y - back)};
        corners[2] = {middle.x, up(middle.y + reach - back)};
    }
    pass.out().fillcolour(colour, 0);
    pass.out().solidpoly(corners, 3);
}

// Bars count lines of the content.
void set_range(CScrollBar& bar, int whole, int page, int offset) {
    const int steps = (std::max(whole - page, 0) + line_step - 1) / line_step;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nPage = static_cast<UINT>(std::max(page / line_step, 1));
    info.nMax = steps + static_cast<int>(info.nPage) - 1;
    info.nPos = (offset + line_step - 1) / line_step;
    bar.SetScrollInfo(&info);
}

} // namespace

/// Holds the children: what lies outside of the room below the header is cut off.
class CWntFrameEx::Content : public wnt::PaneWindow {
public:
    explicit Content(CWntFrameEx& frame) : PaneWindow("WntFrameContent"), frame_(frame) {}
    ~Content() override { DestroyWindow(); }

protected:
    bool build() override { return true; }
    void lay_out(int, int) override {}
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint() {
        wnt::PaintPass pass(*this);
        pass.fill(pass.area(), ground_of(frame_.model()));
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntFrameEx& frame_;
};

BEGIN_MESSAGE_MAP(CWntFrameEx::Content, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CWntFrameEx, CWntFrame)
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_GETDLGCODE()
ON_WM_KEYDOWN()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CWntFrameEx::CWntFrameEx() : CWntFrame("WntFrameEx"), content_(std::make_unique<Content>(*this)) {}

CWntFrameEx::~CWntFrameEx() {
    DestroyWindow(); // while its handlers and what they use still exist
}

bool CWntFrameEx::build() {
    const CRect nowhere(0, 0, 0, 0);
    offset_ = CPoint();
    size_ = CSize();
    folded_ = false;
    return CWntFrame::build() && content_->Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, this, content_id) &&
           across_.Create(WS_CHILD | SBS_HORZ, nowhere, this, across_id) &&
           down_.Create(WS_CHILD | SBS_VERT, nowhere, this, down_id);
}

void CWntFrameEx::leave() {
    content_->DestroyWindow();
    across_.DestroyWindow();
    down_.DestroyWindow();
}

CWnd* CWntFrameEx::GetContent() {
    return this && content_->m_hWnd ? content_.get() : nullptr;
}

CWnd* CWntFrameEx::GetHolder() {
    return GetContent();
}

int CWntFrameEx::GetHeaderHeight() const {
    return this ? ::MulDiv(header_height, GetScale(), 100) : 0;
}

int CWntFrameEx::IsFolded() const {
    return this && folded_;
}

// What the border leaves.
CRect CWntFrameEx::inside() const {
    CRect client;
    GetClientRect(&client);
    wnt::FrameModel untitled = model();
    untitled.title.clear();
    const wnt::PixelRect r = wnt::frame_layout(untitled, client.Width(), client.Height(), GetScale(), 0).content;
    return CRect(r.left, r.top, r.right, r.bottom);
}

CRect CWntFrameEx::header() const {
    CRect strip = inside();
    strip.bottom = std::min(strip.bottom, strip.top + GetHeaderHeight());
    return strip;
}

CRect CWntFrameEx::ContentRect() const {
    CRect room = inside();
    room.top = header().bottom;
    if (is_shown(down_))
        room.right = std::max<LONG>(room.right - ::GetSystemMetrics(SM_CXVSCROLL), room.left);
    if (is_shown(across_))
        room.bottom = std::max<LONG>(room.bottom - ::GetSystemMetrics(SM_CYHSCROLL), room.top);
    return room;
}

CRect CWntFrameEx::GetAnchorArea() const {
    return CRect(CPoint(-offset_.x, -offset_.y), size_);
}

int CWntFrameEx::SetContentSize(int width, int height) {
    if (!this || width < 0 || height < 0)
        return 0;
    least_ = CSize(std::min(width, longest), std::min(height, longest));
    StyleChanged();
    return 1;
}

int CWntFrameEx::SetTool(CWnd* tool) {
    if (!this || (tool && !wnt::adopt_child(*this, tool)))
        return 0;
    if (living(tool_) && tool_ != tool->GetSafeHwnd())
        ::ShowWindow(tool_, SW_HIDE);
    tool_ = tool->GetSafeHwnd();
    tool_height_ = placed_tool_height_ = -1;
    StyleChanged();
    return 1;
}

void CWntFrameEx::StyleChanged() {
    if (!m_hWnd || !content_->m_hWnd)
        return;
    content_->Invalidate(FALSE); // first: children may tell the host, which may end all this
    Invalidate(FALSE);
    const wnt::StillThere self(*this);
    if (folded_ && folded_height_ != folded_height())
        set_height(folded_height_ = folded_height());
    if (self)
        place_parts();
    if (self)
        place_children();
}

int CWntFrameEx::folded_height() const {
    CRect window;
    GetWindowRect(&window);
    return GetHeaderHeight() + window.Height() - inside().Height();
}

void CWntFrameEx::set_height(int height) {
    CRect window;
    GetWindowRect(&window);
    SetWindowPos(nullptr, 0, 0, window.Width(), height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// A bar takes room from the other direction, which may then need one, too.
void CWntFrameEx::place_parts() {
    CRect room = inside();
    room.top = header().bottom;
    const int wide = ::GetSystemMetrics(SM_CXVSCROLL);
    const int tall = ::GetSystemMetrics(SM_CYHSCROLL);
    const bool open = !folded_ && !room.IsRectEmpty();
    bool down = open && least_.cy > room.Height();
    const bool across = open && least_.cx > room.Width() - (down ? wide : 0);
    down = down || (across && least_.cy > room.Height() - tall);
    CRect view = room;
    view.right = std::max<LONG>(view.right - (down ? wide : 0), view.left);
    view.bottom = std::max<LONG>(view.bottom - (across ? tall : 0), view.top);
    if (open || size_ == CSize()) // anchors count from it, folded or not
        size_ = CSize(std::max<LONG>(view.Width(), least_.cx), std::max<LONG>(view.Height(), least_.cy));
    const wnt::StillThere self(*this);
    wnt::place_child(*content_, view.left, view.top, view.Width(), view.Height(), open);
    wnt::place_child(down_, view.right, view.top, wide, view.Height(), down);
    wnt::place_child(across_, view.left, view.bottom, view.Width(), tall, across);
    if (self)
        scroll_to(offset_);
    if (self)
        place_tool();
}

void CWntFrameEx::place_tool() {
    if (const HWND tool = living(tool_)) {
        const CRect strip = header();
        CRect place;
        ::GetWindowRect(tool, &place);
        if (place.Height() != placed_tool_height_)
            tool_height_ = place.Height(); // as the host wants it
        const int height = std::min(tool_height_, std::max(strip.Height() - 2, 0));
        placed_tool_height_ = height;
        ::SetWindowPos(tool, nullptr, strip.right - place.Width() - 2, strip.top + (strip.Height() - height) / 2,
                       place.Width(), height, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    }
}

void CWntFrameEx::scroll_to(CPoint offset) {
    const CRect view = ContentRect();
    offset.x = std::clamp<LONG>(offset.x, 0, std::max<LONG>(size_.cx - view.Width(), 0));
    offset.y = std::clamp<LONG>(offset.y, 0, std::max<LONG>(size_.cy - view.Height(), 0));
    const CSize way = offset_ - offset;
    offset_ = offset;
    set_range(down_, size_.cy, view.Height(), offset_.y);
    set_range(across_, size_.cx, view.Width(), offset_.x);
    if (way == CSize())
        return;
    if (content_->IsWindowVisible()) {
        content_->ScrollWindowEx(way.cx, way.cy, nullptr, nullptr, nullptr, nullptr, SW_SCROLLCHILDREN | SW_INVALIDATE);
        content_->UpdateWindow();
    } else {
        move_content(way); // a hidden window is not scrolled
    }
}

void CWntFrameEx::move_content(CSize way) {
    HDWP moves = ::BeginDeferWindowPos(8);
    for (HWND child = ::GetWindow(content_->m_hWnd, GW_CHILD); child && moves;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        RECT place;
        ::GetWindowRect(child, &place);
        ::MapWindowPoints(nullptr, content_->m_hWnd, reinterpret_cast<POINT*>(&place), 2);
        moves = ::DeferWindowPos(moves, child, nullptr, place.left + way.cx, place.top + way.cy, 0, 0,
                                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (moves)
        ::EndDeferWindowPos(moves);
}

void CWntFrameEx::ShowContent(const CRect& part) {
    if (!this || !m_hWnd)
        return;
    const CRect view = ContentRect();
    const auto shown = [](LONG at, LONG from, LONG to, LONG page) { return std::min(std::max(at, to - page), from); };
    scroll_to(CPoint(shown(offset_.x, part.left, part.right, view.Width()),
                     shown(offset_.y, part.top, part.bottom, view.Height())));
}

int CWntFrameEx::Fold(int folded) {
    if (!this || !m_hWnd || folded_ == (folded != 0))
        return 0;
    CRect window;
    GetWindowRect(&window);
    if (folded)
        unfolded_height_ = window.Height();
    folded_ = folded != 0;
    const wnt::StillThere self(*this);
    set_height(folded_ ? folded_height_ = folded_height() : unfolded_height_);
    if (self)
        StyleChanged();
    return 1;
}

void CWntFrameEx::fold_by_user() {
    const wnt::StillThere self(*this);
    if (!Fold(!folded_) || !self)
        return;
    CRect window;
    GetWindowRect(&window);
    WntFrameNotify notification = {{}, folded_, window.Height()};
    bool alive = true;
    wnt::notify_parent(*this, notification.hdr, WNT_FRAME_FOLDED, alive);
}

void CWntFrameEx::OnPaint() {
    wnt::PaintPass pass(*this);
    PaintPanel(pass, false);
    const CRect strip = header();
    pass.edge(strip, true);
    const COLORREF ink = TitleColour();
    const int mark = ::MulDiv(mark_width, GetScale(), 100);
    paint_mark(pass, CPoint(strip.left + mark / 2, strip.CenterPoint().y), mark / 4, folded_, ink);
    CRect title = strip;
    title.left += mark;
    title.right -= 4;
    if (const HWND tool = living(tool_)) {
        CRect place;
        ::GetWindowRect(tool, &place);
        title.right -= place.Width() + 2;
    }
    pass.text(title, model().title.c_str(), DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX, ink,
              &title_font());
    if (::GetFocus() == m_hWnd) {
        CRect inner = strip;
        inner.DeflateRect(2, 2);
        pass.focus(inner);
    }
}

void CWntFrameEx::OnLButtonDown(UINT flags, CPoint point) {
    if (!header().PtInRect(point))
        return CWntFrame::OnLButtonDown(flags, point);
    const wnt::StillThere self(*this);
    if (GetStyle() & WS_TABSTOP)
        SetFocus();
    if (self)
        fold_by_user();
}

void CWntFrameEx::OnLButtonDblClk(UINT flags, CPoint point) {
    OnLButtonDown(flags, point);
}

UINT CWntFrameEx::OnGetDlgCode() {
    return DLGC_WANTARROWS | (asks_about_return() ? DLGC_WANTMESSAGE : 0);
}

void CWntFrameEx::OnKeyDown(UINT key, UINT, UINT) {
    const int page = ContentRect().Height();
    if (key == VK_SPACE || key == VK_RETURN || (folded_ ? key == VK_RIGHT : key == VK_LEFT))
        fold_by_user();
    else if (key == VK_UP || key == VK_DOWN)
        scroll_to(CPoint(offset_.x, offset_.y + (key == VK_UP ? -line_step : line_step)));
    else if (key == VK_PRIOR || key == VK_NEXT)
        scroll_to(CPoint(offset_.x, offset_.y + (key == VK_PRIOR ? -page : page)));
    else if (key == VK_HOME || key == VK_END)
        scroll_to(CPoint(offset_.x, key == VK_HOME ? 0 : longest));
    else
        Default();
}

void CWntFrameEx::OnSetFocus(CWnd* old) {
    CWntFrame::OnSetFocus(old);
    InvalidateRect(header(), FALSE);
}

void CWntFrameEx::OnKillFocus(CWnd* next) {
    CWntFrame::OnKillFocus(next);
    InvalidateRect(header(), FALSE);
}

void CWntFrameEx::OnHScroll(UINT code, UINT position, CScrollBar* bar) {
    if (!bar || bar->m_hWnd != across_.m_hWnd)
        return CWntFrame::OnHScroll(code, position, bar);
    across_.SetThumb(code, position, &across_);
    scroll_to(CPoint(across_.GetScrollPos() * line_step, offset_.y));
}

void CWntFrameEx::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
    if (!bar || bar->m_hWnd != down_.m_hWnd)
        return CWntFrame::OnVScroll(code, position, bar);
    down_.SetThumb(code, position, &down_);
    scroll_to(CPoint(offset_.x, down_.GetScrollPos() * line_step));
}

BOOL CWntFrameEx::OnMouseWheel(UINT flags, short delta, CPoint point) {
    if (!is_shown(down_))
        return CWntFrame::OnMouseWheel(flags, delta, point);
    wheel_ += delta;
    const int lines = wheel_ / (WHEEL_DELTA / 3);
    wheel_ -= lines * (WHEEL_DELTA / 3);
    scroll_to(CPoint(offset_.x, offset_.y - lines * line_step));
    return TRUE;
}

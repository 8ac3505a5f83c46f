#include "controls/tool_tip_ex.h"

#include <algorithm>
#include <utility>

#include "controls/control_font.h"
#include "controls/icon_pixels.h"
#include "controls/tip_layout.h"
#include "controls/tool_tip_texts.h"
#include "controls/pixel_rects.h"
#include "screen_scale.h"
#include "widgets/painting/paint_pass.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr UINT show_soon = WM_USER + 0x1F00; // beyond the control's own messages
constexpr UINT_PTR keyboard_timer = 0x5A00;
constexpr int default_width = 320; // pixels at 96 dots an inch
constexpr int pointer_height = 20;
constexpr int largest_icon = 64;

CRect work_area(CPoint at) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    if (!::GetMonitorInfoA(::MonitorFromPoint(at, MONITOR_DEFAULTTONEAREST), &info))
        return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    return info.rcWork;
}

bool ends_keyboard_tip(UINT message) {
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN || message == WM_LBUTTONDOWN ||
           message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN || message == WM_MOUSEWHEEL;
}

} // namespace

struct CToolTipCtrlEx::Tool {
    HWND window; ///< that has it; its parent for a tool that is a window itself
    UINT_PTR id;
    UINT flags;
    bool asked;
    WntTip tip;
};

struct CToolTipCtrlEx::Fonts : wnt::TipFonts {
    explicit Fonts(int percent) : scale(percent), plain(percent, false), bold(percent, true) {}

    wnt::ControlFont& of(bool is_bold) { return is_bold ? bold : plain; }
    int width(std::string_view text, bool is_bold) override { return of(is_bold).width(text); }
    int row() override { return std::max(plain.row(), bold.row()); }

    const int scale;
    wnt::ControlFont plain;
    wnt::ControlFont bold;
};

BEGIN_MESSAGE_MAP(CToolTipCtrlEx, CToolTipCtrl)
ON_MESSAGE(TTM_ADDTOOLA, &CToolTipCtrlEx::OnAddTool)
ON_MESSAGE(TTM_DELTOOLA, &CToolTipCtrlEx::OnDelTool)
ON_MESSAGE(TTM_GETTOOLINFOA, &CToolTipCtrlEx::OnGetTool)
ON_MESSAGE(TTM_SETTOOLINFOA, &CToolTipCtrlEx::OnSetTool)
ON_MESSAGE(TTM_UPDATETIPTEXTA, &CToolTipCtrlEx::OnUpdateText)
ON_MESSAGE(TTM_GETTEXTA, &CToolTipCtrlEx::OnGetTipText)
ON_MESSAGE(TTM_RELAYEVENT, &CToolTipCtrlEx::OnRelay)
ON_MESSAGE(TTM_POP, &CToolTipCtrlEx::OnPop)
ON_MESSAGE(TTM_TRACKACTIVATE, &CToolTipCtrlEx::OnTrackActivate)
ON_MESSAGE(TTM_TRACKPOSITION, &CToolTipCtrlEx::OnTrackPosition)
ON_MESSAGE(WM_GETTEXT, &CToolTipCtrlEx::OnWindowText)
ON_MESSAGE(WM_GETTEXTLENGTH, &CToolTipCtrlEx::OnWindowTextLength)
ON_MESSAGE(show_soon, &CToolTipCtrlEx::OnShowSoon)
ON_WM_WINDOWPOSCHANGING()
ON_WM_SETTINGCHANGE()
ON_WM_TIMER()
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
END_MESSAGE_MAP()

CToolTipCtrlEx::CToolTipCtrlEx() : layout_(std::make_unique<wnt::TipLayout>()) {}

CToolTipCtrlEx::~CToolTipCtrlEx() {
    DestroyWindow(); // while its handlers and what they use still exist
}

BOOL CToolTipCtrlEx::PreCreateWindow(CREATESTRUCT& create) {
    create.style &= ~(TTS_BALLOON | WS_BORDER);
    create.style |= TTS_NOANIMATE | TTS_NOFADE;
    return CToolTipCtrl::PreCreateWindow(create);
}

// The control gives itself an edge, on which the pointer would be on the tip and not on the tool.
LRESULT CToolTipCtrlEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCALCSIZE)
        return 0;
    if (message == WM_NCPAINT)
        return 0;
    if (message == WM_NCHITTEST)
        return HTTRANSPARENT; // within a thread; see let_clicks_through
    return CToolTipCtrl::WindowProc(message, wParam, lParam);
}

CToolTipCtrlEx::Tool* CToolTipCtrlEx::find(const TOOLINFO& info) {
    const auto found = std::find_if(tools_.begin(), tools_.end(),
                                    [&](const Tool& t) { return t.window == info.hwnd && t.id == info.uId; });
    return found == tools_.end() ? nullptr : &*found;
}

LRESULT CToolTipCtrlEx::OnAddTool(WPARAM wParam, LPARAM lParam) {
    const auto* given = reinterpret_cast<const TOOLINFO*>(lParam);
    if (!given || given->cbSize < TTTOOLINFOA_V1_SIZE)
        return FALSE;
    WntTip tip;
    tip.text = wnt::text_of_tool(*given);
    TOOLINFO seen = wnt::with_something(*given);
    if (!DefWindowProc(TTM_ADDTOOLA, wParam, reinterpret_cast<LPARAM>(&seen)))
        return FALSE;
    const Tool tool = {given->hwnd, given->uId, given->uFlags, given->lpszText == LPSTR_TEXTCALLBACK, tip};
    if (Tool* before = find(*given))
        *before = tool;
    else
        tools_.push_back(tool);
    return TRUE;
}

LRESULT CToolTipCtrlEx::OnDelTool(WPARAM, LPARAM lParam) {
    if (const auto* given = reinterpret_cast<const TOOLINFO*>(lParam))
        std::erase_if(tools_, [=](const Tool& t) { return t.window == given->hwnd && t.id == given->uId; });
    if (shown_ == Shown::by_keyboard)
        HideTip(); // it may be this one's
    return Default();
}

LRESULT CToolTipCtrlEx::OnGetTool(WPARAM, LPARAM lParam) {
    auto* given = reinterpret_cast<TOOLINFO*>(lParam);
    const Tool* tool = given ? find(*given) : nullptr;
    if (!tool)
        return Default();
    char* const room = std::exchange(given->lpszText, nullptr);
    const LRESULT found = Default();
    given->lpszText = tool->asked ? LPSTR_TEXTCALLBACK : room;
    if (!tool->asked && !IS_INTRESOURCE(room) && room != LPSTR_TEXTCALLBACK)
        wnt::copy_text(wnt::flat_text(tool->tip), room, wnt::old_callers);
    return found;
}

LRESULT CToolTipCtrlEx::OnSetTool(WPARAM wParam, LPARAM lParam) {
    const auto* given = reinterpret_cast<const TOOLINFO*>(lParam);
    Tool* tool = given && given->cbSize >= TTTOOLINFOA_V1_SIZE ? find(*given) : nullptr;
    if (!tool)
        return 0;
    TOOLINFO seen = wnt::with_something(*given);
    DefWindowProc(TTM_SETTOOLINFOA, wParam, reinterpret_cast<LPARAM>(&seen));
    tool->flags = given->uFlags;
    if (given->lpszText) { // or else it stays
        tool->asked = given->lpszText == LPSTR_TEXTCALLBACK;
        tool->tip.text = wnt::text_of_tool(*given);
        refresh(*tool);
    }
    return 0;
}

LRESULT CToolTipCtrlEx::OnUpdateText(WPARAM, LPARAM lParam) {
    const auto* given = reinterpret_cast<const TOOLINFO*>(lParam);
    Tool* tool = given ? find(*given) : nullptr;
    if (!tool)
        return 0;
    tool->asked = given->lpszText == LPSTR_TEXTCALLBACK;
    tool->tip.text = wnt::text_of_tool(*given);
    refresh(*tool);
    return 0;
}

// Its contents are other ones now.
void CToolTipCtrlEx::refresh(const Tool& tool) {
    if (tracked_.hwnd == tool.window && tracked_.uId == tool.id) {
        track_tool();
    } else if (shown_ == Shown::by_pointer && is_current(tool)) {
        PostMessage(show_soon);
    } else if (shown_ == Shown::by_keyboard && keyed_.hwnd == tool.window && keyed_.uId == tool.id) {
        if (show_keyed() == Outcome::empty)
            HideTip();
    }
}

LRESULT CToolTipCtrlEx::OnGetTipText(WPARAM capacity, LPARAM lParam) {
    const auto* given = reinterpret_cast<const TOOLINFO*>(lParam);
    const Tool* tool = given ? find(*given) : nullptr;
    return tool ? wnt::copy_text(wnt::flat_text(tool->tip), given->lpszText, capacity ? capacity : wnt::old_callers)
                : 0;
}

int CToolTipCtrlEx::AddTip(CWnd* window, const WntTip& tip, LPCRECT part, UINT_PTR id) {
    if (!this || !m_hWnd || !window->GetSafeHwnd() || !AddTool(window, wnt::something, part, id))
        return 0;
    TOOLINFO info;
    FillInToolInfo(info, window, id);
    Tool* tool = find(info);
    if (!tool)
        return 0;
    tool->tip = tip;
    return 1;
}

int CToolTipCtrlEx::SetTip(CWnd* window, const WntTip& tip, UINT_PTR id) {
    if (!this || !m_hWnd || !window->GetSafeHwnd())
        return 0;
    TOOLINFO info;
    FillInToolInfo(info, window, id);
    Tool* tool = find(info);
    if (!tool)
        return 0;
    tool->asked = false;
    tool->tip = tip;
    refresh(*tool);
    return 1;
}

bool CToolTipCtrlEx::is_current(const Tool& tool) {
    TOOLINFO current = {};
    current.cbSize = TTTOOLINFOA_V2_SIZE;
    return SendMessage(TTM_GETCURRENTTOOLA, 0, reinterpret_cast<LPARAM>(&current)) && current.hwnd == tool.window &&
           current.uId == tool.id;
}

bool CToolTipCtrlEx::ask(const Tool& tool, WntTip& tip) {
    const wnt::StillThere self(*this);
    const HWND host = tool.window;
    const auto tell = [&](NMHDR& header, UINT code) {
        header = {m_hWnd, tool.id, code};
        ::SendMessage(host, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&header));
        return static_cast<bool>(self);
    };
    NMTTDISPINFOA need = {};
    need.lpszText = need.szText;
    need.uFlags = tool.flags;
    if (!tell(need.hdr, TTN_GETDISPINFOA))
        return false;
    WntTipNotify more = {{}, tip};
    if (const CString text = wnt::answered_text(need); !text.IsEmpty())
        more.tip.text = text;
    if (!tell(more.hdr, WNT_TIP_NEEDED))
        return false;
    tip = more.tip;
    return true;
}

// The control is about to show. The host is asked when the control is no longer at work: it may destroy the tip.
void CToolTipCtrlEx::OnWindowPosChanging(WINDOWPOS* position) {
    if (!presenting_ && position->flags & SWP_SHOWWINDOW) {
        position->flags = (position->flags & ~SWP_SHOWWINDOW) | SWP_NOMOVE | SWP_NOSIZE;
        PostMessage(show_soon);
    }
    if (position->flags & SWP_HIDEWINDOW)
        shown_ = Shown::nothing;
}

LRESULT CToolTipCtrlEx::OnShowSoon(WPARAM, LPARAM) {
    TOOLINFO info = {};
    info.cbSize = TTTOOLINFOA_V2_SIZE;
    if (shown_ != Shown::tracked && SendMessage(TTM_GETCURRENTTOOLA, 0, reinterpret_cast<LPARAM>(&info)) &&
        show_tool(info, Shown::by_pointer) == Outcome::empty)
        Pop();
    return 0;
}

CToolTipCtrlEx::Outcome CToolTipCtrlEx::show_tool(const TOOLINFO& info, Shown how) {
    const Tool* found = find(info);
    if (!found)
        return Outcome::empty;
    const Tool tool = *found;
    WntTip tip = tool.tip;
    if (tool.asked && !ask(tool, tip))
        return Outcome::destroyed;
    CPoint pointer;
    ::GetCursorPos(&pointer);
    const bool centred = tool.flags & TTF_CENTERTIP;
    const bool at_pointer = how == Shown::by_pointer && !centred;
    const CRect around = at_pointer ? around_pointer(pointer) : around_tool(info);
    return present(tip, around, how, centred) ? Outcome::shown : Outcome::empty;
}

CRect CToolTipCtrlEx::around_pointer(CPoint at) {
    return CRect(at.x, at.y, at.x, at.y + ::MulDiv(pointer_height, fonts().scale, 100));
}

CRect CToolTipCtrlEx::around_tool(const TOOLINFO& info) const {
    CRect place;
    if (info.uFlags & TTF_IDISHWND) {
        ::GetWindowRect(reinterpret_cast<HWND>(info.uId), &place);
        return place;
    }
    place = info.rect;
    ::MapWindowPoints(info.hwnd, nullptr, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

int CToolTipCtrlEx::widest() {
    const int width = GetMaxTipWidth();
    return width > 0 ? width : ::MulDiv(default_width, fonts().scale, 100);
}

CToolTipCtrlEx::Fonts& CToolTipCtrlEx::fonts() {
    if (!fonts_)
        fonts_ = std::make_unique<Fonts>(wnt::screen_scale());
    return *fonts_;
}

// For systems that look for what lies below a transparent place within the same top-level window only.
void CToolTipCtrlEx::let_clicks_through() {
    constexpr DWORD wanted = WS_EX_LAYERED | WS_EX_TRANSPARENT;
    if ((GetExStyle() & wanted) == wanted)
        return;
    ModifyStyleEx(0, wanted);
    ::SetLayeredWindowAttributes(m_hWnd, 0, 255, LWA_ALPHA);
}

bool CToolTipCtrlEx::present(const WntTip& tip, const CRect& around, Shown how, bool centred) {
    if (tip.IsEmpty())
        return false;
    KillTimer(keyboard_timer);
    const CSize whole = wnt::icon_size(tip.icon);
    const CSize icon(std::min<LONG>(whole.cx, largest_icon), std::min<LONG>(whole.cy, largest_icon));
    const wnt::TipParts parts = {std::string_view(tip.title.GetString(), tip.title.GetLength()),
                                 std::string_view(tip.text.GetString(), tip.text.GetLength()), icon.cx, icon.cy,
                                 tip.colour != CLR_NONE};
    const CRect screen = work_area(CPoint(around.left, around.top));
    wnt::TipLayout layout = wnt::lay_out_tip(parts, fonts(), widest(), fonts().scale, screen.Height());
    if (how == Shown::tracked && shown_ == Shown::tracked) {
        layout.width = std::max<int>(layout.width, least_.cx);
        layout.height = std::max<int>(layout.height, least_.cy);
    }
    least_ = CSize(layout.width, layout.height);
    const bool changed = shown_ != how || layout != *layout_ || tip.colour != tip_.colour || tip.icon != tip_.icon;
    *layout_ = std::move(layout);
    tip_ = tip;
    shown_ = how;
    const CRect place =
        wnt::rect_of(wnt::place_tip(least_.cx, least_.cy, wnt::pixels_of(around), wnt::pixels_of(screen), centred));
    let_clicks_through();
    presenting_ = true;
    SetWindowPos(&CWnd::wndTop, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_SHOWWINDOW);
    presenting_ = false;
    if (changed)
        Invalidate(FALSE);
    UpdateWindow();
    return true;
}

int CToolTipCtrlEx::ShowTip(CWnd* window, UINT_PTR id) {
    if (!this || !m_hWnd || !window->GetSafeHwnd())
        return 0;
    HideTip();
    FillInToolInfo(keyed_, window, id);
    return show_keyed() == Outcome::shown;
}

CToolTipCtrlEx::Outcome CToolTipCtrlEx::show_keyed() {
    TOOLINFO info = keyed_;
    if (!SendMessage(TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&info)))
        return Outcome::empty;
    const Outcome outcome = show_tool(info, Shown::by_keyboard);
    if (outcome == Outcome::shown)
        SetTimer(keyboard_timer, std::max(GetDelayTime(TTDT_AUTOPOP), 1), nullptr);
    return outcome;
}

int CToolTipCtrlEx::TrackTip(const WntTip& tip, CPoint screen) {
    if (!this || !m_hWnd || tip.IsEmpty())
        return 0;
    if (shown_ != Shown::tracked)
        HideTip();
    return present(tip, around_pointer(screen), Shown::tracked);
}

void CToolTipCtrlEx::HideTip() {
    if (!this || !m_hWnd)
        return;
    tracked_ = {};
    KillTimer(keyboard_timer);
    DefWindowProc(TTM_POP, 0, 0);
    if (shown_ != Shown::nothing)
        ShowWindow(SW_HIDE);
    shown_ = Shown::nothing;
}

int CToolTipCtrlEx::GetShownTip(WntTip* tip) const {
    if (!this || shown_ == Shown::nothing)
        return 0;
    if (tip)
        *tip = tip_;
    return 1;
}

LRESULT CToolTipCtrlEx::OnPop(WPARAM, LPARAM) {
    HideTip();
    return 0;
}

LRESULT CToolTipCtrlEx::OnRelay(WPARAM, LPARAM lParam) {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    if (!message || shown_ == Shown::tracked)
        return 0;
    if (shown_ == Shown::by_keyboard && ends_keyboard_tip(message->message))
        HideTip();
    return Default();
}

// The framework's own way: a tool that is shown at a place of the host's until it is told otherwise.
LRESULT CToolTipCtrlEx::OnTrackActivate(WPARAM wParam, LPARAM lParam) {
    HideTip();
    const auto* given = reinterpret_cast<const TOOLINFO*>(lParam);
    if (wParam && given && find(*given)) {
        tracked_.hwnd = given->hwnd;
        tracked_.uId = given->uId;
        track_tool();
    }
    return 0;
}

LRESULT CToolTipCtrlEx::OnTrackPosition(WPARAM, LPARAM lParam) {
    track_at_ = CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    track_tool();
    return 0;
}

void CToolTipCtrlEx::track_tool() {
    const Tool* found = tracked_.hwnd ? find(tracked_) : nullptr;
    if (!found)
        return;
    const Tool tool = *found;
    WntTip tip = tool.tip;
    if (tool.asked && !ask(tool, tip))
        return;
    if (!present(tip, CRect(track_at_, CSize(0, 0)), Shown::tracked))
        ShowWindow(SW_HIDE); // until it has contents again
}

LRESULT CToolTipCtrlEx::OnWindowText(WPARAM capacity, LPARAM lParam) {
    return wnt::copy_text(shown_ == Shown::nothing ? CString() : wnt::flat_text(tip_), reinterpret_cast<char*>(lParam),
                          capacity);
}

LRESULT CToolTipCtrlEx::OnWindowTextLength(WPARAM, LPARAM) {
    return shown_ == Shown::nothing ? 0 : wnt::flat_text(tip_).GetLength();
}

void CToolTipCtrlEx::OnSettingChange(UINT flags, LPCTSTR section) {
    CToolTipCtrl::OnSettingChange(flags, section);
    wnt::screen_scale(true);
    HideTip();
    fonts_.reset();
}

void CToolTipCtrlEx::OnTimer(UINT_PTR timer) {
    if (timer == keyboard_timer)
        HideTip();
    else
        Default();
}

void CToolTipCtrlEx::OnDestroy() {
    tools_.clear();
    fonts_.reset(); // of the scaling that is in force when it is made again
    shown_ = Shown::nothing;
    tracked_ = {};
    CToolTipCtrl::OnDestroy();
}

BOOL CToolTipCtrlEx::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CToolTipCtrlEx::OnPaint() {
    wnt::PaintPass pass(*this);
    const COLORREF ink = GetTipTextColor();
    pass.fill(pass.area(), GetTipBkColor());
    pass.frame(pass.area(), ink);
    const CRect icon = wnt::rect_of(layout_->icon);
    if (!icon.IsRectEmpty() && pass.out().dc)
        ::DrawIconEx(pass.out().dc, icon.left, icon.top, tip_.icon, icon.Width(), icon.Height(), 0, nullptr, DI_NORMAL);
    if (tip_.colour != CLR_NONE) {
        const CRect sample = wnt::rect_of(layout_->sample);
        pass.fill(sample, tip_.colour);
        pass.frame(sample, ink);
    }
    for (const wnt::TipLine& line : layout_->lines)
        pass.text(CRect(line.x, line.y, pass.area().right, pass.area().bottom), line.text.c_str(),
                  DT_LEFT | DT_TOP | DT_SINGLELINE | DT_NOPREFIX, ink, &fonts().of(line.bold).font());
}

#include "controls/wnt_sash.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "arithmetic.h"
#include "controls/sash_model.h"
#include "screen_scale.h"
#include "widgets/painting/paint_pass.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr int bar_size = 5; // at 96 dots an inch
constexpr int key_step = 8;
constexpr int thickest_bar = 64;
constexpr int least_grips = 32; // a shorter bar shows none
constexpr short h_sash_pointer = 20;
constexpr short v_sash_pointer = 19;

} // namespace

struct CWntSash::Drag {
    wnt::SashModel before;
    int grip;   ///< from the bar's edge to the pointer
    int at;     ///< where it is, or the track line
    HWND focus; ///< where it goes back to; null: it stays
    bool live;
    bool moved = false;
};

BEGIN_MESSAGE_MAP(CWntSash, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SETCURSOR()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_CAPTURECHANGED()
ON_WM_CANCELMODE()
ON_WM_KEYDOWN()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

CWntSash::CWntSash() : PaneWindow("WntSash"), model_(std::make_unique<wnt::SashModel>()) {}

CWntSash::~CWntSash() {
    DestroyWindow(); // while its handlers and what they use still exist
}

int CWntSash::SetPanes(CWnd* first, CWnd* second) {
    if (!this || !m_hWnd || (first && first == second))
        return 0;
    CWnd* const wanted[2] = {first, second};
    HWND found[2] = {};
    for (CWnd* pane : wanted)
        if (pane && !wnt::adoptable(*this, pane))
            return 0;
    for (int i = 0; i < 2; ++i) {
        if (wanted[i] && !wnt::adopt_child(*this, wanted[i]))
            return 0;
        found[i] = wanted[i]->GetSafeHwnd();
    }
    for (HWND before : panes_)
        if (living(before) && before != found[0] && before != found[1])
            ::ShowWindow(before, SW_HIDE);
    std::copy_n(found, 2, panes_);
    place_panes();
    return 1;
}

void CWntSash::SetUpright(int upright) {
    if (!this || upright_ == (upright != 0))
        return;
    upright_ = upright != 0;
    if (!m_hWnd)
        return;
    model_->resize(length());
    place_panes();
}

int CWntSash::SetPosition(int position) {
    if (!this)
        return 0;
    model_->set_position(position);
    place_panes();
    return 1;
}

int CWntSash::GetPosition() const {
    return this ? model_->position() : 0;
}

int CWntSash::SetShare(double share) {
    if (!this || !(share >= 0 && share <= 1))
        return 0;
    model_->set_share(share);
    place_panes();
    return 1;
}

double CWntSash::GetShare() const {
    return this ? model_->share() : 0;
}

int CWntSash::SetKeptPane(int pane) {
    if (!this || pane < 0 || pane > 2)
        return 0;
    model_->set_keeps(static_cast<wnt::SashModel::Keeps>(pane));
    return 1;
}

int CWntSash::SetLeastSizes(int first, int second) {
    if (!this || first < 0 || second < 0)
        return 0;
    model_->set_least(first, second);
    place_panes();
    return 1;
}

int CWntSash::SetBarSize(int pixels) {
    if (!this || pixels < 1 || pixels > thickest_bar)
        return 0;
    model_->set_bar(pixels);
    own_bar_ = true;
    place_panes();
    return 1;
}

void CWntSash::SetLiveDrag(int live) {
    if (this)
        live_ = live != 0;
}

int CWntSash::SetFoldPane(int pane) {
    if (!this || pane < 0 || pane > 2)
        return 0;
    fold_pane_ = pane;
    if (model_->folded() && model_->folded() != pane) {
        model_->fold(0); // nothing else could bring it back
        place_panes();
    }
    return 1;
}

int CWntSash::Fold(int folded) {
    if (!this || !fold_pane_)
        return 0;
    model_->fold(folded ? fold_pane_ : 0);
    place_panes();
    return 1;
}

int CWntSash::GetFolded() const {
    return this ? model_->folded() : 0;
}

bool CWntSash::build() {
    drag_.reset();
    if (!own_bar_)
        model_->set_bar(std::clamp(::MulDiv(bar_size, wnt::screen_scale(false), 100), 1, thickest_bar));
    return true;
}

int CWntSash::length() const {
    CRect client;
    GetClientRect(&client);
    return upright_ ? client.Width() : client.Height();
}

void CWntSash::lay_out(int, int) {
    model_->resize(length());
    place_panes();
}

CRect CWntSash::bar_at(int position) const {
    CRect box;
    GetClientRect(&box);
    const int thick = model_->bar().length;
    if (upright_)
        return CRect(position, 0, position + thick, box.bottom);
    return CRect(0, position, box.right, position + thick);
}

void CWntSash::place_panes() {
    if (!m_hWnd || !keep_focus())
        return;
    CRect client;
    GetClientRect(&client);
    Invalidate(FALSE); // first: panes may tell the host, which may end all this
    HDWP moves = ::BeginDeferWindowPos(2);
    for (int i = 0; i < 2; ++i) {
        const HWND pane = living(panes_[i]);
        if (!pane || !moves)
            continue;
        const wnt::SashModel::Span span = i == 0 ? model_->first() : model_->second();
        const CRect place = upright_ ? CRect(span.start, 0, span.start + span.length, client.bottom)
                                     : CRect(0, span.start, client.right, span.start + span.length);
        moves =
            ::DeferWindowPos(moves, pane, nullptr, place.left, place.top, place.Width(), place.Height(),
                             SWP_NOZORDER | SWP_NOACTIVATE | (place.IsRectEmpty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW));
    }
    if (moves)
        ::EndDeferWindowPos(moves);
}

// A pane without room is hidden, and must not keep the focus. False when that was the end of the sash.
bool CWntSash::keep_focus() {
    const HWND focus = ::GetFocus();
    const wnt::StillThere self(*this);
    for (int i = 0; i < 2; ++i) {
        const HWND pane = living(panes_[i]);
        const int room = (i == 0 ? model_->first() : model_->second()).length;
        if (pane && focus && room == 0 && (focus == pane || ::IsChild(pane, focus))) {
            SetFocus();
            break;
        }
    }
    return static_cast<bool>(self);
}

BOOL CWntSash::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CWntSash::OnPaint() {
    wnt::PaintPass pass(*this);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    pass.fill(pass.area(), face);
    const CRect box = bar();
    pass.edge(box, true);
    // Dots tell a bar that can be moved.
    const int reach = upright_ ? box.Height() : box.Width();
    if (model_->can_move() && reach >= least_grips && std::min(box.Width(), box.Height()) >= 4) {
        const CPoint middle = box.CenterPoint();
        for (int i = -2; i <= 2; ++i) {
            const CPoint at = middle + (upright_ ? CPoint(0, 5 * i) : CPoint(5 * i, 0));
            pass.fill(CRect(at.x - 1, at.y - 1, at.x + 1, at.y + 1), ::GetSysColor(COLOR_3DDKSHADOW));
        }
    }
    if (::GetFocus() == m_hWnd) {
        CRect inside = box;
        inside.DeflateRect(1, 1);
        pass.focus(inside);
    }
}

BOOL CWntSash::OnSetCursor(CWnd* window, UINT hit, UINT message) {
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    if (window != this || hit != HTCLIENT || !bar().PtInRect(point))
        return wnt::PaneWindow::OnSetCursor(window, hit, message);
    CWntOut pointer;
    pointer.setmouseshape(!model_->can_move() ? short{0} : upright_ ? v_sash_pointer : h_sash_pointer);
    return TRUE;
}

bool CWntSash::tell(UINT code) {
    WntSashNotify notification = {{}, GetPosition(), GetFolded()};
    bool alive = true;
    wnt::notify_parent(*this, notification.hdr, code, alive);
    return alive;
}

bool CWntSash::allowed(int& position) {
    WntSashNotify notification = {{}, position, GetFolded()};
    bool alive = true;
    const LRESULT refused = wnt::notify_parent(*this, notification.hdr, WNT_SASH_MOVING, alive);
    if (!alive || refused)
        return false;
    position = model_->clamped(notification.position);
    return true;
}

// A move by the keyboard is one step, told before and after.
void CWntSash::move_by_user(int position) {
    const int folded = GetFolded(), at = GetPosition();
    if ((folded == 1 && position <= at) || (folded == 2 && position >= at))
        return;
    position = model_->clamped(position);
    if (position == at || !allowed(position))
        return;
    const wnt::StillThere self(*this);
    SetPosition(position);
    if (self)
        tell_moved(folded);
}

// And where that brought a pane back, this.
void CWntSash::tell_moved(int folded_before) {
    if (tell(WNT_SASH_MOVED) && folded_before != GetFolded())
        tell(WNT_SASH_FOLDED);
}

void CWntSash::fold_by_user() {
    const wnt::StillThere self(*this);
    if (Fold(!GetFolded()) && self)
        tell(WNT_SASH_FOLDED);
}

void CWntSash::OnLButtonDown(UINT, CPoint point) {
    if (!bar().PtInRect(point) || drag_)
        return;
    const bool moves = model_->can_move();
    const bool keeps_focus = GetStyle() & WS_TABSTOP;
    const HWND before = ::GetFocus();
    if (moves) {
        const int at = GetPosition();
        drag_.reset(new Drag{*model_, along(point) - at, at, keeps_focus ? nullptr : before, live_});
        SetCapture();
    }
    if (moves || keeps_focus) // Escape comes to who has the focus
        SetFocus();
}

void CWntSash::OnMouseMove(UINT, CPoint point) {
    if (drag_)
        drag_to(wnt::wrapped::subtract(along(point), drag_->grip));
}

void CWntSash::drag_to(int position) {
    // A folded bar is not unfolded by a pointer that trembles in a double click.
    const int slack = drag_->before.folded() && !drag_->moved ? ::GetSystemMetrics(SM_CXDRAG) : 0;
    if (std::abs(std::int64_t{position} - drag_->at) < slack)
        return;
    position = model_->clamped(position);
    if (position == drag_->at || !allowed(position) || !drag_ || position == drag_->at)
        return;
    const int before = std::exchange(drag_->at, position);
    const bool again = std::exchange(drag_->moved, true);
    if (!drag_->live) {
        if (again)
            draw_track(before);
        draw_track(position);
        return;
    }
    const wnt::StillThere self(*this);
    SetPosition(position);
    if (self)
        UpdateWindow();
}

// Drawn over the panes; twice at one place leaves nothing.
void CWntSash::draw_track(int position) {
    CRect client;
    GetClientRect(&client);
    const HDC dc = ::GetDCEx(m_hWnd, nullptr, DCX_CACHE | DCX_LOCKWINDOWUPDATE);
    CWntOut out;
    out.targetmode = 1;
    out.reset(dc);
    out.ymax = client.bottom - 1;
    out.fillcolour(COLORREF{0x808080}, 0);
    const CRect r = bar_at(position);
    const int low = client.bottom - r.bottom;
    const int high = client.bottom - 1 - r.top;
    Tpt corners[4] = {{r.left, low}, {r.right - 1, low}, {r.right - 1, high}, {r.left, high}};
    out.trackpoly(corners, 4);
    out.endpaint();
    ::ReleaseDC(m_hWnd, dc);
}

void CWntSash::end_drag(bool keep) {
    const std::unique_ptr<Drag> drag = std::move(drag_);
    if (!drag)
        return;
    const wnt::StillThere self(*this);
    if (drag->moved && !drag->live) {
        draw_track(drag->at);
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN); // panes may have painted beneath it
    }
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    if (drag->focus && ::GetFocus() == m_hWnd)
        ::SetFocus(drag->focus);
    if (!self || !drag->moved || (!drag->live && !keep))
        return;
    if (keep) {
        SetPosition(drag->at);
    } else {
        model_->go_back(drag->before);
        place_panes();
    }
    if (self)
        tell_moved(drag->before.folded());
}

void CWntSash::OnLButtonUp(UINT, CPoint) {
    end_drag(true);
}

void CWntSash::OnCaptureChanged(CWnd*) {
    end_drag(false);
}

void CWntSash::OnCancelMode() {
    end_drag(false);
}

void CWntSash::OnLButtonDblClk(UINT, CPoint point) {
    if (bar().PtInRect(point))
        fold_by_user();
}

UINT CWntSash::OnGetDlgCode() {
    const bool folds = fold_pane_ && asks_about_return();
    return drag_ ? DLGC_WANTALLKEYS : DLGC_WANTARROWS | (folds ? DLGC_WANTMESSAGE : 0);
}

void CWntSash::OnKeyDown(UINT key, UINT, UINT) {
    if (key == VK_ESCAPE)
        return end_drag(false);
    if (drag_)
        return;
    const int step = ::GetKeyState(VK_CONTROL) < 0 ? 1 : key_step;
    const int at = GetPosition();
    if (key == static_cast<UINT>(upright_ ? VK_LEFT : VK_UP))
        move_by_user(at - step);
    else if (key == static_cast<UINT>(upright_ ? VK_RIGHT : VK_DOWN))
        move_by_user(at + step);
    else if (key == VK_HOME)
        move_by_user(0);
    else if (key == VK_END)
        move_by_user(length());
    else if (key == VK_SPACE || key == VK_RETURN)
        fold_by_user();
    else
        Default();
}

void CWntSash::OnSetFocus(CWnd* old) {
    wnt::PaneWindow::OnSetFocus(old);
    InvalidateRect(bar(), FALSE);
}

void CWntSash::OnKillFocus(CWnd* next) {
    wnt::PaneWindow::OnKillFocus(next);
    InvalidateRect(bar(), FALSE);
}

#include "afx_app.h"
#include "afx_frame.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "dock_bar.h"
#include "frame_state.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
ON_MESSAGE(WM_HELPHITTEST, &CControlBar::OnHelpHitTest)
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
ON_MESSAGE_VOID(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
END_MESSAGE_MAP()

CControlBar::CControlBar() = default;

CControlBar::~CControlBar() {
    CControlBar::DestroyWindow();
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs) {
    if (!CWnd::PreCreateWindow(cs))
        return FALSE;
    cs.style |= WS_CLIPSIBLINGS;
    return TRUE;
}

void CControlBar::PostNcDestroy() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CControlBar::DestroyWindow() {
    return m_hWnd != nullptr && CWnd::DestroyWindow();
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    EnableToolTips((m_dwStyle & CBRS_TOOLTIPS) != 0);
    CWnd* parent = GetParent();
    if (CFrameWnd* frame = parent->IsFrameWnd() ? static_cast<CFrameWnd*>(parent) : parent->GetParentFrame()) {
        m_pDockSite = frame;
        frame->m_listControlBars.AddTail(this);
    }
    return 0;
}

void CControlBar::OnDestroy() {
    SetStatusText(-1);
    if (m_pDockBar != nullptr)
        m_pDockBar->Remove(this);
    m_pDockBar = nullptr;
    if (m_pDockSite != nullptr) {
        if (POSITION at = m_pDockSite->m_listControlBars.Find(this))
            m_pDockSite->m_listControlBars.RemoveAt(at);
    }
    m_pDockSite = nullptr;
    CWnd::OnDestroy();
}

CFrameWnd* CControlBar::GetDockingFrame() const {
    CWnd* top = IsFloating() ? FromHandle(::GetAncestor(m_hWnd, GA_ROOT)) : nullptr;
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, top);
    return frame != nullptr ? frame : m_pDockSite;
}

void CControlBar::SetBarStyle(DWORD dwStyle) {
    const DWORD old = std::exchange(m_dwStyle, dwStyle & CBRS_ALL);
    EnableToolTips((m_dwStyle & CBRS_TOOLTIPS) != 0);
    if (old != m_dwStyle)
        OnBarStyleChange(old, m_dwStyle);
}

void CControlBar::OnBarStyleChange(DWORD, DWORD) {}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom) {
    m_cxLeftBorder = cxLeft;
    m_cyTopBorder = cyTop;
    m_cxRightBorder = cxRight;
    m_cyBottomBorder = cyBottom;
}

void CControlBar::EnableDocking(DWORD dwDockStyle) {
    m_dwDockStyle = dwDockStyle & CBRS_ALIGN_ANY;
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int endless = 32767;
    return CSize(bStretch && bHorz ? endless : 0, bStretch && !bHorz ? endless : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD nMode) {
    return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL bHorz) const {
    const DWORD borders = m_dwStyle & CBRS_BORDER_ANY;
    constexpr int gripper = 6;
    rect.left += m_cxLeftBorder + ((borders & CBRS_BORDER_LEFT) != 0 ? 1 : 0);
    rect.top += m_cyTopBorder + ((borders & CBRS_BORDER_TOP) != 0 ? 1 : 0);
    rect.right -= m_cxRightBorder + ((borders & CBRS_BORDER_RIGHT) != 0 ? 1 : 0);
    rect.bottom -= m_cyBottomBorder + ((borders & CBRS_BORDER_BOTTOM) != 0 ? 1 : 0);
    if (HasGripper())
        (bHorz ? rect.left : rect.top) += gripper;
}

BOOL CControlBar::IsVisible() const {
    if ((m_nStateFlags & (delayShow | delayHide)) != 0)
        return (m_nStateFlags & delayShow) != 0;
    return (GetStyle() & WS_VISIBLE) != 0;
}

void CControlBar::DelayShow(BOOL bShow) {
    m_nStateFlags = (m_nStateFlags & ~UINT{delayShow | delayHide}) | (bShow ? delayShow : delayHide);
}

void CControlBar::Undelay() {
    const UINT wanted = m_nStateFlags & (delayShow | delayHide);
    m_nStateFlags &= ~wanted;
    if (wanted != 0)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     (wanted == delayShow ? SWP_SHOWWINDOW : SWP_HIDEWINDOW) | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER |
                         SWP_NOACTIVATE);
}

DWORD CControlBar::RecalcDelayShow(AFX_SIZEPARENTPARAMS* lpLayout) {
    if (lpLayout->hDWP != nullptr)
        Undelay();
    return (m_dwStyle & (CBRS_ALIGN_ANY | CBRS_BORDER_ANY)) | (IsVisible() ? WS_VISIBLE : 0);
}

// Takes the bar's part of what is left of the frame's client area.
LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const DWORD style = RecalcDelayShow(&layout);
    if ((style & WS_VISIBLE) == 0 || (style & CBRS_ALIGN_ANY) == 0)
        return 0;
    CRect rect = layout.rect;
    const CSize room = rect.Size();
    const bool horizontal = IsHorizontal();
    const DWORD mode = (layout.bStretch ? LM_STRETCH : 0) | (horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK) |
                       (layout.hDWP != nullptr ? LM_COMMIT : 0);
    CSize size = CalcDynamicLayout(-1, mode);
    size.cx = std::min(size.cx, room.cx);
    size.cy = std::min(size.cy, room.cy);
    if (horizontal) {
        layout.sizeTotal.cy += size.cy;
        layout.sizeTotal.cx = std::max(layout.sizeTotal.cx, size.cx);
        if ((m_dwStyle & CBRS_ALIGN_TOP) != 0)
            layout.rect.top += size.cy;
        else
            rect.top = rect.bottom - size.cy, layout.rect.bottom -= size.cy;
    } else {
        layout.sizeTotal.cx += size.cx;
        layout.sizeTotal.cy = std::max(layout.sizeTotal.cy, size.cy);
        if ((m_dwStyle & CBRS_ALIGN_LEFT) != 0)
            layout.rect.left += size.cx;
        else
            rect.left = rect.right - size.cx, layout.rect.right -= size.cx;
    }
    rect.right = rect.left + size.cx;
    rect.bottom = rect.top + size.cy;
    if (layout.hDWP != nullptr)
        AfxRepositionWindow(&layout, m_hWnd, rect);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    Undelay();
    if (!IsWindowVisible())
        return 0;
    CWnd* owner = GetOwner();
    auto* target = static_cast<CFrameWnd*>(owner != nullptr && owner->IsFrameWnd() ? owner : GetParentFrame());
    if (target != nullptr)
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    return 0;
}

void CControlBar::OnInitialUpdate() {
    OnIdleUpdateCmdUI(TRUE, 0);
}

// What the bar does not handle is its owner's business.
LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM: {
        LRESULT result = 0;
        if (OnWndMsg(message, wParam, lParam, &result))
            return result;
        CWnd* owner = GetOwner();
        return owner != nullptr ? owner->SendMessage(message, wParam, lParam) : 0;
    }
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

BOOL CControlBar::SetStatusText(INT_PTR nHit) {
    const INT_PTR before = std::exchange(m_status_item, nHit);
    CFrameWnd* frame = before != nHit ? GetTopLevelFrame() : nullptr;
    if (frame == nullptr)
        return FALSE;
    if (nHit == -1)
        frame->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    else
        frame->SendMessage(WM_SETMESSAGESTRING, static_cast<WPARAM>(nHit));
    return TRUE;
}

BOOL CControlBar::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->message == WM_MOUSEMOVE && (m_dwStyle & CBRS_FLYBY) != 0) {
        CPoint point(pMsg->lParam);
        ::MapWindowPoints(pMsg->hwnd, m_hWnd, &point, 1);
        SetStatusText(OnToolHitTest(point, nullptr));
        TRACKMOUSEEVENT leaving{sizeof(leaving), TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&leaving);
    } else if (pMsg->message == WM_LBUTTONDOWN) {
        SetStatusText(-1);
    }
    // The keys of a dialog among its controls.
    return (GetStyle() & WS_CHILD) != 0 && ::GetTopWindow(m_hWnd) != nullptr && !IsDockBar() && pMsg->hwnd != m_hWnd &&
           PreTranslateInput(pMsg);
}

void CControlBar::OnMouseLeave() {
    SetStatusText(-1);
    Default();
}

void CControlBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (m_pDockBar == nullptr || OnToolHitTest(point, nullptr) != -1)
        return CWnd::OnLButtonDblClk(nFlags, point);
    m_pDockSite->ToggleFloating(this);
}

#include "afx_mini_frame.h"
#include "afx_app.h"
#include "afxmsg_.h"
#include "frame_state.h"

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMiniFrameWnd, CFrameWnd)
ON_WM_NCHITTEST()
ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

CMiniFrameWnd::CMiniFrameWnd() = default;

CMiniFrameWnd::~CMiniFrameWnd() = default;

BOOL CMiniFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                           CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                             const RECT& rect, CWnd* pParentWnd, UINT nID) {
    m_strTitle = lpszWindowName;
    return CWnd::CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if ((cs.style & (MFS_THICKFRAME | MFS_MOVEFRAME)) != 0)
        cs.style |= WS_THICKFRAME;
    if ((cs.style & WS_CHILD) == 0)
        cs.style |= WS_POPUP;
    cs.dwExStyle |= WS_EX_TOOLWINDOW;
    return CFrameWnd::PreCreateWindow(cs);
}

void PASCAL CMiniFrameWnd::CalcBorders(LPRECT pClientRect, DWORD dwStyle, DWORD dwExStyle) {
    ::AdjustWindowRectEx(pClientRect, dwStyle, FALSE, dwExStyle | WS_EX_TOOLWINDOW);
}

LRESULT CMiniFrameWnd::OnNcHitTest(CPoint) {
    const LRESULT hit = Default();
    const DWORD style = GetStyle();
    const bool edge = hit >= HTLEFT && hit <= HTBOTTOMRIGHT;
    if ((edge && (style & MFS_MOVEFRAME) != 0) || (hit == HTSYSMENU && (style & MFS_BLOCKSYSMENU) != 0))
        return HTCAPTION;
    return edge && (style & MFS_4THICKFRAME) != 0 ? HTBORDER : hit;
}

// The system's least width would leave a gap beside few buttons.
void CMiniFrameWnd::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    Default();
    CRect borders(0, 0, 0, 0);
    CalcBorders(borders, GetStyle(), GetExStyle());
    lpMMI->ptMinTrackSize = CPoint(borders.Width(), borders.Height());
}

namespace {

bool is_of(HWND hwnd, HWND top) {
    for (; hwnd != nullptr && hwnd != top; hwnd = ::GetWindow(hwnd, GW_OWNER)) {
    }
    return hwnd != nullptr;
}

} // namespace

// The captions of a frame and of its tool windows tell together whether one of them is active.
void CFrameWnd::ShowActiveCaptions(HWND active) {
    CWnd* top = GetTopLevelOwner();
    const bool of_family = is_of(active, top->GetSafeHwnd());
    const std::vector<CFrameWnd*> frames = frames_of_this_thread().frames;
    bool any = false;
    for (CFrameWnd* frame : frames) {
        const HWND hwnd = frame->m_hWnd;
        if (hwnd == nullptr || hwnd == top->m_hWnd || !frame->IsKindOf(RUNTIME_CLASS(CMiniFrameWnd)) ||
            (frame->GetStyle() & (MFS_SYNCACTIVE | WS_CHILD)) != MFS_SYNCACTIVE || !is_of(hwnd, top->m_hWnd))
            continue;
        any = true;
        if (hwnd != active)
            ::SendMessage(hwnd, WM_NCACTIVATE, of_family, 0);
    }
    if (any && top->m_hWnd != active)
        top->SendMessage(WM_NCACTIVATE, of_family);
}

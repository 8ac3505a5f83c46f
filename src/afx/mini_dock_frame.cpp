#include "mini_dock_frame.h"
#include "afxmsg_.h"
#include "dock_bar.h"

IMPLEMENT_DYNAMIC(CMiniDockFrameWnd, CMiniFrameWnd)

BEGIN_MESSAGE_MAP(CMiniDockFrameWnd, CMiniFrameWnd)
ON_WM_CLOSE()
ON_WM_EXITSIZEMOVE()
ON_WM_SIZING()
ON_WM_NCLBUTTONDBLCLK()
END_MESSAGE_MAP()

BOOL CMiniDockFrameWnd::Create(CWnd* pParentWnd, DWORD dwBarStyle) {
    const DWORD border = (dwBarStyle & CBRS_SIZE_DYNAMIC) != 0 ? MFS_THICKFRAME : MFS_4THICKFRAME;
    const LPCTSTR name =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    if (!CMiniFrameWnd::Create(name, "", WS_POPUP | WS_CAPTION | WS_SYSMENU | MFS_SYNCACTIVE | border,
                               CRect(0, 0, 10, 10), pParentWnd))
        return FALSE;
    m_bar = new CDockBar;
    return m_bar->Create(this, (dwBarStyle & CBRS_ALIGN_ANY) | CBRS_FLOATING, AFX_IDW_DOCKBAR_FLOAT);
}

CControlBar* CMiniDockFrameWnd::FirstBar() const {
    return m_bar != nullptr && !m_bar->rows().empty() ? m_bar->rows().front().front().bar : nullptr;
}

// As large as the bar, and shown as long as that and the owner are: shown before its owner it may come to lie below it.
void CMiniDockFrameWnd::LayoutClient() {
    CControlBar* first = FirstBar();
    if (first == nullptr)
        return;
    const CSize size = m_bar->CalcFixedLayout(FALSE, (m_bar->GetBarStyle() & CBRS_ORIENT_HORZ) != 0);
    if (!first->IsVisible() || !::IsWindowVisible(::GetWindow(m_hWnd, GW_OWNER))) {
        ShowWindow(SW_HIDE);
        return;
    }
    CRect window(CPoint(0, 0), size);
    CalcBorders(window, GetStyle(), GetExStyle());
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    m_bar->SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

// The bar is hidden: it comes back where it was.
void CMiniDockFrameWnd::OnClose() {
    if (CControlBar* bar = FirstBar())
        bar->m_pDockSite->ShowControlBar(bar, FALSE, FALSE);
}

void CMiniDockFrameWnd::OnExitSizeMove() {
    CPoint pointer;
    ::GetCursorPos(&pointer);
    if (CControlBar* bar = FirstBar())
        bar->m_pDockSite->DropControlBar(bar, pointer, nullptr);
}

// The bar decides which sizes there are.
void CMiniDockFrameWnd::OnSizing(UINT nSide, LPRECT lpRect) {
    CControlBar* bar = FirstBar();
    if (bar == nullptr)
        return;
    CRect borders(0, 0, 0, 0);
    CalcBorders(borders, GetStyle(), GetExStyle());
    const bool tall = nSide == WMSZ_TOP || nSide == WMSZ_BOTTOM;
    const int length =
        tall ? lpRect->bottom - lpRect->top - borders.Height() : lpRect->right - lpRect->left - borders.Width();
    CSize size = bar->CalcDynamicLayout(length, LM_HORZ | LM_COMMIT | (tall ? LM_LENGTHY : 0));
    size += borders.Size();
    if (nSide == WMSZ_LEFT || nSide == WMSZ_TOPLEFT || nSide == WMSZ_BOTTOMLEFT)
        lpRect->left = lpRect->right - size.cx;
    else
        lpRect->right = lpRect->left + size.cx;
    if (nSide == WMSZ_TOP || nSide == WMSZ_TOPLEFT || nSide == WMSZ_TOPRIGHT)
        lpRect->top = lpRect->bottom - size.cy;
    else
        lpRect->bottom = lpRect->top + size.cy;
}

void CMiniDockFrameWnd::OnNcLButtonDblClk(UINT nHitTest, CPoint) {
    CControlBar* bar = FirstBar();
    if (nHitTest == HTCAPTION && bar != nullptr)
        bar->m_pDockSite->ToggleFloating(bar);
}

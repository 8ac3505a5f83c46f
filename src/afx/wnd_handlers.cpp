// The handlers of CWnd whose only work is the platform's own.
#include "afx_wnd.h"

int CWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return static_cast<int>(Default());
}

BOOL CWnd::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnEraseBkgnd(CDC* pDC) {
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnQueryNewPalette() {
    return static_cast<BOOL>(Default());
}

int CWnd::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    return static_cast<int>(Default());
}

HCURSOR CWnd::OnQueryDragIcon() {
    return reinterpret_cast<HCURSOR>(Default());
}

LRESULT CWnd::OnNcHitTest(CPoint point) {
    return Default();
}

UINT CWnd::OnGetDlgCode() {
    return static_cast<UINT>(Default());
}

#define DEFAULT_HANDLER(name, ...)                                                                                     \
    void CWnd::name(__VA_ARGS__) {                                                                                     \
        Default();                                                                                                     \
    }

DEFAULT_HANDLER(OnClose)
DEFAULT_HANDLER(OnDestroy)
DEFAULT_HANDLER(OnPaint)
DEFAULT_HANDLER(OnSize, UINT nType, int cx, int cy)
DEFAULT_HANDLER(OnMove, int x, int y)
DEFAULT_HANDLER(OnTimer, UINT_PTR nIDEvent)
DEFAULT_HANDLER(OnChar, UINT nChar, UINT nRepCnt, UINT nFlags)
DEFAULT_HANDLER(OnKeyDown, UINT nChar, UINT nRepCnt, UINT nFlags)
DEFAULT_HANDLER(OnKeyUp, UINT nChar, UINT nRepCnt, UINT nFlags)
DEFAULT_HANDLER(OnSysKeyDown, UINT nChar, UINT nRepCnt, UINT nFlags)
DEFAULT_HANDLER(OnSysKeyUp, UINT nChar, UINT nRepCnt, UINT nFlags)
DEFAULT_HANDLER(OnSysChar, UINT nChar, UINT nRepCnt, UINT nFlags)
DEFAULT_HANDLER(OnMouseMove, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnLButtonDown, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnLButtonUp, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnLButtonDblClk, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnRButtonDown, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnRButtonUp, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnRButtonDblClk, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnMButtonDown, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnMButtonUp, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnMButtonDblClk, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnSetFocus, CWnd* pOldWnd)
DEFAULT_HANDLER(OnKillFocus, CWnd* pNewWnd)
DEFAULT_HANDLER(OnFontChange)
DEFAULT_HANDLER(OnSysColorChange)
DEFAULT_HANDLER(OnDropFiles, HDROP hDropInfo)
DEFAULT_HANDLER(OnEnable, BOOL bEnable)
DEFAULT_HANDLER(OnShowWindow, BOOL bShow, UINT nStatus)
DEFAULT_HANDLER(OnCaptureChanged, CWnd* pWnd)
DEFAULT_HANDLER(OnCancelMode)
DEFAULT_HANDLER(OnContextMenu, CWnd* pWnd, CPoint pos)
DEFAULT_HANDLER(OnGetMinMaxInfo, MINMAXINFO* lpMMI)
DEFAULT_HANDLER(OnActivate, UINT nState, CWnd* pWndOther, BOOL bMinimized)
DEFAULT_HANDLER(OnPaletteChanged, CWnd* pFocusWnd)
DEFAULT_HANDLER(OnWindowPosChanged, WINDOWPOS* lpwndpos)
DEFAULT_HANDLER(OnInitMenuPopup, CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)

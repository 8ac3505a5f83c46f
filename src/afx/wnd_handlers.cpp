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

#define DEFAULT_HANDLER(name, ...)                                                                                     \
    void CWnd::name(__VA_ARGS__) {                                                                                     \
        Default();                                                                                                     \
    }

DEFAULT_HANDLER(OnClose)
DEFAULT_HANDLER(OnDestroy)
DEFAULT_HANDLER(OnPaint)
DEFAULT_HANDLER(OnSize, UINT nType, int cx, int cy)
DEFAULT_HANDLER(OnTimer, UINT_PTR nIDEvent)
DEFAULT_HANDLER(OnChar, UINT nChar, UINT nRepCnt, UINT nFlags)
DEFAULT_HANDLER(OnMouseMove, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnLButtonDown, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnLButtonUp, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnLButtonDblClk, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnRButtonDown, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnRButtonUp, UINT nFlags, CPoint point)
DEFAULT_HANDLER(OnSetFocus, CWnd* pOldWnd)
DEFAULT_HANDLER(OnKillFocus, CWnd* pNewWnd)
DEFAULT_HANDLER(OnFontChange)
DEFAULT_HANDLER(OnSysColorChange)
DEFAULT_HANDLER(OnDropFiles, HDROP hDropInfo)
DEFAULT_HANDLER(OnCaptureChanged, CWnd* pWnd)

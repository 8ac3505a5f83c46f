// The look of bars that paint themselves.
#include "afx_control_bar.h"

void CControlBar::OnPaint() {
    CPaintDC dc(this);
    if (IsWindowVisible())
        DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* pDC) {
    CRect rect;
    GetClientRect(rect);
    DrawBorders(pDC, rect);
    DrawGripper(pDC, rect);
}

// Leaves the rectangle inside the borders.
void CControlBar::DrawBorders(CDC* pDC, CRect& rect) {
    if ((m_dwStyle & CBRS_BORDER_ANY) == 0 || IsFloating())
        return;
    UINT edges = BF_ADJUST;
    edges |= (m_dwStyle & CBRS_BORDER_LEFT) != 0 ? BF_LEFT : 0;
    edges |= (m_dwStyle & CBRS_BORDER_TOP) != 0 ? BF_TOP : 0;
    edges |= (m_dwStyle & CBRS_BORDER_RIGHT) != 0 ? BF_RIGHT : 0;
    edges |= (m_dwStyle & CBRS_BORDER_BOTTOM) != 0 ? BF_BOTTOM : 0;
    ::DrawEdge(pDC->GetSafeHdc(), rect, BDR_RAISEDINNER, edges);
}

void CControlBar::DrawGripper(CDC* pDC, const CRect& rect) {
    if (!HasGripper())
        return;
    CRect line = rect;
    if (IsHorizontal())
        line = CRect(rect.left + 3, rect.top + 2, rect.left + 6, rect.bottom - 2);
    else
        line = CRect(rect.left + 2, rect.top + 3, rect.right - 2, rect.top + 6);
    ::DrawEdge(pDC->GetSafeHdc(), line, BDR_RAISEDINNER, BF_RECT);
}

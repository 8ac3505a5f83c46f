// The small frame of a floating bar.
#pragma once

#include "afx_mini_frame.h"

class CMiniDockFrameWnd : public CMiniFrameWnd {
    DECLARE_DYNAMIC(CMiniDockFrameWnd)
    DECLARE_MESSAGE_MAP()

public:
    // dwBarStyle: the side (CBRS_ALIGN_...) that the bar is laid out for, and whether its size may change.
    BOOL Create(CWnd* pParentWnd, DWORD dwBarStyle);
    using CMiniFrameWnd::Create;
    CDockBar& Bar() { return *m_bar; }

protected:
    void LayoutClient() override;
    afx_msg void OnClose();
    afx_msg void OnExitSizeMove();
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);

private:
    CControlBar* FirstBar() const;
    CDockBar* m_bar = nullptr; // a child: goes with the window
};

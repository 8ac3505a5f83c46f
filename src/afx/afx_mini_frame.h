// Small frames: tool windows, and what floating bars lie in.
#pragma once

#include "afx_frame.h"

// Styles besides those of the platform.
#define MFS_SYNCACTIVE 0x00000100L   // its caption looks active together with its owner's
#define MFS_4THICKFRAME 0x00000200L  // cannot be resized
#define MFS_THICKFRAME 0x00000400L   // can be
#define MFS_MOVEFRAME 0x00000800L    // is moved by any edge
#define MFS_BLOCKSYSMENU 0x00001000L // no system menu

// A popup with a small caption, without menu and bars.
class ZOPAFX_API CMiniFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMiniFrameWnd)
    DECLARE_MESSAGE_MAP()

public:
    CMiniFrameWnd();
    ~CMiniFrameWnd() override;

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd = nullptr, UINT nID = 0);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd = nullptr, UINT nID = 0);
    // Makes a window's rectangle of its client area's.
    static void PASCAL CalcBorders(LPRECT pClientRect, DWORD dwStyle = WS_THICKFRAME | WS_CAPTION, DWORD dwExStyle = 0);

    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
};

// Frame windows.
#pragma once

#include "afx_wnd.h"

struct CCreateContext {};

// A top-level window. Routes commands to itself, then to the program. Created with new: it deletes itself with its
// window.
class ZOPAFX_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
    DECLARE_MESSAGE_MAP()

public:
    CFrameWnd() = default;
    ~CFrameWnd() override;
    static const RECT rectDefault;

    // The menu's name is without effect.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    using CWnd::Create;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    void PostNcDestroy() override;
    afx_msg void OnClose();
};

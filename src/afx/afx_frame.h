// Frame windows.
#pragma once

#include "afx_menu.h"
#include "afx_wnd.h"

struct CCreateContext {};

// A top-level window with menu and accelerators. Routes commands to itself, then to the program. Created with new:
// it deletes itself with its window.
class ZOPAFX_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
    DECLARE_MESSAGE_MAP()

public:
    CFrameWnd() = default;
    ~CFrameWnd() override;
    static const RECT rectDefault;

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    using CWnd::Create;
    // Menu, accelerators, icon and title (the string up to a line end) of one resource id.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW, CWnd* pParentWnd = nullptr,
                           CCreateContext* pContext = nullptr);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Disables menu items and buttons of commands that nobody handles.
    BOOL m_bAutoMenuEnable = TRUE;

protected:
    void PostNcDestroy() override;
    afx_msg void OnClose();
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);

    HACCEL m_hAccelTable = nullptr;
};

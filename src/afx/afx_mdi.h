// Several documents in one frame; included by afxwin.h.
#pragma once

#include "afx_doc_template.h"
#include "afx_frame.h"

class CMDIChildWnd;

// The main window, with a client area in which the documents' frames lie. Its menu is that of the active document's.
class ZOPAFX_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)
    DECLARE_MESSAGE_MAP()

public:
    CMDIFrameWnd();
    ~CMDIFrameWnd() override;

    HWND m_hWndMDIClient = nullptr;

    void MDIActivate(CWnd* pWndActivate);
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = nullptr) const;
    void MDIIconArrange() { ::SendMessage(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0); }
    void MDIMaximize(CWnd* pWnd);
    void MDIRestore(CWnd* pWnd);
    void MDINext();
    void MDIPrev();
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);
    void MDITile(int nType = MDITILE_HORIZONTAL) { ::SendMessage(m_hWndMDIClient, WM_MDITILE, UINT(nType), 0); }
    void MDICascade(int nType = 0) { ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, UINT(nType), 0); }
    // The window of the client area. A program that makes another overrides it.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
    // The popup that lists the windows: the one with the commands for them.
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);
    CMDIChildWnd* CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu = nullptr, HACCEL hAccel = nullptr);

    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr) override;
    CFrameWnd* GetActiveFrame() override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    void OnUpdateFrameMenu(HMENU hMenuAlt) override;
    void DelayUpdateFrameMenu(HMENU hMenuAlt) override; // at once
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnDestroy();
    afx_msg void OnUpdateMDIWindowCmd(CCmdUI* pCmdUI);
    afx_msg BOOL OnMDIWindowCmd(UINT nID);
    afx_msg void OnWindowNew();

private: // the menu is the active document's
    using CFrameWnd::SetMenuBarState;
    using CFrameWnd::SetMenuBarVisibility;
};

// The frame of a document inside the main window.
class ZOPAFX_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)
    DECLARE_MESSAGE_MAP()

public:
    CMDIChildWnd();
    ~CMDIChildWnd() override;

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CMDIFrameWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    using CFrameWnd::Create;
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr) override;
    CMDIFrameWnd* GetMDIFrame() const;
    void MDIDestroy() { ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0); }
    void MDIActivate() { ::SendMessage(::GetParent(m_hWnd), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0); }
    void MDIMaximize() { ::SendMessage(::GetParent(m_hWnd), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(m_hWnd), 0); }
    void MDIRestore() { ::SendMessage(::GetParent(m_hWnd), WM_MDIRESTORE, reinterpret_cast<WPARAM>(m_hWnd), 0); }
    // Menu and keys while this window is the active one; they are the template's.
    void SetHandles(HMENU hMenu, HACCEL hAccel);

    BOOL DestroyWindow() override;
    void ActivateFrame(int nCmdShow = -1) override;
    void OnUpdateFrameMenu(BOOL bActive, CWnd* pActivateWnd, HMENU hMenuAlt);
    using CFrameWnd::OnUpdateFrameMenu;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    CWnd* GetMessageBar() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDestroy();

    HMENU m_hMenuShared = nullptr;

private: // the menu is the active document's
    using CFrameWnd::SetMenuBarState;
    using CFrameWnd::SetMenuBarVisibility;
};

// Several documents at a time, each in frames of its own inside the main window.
class ZOPAFX_API CMultiDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CMultiDocTemplate)

public:
    CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                      CRuntimeClass* pViewClass);
    ~CMultiDocTemplate() override;

    HMENU m_hMenuShared = nullptr;
    HACCEL m_hAccelTable = nullptr;

    void LoadTemplate() override;
    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) override;
    void SetDefaultTitle(CDocument* pDocument) override;

protected:
    void PrepareFrame(CFrameWnd& frame) override;

    UINT m_nUntitledCount = 0; // of the last title

private:
    std::vector<CDocument*> m_documents;
};

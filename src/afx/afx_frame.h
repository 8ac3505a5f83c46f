// Frame windows.
#pragma once

#include "afx_control_bar.h"
#include "afx_wnd.h"
#include "afxcoll.h"
#include "afxres.h"

#include <vector>

class CDocTemplate;
class CDocument;
class CDockBar;
class CDockState;
class CControlBarInfo;
class CMiniDockFrameWnd;
class CView;
struct CPrintPreviewState;

// What a window is made for: handed to OnCreateClient, and on to the views.
struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CDocTemplate* m_pNewDocTemplate = nullptr;
    CView* m_pLastView = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

// The document's title comes into the frame's, before the program's or behind it.
#define FWS_ADDTOTITLE 0x00008000L
#define FWS_PREFIXTITLE 0x00004000L
#define FWS_SNAPTOBARS 0x00002000L // of the small frames around bars, which always do
// A menu bar that is always shown; hidden until Alt is pressed; until Alt or F10, and then shown until Alt or Esc.
#define AFX_MBV_KEEPVISIBLE 0x01L
#define AFX_MBV_DISPLAYONFOCUS 0x02L
#define AFX_MBV_DISPLAYONF10 0x04L // with AFX_MBV_DISPLAYONFOCUS
#define AFX_MBS_VISIBLE 0x01L
#define AFX_MBS_HIDDEN 0x02L
#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

// A top-level window with a menu, bars around its client area and a view in it. Commands go to the active view, to the
// frame, then to the program. Created with new: it deletes itself with its window.
class ZOPAFX_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
    DECLARE_MESSAGE_MAP()

public:
    CFrameWnd();
    ~CFrameWnd() override;
    static const CRect rectDefault;

    BOOL m_bAutoMenuEnable = TRUE; // menu items without a handler are disabled

    // The menu is one of the resource chain; FALSE where it names none.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    using CWnd::Create;
    // One number for the menu, the keys, the icon and the title.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    BOOL DestroyWindow() override;

    virtual CDocument* GetActiveDocument();
    CView* GetActiveView() const { return m_pViewActive; }
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    virtual CFrameWnd* GetActiveFrame();
    virtual void ActivateFrame(int nCmdShow = -1);
    void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);
    BOOL IsFrameWnd() const override;
    BOOL IsTracking() const { return m_nIDTracking != 0 && m_nIDTracking != AFX_IDS_IDLEMESSAGE; }

    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
    virtual void OnUpdateFrameMenu(HMENU hMenuAlt);
    // The same, and the layout, when the thread is idle.
    void DelayUpdateFrameTitle() { m_title_wanted = true; }
    virtual void DelayUpdateFrameMenu(HMENU hMenuAlt);
    void DelayRecalcLayout(BOOL bNotify = TRUE) { m_layout_wanted = true; }
    virtual HACCEL GetDefaultAccelerator();

    // AFX_MBV_ values; others raise CInvalidArgException. Not of frames with several documents, whose menus change.
    virtual void SetMenuBarVisibility(DWORD nStyle);
    virtual DWORD GetMenuBarVisibility() const;
    // AFX_MBS_ values. FALSE where it is so already.
    virtual BOOL SetMenuBarState(DWORD nState);
    virtual DWORD GetMenuBarState() const;
    BOOL GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const {
        return ::GetMenuBarInfo(m_hWnd, idObject, idItem, pmbi);
    }

    // Texts of the message bar: the status bar, where there is one.
    virtual CWnd* GetMessageBar();
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    virtual void GetMessageString(UINT nID, CString& rMessage) const;

    virtual void RecalcLayout(BOOL bNotify = TRUE);
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    CControlBar* GetControlBar(UINT nID);
    // Bars can be docked to these sides (CBRS_ALIGN_...).
    void EnableDocking(DWORD dwDockStyle);
    // nDockBarID 0: the side that the bar's style names first. lpRect: where on the screen it would be.
    void DockControlBar(CControlBar* pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    void DockControlBar(CControlBar* pBar, CDockBar* pDockBar, LPCRECT lpRect = nullptr);
    void ReDockControlBar(CControlBar* pBar, CDockBar* pDockBar, LPCRECT lpRect = nullptr) {
        DockControlBar(pBar, pDockBar, lpRect);
    }
    // In a small frame of its own, whose corner lies at the point of the screen.
    void FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle = CBRS_ALIGN_TOP);
    CMiniDockFrameWnd* CreateFloatingFrame(DWORD dwStyle);
    // Which bars are shown, and where they are: as an object, or in the program's settings.
    void GetDockState(CDockState& state) const;
    void SetDockState(const CDockState& state);
    void LoadBarState(LPCTSTR lpszProfileName);
    void SaveBarState(LPCTSTR lpszProfileName) const;

    void ShowOwnedWindows(BOOL bShow) { ShowOwnedPopups(bShow); }
    // For programs that have one themselves: the framework has no preview.
    virtual void OnSetPreviewMode(BOOL bPreview, CPrintPreviewState* pState) {}

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Disables the windows of the frame, itself too, until as many calls end it. So does disabling the frame, as a
    // modal dialog in front of it does. A window that answers WM_DISABLEMODAL with anything but 0 stays as it is.
    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const { return m_cModalStack != 0; }

    // Help about what is clicked next, while it lasts.
    BOOL m_bHelpMode = FALSE;
    afx_msg void OnContextHelp();
    virtual void ExitHelpMode();

    CPtrList m_listControlBars; // of all bars, those that dock others too
    int m_nWindow = -1;         // which of the windows of its document it is; -1 the only one

    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);

protected:
    // Makes what fills the client area: the view of the context, a splitter, whatever a program makes. FALSE refuses
    // the frame.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    int OnCreateHelper(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    void UpdateFrameTitleForDocument(LPCTSTR lpszDocName);
    LPCTSTR GetIconWndClass(DWORD dwDefaultStyle, UINT nIDResource);
    virtual void LayoutClient();
    // The menu bar is about to come or go; they do nothing.
    virtual void OnShowMenuBar();
    virtual void OnHideMenuBar();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnHelpHitTest(WPARAM wParam, LPARAM lParam);
    afx_msg void OnIdleUpdateCmdUI();
    afx_msg void OnRecalcParent();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnDDEInitiate(CWnd* pWnd, UINT nApp, UINT nTopic);
    afx_msg void OnDDEExecute(CWnd* pWnd, HANDLE hCommands);
    afx_msg void OnDDETerminate(CWnd* pWnd); // of those who began a conversation
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);
    afx_msg BOOL OnToolTipText(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);

    HMENU m_hMenuDefault = nullptr; // the menu while no document's own is shown
    HMENU m_hMenuAlt = nullptr;     // that DelayUpdateFrameMenu was given
    HACCEL m_hAccelTable = nullptr;
    CString m_strTitle;
    UINT m_nIDHelp = 0; // the number it was loaded by
    UINT m_nIDTracking = 0;
    UINT m_nIDLastMessage = 0;
    CRect m_rectBorder;
    CView* m_pViewActive = nullptr;

private:
    friend class CControlBar;
    friend class CDocument;
    std::vector<HWND> m_talks_to; // by DDE
    bool TalksTo(const CWnd* partner) const;
    friend class CMiniDockFrameWnd;
    CDockBar* DockBarAt(UINT id);
    void DestroyDockBars();
    void DestroyEmptyFloat(CDockBar* dock);
    CDockBar* DockBarNear(const CControlBar& bar, CPoint screen);
    CDockBar* DockBarFor(const CControlBar& bar, CPoint screen);
    // A bar was dragged: docked where the pointer is near a side. Elsewhere it floats, where floating tells the place.
    void DropControlBar(CControlBar* bar, CPoint screen, const CPoint* floating);
    void ToggleFloating(CControlBar* bar);
    void LayoutFloats();
    CDockBar* DockBarOf(const CControlBar& bar, const CControlBarInfo& info);
    void PutBar(CControlBar& bar, const CControlBarInfo& info);
    HMENU FrameMenu() const; // shown or hidden
    void SetFrameMenu(HMENU menu);
    void NoteMenuKey(const MSG& message);
    void ShowActiveCaptions(HWND active);
    bool IsOnlyFrameOf(CDocument* pDocument) const;

    HMENU m_hMenuHidden = nullptr;
    DWORD m_dwMenuBarVisibility = AFX_MBV_KEEPVISIBLE, m_dwMenuBarState = AFX_MBS_VISIBLE;
    bool m_menu_bar_changes = false; // the program is being told
    WPARAM m_last_system_key = 0;
    HACCEL m_loaded_keys = nullptr; // what LoadAccelTable made; another table is somebody else's
    CDockBar* m_dock_bars[4] = {};
    UINT m_cModalStack = 0;
    std::vector<HWND> m_disabled; // by BeginModalState
    bool m_in_layout = false;
    bool m_layout_wanted = false, m_title_wanted = false, m_menu_wanted = false; // by the idle frame
    bool m_modal_by_disabling = false;
};

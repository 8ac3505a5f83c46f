#include "afx_frame.h"
#include "afx_app.h"
#include "afx_document.h"
#include "afx_view.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "frame_state.h"
#include "position_list.h"

#include <utility>

#include <dde.h>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_ACTIVATE()
ON_WM_SETFOCUS()
ON_WM_ERASEBKGND()
ON_WM_INITMENUPOPUP()
ON_WM_MENUSELECT()
ON_WM_SYSCOMMAND()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_DROPFILES()
ON_WM_QUERYENDSESSION()
ON_WM_ENDSESSION()
ON_WM_ENABLE()
AFX_WM_ENTRY(WM_DDE_INITIATE, AfxSig_v_w_u_u, void, (CWnd*, UINT, UINT), OnDDEInitiate)
AFX_WM_ENTRY(WM_DDE_EXECUTE, AfxSig_v_w_h, void, (CWnd*, HANDLE), OnDDEExecute)
AFX_WM_ENTRY(WM_DDE_TERMINATE, AfxSig_v_w_from_w, void, (CWnd*), OnDDETerminate)
ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
ON_MESSAGE_VOID(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
ON_MESSAGE(WM_COMMANDHELP, &CFrameWnd::OnCommandHelp)
ON_MESSAGE(WM_HELPHITTEST, &CFrameWnd::OnHelpHitTest)
ON_MESSAGE_VOID(WM_RECALCPARENT, &CFrameWnd::OnRecalcParent)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_KANA, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

CFrameWnd::CFrameWnd() {
    frames_of_this_thread().frames.push_back(this);
}

CFrameWnd::~CFrameWnd() {
    std::erase(frames_of_this_thread().frames, this);
    // A window that is still there goes with the rest of the object: its bars no longer find the frame.
    for (CControlBar* bar : objects_in<CControlBar>(m_listControlBars))
        bar->m_pDockSite = nullptr;
    if (m_loaded_keys != nullptr)
        ::DestroyAcceleratorTable(m_loaded_keys);
}

BOOL CFrameWnd::IsFrameWnd() const {
    return TRUE;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr) {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName;
    const bool anywhere = rect.left == CW_USEDEFAULT;
    const int width = anywhere ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = anywhere ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width, height,
                 pParentWnd->GetSafeHwnd(), menu, pContext))
        return TRUE;
    if (menu != nullptr)
        ::DestroyMenu(menu);
    return FALSE;
}

LPCTSTR frame_class(HICON icon) {
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1),
                               icon);
}

HICON standard_icon(UINT id) {
    LPCTSTR name = MAKEINTRESOURCE(id);
    const HICON own = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    return own != nullptr ? own : ::LoadIcon(nullptr, IDI_APPLICATION);
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = frame_class(standard_icon(AFX_IDI_STD_FRAME));
    if ((cs.style & FWS_ADDTOTITLE) != 0)
        cs.style |= FWS_PREFIXTITLE;
    return TRUE;
}

LPCTSTR CFrameWnd::GetIconWndClass(DWORD, UINT nIDResource) {
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDResource), RT_GROUP_ICON);
    const HICON icon = ::LoadIcon(module, MAKEINTRESOURCE(nIDResource));
    return icon != nullptr ? frame_class(icon) : nullptr;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    CString text, title;
    if (text.LoadString(nIDResource))
        AfxExtractSubString(title, text, 0);
    if (!Create(GetIconWndClass(dwDefaultStyle, nIDResource), title, dwDefaultStyle, rectDefault, pParentWnd,
                MAKEINTRESOURCE(nIDResource), 0, pContext))
        return FALSE;
    m_hMenuDefault = FrameMenu();
    LoadAccelTable(MAKEINTRESOURCE(nIDResource));
    if (pContext == nullptr)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    if (HACCEL before = std::exchange(m_loaded_keys, nullptr))
        ::DestroyAcceleratorTable(before);
    m_loaded_keys = ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    m_hAccelTable = m_loaded_keys;
    return m_hAccelTable != nullptr;
}

HACCEL CFrameWnd::GetDefaultAccelerator() {
    CDocument* document = GetActiveDocument();
    const HACCEL keys = document != nullptr ? document->GetDefaultAccelerator() : nullptr;
    return keys != nullptr ? keys : m_hAccelTable;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    const HWND self = m_hWnd;
    NoteMenuKey(*pMsg);
    if (!::IsWindow(self))
        return TRUE;
    const HACCEL keys = GetDefaultAccelerator();
    return keys != nullptr && ::TranslateAccelerator(m_hWnd, keys, pMsg);
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return OnCreateHelper(lpCreateStruct, static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams));
}

int CFrameWnd::OnCreateHelper(LPCREATESTRUCT lpcs, CCreateContext* pContext) {
    if (CWnd::OnCreate(lpcs) == -1 || !OnCreateClient(lpcs, pContext))
        return -1;
    if (m_dwMenuBarState == AFX_MBS_HIDDEN) // asked for before there was a window
        SetFrameMenu(FrameMenu());
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) {
    if (pContext == nullptr || pContext->m_pNewViewClass == nullptr)
        return TRUE;
    return CreateView(pContext) != nullptr;
}

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID) {
    CWnd* view = DYNAMIC_DOWNCAST(CWnd, pContext->m_pNewViewClass->CreateObject());
    if (view == nullptr)
        return nullptr;
    // A view that is not created has deleted itself.
    return view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, nID, pContext) ? view : nullptr;
}

BOOL CFrameWnd::DestroyWindow() {
    return CWnd::DestroyWindow();
}

void CFrameWnd::PostNcDestroy() {
    delete this;
}

void CFrameWnd::OnDestroy() {
    DestroyDockBars();
    const HMENU menu = FrameMenu();
    if (m_hMenuHidden != nullptr)
        ::SetMenu(m_hWnd, std::exchange(m_hMenuHidden, nullptr));
    // The menu that the window shows goes with it; another that it was loaded with does not.
    if (m_hMenuDefault != nullptr && menu != m_hMenuDefault) {
        ::SetMenu(m_hWnd, nullptr);
        ::DestroyMenu(m_hMenuDefault);
    }
    m_hMenuDefault = nullptr;
    CWnd::OnDestroy();
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    CView* view = GetActiveView();
    if (view != nullptr && view->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    return CWnd::OnCommand(wParam, lParam);
}

CDocument* CFrameWnd::GetActiveDocument() {
    CView* view = GetActiveView();
    return view != nullptr ? view->GetDocument() : nullptr;
}

CFrameWnd* CFrameWnd::GetActiveFrame() {
    return this;
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify) {
    CView* before = m_pViewActive;
    if (before == pViewNew)
        return;
    m_pViewActive = nullptr;
    if (before != nullptr)
        before->OnActivateView(FALSE, pViewNew, before);
    if (m_pViewActive != nullptr)
        return; // the old view saw to another
    m_pViewActive = pViewNew;
    if (pViewNew != nullptr && bNotify)
        pViewNew->OnActivateView(TRUE, pViewNew, before);
}

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    ShowActiveCaptions(nState != WA_INACTIVE ? m_hWnd : pWndOther->GetSafeHwnd());
    CView* view = GetActiveView();
    if (view == nullptr)
        return;
    if (nState != WA_INACTIVE && !bMinimized)
        view->OnActivateView(TRUE, view, view);
    view->OnActivateFrame(nState, this);
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    if (CView* view = GetActiveView())
        view->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

// Where a view covers everything, erasing would flicker.
BOOL CFrameWnd::OnEraseBkgnd(CDC* pDC) {
    return GetActiveView() != nullptr || CWnd::OnEraseBkgnd(pDC);
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1) {
        if (!IsWindowVisible())
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    if (nCmdShow != -1)
        ShowWindow(nCmdShow);
    if (nCmdShow != SW_HIDE && nCmdShow != SW_MINIMIZE && nCmdShow != SW_SHOWMINNOACTIVE && nCmdShow != SW_SHOWNA &&
        nCmdShow != SW_SHOWNOACTIVATE)
        ::BringWindowToTop(::GetLastActivePopup(m_hWnd));
}

void CFrameWnd::InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible) {
    CView* view = GetActiveView();
    if (view == nullptr) {
        view = DYNAMIC_DOWNCAST(CView, GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
        if (view != nullptr)
            SetActiveView(view, FALSE);
    }
    if (bMakeVisible) {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        if (view != nullptr)
            view->OnActivateFrame(WA_INACTIVE, this);
        CWinApp* app = AfxGetApp();
        const bool main = app != nullptr && app->m_pMainWnd == this;
        ActivateFrame(main ? std::exchange(app->m_nCmdShow, -1) : -1);
        if (view != nullptr)
            view->OnActivateView(TRUE, view, view);
    }
    if (pDoc != nullptr)
        pDoc->UpdateFrameCounts();
    OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt) {
    CDocument* document = GetActiveDocument();
    HMENU menu = hMenuAlt == nullptr && document != nullptr ? document->GetDefaultMenu() : hMenuAlt;
    SetFrameMenu(menu != nullptr ? menu : m_hMenuDefault);
}

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    CDocument* document = GetActiveDocument();
    UpdateFrameTitleForDocument(bAddToTitle && document != nullptr ? document->GetTitle().GetString() : nullptr);
}

void CFrameWnd::UpdateFrameTitleForDocument(LPCTSTR lpszDocName) {
    CString name = lpszDocName, number;
    if (m_nWindow > 0) {
        number.Format(":%d", m_nWindow);
        name += number;
    }
    const bool both = lpszDocName != nullptr && !m_strTitle.IsEmpty();
    CString title = lpszDocName != nullptr && (GetStyle() & FWS_PREFIXTITLE) != 0 ? name : m_strTitle;
    if (both)
        title += " - " + ((GetStyle() & FWS_PREFIXTITLE) != 0 ? m_strTitle : name);
    else if (lpszDocName != nullptr)
        title = name;
    CString before;
    GetWindowText(before);
    if (before != title)
        SetWindowText(title);
}

bool CFrameWnd::IsOnlyFrameOf(CDocument* pDocument) const {
    for (POSITION at = pDocument->GetFirstViewPosition(); at != nullptr;) {
        CFrameWnd* frame = pDocument->GetNextView(at)->GetParentFrame();
        if (frame != nullptr && frame != this)
            return false;
    }
    return true;
}

void CFrameWnd::OnClose() {
    CDocument* document = GetActiveDocument();
    if (document != nullptr && !document->CanCloseFrame(this))
        return;
    CWinApp* app = AfxGetApp();
    if (app != nullptr && app->m_pMainWnd == this) {
        if (document == nullptr && !app->SaveAllModified())
            return;
        app->HideApplication();
        app->CloseAllDocuments(FALSE);
        if (app->m_pMainWnd != this)
            return; // gone with its document
    } else if (document != nullptr && IsOnlyFrameOf(document)) {
        document->OnCloseDocument();
        return;
    } else if (document != nullptr) {
        document->PreCloseFrame(this);
    }
    DestroyWindow();
}

BOOL CFrameWnd::OnQueryEndSession() {
    CWinApp* app = AfxGetApp();
    return app == nullptr || app->m_pMainWnd != this || app->SaveAllModified();
}

void CFrameWnd::OnEndSession(BOOL bEnding) {
    CWinApp* app = AfxGetApp();
    if (!bEnding || app == nullptr || app->m_pMainWnd != this)
        return;
    app->CloseAllDocuments(TRUE);
    app->ExitInstance();
}

void CFrameWnd::OnDropFiles(HDROP hDropInfo) {
    SetActiveWindow();
    const UINT count = ::DragQueryFile(hDropInfo, static_cast<UINT>(-1), nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        CString name;
        const UINT length = ::DragQueryFile(hDropInfo, i, nullptr, 0);
        ::DragQueryFile(hDropInfo, i, name.GetBuffer(static_cast<int>(length) + 1), length + 1);
        name.ReleaseBuffer();
        AfxGetApp()->OpenDocumentFile(name);
    }
    ::DragFinish(hDropInfo);
}

// The scroll bar of a view that stands in the frame itself.
void CFrameWnd::OnHScroll(UINT, UINT, CScrollBar*) {
    if (CView* view = GetActiveView())
        view->SendMessage(WM_HSCROLL, GetCurrentMessage()->wParam, GetCurrentMessage()->lParam);
}

void CFrameWnd::OnVScroll(UINT, UINT, CScrollBar*) {
    if (CView* view = GetActiveView())
        view->SendMessage(WM_VSCROLL, GetCurrentMessage()->wParam, GetCurrentMessage()->lParam);
}

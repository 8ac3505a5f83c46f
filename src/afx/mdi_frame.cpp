#include "afx_app.h"
#include "afx_document.h"
#include "afx_mdi.h"
#include "afx_view.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "frame_state.h"

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
ON_WM_SIZE()
ON_WM_ACTIVATE()
ON_WM_ERASEBKGND()
ON_WM_DESTROY()
ON_UPDATE_COMMAND_UI_RANGE(ID_WINDOW_ARRANGE, ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_COMMAND_EX_RANGE(ID_WINDOW_ARRANGE, ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnMDIWindowCmd)
ON_UPDATE_COMMAND_UI(ID_WINDOW_NEW, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_COMMAND(ID_WINDOW_NEW, &CMDIFrameWnd::OnWindowNew)
END_MESSAGE_MAP()

CMDIFrameWnd::CMDIFrameWnd() = default;

CMDIFrameWnd::~CMDIFrameWnd() = default;

BOOL CMDIFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    return CFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext);
}

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = frame_class(standard_icon(AFX_IDI_STD_MDIFRAME));
    return TRUE; // without FWS_PREFIXTITLE: the program comes first, as with a maximised child's title behind it
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*) {
    CMenu* menu = GetMenu();
    const HMENU popup = menu != nullptr ? GetWindowMenuPopup(menu->m_hMenu) : nullptr;
    return CreateClient(lpcs, CMenu::FromHandle(popup));
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT, CMenu* pWindowMenu) {
    CLIENTCREATESTRUCT create{};
    create.hWindowMenu = pWindowMenu->GetSafeHmenu();
    create.idFirstChild = AFX_IDM_FIRST_MDICHILD;
    constexpr DWORD style =
        WS_VISIBLE | WS_CHILD | WS_BORDER | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_HSCROLL | WS_VSCROLL;
    m_hWndMDIClient = ::CreateWindowEx(WS_EX_CLIENTEDGE, "MDICLIENT", nullptr, style & ~WS_BORDER, 0, 0, 0, 0, m_hWnd,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                       AfxGetInstanceHandle(), &create);
    return m_hWndMDIClient != nullptr;
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar) {
    for (int i = hMenuBar != nullptr ? ::GetMenuItemCount(hMenuBar) - 1 : -1; i >= 0; --i) {
        const HMENU popup = ::GetSubMenu(hMenuBar, i);
        for (int j = 0; popup != nullptr && j < ::GetMenuItemCount(popup); ++j) {
            const UINT id = ::GetMenuItemID(popup, j);
            if (id >= AFX_IDM_WINDOW_FIRST && id <= AFX_IDM_WINDOW_LAST)
                return popup;
        }
    }
    return nullptr;
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

void CMDIFrameWnd::OnSize(UINT nType, int, int) {
    // The platform's own handling would give the client area everything.
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CMDIFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    CFrameWnd::OnActivate(nState, pWndOther, bMinimized);
    CView* view = GetActiveFrame()->GetActiveView();
    if (nState != WA_INACTIVE && view != nullptr && !bMinimized)
        view->SetFocus();
}

BOOL CMDIFrameWnd::OnEraseBkgnd(CDC*) {
    return TRUE; // the client area covers everything
}

void CMDIFrameWnd::OnDestroy() {
    // The shared menu of a document is its template's.
    if (m_hMenuDefault != nullptr && ::GetMenu(m_hWnd) != m_hMenuDefault)
        ::SetMenu(m_hWnd, m_hMenuDefault);
    CFrameWnd::OnDestroy();
}

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const {
    if (m_hWndMDIClient == nullptr)
        return nullptr;
    BOOL maximized = FALSE;
    const auto hwnd = reinterpret_cast<HWND>(
        ::SendMessage(m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized)));
    if (pbMaximized != nullptr)
        *pbMaximized = maximized;
    return DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(hwnd));
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate) {
    ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(pWndActivate->m_hWnd), 0);
}

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd) {
    ::SendMessage(m_hWndMDIClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

void CMDIFrameWnd::MDIRestore(CWnd* pWnd) {
    ::SendMessage(m_hWndMDIClient, WM_MDIRESTORE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

void CMDIFrameWnd::MDINext() {
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 0);
}

void CMDIFrameWnd::MDIPrev() {
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 1);
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu) {
    const LRESULT before =
        ::SendMessage(m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(pFrameMenu->GetSafeHmenu()),
                      reinterpret_cast<LPARAM>(pWindowMenu->GetSafeHmenu()));
    return CMenu::FromHandle(reinterpret_cast<HMENU>(before));
}

CMDIChildWnd* CMDIFrameWnd::CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu, HACCEL hAccel) {
    auto* child = DYNAMIC_DOWNCAST(CMDIChildWnd, pClass->CreateObject());
    if (child == nullptr)
        return nullptr;
    child->SetHandles(hMenu, hAccel);
    CCreateContext context;
    context.m_pCurrentFrame = this;
    if (!child->LoadFrame(nResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, this, &context))
        return nullptr;
    child->InitialUpdateFrame(nullptr, TRUE);
    return child;
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd* active = MDIGetActive();
    return active != nullptr ? static_cast<CFrameWnd*>(active) : this;
}

// The active document's frame before the main one.
BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    CMDIChildWnd* active = MDIGetActive();
    if (active != nullptr && active->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// The window list's items are the platform's.
BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (lParam == 0 && LOWORD(wParam) >= AFX_IDM_FIRST_MDICHILD)
        return FALSE;
    return CFrameWnd::OnCommand(wParam, lParam);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg) {
    CMDIChildWnd* active = MDIGetActive();
    if (active != nullptr && active->PreTranslateMessage(pMsg))
        return TRUE;
    if (CFrameWnd::PreTranslateMessage(pMsg))
        return TRUE;
    return (pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN) && m_hWndMDIClient != nullptr &&
           ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

void CMDIFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    BOOL maximized = FALSE;
    CMDIChildWnd* active = MDIGetActive(&maximized);
    CDocument* document = GetActiveDocument();
    if (document == nullptr && active != nullptr)
        document = active->GetActiveDocument();
    const bool add = bAddToTitle && active != nullptr && !maximized && document != nullptr;
    UpdateFrameTitleForDocument(add ? document->GetTitle().GetString() : nullptr);
}

void CMDIFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt) {
    const HMENU menu = hMenuAlt != nullptr ? hMenuAlt : m_hMenuDefault;
    const HMENU popup = GetWindowMenuPopup(menu);
    ::SendMessage(m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(menu), reinterpret_cast<LPARAM>(popup));
    DrawMenuBar();
}

void CMDIFrameWnd::DelayUpdateFrameMenu(HMENU hMenuAlt) {
    OnUpdateFrameMenu(hMenuAlt);
}

void CMDIFrameWnd::OnUpdateMDIWindowCmd(CCmdUI* pCmdUI) {
    pCmdUI->Enable(MDIGetActive() != nullptr);
}

BOOL CMDIFrameWnd::OnMDIWindowCmd(UINT nID) {
    switch (nID) {
    case ID_WINDOW_ARRANGE:
        return MDIIconArrange(), TRUE;
    case ID_WINDOW_CASCADE:
        return MDICascade(), TRUE;
    case ID_WINDOW_TILE_HORZ:
        return MDITile(MDITILE_HORIZONTAL), TRUE;
    case ID_WINDOW_TILE_VERT:
        return MDITile(MDITILE_VERTICAL), TRUE;
    default:
        return FALSE;
    }
}

// Another frame for the active document.
void CMDIFrameWnd::OnWindowNew() {
    CMDIChildWnd* active = MDIGetActive();
    CDocument* document = active != nullptr ? active->GetActiveDocument() : nullptr;
    CDocTemplate* kind = document != nullptr ? document->GetDocTemplate() : nullptr;
    CFrameWnd* frame = kind != nullptr ? kind->CreateNewFrame(document, active) : nullptr;
    if (frame == nullptr) {
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
        return;
    }
    kind->InitialUpdateFrame(frame, document);
}

#include "afx_frame.h"
#include "afx_app.h"
#include "afx_exception.h"
#include "afxmsg_.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CLOSE()
ON_WM_INITMENUPOPUP()
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

const RECT CFrameWnd::rectDefault{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

CFrameWnd::~CFrameWnd() = default;

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

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    LPCTSTR name = MAKEINTRESOURCE(nIDResource);
    CString title;
    if (title.LoadString(nIDResource))
        title = title.SpanExcluding("\n");
    const HICON icon = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    LPCTSTR window_class = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                               reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
    if (!Create(window_class, title, dwDefaultStyle, rectDefault, pParentWnd, name, 0, pContext))
        return FALSE;
    LoadAccelTable(name);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return key && m_hAccelTable != nullptr && ::TranslateAccelerator(m_hWnd, m_hAccelTable, pMsg) != 0;
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CFrameWnd::PostNcDestroy() {
    delete this;
}

void CFrameWnd::OnClose() {
    DestroyWindow();
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu) {
    if (bSysMenu) {
        Default();
        return;
    }
    CCmdUI state;
    state.m_pMenu = pPopupMenu;
    state.m_nIndexMax = pPopupMenu->GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        state.m_nID = pPopupMenu->GetMenuItemID(static_cast<int>(state.m_nIndex));
        const bool command = state.m_nID != 0 && state.m_nID != static_cast<UINT>(-1); // no separator, no popup
        if (command)
            state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < 0xF000);
    }
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam) {
    UpdateDialogControls(this, FALSE);
    return 0;
}

#include "afx_frame.h"
#include "afx_app.h"
#include "afxmsg_.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CLOSE()
END_MESSAGE_MAP()

const RECT CFrameWnd::rectDefault{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    const bool anywhere = rect.left == CW_USEDEFAULT;
    const int width = anywhere ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = anywhere ? CW_USEDEFAULT : rect.bottom - rect.top;
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width, height,
                    pParentWnd->GetSafeHwnd(), nullptr, pContext);
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
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

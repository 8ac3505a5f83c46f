#include "afx_app.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

CWinApp* the_app = nullptr;

CString program_name() {
    char path[MAX_PATH + 1] = "";
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    CString name(path);
    name = name.Mid(name.ReverseFind('\\') + 1);
    const int dot = name.ReverseFind('.');
    return dot > 0 ? name.Left(dot) : name;
}

UINT default_icon(UINT type) {
    if ((type & MB_ICONMASK) != 0)
        return 0;
    switch (type & MB_TYPEMASK) {
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return MB_ICONQUESTION;
    case MB_ABORTRETRYIGNORE:
    case MB_RETRYCANCEL:
        return MB_ICONHAND;
    default:
        return MB_ICONEXCLAMATION;
    }
}

// The window a message box goes in front of: the program's own active window.
HWND message_box_owner(const CWinApp* app) {
    HWND owner = ::GetActiveWindow();
    if (owner == nullptr && app != nullptr)
        owner = app->m_pMainWnd->GetSafeHwnd();
    return owner != nullptr ? ::GetLastActivePopup(owner) : nullptr;
}

} // namespace

CWinApp* AFXAPI AfxGetApp() {
    return the_app;
}

CWinThread* AFXAPI AfxGetThread() {
    return the_app;
}

CWnd* AFXAPI AfxGetMainWnd() {
    return the_app != nullptr ? the_app->GetMainWnd() : nullptr;
}

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_pszAppName(lpszAppName) {
    the_app = this;
}

CWinApp::~CWinApp() {
    if (the_app == this)
        the_app = nullptr;
}

void CWinApp::SetNames() {
    m_exeName = program_name();
    if (m_pszExeName == nullptr)
        m_pszExeName = m_exeName;
    if (m_pszAppName == nullptr)
        m_pszAppName = m_exeName;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::ExitInstance() {
    return CWinThread::ExitInstance();
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) {
    return ShowAppMessageBox(this, lpszPrompt, nType, nIDPrompt);
}

int CWinApp::ShowAppMessageBox(CWinApp* pApp, LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) {
    const CString name =
        pApp != nullptr && pApp->m_pszAppName != nullptr ? CString(pApp->m_pszAppName) : program_name();
    return ::MessageBox(message_box_owner(pApp), lpszPrompt, name, nType | default_icon(nType));
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    CWinApp* app = AfxGetApp();
    return app != nullptr ? app->DoMessageBox(lpszText, nType, nIDHelp)
                          : CWinApp::ShowAppMessageBox(nullptr, lpszText, nType, nIDHelp);
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    if (CWinApp* app = AfxGetApp()) {
        app->m_nCmdShow = nCmdShow;
        app->SetNames();
    }
    return TRUE;
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    CWinApp* app = AfxGetApp();
    if (!AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) || app == nullptr)
        return -1;
    if (app->InitInstance())
        return app->Run();
    if (app->m_pMainWnd != nullptr)
        app->m_pMainWnd->DestroyWindow();
    return app->ExitInstance();
}

// Programs that define none of their own take this one from the import library.
extern "C" ZOPAFX_API int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow) {
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}

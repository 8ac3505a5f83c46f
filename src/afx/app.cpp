#include "afx_app.h"
#include "afx_command_line.h"
#include "afx_doc_template.h"
#include "afxadv.h"
#include "afxmsg_.h"
#include "afxres.h"
#include "atlconv.h"
#include "module_state.h"
#include "ole_state.h"
#include "thread_state.h"
#include "wnd_state.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CCmdTarget)
ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, &CWinApp::OnOpenRecentFile)
END_MESSAGE_MAP()

namespace {

CString program_path() {
    char path[MAX_PATH + 1] = "";
    ::GetModuleFileName(AfxGetInstanceHandle(), path, MAX_PATH);
    return path;
}

CString program_folder() {
    const CString path = program_path();
    return path.Left(path.ReverseFind('\\') + 1);
}

CString program_name() {
    CString name = program_path();
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

// The window a message box goes in front of: the thread's own active window.
HWND message_box_owner() {
    HWND owner = ::GetActiveWindow();
    if (owner == nullptr)
        owner = AfxGetMainWnd()->GetSafeHwnd();
    return owner != nullptr ? ::GetLastActivePopup(owner) : nullptr;
}

// A function that older systems do not have; there nothing is done.
template <class... Arguments> void call_system(PCWSTR library, PCSTR name, Arguments... arguments) {
    if (const FARPROC found = ::GetProcAddress(::GetModuleHandleW(library), name))
        reinterpret_cast<HRESULT(WINAPI*)(Arguments...)>(reinterpret_cast<void (*)()>(found))(arguments...);
}

} // namespace

CWinApp* AFXAPI AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWinThread* AFXAPI AfxGetThread() {
    CWinThread* thread = this_thread().thread;
    const AFX_MODULE_STATE* state = AfxGetModuleState();
    return thread != nullptr || state == AfxGetAppModuleState() ? thread : state->m_pCurrentWinApp;
}

CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

LPCTSTR AFXAPI AfxGetAppName() {
    const CWinApp* app = AfxGetApp();
    return app != nullptr ? app->m_pszAppName : nullptr;
}

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_pszAppName(lpszAppName != nullptr ? ::_strdup(lpszAppName) : nullptr) {
    AFX_MODULE_STATE* state = afx_state_of_module(module_of(this)); // the object is static in its module
    state->m_pCurrentWinApp = this;
    m_pModuleState = state;
    if (state == AfxGetAppModuleState()) // a library may go in another thread than it came
        this_thread().thread = this;
    m_bAutoDelete = FALSE;
    m_nThreadID = ::GetCurrentThreadId();
    ::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentThread(), ::GetCurrentProcess(), &m_hThread, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    m_hInstance = state->m_hCurrentInstanceHandle;
}

CWinApp::~CWinApp() {
    DisableShellOpen();
    if (m_dialog_ground != nullptr)
        ::DeleteObject(m_dialog_ground);
    delete m_pDocManager;
    delete m_pRecentFileList;
    for (HGLOBAL memory : {m_hDevMode, m_hDevNames}) {
        if (memory != nullptr)
            ::GlobalFree(memory);
    }
    for (LPCTSTR name : {m_pszAppName, m_pszExeName, m_pszProfileName, m_pszRegistryKey, m_pszHelpFilePath})
        std::free(const_cast<LPTSTR>(name));
    AFX_MODULE_STATE* state = afx_state_of_module(module_of(this));
    if (state->m_pCurrentWinApp == this)
        state->m_pCurrentWinApp = nullptr;
}

void CWinApp::SetNames() {
    const CString name = program_name();
    CString title;
    if (!title.LoadString(AFX_IDS_APP_TITLE))
        title = name;
    if (m_pszExeName == nullptr)
        m_pszExeName = ::_strdup(name);
    if (m_pszAppName == nullptr)
        m_pszAppName = ::_strdup(title);
    if (m_pszProfileName == nullptr)
        m_pszProfileName = ::_strdup(name + ".INI");
    if (m_pszHelpFilePath == nullptr)
        m_pszHelpFilePath = ::_strdup(program_folder() + name + ".HLP");
}

BOOL CWinApp::InitApplication() {
    return TRUE;
}

BOOL CWinApp::InitInstance() {
    if (m_dwRestartManagerSupportFlags & AFX_RESTART_MANAGER_SUPPORT_RESTART)
        call_system(L"kernel32.dll", "RegisterApplicationRestart", static_cast<PCWSTR>(nullptr), DWORD{0});
    return TRUE;
}

BOOL CWinApp::EnableTaskbarInteraction(BOOL bEnable) {
    if (m_pMainWnd != nullptr)
        return FALSE;
    m_taskbar = bEnable;
    return TRUE;
}

void CWinApp::SetAppID(LPCTSTR lpcszAppID) {
    call_system(L"shell32.dll", "SetCurrentProcessExplicitAppUserModelID", static_cast<PCWSTR>(CA2W(lpcszAppID)));
}

void CWinApp::SetDialogBkColor(COLORREF clrCtlBk, COLORREF clrCtlText) {
    if (m_dialog_ground != nullptr)
        ::DeleteObject(m_dialog_ground);
    m_dialog_ground = ::CreateSolidBrush(clrCtlBk);
    m_dialog_colors[0] = clrCtlBk;
    m_dialog_colors[1] = clrCtlText;
}

int CWinApp::ExitInstance() {
    SaveStdProfileSettings();
    return CWinThread::ExitInstance();
}

// A program without a main window has nobody to end it.
int CWinApp::Run() {
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG lCount) {
    CWinThread::OnIdle(lCount);
    for (POSITION at = lCount == 0 ? GetFirstDocTemplatePosition() : nullptr; at != nullptr;)
        GetNextDocTemplate(at)->OnIdle();
    return lCount < 1;
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE || pMsg->message == WM_PAINT)
        return DefaultWndProcException(e, pMsg);
    const bool command = pMsg->message == WM_COMMAND && pMsg->lParam == 0;
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException)))
        e->ReportError(MB_ICONSTOP, command ? AFX_IDP_COMMAND_FAILURE : AFX_IDP_INTERNAL_FAILURE);
    return refusal(*pMsg);
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

void CWinApp::DoWaitCursor(int nCode) {
    change_wait_cursor(nCode);
}

void CWinApp::HideApplication() {
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->ShowOwnedPopups(FALSE);
    m_pMainWnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}

// The system's pointers in place of the framework's, from AFX_IDC_CONTEXTHELP on.
static LPCTSTR standard_pointer(LPCTSTR name) {
    const LPCTSTR pointers[] = {IDC_HELP,     IDC_CROSS,    IDC_SIZEALL, IDC_SIZENS, IDC_SIZEWE,  IDC_NO,
                                IDC_SIZENWSE, IDC_SIZENESW, IDC_SIZENS,  IDC_SIZEWE, IDC_SIZEALL, IDC_SIZEALL};
    const auto index = reinterpret_cast<ULONG_PTR>(name) - AFX_IDC_CONTEXTHELP;
    return index < std::size(pointers) ? pointers[index] : nullptr;
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    const HCURSOR own = ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
    const LPCTSTR standard = own == nullptr ? standard_pointer(lpszResourceName) : nullptr;
    return standard != nullptr ? ::LoadCursor(nullptr, standard) : own;
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
    return ::MessageBox(message_box_owner(), lpszPrompt, name, nType | default_icon(nType));
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    CWinApp* app = AfxGetApp();
    return app != nullptr ? app->DoMessageBox(lpszText, nType, nIDHelp)
                          : CWinApp::ShowAppMessageBox(nullptr, lpszText, nType, nIDHelp);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    text.LoadString(nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    if (CWinApp* app = AfxGetApp()) {
        app->m_hPrevInstance = hPrevInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
        app->SetNames();
    }
    if (AfxGetModuleState() == AfxGetAppModuleState()) // a library's threads are its program's
        hook_message_filter();
    return TRUE;
}

namespace {

int live(CWinApp& app) {
    if (!app.InitApplication())
        return -1;
    if (app.InitInstance())
        return app.Run();
    if (app.m_pMainWnd != nullptr)
        app.m_pMainWnd->DestroyWindow();
    return app.ExitInstance();
}

} // namespace

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    CWinApp* app = AfxGetApp();
    if (!AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) || app == nullptr)
        return -1;
    const int code = live(*app);
    end_ole();
    return code;
}

// Programs that define none of their own take this one from the import library.
extern "C" ZOPAFX_API int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow) {
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}

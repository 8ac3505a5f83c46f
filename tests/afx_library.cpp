// A library that any program may call, with a program object of its own.
#define _USRDLL
#include <afxwin.h>

namespace {

struct library_app : CWinApp {
    BOOL InitInstance() override { return begun = AfxGetApp() == this; }
    int ExitInstance() override { return *told = FALSE, CWinApp::ExitInstance(); }
    BOOL begun = FALSE, *told = &begun;
} library;

class library_window : public CWnd {
    BOOL PreTranslateMessage(MSG*) override { return AfxGetApp() == &library; }
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override {
        return message == WM_USER ? AfxGetApp() == &library : CWnd::WindowProc(message, w, l);
    }
} window;

} // namespace

// Whether its own state is in force in it and in a thread that it begins; FALSE again at its end.
extern "C" __declspec(dllexport) HWND call_library(BOOL* own) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    library.told = own;
    const auto seen = [](LPVOID seen) -> UINT { return *static_cast<BOOL*>(seen) = AfxGetApp() == &library; };
    CWinThread thread(seen, own);
    thread.m_bAutoDelete = FALSE;
    ::WaitForSingleObject(thread.CreateThread() ? thread.m_hThread : nullptr, INFINITE);
    *own = *own && library.begun && AfxGetApp() == &library && AfxGetResourceHandle() == library.m_hInstance;
    window.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0);
    return window.m_hWnd;
}

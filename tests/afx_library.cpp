// A library that any program may call, with a program object of its own.
#define _USRDLL
#include <afxwin.h>

namespace {

class library_app : public CWinApp {
public:
    BOOL InitInstance() override { return begun = AfxGetApp() == this; }
    int ExitInstance() override {
        ::SetEnvironmentVariable("AFX_LIBRARY", "ended");
        return CWinApp::ExitInstance();
    }
    BOOL begun = FALSE;
} library;

class library_window : public CWnd {
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override {
        return message == WM_USER ? AfxGetApp() == &library : CWnd::WindowProc(message, w, l);
    }
} window;

} // namespace

// Without a window: whether its own state is in force in it and in a thread that it begins.
extern "C" __declspec(dllexport) HWND call_library(BOOL* own) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CWinThread* thread =
        AfxBeginThread([](LPVOID seen) -> UINT { return *static_cast<BOOL*>(seen) = AfxGetApp() == &library; }, own,
                       THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    ::WaitForSingleObject(thread->m_hThread, INFINITE);
    delete thread;
    *own = *own && library.begun && AfxGetApp() == &library && AfxGetResourceHandle() == library.m_hInstance;
    window.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0);
    return window.m_hWnd;
}

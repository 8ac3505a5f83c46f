// The beginning and the end of threads.
#include "afx_app.h"
#include "ole_state.h"
#include "thread_state.h"
#include "wnd_state.h"

#include <memory>

#include <process.h>

CWinThread::CWinThread() = default;

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pThreadParams(pParam), m_pfnThreadProc(pfnThreadProc) {}

CWinThread::~CWinThread() {
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    if (this_thread().thread == this)
        this_thread().thread = nullptr;
}

// What the creator hands to the thread. It waits until the thread has taken it, the thread until it may go on.
struct thread_start {
    CWinThread* thread;
    HWND main_window;
    HANDLE taken = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);
    HANDLE go_on = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);

    thread_start(CWinThread* started, HWND main) : thread(started), main_window(main) {}
    ~thread_start() {
        ::CloseHandle(taken);
        ::CloseHandle(go_on);
    }
    thread_start(const thread_start&) = delete;
    thread_start& operator=(const thread_start&) = delete;

    static unsigned __stdcall run(void* record);
};

namespace {

// The creator's main window as the new thread's object; it stays the creator's.
struct borrowed_window {
    CWnd wnd;
    ~borrowed_window() { wnd.Detach(); }
};

void end_thread(BOOL remove) {
    CWinThread* thread = this_thread().thread;
    if (thread != nullptr && remove)
        thread->Delete();
    end_ole();
    end_thread_state();
}

} // namespace

unsigned __stdcall thread_start::run(void* record) {
    UINT code = 0;
    {
        const auto start =
            *std::unique_ptr<std::shared_ptr<thread_start>>(static_cast<std::shared_ptr<thread_start>*>(record));
        CWinThread* thread = start->thread;
        this_thread().thread = thread;
        this_thread().module_state = thread->m_pModuleState;
        if (start->main_window != nullptr && thread->m_pMainWnd == nullptr) {
            CWnd& wnd = of_this_thread<borrowed_window>().wnd;
            wnd.Attach(start->main_window);
            thread->m_pMainWnd = &wnd;
        }
        MSG ignored;
        ::PeekMessage(&ignored, nullptr, WM_USER, WM_USER, PM_NOREMOVE); // makes the queue that messages are posted to
        ::SetEvent(start->taken);
        ::WaitForSingleObject(start->go_on, INFINITE);
        code = thread->Live();
    }
    end_thread(TRUE);
    return code;
}

UINT CWinThread::Live() {
    try {
        if (m_pfnThreadProc != nullptr)
            return m_pfnThreadProc(m_pThreadParams);
        hook_message_filter();
        return static_cast<UINT>(InitInstance() ? Run() : ExitInstance());
    } catch (...) {
        answer_exception({});
        return static_cast<UINT>(-1);
    }
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    if (m_hThread != nullptr)
        return FALSE;
    const auto start = std::make_shared<thread_start>(this, AfxGetMainWnd()->GetSafeHwnd());
    auto record = std::make_unique<std::shared_ptr<thread_start>>(start);
    unsigned id = 0;
    m_hThread = reinterpret_cast<HANDLE>(::_beginthreadex(lpSecurityAttrs, nStackSize, &thread_start::run, record.get(),
                                                          dwCreateFlags | CREATE_SUSPENDED, &id));
    if (m_hThread == nullptr)
        return FALSE;
    record.release();
    m_nThreadID = id;
    const HANDLE thread = m_hThread; // the object may go with its thread as soon as that goes on
    ::ResumeThread(thread);
    ::WaitForSingleObject(start->taken, INFINITE);
    if ((dwCreateFlags & CREATE_SUSPENDED) != 0)
        ::SuspendThread(thread);
    ::SetEvent(start->go_on);
    return TRUE;
}

void CWinThread::Delete() {
    if (m_bAutoDelete)
        delete this;
}

namespace {

// The object is deleted where its thread cannot be started.
CWinThread* begin(CWinThread* thread, int priority, UINT stack, DWORD flags, LPSECURITY_ATTRIBUTES security) {
    if (!thread->CreateThread(flags | CREATE_SUSPENDED, stack, security)) {
        thread->Delete();
        return nullptr;
    }
    thread->SetThreadPriority(priority);
    if ((flags & CREATE_SUSPENDED) == 0)
        thread->ResumeThread();
    return thread;
}

} // namespace

CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    return begin(new CWinThread(pfnThreadProc, pParam), nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                                  LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    auto* thread = DYNAMIC_DOWNCAST(CWinThread, pThreadClass->CreateObject());
    return thread != nullptr ? begin(thread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs) : nullptr;
}

void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete) {
    end_thread(bDelete);
    ::_endthreadex(nExitCode);
    __builtin_unreachable();
}

// The one window procedure, and the hook that brings a window under it before its first message.
#include "afx_app.h"
#include "afx_exception.h"
#include "wnd_state.h"

#include <exception>
#include <utility>

namespace {

// An exception that is not the framework's own, in the shape that the reporting takes.
class foreign_exception : public CException {
public:
    explicit foreign_exception(LPCTSTR text) : m_text(text) {}
    using CException::GetErrorMessage;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT) const override {
        lstrcpyn(lpszError, m_text, static_cast<int>(nMaxError));
        return TRUE;
    }

private:
    CString m_text;
};

LRESULT report(CException* exception, const MSG& message) {
    LRESULT result = refusal(message);
    try {
        CWinThread* thread = AfxGetThread();
        result = thread != nullptr ? thread->ProcessWndProcException(exception, &message)
                                   : CWinThread::DefaultWndProcException(exception, &message);
    } catch (CException* another) {
        if (another != exception)
            another->Delete();
    } catch (...) { // reporting failed as well; nothing may reach the system
    }
    exception->Delete();
    return result;
}

// Called in a handler: tells what was thrown.
LRESULT report_current(const MSG& message) {
    try {
        throw;
    } catch (CException* exception) {
        return report(exception, message);
    } catch (const std::bad_alloc&) {
        return report(new CMemoryException, message);
    } catch (const std::exception& exception) {
        return report(new foreign_exception(exception.what()), message);
    } catch (...) {
        return report(new foreign_exception("An unknown error occurred."), message);
    }
}

// Restores the outer message when the inner one has been handled.
class message_scope {
public:
    explicit message_scope(const MSG& message)
        : m_at(this_thread().last_message), m_outer(std::exchange(m_at, message)) {}
    ~message_scope() { m_at = m_outer; }
    message_scope(const message_scope&) = delete;
    message_scope& operator=(const message_scope&) = delete;

private:
    MSG& m_at;
    const MSG m_outer;
};

bool is_input_method_window(HWND hwnd) {
    char name[8];
    return ::GetClassName(hwnd, name, sizeof(name)) != 0 && lstrcmpi(name, "IME") == 0;
}

} // namespace

LRESULT refusal(const MSG& message) {
    if (message.message == WM_CREATE)
        return -1;
    return message.message == WM_COMMAND ? TRUE : 0; // a command that failed has been handled
}

LRESULT answer_exception(const MSG& message) {
    // Before the report: its message box would have the window painted again, and fail again.
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr);
    try {
        return report_current(message);
    } catch (...) {
        return refusal(message); // no memory for the exception to report
    }
}

LRESULT AfxCallWndProc(CWnd* wnd, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const MSG current{hwnd, message, wParam, lParam, 0, {0, 0}};
    const message_scope scope(current);
    AFX_MANAGE_STATE(wnd->m_module_state);
    try {
        const LRESULT answer = wnd->WindowProc(message, wParam, lParam);
        if (message == WM_SIZE && CWnd::FromHandlePermanent(hwnd) == wnd)
            wnd->ResizeDynamicLayout();
        return answer;
    } catch (...) {
        return answer_exception(current);
    }
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    CWnd* wnd = CWnd::FromHandlePermanent(hWnd);
    if (wnd == nullptr || wnd->m_hWnd != hWnd)
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(wnd, hWnd, nMsg, wParam, lParam);
}

bool take_over_window(CWnd* wnd, HWND hwnd) {
    if (!wnd->Attach(hwnd))
        return false;
    try {
        wnd->PreSubclassWindow();
    } catch (...) {
        wnd->Detach();
        throw;
    }
    const auto old =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (old == nullptr) { // a window of another program
        wnd->Detach();
        return false;
    }
    // The platform's own procedure is called directly, without the detour over a stored one.
    if (old == &::DefWindowProc)
        wnd->m_pfnSuper = nullptr;
    else if (old != &AfxWndProc) // a window that was detached and comes back keeps what it had
        wnd->m_pfnSuper = old;
    wnd->m_module_state = AfxGetModuleState();
    return true;
}

namespace {

LRESULT CALLBACK creation_hook_proc(int code, WPARAM wParam, LPARAM lParam) {
    const HWND hwnd = reinterpret_cast<HWND>(wParam);
    thread_state& state = this_thread();
    if (code == HCBT_CREATEWND && state.wnd_in_creation != nullptr && !is_input_method_window(hwnd)) {
        CWnd* wnd = std::exchange(state.wnd_in_creation, nullptr);
        bool taken = false;
        try {
            taken = take_over_window(wnd, hwnd);
        } catch (...) {
            answer_exception({hwnd, WM_NULL, 0, 0, 0, {0, 0}});
        }
        if (!taken) {
            state.wnd_in_creation = wnd; // the creator lets go of it
            return 1;                    // refuses the creation
        }
    }
    return ::CallNextHookEx(state.creation_hook, code, wParam, lParam);
}

} // namespace

void AFXAPI AfxHookWindowCreate(CWnd* pWnd) {
    thread_state& state = this_thread();
    if (state.creation_hook == nullptr)
        state.creation_hook = ::SetWindowsHookEx(WH_CBT, &creation_hook_proc, nullptr, ::GetCurrentThreadId());
    if (state.creation_hook == nullptr)
        AfxThrowMemoryException();
    state.wnd_in_creation = pWnd;
}

BOOL AFXAPI AfxUnhookWindowCreate() {
    thread_state& state = this_thread();
    ::UnhookWindowsHookEx(std::exchange(state.creation_hook, nullptr));
    return std::exchange(state.wnd_in_creation, nullptr) == nullptr;
}

// The message loop.
#include "afx_app.h"
#include "afx_exception.h"
#include "afxmsg_.h"
#include "frame_state.h"
#include "handle_map.h"
#include "message_map.h"
#include "wnd_state.h"

#include <utility>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace {

BOOL pre_translate(MSG* message) {
    CWinThread* thread = AfxGetThread();
    if (thread == nullptr)
        return CWnd::WalkPreTranslateTree(nullptr, message);
    AFX_MANAGE_STATE(thread->m_pModuleState); // a library's window may run the loop
    return thread->PreTranslateMessage(message);
}

BOOL pump_message() {
    MSG& pumped = this_thread().pumped_message;
    if (::GetMessage(&pumped, nullptr, 0, 0) <= 0)
        return FALSE;
    MSG message = pumped;
    if (!pre_translate(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

// Messages that come on and on, though nothing happens.
BOOL is_idle_message(const MSG& message) {
    constexpr UINT caret_timer = 0x0118;
    if (message.message == WM_PAINT || message.message == caret_timer)
        return FALSE;
    if (message.message != WM_MOUSEMOVE && message.message != WM_NCMOUSEMOVE)
        return TRUE;
    const POINT last = std::exchange(this_thread().last_mouse, message.pt);
    return message.pt.x != last.x || message.pt.y != last.y;
}

LRESULT CALLBACK filter_message(int code, WPARAM wParam, LPARAM lParam) {
    CWinThread* thread = AfxGetThread();
    if (code < 0 || thread == nullptr)
        return ::CallNextHookEx(this_thread().filter_hook, code, wParam, lParam);
    AFX_MANAGE_STATE(thread->m_pModuleState);
    try {
        return thread->ProcessMessageFilter(code, reinterpret_cast<MSG*>(lParam));
    } catch (...) {
        answer_exception({}); // out of a callback of the system
        return FALSE;
    }
}

} // namespace

void hook_message_filter() {
    HHOOK& hook = this_thread().filter_hook;
    if (hook == nullptr)
        hook = ::SetWindowsHookEx(WH_MSGFILTER, &filter_message, nullptr, ::GetCurrentThreadId());
}

thread_state::~thread_state() {
    if (filter_hook != nullptr)
        ::UnhookWindowsHookEx(filter_hook);
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG) {
    return FALSE;
}

int quit_code() {
    const MSG& pumped = this_thread().pumped_message;
    return pumped.message == WM_QUIT ? static_cast<int>(pumped.wParam) : 0;
}

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::ExitInstance() {
    return quit_code();
}

int CWinThread::Run() {
    MSG message;
    bool idle = true;
    LONG count = 0;
    for (;;) {
        if (idle && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            idle = OnIdle(count++);
        } else if (!PumpMessage()) {
            return ExitInstance();
        } else if (IsIdleMessage(&this_thread().pumped_message)) {
            idle = true;
            count = 0;
        }
    }
}

BOOL CWinThread::PumpMessage() {
    return pump_message();
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    return is_idle_message(*pMsg);
}

BOOL AFXAPI AfxPumpMessage() {
    CWinThread* thread = AfxGetThread();
    if (thread == nullptr)
        return pump_message();
    AFX_MANAGE_STATE(thread->m_pModuleState);
    return thread->PumpMessage();
}

BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg) {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->IsIdleMessage(pMsg) : is_idle_message(*pMsg);
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg) {
    return pre_translate(pMsg);
}

MSG* AFXAPI AfxGetCurrentMessage() {
    return &this_thread().pumped_message;
}

void AFXAPI AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr && DispatchThreadMessageEx(pMsg))
        return TRUE;
    CWnd* main = GetMainWnd();
    if (CWnd::WalkPreTranslateTree(main->GetSafeHwnd(), pMsg))
        return TRUE;
    // A modeless dialog or popup lets the main window's accelerators work.
    CWnd* wnd = CWnd::FromHandle(pMsg->hwnd);
    return main != nullptr && main->m_hWnd != nullptr && wnd != nullptr && wnd->GetTopLevelParent() != main &&
           main->PreTranslateMessage(pMsg);
}

BOOL CWinThread::DispatchThreadMessageEx(MSG* pMsg) {
    const AFX_MSGMAP_ENTRY* entry = find_message_entry(GetMessageMap(), pMsg->message);
    if (entry == nullptr)
        return FALSE;
    refuse_what_is_cut(*entry, pMsg->wParam, pMsg->lParam);
    (this->*typed_handler<void (CWinThread::*)(WPARAM, LPARAM)>(*entry))(pMsg->wParam, pMsg->lParam);
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0)
        update_frames(GetMainWnd());
    else
        delete_temporary_objects();
    return lCount <= 0;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    return DefaultWndProcException(e, pMsg);
}

LRESULT CWinThread::DefaultWndProcException(CException* e, const MSG* pMsg) {
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException)))
        e->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL);
    return refusal(*pMsg);
}

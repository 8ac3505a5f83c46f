// The message loop.
#include "afx_app.h"
#include "afx_exception.h"
#include "handle_map.h"
#include "wnd_state.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace {

MSG pumped_message{};

BOOL pre_translate(MSG* message) {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->PreTranslateMessage(message) : CWnd::WalkPreTranslateTree(nullptr, message);
}

BOOL pump_message() {
    if (::GetMessage(&pumped_message, nullptr, 0, 0) <= 0)
        return FALSE;
    MSG message = pumped_message;
    if (!pre_translate(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

// Messages that come on and on, though nothing happens.
BOOL is_idle_message(const MSG& message) {
    static POINT last_mouse{-1, -1};
    constexpr UINT caret_timer = 0x0118;
    if (message.message == WM_PAINT || message.message == caret_timer)
        return FALSE;
    if (message.message != WM_MOUSEMOVE && message.message != WM_NCMOUSEMOVE)
        return TRUE;
    const bool moved = message.pt.x != last_mouse.x || message.pt.y != last_mouse.y;
    last_mouse = message.pt;
    return moved;
}

} // namespace

int quit_code() {
    return pumped_message.message == WM_QUIT ? static_cast<int>(pumped_message.wParam) : 0;
}

CWinThread::~CWinThread() = default;

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
        } else if (IsIdleMessage(&pumped_message)) {
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
    return thread != nullptr ? thread->PumpMessage() : pump_message();
}

BOOL AFXAPI AfxIsIdleMessage() {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->IsIdleMessage(&pumped_message) : is_idle_message(pumped_message);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    return CWnd::WalkPreTranslateTree(m_pMainWnd->GetSafeHwnd(), pMsg);
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount > 0)
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

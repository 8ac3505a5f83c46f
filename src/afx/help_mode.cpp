// Shift+F1: the pointer asks what is clicked next for its help.
#include "afx_app.h"
#include "afx_dialog.h"
#include "afx_frame.h"
#include "afxpriv.h"

#include <utility>

namespace {

// The topic of the place, from the clicked window or one around it.
LPARAM topic_at(CWnd* clicked, CPoint screen) {
    for (CWnd* at = clicked; at != nullptr; at = at->GetParentOwner()) {
        CPoint place = screen;
        at->ScreenToClient(&place);
        const LRESULT topic = at->SendMessage(WM_HELPHITTEST, 0, MAKELPARAM(place.x, place.y));
        if (topic != 0)
            return topic;
    }
    return 0;
}

bool show_topic(CWnd* clicked, LPARAM topic) {
    for (CWnd* at = topic != 0 ? clicked : nullptr; at != nullptr; at = at->GetParentOwner()) {
        if (at->SendMessage(WM_COMMANDHELP, 0, topic) != 0)
            return true;
    }
    return false;
}

enum class choice { waits, clicked, given_up };

// The loop's next message. The pointer shows what it asks; keys other than Escape wait.
choice next_choice(MSG& message) {
    if (::GetMessage(&message, nullptr, 0, 0) <= 0) {
        ::PostQuitMessage(static_cast<int>(message.wParam)); // the outer loop ends as well
        return choice::given_up;
    }
    if (message.message == WM_LBUTTONDOWN)
        return choice::clicked;
    if (message.message == WM_RBUTTONDOWN || (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE))
        return choice::given_up;
    if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST)
        ::SetCursor(::LoadCursor(nullptr, IDC_HELP));
    else if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST)
        ::DispatchMessage(&message);
    return choice::waits;
}

} // namespace

void CWinApp::OnContextHelp() {
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
    if (frame != nullptr)
        frame->OnContextHelp();
}

void CFrameWnd::OnContextHelp() {
    if (std::exchange(m_bHelpMode, TRUE))
        return;
    const HWND self = m_hWnd;
    ::SetCapture(self);
    ::SetCursor(::LoadCursor(nullptr, IDC_HELP));
    MSG message{};
    choice made = choice::waits;
    // Another window that takes the capture, as when another program becomes active, ends it as well.
    while (made == choice::waits && ::IsWindow(self) && m_bHelpMode && ::GetCapture() == self)
        made = next_choice(message);
    if (!::IsWindow(self))
        return;
    ExitHelpMode();
    CWnd* clicked = made == choice::clicked ? WindowFromPoint(message.pt) : nullptr;
    if (clicked != nullptr && !show_topic(clicked, topic_at(clicked, message.pt)))
        SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
}

void CFrameWnd::ExitHelpMode() {
    if (std::exchange(m_bHelpMode, FALSE) && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

LRESULT CFrameWnd::OnHelpHitTest(WPARAM, LPARAM) {
    return m_nIDHelp != 0 ? static_cast<LRESULT>(HID_BASE_RESOURCE + m_nIDHelp) : 0;
}

LRESULT CDialog::OnHelpHitTest(WPARAM, LPARAM) {
    return m_nIDHelp != 0 ? static_cast<LRESULT>(HID_BASE_RESOURCE + m_nIDHelp) : 0;
}

LRESULT CControlBar::OnHelpHitTest(WPARAM, LPARAM lParam) {
    const INT_PTR command = OnToolHitTest(CPoint(lParam), nullptr);
    return command != -1 ? static_cast<LRESULT>(HID_BASE_COMMAND) + command : 0;
}

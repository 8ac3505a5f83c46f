// Questions for help: from the window that is asked to the platform's help program.
#include "afx_app.h"
#include "afx_dialog.h"
#include "afx_frame.h"
#include "afxpriv.h"

namespace {

void ask_main_window(void (CWnd::*question)()) {
    if (CWnd* main = AfxGetMainWnd())
        (main->*question)();
}

} // namespace

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    const CWaitCursor wait;
    CWnd* main = AfxGetMainWnd();
    if (main != nullptr && !::WinHelp(main->GetTopLevelParent()->GetSafeHwnd(), m_pszHelpFilePath, nCmd, dwData))
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::OnHelp() {
    ask_main_window(&CWnd::OnHelp);
}

void CWinApp::OnHelpIndex() {
    ask_main_window(&CWnd::OnHelpIndex);
}

void CWinApp::OnHelpFinder() {
    ask_main_window(&CWnd::OnHelpFinder);
}

void CWinApp::OnHelpUsing() {
    ask_main_window(&CWnd::OnHelpUsing);
}

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    SendMessage(WM_CANCELMODE);
    if (CWinApp* app = AfxGetApp())
        app->WinHelp(dwData, nCmd);
}

void CWnd::OnHelp() {
    CWnd* popup = GetLastActivePopup();
    for (CWnd* at = popup != nullptr ? popup : this; at != nullptr; at = at->GetParentOwner()) {
        if (at->SendMessage(WM_COMMANDHELP) != 0)
            return;
    }
    SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
}

void CWnd::OnHelpIndex() {
    WinHelp(0, HELP_INDEX);
}

void CWnd::OnHelpFinder() {
    WinHelp(0, HELP_FINDER);
}

void CWnd::OnHelpUsing() {
    WinHelp(0, HELP_HELPONHELP);
}

// The key alone means the program's command.
BOOL CWnd::OnHelpInfo(HELPINFO*) {
    CWnd* main = AfxGetMainWnd();
    const bool alone = ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_MENU) >= 0;
    if ((GetStyle() & WS_CHILD) != 0 || main == nullptr || !alone)
        return static_cast<BOOL>(Default());
    main->SendMessage(WM_COMMAND, ID_HELP);
    return TRUE;
}

LRESULT CDialog::OnCommandHelp(WPARAM, LPARAM lParam) {
    const LPARAM topic = lParam == 0 && m_nIDHelp != 0 ? HID_BASE_RESOURCE + m_nIDHelp : lParam;
    if (topic == 0)
        return FALSE;
    AfxGetApp()->WinHelp(static_cast<DWORD_PTR>(topic));
    return TRUE;
}

// A command that the menu shows just now comes first.
LRESULT CFrameWnd::OnCommandHelp(WPARAM, LPARAM lParam) {
    LPARAM topic = lParam;
    if (topic == 0 && IsTracking())
        topic = HID_BASE_COMMAND + m_nIDTracking;
    if (topic == 0 && m_nIDHelp != 0)
        topic = HID_BASE_RESOURCE + m_nIDHelp;
    if (topic == 0)
        return FALSE;
    AfxGetApp()->WinHelp(static_cast<DWORD_PTR>(topic));
    return TRUE;
}

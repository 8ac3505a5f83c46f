// Frames whose menu bar is hidden until a key asks for it.
#include "afx_frame.h"
#include "afxmsg_.h"

#include <utility>

namespace {

// While the program is told of one, which may end the frame.
class menu_bar_change {
public:
    menu_bar_change(HWND frame, bool& on) : m_frame(frame), m_on(on) { m_on = true; }
    ~menu_bar_change() {
        if (!is_over())
            m_on = false;
    }
    menu_bar_change(const menu_bar_change&) = delete;
    menu_bar_change& operator=(const menu_bar_change&) = delete;
    bool is_over() const { return m_frame != nullptr && !::IsWindow(m_frame); }

private:
    HWND m_frame;
    bool& m_on;
};

} // namespace

DWORD CFrameWnd::GetMenuBarVisibility() const {
    return m_dwMenuBarVisibility;
}

DWORD CFrameWnd::GetMenuBarState() const {
    return m_dwMenuBarState;
}

void CFrameWnd::OnShowMenuBar() {}

void CFrameWnd::OnHideMenuBar() {}

void CFrameWnd::SetMenuBarVisibility(DWORD nStyle) {
    ENSURE_ARG(nStyle == AFX_MBV_KEEPVISIBLE || nStyle == AFX_MBV_DISPLAYONFOCUS ||
               nStyle == (AFX_MBV_DISPLAYONFOCUS | AFX_MBV_DISPLAYONF10));
    m_dwMenuBarVisibility = nStyle;
    SetMenuBarState(nStyle == AFX_MBV_KEEPVISIBLE ? AFX_MBS_VISIBLE : AFX_MBS_HIDDEN);
}

BOOL CFrameWnd::SetMenuBarState(DWORD nState) {
    ENSURE_ARG(nState == AFX_MBS_VISIBLE || nState == AFX_MBS_HIDDEN);
    if (nState == m_dwMenuBarState || m_menu_bar_changes)
        return FALSE;
    const menu_bar_change change(m_hWnd, m_menu_bar_changes);
    if (nState == AFX_MBS_VISIBLE)
        OnShowMenuBar();
    else
        OnHideMenuBar();
    if (change.is_over())
        return FALSE;
    const HMENU menu = FrameMenu();
    m_dwMenuBarState = nState;
    SetFrameMenu(menu);
    return TRUE;
}

// The platform forgets a menu that it does not show.
HMENU CFrameWnd::FrameMenu() const {
    return m_dwMenuBarState == AFX_MBS_HIDDEN && m_hMenuHidden != nullptr ? m_hMenuHidden : ::GetMenu(m_hWnd);
}

void CFrameWnd::SetFrameMenu(HMENU menu) {
    const bool hidden = m_dwMenuBarState == AFX_MBS_HIDDEN;
    m_hMenuHidden = hidden ? menu : nullptr;
    ::SetMenu(m_hWnd, hidden ? nullptr : menu);
}

// Which key brings the menu bar up is not told with the command.
void CFrameWnd::NoteMenuKey(const MSG& message) {
    if (message.message == WM_SYSKEYDOWN)
        m_last_system_key = message.wParam;
    else if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE &&
             m_dwMenuBarVisibility != AFX_MBV_KEEPVISIBLE)
        SetMenuBarState(AFX_MBS_HIDDEN);
}

void CFrameWnd::OnSysCommand(UINT nID, LPARAM lParam) {
    const bool by_f10 = lParam == 0 && m_last_system_key == VK_F10;
    const bool stays = (m_dwMenuBarVisibility & AFX_MBV_DISPLAYONF10) != 0;
    if ((nID & 0xFFF0) != SC_KEYMENU || lParam == ' ' || m_dwMenuBarVisibility == AFX_MBV_KEEPVISIBLE ||
        (by_f10 && !stays)) {
        CWnd::OnSysCommand(nID, lParam);
        return;
    }
    const HWND self = m_hWnd;
    const bool was_hidden = m_dwMenuBarState == AFX_MBS_HIDDEN;
    if (was_hidden)
        SetMenuBarState(AFX_MBS_VISIBLE);
    else if (lParam == 0 && !by_f10) // Alt alone
        SetMenuBarState(AFX_MBS_HIDDEN);
    if (!::IsWindow(self) || (!was_hidden && m_dwMenuBarState == AFX_MBS_HIDDEN))
        return;
    CWnd::OnSysCommand(nID, lParam); // until the user leaves the menu
    const bool left_by_key = ::GetKeyState(VK_ESCAPE) < 0 || ::GetKeyState(VK_MENU) < 0;
    if (::IsWindow(self) && (!stays || left_by_key))
        SetMenuBarState(AFX_MBS_HIDDEN);
}

// Frames: layout, bars, menus, the texts of the status bar.
#include "afx_app.h"
#include "afx_frame.h"
#include "afx_view.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "dock_bar.h"
#include "frame_state.h"
#include "position_list.h"

#include <algorithm>
#include <utility>

void update_frames(CWnd* main_window) {
    const auto update = [](HWND hwnd) {
        if (hwnd == nullptr || !::IsWindowVisible(hwnd))
            return;
        ::SendMessage(hwnd, WM_IDLEUPDATECMDUI, TRUE, 0);
        CWnd::SendMessageToDescendants(hwnd, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    };
    const HWND main = main_window->GetSafeHwnd();
    if (main != nullptr && ::GetWindowThreadProcessId(main, nullptr) == ::GetCurrentThreadId())
        update(main);
    std::vector<HWND> others; // an update may end any frame
    for (CFrameWnd* frame : frames_of_this_thread().frames) {
        if (frame->GetSafeHwnd() != main && (frame->GetStyle() & WS_CHILD) == 0)
            others.push_back(frame->GetSafeHwnd());
    }
    std::for_each(others.begin(), others.end(), update);
}

void CFrameWnd::DelayUpdateFrameMenu(HMENU hMenuAlt) {
    m_hMenuAlt = hMenuAlt;
    m_menu_wanted = true;
}

void CFrameWnd::OnIdleUpdateCmdUI() {
    if (std::exchange(m_title_wanted, false))
        OnUpdateFrameTitle(TRUE);
    if (std::exchange(m_menu_wanted, false))
        OnUpdateFrameMenu(m_hMenuAlt);
    for (CControlBar* bar : objects_in<CControlBar>(m_listControlBars))
        m_layout_wanted =
            m_layout_wanted || (bar->m_nStateFlags & (CControlBar::delayShow | CControlBar::delayHide)) != 0;
    if (m_layout_wanted)
        RecalcLayout();
}

void CFrameWnd::OnRecalcParent() {
    RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL) {
    if (m_in_layout || m_hWnd == nullptr)
        return;
    m_in_layout = true;
    m_layout_wanted = false;
    LayoutClient();
    LayoutFloats();
    m_in_layout = false;
}

void CFrameWnd::LayoutClient() {
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, m_rectBorder);
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
    for (CControlBar* bar : objects_in<CControlBar>(m_listControlBars)) {
        if (nID != 0 && static_cast<UINT>(bar->GetDlgCtrlID()) == nID)
            return bar;
    }
    return nullptr;
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
    pBar->DelayShow(bShow);
    if (bDelay)
        m_layout_wanted = true;
    else
        RecalcLayout();
}

void CFrameWnd::DestroyDockBars() {
    for (CDockBar*& bar : m_dock_bars)
        bar = nullptr; // they go with the frame's window
}

BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* bar = GetControlBar(nID);
    if (bar == nullptr)
        return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    CControlBar* bar = GetControlBar(pCmdUI->m_nID);
    if (bar != nullptr)
        pCmdUI->SetCheck(bar->IsVisible());
    else
        pCmdUI->ContinueRouting();
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* pCmdUI) {
    int key = VK_KANA;
    switch (pCmdUI->m_nID) {
    case ID_INDICATOR_CAPS:
        key = VK_CAPITAL;
        break;
    case ID_INDICATOR_NUM:
        key = VK_NUMLOCK;
        break;
    case ID_INDICATOR_SCRL:
        key = VK_SCROLL;
        break;
    }
    pCmdUI->Enable(::GetKeyState(key) & 1);
}

namespace {

// The menu that holds the popup; null where none in the tree does.
HMENU menu_with_popup(HMENU menu, HMENU popup) {
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        const HMENU sub = ::GetSubMenu(menu, i);
        if (sub == popup)
            return menu;
        const HMENU found = sub != nullptr ? menu_with_popup(sub, popup) : nullptr;
        if (found != nullptr)
            return found;
    }
    return nullptr;
}

// None of a menu that is gone.
UINT items_of(const CMenu& menu) {
    return static_cast<UINT>(std::max(::GetMenuItemCount(menu.m_hMenu), 0));
}

// Handlers may have removed or inserted items: the next one to look at.
void keep_place(CCmdUI& state) {
    const UINT count = items_of(*state.m_pMenu);
    if (count < state.m_nIndexMax) {
        const UINT behind = state.m_nIndex + 1;
        UINT next = behind - std::min(behind, state.m_nIndexMax - count);
        while (next < count && state.m_pMenu->GetMenuItemID(static_cast<int>(next)) == state.m_nID)
            ++next;
        state.m_nIndex = next - 1; // the caller goes on from there
    }
    state.m_nIndexMax = count;
}

} // namespace

void CFrameWnd::OnInitMenuPopup(CMenu* pMenu, UINT, BOOL bSysMenu) {
    if (bSysMenu || pMenu == nullptr)
        return;
    CCmdUI state;
    state.m_pMenu = pMenu;
    state.m_pParentMenu = CMenu::FromHandle(menu_with_popup(::GetMenu(m_hWnd), pMenu->m_hMenu));
    state.m_nIndexMax = items_of(*pMenu);
    const HWND self = m_hWnd; // update handlers may end it
    for (; state.m_nIndex < state.m_nIndexMax && ::IsWindow(self); ++state.m_nIndex) {
        state.m_nID = pMenu->GetMenuItemID(static_cast<int>(state.m_nIndex));
        state.m_pSubMenu = nullptr;
        if (state.m_nID == 0)
            continue;
        if (state.m_nID == static_cast<UINT>(-1)) {
            state.m_pSubMenu = pMenu->GetSubMenu(static_cast<int>(state.m_nIndex));
            state.m_nID = state.m_pSubMenu != nullptr ? state.m_pSubMenu->GetMenuItemID(0) : 0;
            if (state.m_nID == 0 || state.m_nID == static_cast<UINT>(-1))
                continue;
            state.DoUpdate(this, FALSE); // popups are not disabled
        } else {
            state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < 0xF000);
        }
        if (::IsWindow(self))
            keep_place(state);
    }
}

namespace {

// The text that tells what a selected item does; 0 where there is none.
UINT prompt_of(UINT id, UINT flags) {
    if (flags == 0xFFFF)
        return AFX_IDS_IDLEMESSAGE; // the menu is closed
    if (id == 0 || (flags & (MF_SEPARATOR | MF_POPUP)) != 0)
        return 0;
    if (id >= 0xF000 && id < 0xF1F0)
        return AFX_IDS_SCFIRST + ((id - 0xF000) >> 4);
    return id >= AFX_IDM_FIRST_MDICHILD ? AFX_IDS_MDICHILD : id;
}

} // namespace

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU) {
    CFrameWnd* top = GetTopLevelFrame();
    const UINT prompt = prompt_of(nItemID, nFlags);
    if (top != nullptr && prompt != top->m_nIDTracking)
        top->SendMessage(WM_SETMESSAGESTRING, prompt);
}

CWnd* CFrameWnd::GetMessageBar() {
    return GetDescendantWindow(m_hWnd, AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID) {
    SendMessage(WM_SETMESSAGESTRING, nID);
}

// The prompt is the text's first line; the tip is its second.
void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const {
    CString text;
    rMessage.Empty();
    if (text.LoadString(nID))
        AfxExtractSubString(rMessage, text, 0);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
    const UINT before = m_nIDLastMessage;
    if (CWnd* bar = GetMessageBar()) {
        CString text;
        if (lParam != 0)
            text = reinterpret_cast<LPCTSTR>(lParam);
        else if (wParam != 0)
            GetMessageString(static_cast<UINT>(wParam), text);
        bar->SetWindowText(text);
    }
    m_nIDLastMessage = m_nIDTracking = static_cast<UINT>(wParam);
    return before;
}

LRESULT CFrameWnd::OnPopMessageString(WPARAM wParam, LPARAM lParam) {
    return SendMessage(WM_SETMESSAGESTRING, wParam, lParam);
}

// A tip is asked for by command, or by control where that has a window.
BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    auto& ansi = *reinterpret_cast<TOOLTIPTEXTA*>(pNMHDR);
    auto& wide = *reinterpret_cast<TOOLTIPTEXTW*>(pNMHDR);
    const bool narrow = pNMHDR->code == TTN_NEEDTEXTA;
    const UINT flags = narrow ? ansi.uFlags : wide.uFlags;
    UINT_PTR id = pNMHDR->idFrom;
    if ((flags & TTF_IDISHWND) != 0)
        id = static_cast<WORD>(::GetDlgCtrlID(reinterpret_cast<HWND>(id)));
    CString text, tip;
    if (id == 0 || !text.LoadString(static_cast<UINT>(id)) || !AfxExtractSubString(tip, text, 1))
        return FALSE;
    if (narrow)
        lstrcpyn(ansi.szText, tip, static_cast<int>(std::size(ansi.szText)));
    else
        ::MultiByteToWideChar(CP_ACP, 0, tip.Left(static_cast<int>(std::size(wide.szText)) - 1), -1, wide.szText,
                              static_cast<int>(std::size(wide.szText)));
    *pResult = 0;
    return TRUE;
}

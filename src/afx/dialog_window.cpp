// What every window that is made from a dialog template, or holds controls, shares.
#include "afx_module.h"
#include "afx_wnd.h"
#include "afxlayout.h"
#include "afxmsg_.h"
#include "afxpriv.h"

namespace {

// The data of a resource; empty where there is none.
struct resource_data {
    const BYTE* bytes = nullptr;
    DWORD size = 0;
};

resource_data find_data(LPCTSTR name, LPCTSTR type, HINSTANCE& module) {
    module = AfxFindResourceHandle(name, type);
    const HRSRC found = ::FindResource(module, name, type);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    if (loaded == nullptr)
        return {};
    return {static_cast<const BYTE*>(::LockResource(loaded)), ::SizeofResource(module, found)};
}

INT_PTR CALLBACK child_dialog_proc(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

// The numbers under which the initial data of boxes is stored, and the messages that they stand for.
UINT message_of(WORD stored) {
    switch (stored) {
    case 0x0401:
        return LB_ADDSTRING;
    case 0x0403:
        return CB_ADDSTRING;
    case 0x1234:
        return CBEM_INSERTITEM;
    default:
        return stored;
    }
}

void insert_extended(HWND box, const char* text) {
    COMBOBOXEXITEM item{};
    item.mask = CBEIF_TEXT;
    item.iItem = -1;
    item.pszText = const_cast<LPTSTR>(text);
    ::SendMessage(box, CBEM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
}

// Records of control, message, length and text until control 0. FALSE where one reaches over the end.
BOOL initialise_controls(HWND dialog, const BYTE* at, const BYTE* end) {
    while (end - at >= 2) {
        WORD head[2];
        DWORD length;
        std::memcpy(head, at, 2);
        if (head[0] == 0)
            return TRUE;
        if (end - at < 8)
            return FALSE;
        std::memcpy(head, at, 4);
        std::memcpy(&length, at + 4, 4);
        at += 8;
        if (length == 0 || length > static_cast<std::size_t>(end - at) || at[length - 1] != 0)
            return FALSE;
        const HWND control = ::GetDlgItem(dialog, head[0]);
        const char* text = reinterpret_cast<const char*>(at);
        const UINT message = message_of(head[1]);
        if (message == CBEM_INSERTITEM)
            insert_extended(control, text);
        else if (message == LB_ADDSTRING || message == CB_ADDSTRING)
            ::SendMessage(control, message, 0, reinterpret_cast<LPARAM>(text));
        at += length;
    }
    return FALSE;
}

} // namespace

BOOL CWnd::CreateDlg(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    HINSTANCE module = nullptr;
    const resource_data data = find_data(lpszTemplateName, RT_DIALOG, module);
    return data.bytes != nullptr && CreateDlgIndirect(reinterpret_cast<LPCDLGTEMPLATE>(data.bytes), pParentWnd, module);
}

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst) {
    if (m_hWnd != nullptr)
        return FALSE;
    AfxHookWindowCreate(this);
    const HWND hwnd =
        ::CreateDialogIndirectParam(hInst, lpDialogTemplate, pParentWnd->GetSafeHwnd(), &child_dialog_proc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return ::IsWindow(hwnd);
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName) {
    constexpr WORD dialog_data = 240;
    HINSTANCE module = nullptr;
    const resource_data data = find_data(lpszResourceName, MAKEINTRESOURCE(dialog_data), module);
    if (data.bytes != nullptr && !initialise_controls(m_hWnd, data.bytes, data.bytes + data.size))
        return FALSE;
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    return TRUE;
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource) {
    constexpr std::size_t most = 0x10000; // memory whose end nobody tells
    const BYTE* bytes = static_cast<const BYTE*>(lpResource);
    if (bytes != nullptr && !initialise_controls(m_hWnd, bytes, bytes + most))
        return FALSE;
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    return TRUE;
}

BOOL CWnd::LoadDynamicLayoutResource(LPCTSTR lpszResourceName) {
    HINSTANCE module = nullptr;
    const resource_data data =
        lpszResourceName != nullptr ? find_data(lpszResourceName, "AFX_DIALOG_LAYOUT", module) : resource_data{};
    InitDynamicLayout();
    return CMFCDynamicLayout::LoadResource(this, const_cast<BYTE*>(data.bytes), data.size);
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    CCmdUI state;
    const HWND self = m_hWnd; // update handlers may end it
    for (HWND at = ::GetTopWindow(self); at != nullptr && ::IsWindow(self); at = ::GetWindow(at, GW_HWNDNEXT)) {
        CWnd* control = FromHandle(at);
        state.m_nID = static_cast<UINT>(::GetDlgCtrlID(at));
        state.m_pOther = control;
        constexpr UINT reflected = WM_REFLECT_BASE + WM_COMMAND;
        CWnd* permanent = FromHandlePermanent(at);
        if (permanent != nullptr &&
            permanent->OnCmdMsg(0, static_cast<int>(MAKELONG(0xFFFF, reflected)), &state, nullptr))
            continue;
        if (CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr))
            continue;
        // Only a button stands for a command.
        const LRESULT code = control->SendMessage(WM_GETDLGCODE);
        const LRESULT style = control->GetStyle() & 0x1F;
        const bool command = (code & DLGC_BUTTON) != 0 && style != BS_AUTOCHECKBOX && style != BS_AUTO3STATE &&
                             style != BS_AUTORADIOBUTTON && style != BS_GROUPBOX;
        state.DoUpdate(pTarget, bDisableIfNoHndler && command);
    }
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    const bool input = (lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST) ||
                       (lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST);
    return input && IsDialogMessage(lpMsg);
}

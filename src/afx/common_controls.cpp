#include "afxcmn.h"
#include "control_classes.h"

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)
IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

BEGIN_MESSAGE_MAP(CTabCtrl, CWnd)
ON_WM_DESTROY()
END_MESSAGE_MAP()

#define CREATE_CONTROL(class_name, kind, window_class)                                                                 \
    BOOL class_name::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {                             \
        prepare_class(kind);                                                                                           \
        return CWnd::Create(window_class, nullptr, dwStyle, rect, pParentWnd, nID);                                    \
    }                                                                                                                  \
    BOOL class_name::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {          \
        prepare_class(kind);                                                                                           \
        return CWnd::CreateEx(dwExStyle, window_class, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);            \
    }

CREATE_CONTROL(CSliderCtrl, ICC_BAR_CLASSES, TRACKBAR_CLASS)
CREATE_CONTROL(CSpinButtonCtrl, ICC_UPDOWN_CLASS, UPDOWN_CLASS)
CREATE_CONTROL(CProgressCtrl, ICC_PROGRESS_CLASS, PROGRESS_CLASS)
CREATE_CONTROL(CHotKeyCtrl, ICC_HOTKEY_CLASS, HOTKEY_CLASS)
CREATE_CONTROL(CAnimateCtrl, ICC_ANIMATE_CLASS, ANIMATE_CLASS)
CREATE_CONTROL(CHeaderCtrl, ICC_LISTVIEW_CLASSES, WC_HEADER)
CREATE_CONTROL(CTabCtrl, ICC_TAB_CLASSES, WC_TABCONTROL)
CREATE_CONTROL(CStatusBarCtrl, ICC_BAR_CLASSES, STATUSCLASSNAME)

#define DRAW_OWN_ITEMS(class_name)                                                                                     \
    void class_name::DrawItem(LPDRAWITEMSTRUCT) {}                                                                     \
    BOOL class_name::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {                     \
        if (CWnd::OnChildNotify(message, wParam, lParam, pResult))                                                     \
            return TRUE;                                                                                               \
        if (message != WM_DRAWITEM)                                                                                    \
            return FALSE;                                                                                              \
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));                                                          \
        return TRUE;                                                                                                   \
    }

DRAW_OWN_ITEMS(CHeaderCtrl)
DRAW_OWN_ITEMS(CTabCtrl)
DRAW_OWN_ITEMS(CStatusBarCtrl)

CString CHotKeyCtrl::GetKeyName(UINT vk, BOOL fExtended) {
    LONG scan = static_cast<LONG>(::MapVirtualKey(vk, MAPVK_VK_TO_VSC) << 16);
    if (fExtended)
        scan |= 0x01000000;
    char name[64] = "";
    ::GetKeyNameText(scan, name, sizeof(name));
    return name;
}

CString CHotKeyCtrl::GetHotKeyName() const {
    static constexpr std::pair<WORD, UINT> modifiers[] = {
        {HOTKEYF_CONTROL, VK_CONTROL}, {HOTKEYF_SHIFT, VK_SHIFT}, {HOTKEYF_ALT, VK_MENU}};
    WORD key = 0, held = 0;
    GetHotKey(key, held);
    CString name;
    if (key == 0 && held == 0)
        return name;
    for (const auto& [flag, modifier] : modifiers) {
        if ((held & flag) != 0)
            name += GetKeyName(modifier, FALSE) + " + ";
    }
    return name + GetKeyName(key, (held & HOTKEYF_EXT) != 0);
}

BOOL CAnimateCtrl::Open(UINT nID) {
    const LPCTSTR name = MAKEINTRESOURCE(nID);
    const HINSTANCE module = AfxFindResourceHandle(name, "AVI");
    return afx_int(SendMessage(ACM_OPEN, reinterpret_cast<WPARAM>(module), afx_param(name)));
}

// The control lets go of a list that an object holds.
void CTabCtrl::OnDestroy() {
    const auto list = reinterpret_cast<HIMAGELIST>(SendMessage(TCM_GETIMAGELIST));
    if (list != nullptr && CImageList::FromHandlePermanent(list) != nullptr)
        SendMessage(TCM_SETIMAGELIST, 0, 0);
    CWnd::OnDestroy();
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                          DWORD dwStateMask) {
    TCITEM item{};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    return InsertItem(nItem, &item);
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const {
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState) {
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(TBM_GETTOOLTIPS))));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    SendMessage(TBM_SETTOOLTIPS, reinterpret_cast<WPARAM>(pWndTip->GetSafeHwnd()));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(TCM_GETTOOLTIPS))));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    SendMessage(TCM_SETTOOLTIPS, reinterpret_cast<WPARAM>(pWndTip->GetSafeHwnd()));
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const {
    const LRESULT answer = SendMessage(SB_GETTEXTLENGTH, static_cast<WPARAM>(nPane));
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

int CStatusBarCtrl::GetText(LPTSTR lpszText, int nPane, int* pType) const {
    const LRESULT answer = SendMessage(SB_GETTEXT, static_cast<WPARAM>(nPane), afx_param(lpszText));
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const {
    CString text;
    GetText(text.GetBuffer(GetTextLength(nPane) + 1), nPane, pType);
    text.ReleaseBuffer();
    return text;
}

// The control does not tell how long a tip is.
CString CStatusBarCtrl::GetTipText(int nPane) const {
    constexpr int longest_tip = 1024;
    CString text;
    char* room = text.GetBufferSetLength(longest_tip);
    *room = '\0';
    SendMessage(SB_GETTIPTEXT, MAKEWPARAM(nPane, longest_tip), afx_param(room));
    text.ReleaseBuffer();
    return text;
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const {
    int borders[3] = {};
    const BOOL known = GetBorders(borders);
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return known;
}

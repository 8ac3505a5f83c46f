#include "afxcmn.h"
#include "atlconv.h"
#include "control_classes.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

BEGIN_MESSAGE_MAP(CToolBarCtrl, CWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    prepare_class(ICC_BAR_CLASSES);
    return CWnd::CreateEx(dwExStyle, TOOLBARCLASSNAME, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

int CToolBarCtrl::OnCreate(LPCREATESTRUCT lpcs) {
    if (CWnd::OnCreate(lpcs) == -1)
        return -1;
    SetButtonStructSize(sizeof(TBBUTTON));
    return 0;
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID) {
    TBADDBITMAP images{AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP), nBitmapID};
    return Ask(TB_ADDBITMAP, nNumButtons, afx_param(&images));
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap) {
    TBADDBITMAP images{nullptr, reinterpret_cast<UINT_PTR>(pBitmap->GetSafeHandle())};
    return Ask(TB_ADDBITMAP, nNumButtons, afx_param(&images));
}

int CToolBarCtrl::AddString(UINT nStringID) {
    const HINSTANCE module = AfxFindStringResourceHandle(nStringID);
    return module != nullptr ? afx_int(SendMessage(TB_ADDSTRING, reinterpret_cast<WPARAM>(module), nStringID)) : -1;
}

int CToolBarCtrl::GetString(int nString, CString& str) const {
    const int length = Ask(TB_GETSTRING, static_cast<int>(MAKELONG(0, nString)));
    if (length < 0)
        return length;
    SendMessage(TB_GETSTRING, MAKEWPARAM(length + 1, nString), afx_param(str.GetBuffer(length + 1)));
    str.ReleaseBuffer();
    return length;
}

CString CToolBarCtrl::GetButtonText(int idButton) const {
    CString text;
    const int length = Ask(TB_GETBUTTONTEXT, idButton);
    if (length <= 0)
        return text;
    Ask(TB_GETBUTTONTEXT, idButton, afx_param(text.GetBuffer(length + 1)));
    text.ReleaseBuffer();
    return text;
}

BOOL CToolBarCtrl::GetPadding(int* pnHorzPadding, int* pnVertPadding) const {
    const LRESULT padding = SendMessage(TB_GETPADDING);
    *pnHorzPadding = LOWORD(padding);
    *pnVertPadding = HIWORD(padding);
    return padding != 0;
}

// In wide characters, which every version of the control takes.
void CToolBarCtrl::SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName) {
    const CA2W key(lpszSubKey), name(lpszValueName);
    const TBSAVEPARAMSW place{hKeyRoot, key, name};
    SendMessage(TB_SAVERESTOREW, TRUE, afx_param(&place));
}

void CToolBarCtrl::RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName) {
    const CA2W key(lpszSubKey), name(lpszValueName);
    const TBSAVEPARAMSW place{hKeyRoot, key, name};
    SendMessage(TB_SAVERESTOREW, FALSE, afx_param(&place));
}

CToolTipCtrl* CToolBarCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(TB_GETTOOLTIPS))));
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip) {
    SendMessage(TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(pTip->GetSafeHwnd()));
}

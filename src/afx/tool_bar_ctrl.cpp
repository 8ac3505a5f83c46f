#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

BEGIN_MESSAGE_MAP(CToolBarCtrl, CWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    const INITCOMMONCONTROLSEX wanted{sizeof(wanted), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&wanted);
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

CToolTipCtrl* CToolBarCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(TB_GETTOOLTIPS))));
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip) {
    SendMessage(TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(pTip->GetSafeHwnd()));
}

#include "afx_extended_ctrls.h"
#include "afx_pager_ctrl.h"
#include "control_classes.h"

IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)
IMPLEMENT_DYNAMIC(CIPAddressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CPagerCtrl, CWnd)

namespace {

CImageList* list_of(LRESULT handle) {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(handle));
}

} // namespace

BOOL CComboBoxEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBoxEx::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    prepare_class(ICC_USEREX_CLASSES);
    return CWnd::CreateEx(dwExStyle, WC_COMBOBOXEX, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

CEdit* CComboBoxEx::GetEditCtrl() {
    return static_cast<CEdit*>(FromHandle(reinterpret_cast<HWND>(SendMessage(CBEM_GETEDITCONTROL))));
}

CComboBox* CComboBoxEx::GetComboBoxCtrl() {
    return static_cast<CComboBox*>(FromHandle(reinterpret_cast<HWND>(SendMessage(CBEM_GETCOMBOCONTROL))));
}

CImageList* CComboBoxEx::GetImageList() const {
    return list_of(SendMessage(CBEM_GETIMAGELIST));
}

CImageList* CComboBoxEx::SetImageList(CImageList* pImageList) {
    return list_of(SendMessage(CBEM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pImageList->GetSafeHandle())));
}

BOOL CIPAddressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CIPAddressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    prepare_class(ICC_INTERNET_CLASSES);
    return CWnd::CreateEx(dwExStyle, WC_IPADDRESS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

int CIPAddressCtrl::GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const {
    DWORD address = 0;
    const int filled = GetAddress(address);
    nField0 = FIRST_IPADDRESS(address);
    nField1 = SECOND_IPADDRESS(address);
    nField2 = THIRD_IPADDRESS(address);
    nField3 = FOURTH_IPADDRESS(address);
    return filled;
}

BOOL CPagerCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CPagerCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    prepare_class(ICC_PAGESCROLLER_CLASS);
    return CWnd::CreateEx(dwExStyle, WC_PAGESCROLLER, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

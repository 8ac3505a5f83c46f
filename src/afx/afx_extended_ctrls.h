// Combo boxes with pictures, and fields for an address of the network.
#pragma once

#include "afx_boxes.h"
#include "afx_common_ctrls.h"
#include "afx_image_list.h"

// An operation sends the message of its name. Items are records, so that it takes no plain texts.
class ZOPAFX_API CComboBoxEx : public CComboBox {
    DECLARE_DYNAMIC(CComboBoxEx)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    using CComboBox::Create;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CComboBox::CreateEx;
    int DeleteItem(int iIndex) { return afx_int(SendMessage(CBEM_DELETEITEM, WPARAM(iIndex))); }
    // Record and text are read or filled as the record's mask says; GetItem has one index -1 for the edit field.
    BOOL GetItem(COMBOBOXEXITEM* pCBItem) { return afx_int(SendMessage(CBEM_GETITEM, 0, afx_param(pCBItem))); }
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem) { return afx_int(SendMessage(CBEM_SETITEM, 0, afx_param(pCBItem))); }
    int InsertItem(const COMBOBOXEXITEM* pCBItem) {
        return afx_int(SendMessage(CBEM_INSERTITEM, 0, afx_param(pCBItem)));
    }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(CBEM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles) {
        return static_cast<DWORD>(SendMessage(CBEM_SETEXTENDEDSTYLE, dwExMask, LPARAM(dwExStyles)));
    }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName) {
        return static_cast<HRESULT>(SendMessage(CBEM_SETWINDOWTHEME, 0, afx_param(pszSubAppName)));
    }
    BOOL HasEditChanged() { return afx_int(SendMessage(CBEM_HASEDITCHANGED)); }
    CEdit* GetEditCtrl();
    CComboBox* GetComboBoxCtrl();
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);

    int AddString(LPCTSTR) = delete;
    int InsertString(int, LPCTSTR) = delete;
    int Dir(UINT, LPCTSTR) = delete;
};

// Four fields from 0 to 255.
class ZOPAFX_API CIPAddressCtrl : public CWnd {
    DECLARE_DYNAMIC(CIPAddressCtrl)

public:
    AFX_CREATE_CONTROL()
    BOOL IsBlank() const { return afx_int(SendMessage(IPM_ISBLANK)); }
    void ClearAddress() { SendMessage(IPM_CLEARADDRESS); }
    // How many fields are not empty.
    int GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const;
    int GetAddress(DWORD& dwAddress) const { return afx_int(SendMessage(IPM_GETADDRESS, 0, afx_param(&dwAddress))); }
    void SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3) {
        SetAddress(MAKEIPADDRESS(nField0, nField1, nField2, nField3));
    }
    void SetAddress(DWORD dwAddress) { SendMessage(IPM_SETADDRESS, 0, LPARAM(dwAddress)); }
    void SetFieldFocus(WORD nField) { SendMessage(IPM_SETFOCUS, nField); }
    void SetFieldRange(int nField, BYTE nLower, BYTE nUpper) {
        SendMessage(IPM_SETRANGE, WPARAM(nField), MAKEIPRANGE(nLower, nUpper));
    }
};

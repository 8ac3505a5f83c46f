// Exchange of data between a dialog's controls and its members.
#pragma once

#include "afx_wnd.h"

class ZOPAFX_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate) : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}
    // Both raise CNotSupportedException where the dialog has no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // Puts the focus on the control prepared last and ends the exchange with CUserException.
    [[noreturn]] void Fail();

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;
    int m_idLastControl = 0;
    BOOL m_bEditLastControl = FALSE;
};

// A number that cannot be read is reported in a message box and fails the exchange.
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
ZOPAFX_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
ZOPAFX_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
ZOPAFX_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
ZOPAFX_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
ZOPAFX_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
// Subclasses the control at the first exchange.
ZOPAFX_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

// Exchange of data between a dialog's controls and its members.
#pragma once

#include "afx_wnd.h"
#include "atltime.h"

namespace ATL {
class COleDateTime;
}

// What DoDataExchange is given; it throws CUserException to end the exchange.
class ZOPAFX_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate) : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

    // The control of the next value; an id that the dialog does not have raises CNotSupportedException.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // Puts the focus on the last control, all of an edit control's text selected, and raises CUserException.
    [[noreturn]] void Fail();

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;
    int m_idLastControl = 0;
    HWND m_hWndLastControl = nullptr; // the same control
    BOOL m_bEditLastControl = FALSE;
};

// Values that the user entered wrongly are told of before the exchange fails.
ZOPAFX_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
ZOPAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
ZOPAFX_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// The id of a group's first button; the value counts the group's radio buttons, -1 where none is chosen.
ZOPAFX_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
ZOPAFX_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
ZOPAFX_API void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
ZOPAFX_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
ZOPAFX_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
ZOPAFX_API void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
ZOPAFX_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
ZOPAFX_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
ZOPAFX_API void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);
ZOPAFX_API void AFXAPI DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value);
ZOPAFX_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value);
ZOPAFX_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value);
ZOPAFX_API void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value);

// Each right behind its control's DDX function. While values are shown, a length limits what can be entered, the
// bounds of times and sliders become the control's; a number out of its bounds is shown as it is.
ZOPAFX_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
ZOPAFX_API void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
ZOPAFX_API void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                                          const CTime* pMaxRange);
ZOPAFX_API void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                                       const CTime* pMaxRange);

// The same with times of automation.
ZOPAFX_API void AFXAPI afx_text_of_date(CDataExchange* pDX, int nIDC, ATL::COleDateTime& value);
ZOPAFX_API void AFXAPI afx_date_of_control(CDataExchange* pDX, int nIDC, ATL::COleDateTime& value);
ZOPAFX_API void AFXAPI afx_date_of_month(CDataExchange* pDX, int nIDC, ATL::COleDateTime& value);
ZOPAFX_API void AFXAPI afx_date_between(CDataExchange* pDX, ATL::COleDateTime& refValue,
                                        const ATL::COleDateTime* pMinRange, const ATL::COleDateTime* pMaxRange);
ZOPAFX_API void AFXAPI afx_month_between(CDataExchange* pDX, ATL::COleDateTime& refValue,
                                         const ATL::COleDateTime* pMinRange, const ATL::COleDateTime* pMaxRange);
inline void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ATL::COleDateTime& value) {
    afx_text_of_date(pDX, nIDC, value);
}
inline void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, ATL::COleDateTime& value) {
    afx_date_of_control(pDX, nIDC, value);
}
inline void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, ATL::COleDateTime& value) {
    afx_date_of_month(pDX, nIDC, value);
}
inline void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, ATL::COleDateTime& refValue,
                                      const ATL::COleDateTime* pMinRange, const ATL::COleDateTime* pMaxRange) {
    afx_date_between(pDX, refValue, pMinRange, pMaxRange);
}
inline void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, ATL::COleDateTime& refValue, const ATL::COleDateTime* pMinRange,
                                   const ATL::COleDateTime* pMaxRange) {
    afx_month_between(pDX, refValue, pMinRange, pMaxRange);
}

// Limits of what the user may enter.
#include "afx_app.h"
#include "afx_data_exchange.h"
#include "afxres.h"
#include "atlcomtime.h"

#include <cfloat>

namespace {

[[noreturn]] void refuse(CDataExchange* pDX, UINT prompt, const CString& first, const CString& second = CString()) {
    CString text;
    AfxFormatString2(text, prompt, first, second);
    AfxMessageBox(text, MB_ICONEXCLAMATION, prompt);
    pDX->Fail();
}

template <class Number> void check_number(CDataExchange* pDX, Number value, Number least, Number most) {
    if (pDX->m_bSaveAndValidate && (value < least || value > most))
        refuse(pDX, AFX_IDP_PARSE_INT_RANGE, std::to_string(least).c_str(), std::to_string(most).c_str());
}

void check_real(CDataExchange* pDX, double value, double least, double most, int digits) {
    if (!pDX->m_bSaveAndValidate || (value >= least && value <= most))
        return;
    CString from, to;
    from.Format("%.*g", digits, least);
    to.Format("%.*g", digits, most);
    refuse(pDX, AFX_IDP_PARSE_REAL_RANGE, from, to);
}

HWND last_control(CDataExchange* pDX) {
    return ::GetDlgItem(pDX->m_pDlgWnd->GetSafeHwnd(), pDX->m_idLastControl);
}

bool is_a_day(const CTime&) {
    return true;
}
bool is_a_day(const COleDateTime& time) {
    return time.GetStatus() == COleDateTime::valid;
}

template <class Time> bool is_before(const Time& a, const Time& b) {
    return is_a_day(a) && is_a_day(b) && a < b;
}

template <class Time>
void check_time(CDataExchange* pDX, const Time& value, const Time* least, const Time* most, UINT set_range) {
    if (pDX->m_bSaveAndValidate) {
        if ((least != nullptr && is_before(value, *least)) || (most != nullptr && is_before(*most, value)))
            refuse(pDX, AFX_IDP_PARSE_DATETIME, CString());
        return;
    }
    SYSTEMTIME bounds[2]{};
    WPARAM given = 0;
    if (least != nullptr && least->GetAsSystemTime(bounds[0]))
        given |= GDTR_MIN;
    if (most != nullptr && most->GetAsSystemTime(bounds[1]))
        given |= GDTR_MAX;
    ::SendMessage(last_control(pDX), set_range, given, reinterpret_cast<LPARAM>(bounds));
}

} // namespace

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars) {
    if (pDX->m_bSaveAndValidate) {
        if (value.GetLength() > nChars)
            refuse(pDX, AFX_IDP_PARSE_STRING_SIZE, std::to_string(nChars).c_str());
        return;
    }
    // A combo box has its own message; what is neither does not know this one.
    const HWND control = last_control(pDX);
    if (pDX->m_bEditLastControl)
        ::SendMessage(control, EM_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
    else
        ::SendMessage(control, CB_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
}

#define CHECK_OF_NUMBER(Name, Number)                                                                                  \
    void AFXAPI DDV_MinMax##Name(CDataExchange* pDX, Number value, Number minVal, Number maxVal) {                     \
        check_number(pDX, value, minVal, maxVal);                                                                      \
    }
CHECK_OF_NUMBER(Byte, BYTE)
CHECK_OF_NUMBER(Short, short)
CHECK_OF_NUMBER(Int, int)
CHECK_OF_NUMBER(Long, long)
CHECK_OF_NUMBER(UInt, UINT)
CHECK_OF_NUMBER(Unsigned, UINT)
CHECK_OF_NUMBER(DWord, DWORD)
CHECK_OF_NUMBER(LongLong, LONGLONG)
CHECK_OF_NUMBER(ULongLong, ULONGLONG)
#undef CHECK_OF_NUMBER

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal) {
    check_real(pDX, value, minVal, maxVal, FLT_DIG);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal) {
    check_real(pDX, value, minVal, maxVal, DBL_DIG);
}

void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    if (pDX->m_bSaveAndValidate) {
        check_number(pDX, value, minVal, maxVal);
        return;
    }
    const HWND control = last_control(pDX);
    ::SendMessage(control, TBM_SETRANGEMIN, FALSE, static_cast<LPARAM>(minVal));
    ::SendMessage(control, TBM_SETRANGEMAX, TRUE, static_cast<LPARAM>(maxVal));
}

void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange, const CTime* pMaxRange) {
    check_time(pDX, refValue, pMinRange, pMaxRange, DTM_SETRANGE);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange, const CTime* pMaxRange) {
    check_time(pDX, refValue, pMinRange, pMaxRange, MCM_SETRANGE);
}

void AFXAPI afx_date_between(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* pMinRange,
                             const COleDateTime* pMaxRange) {
    check_time(pDX, refValue, pMinRange, pMaxRange, DTM_SETRANGE);
}

void AFXAPI afx_month_between(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* pMinRange,
                              const COleDateTime* pMaxRange) {
    check_time(pDX, refValue, pMinRange, pMaxRange, MCM_SETRANGE);
}

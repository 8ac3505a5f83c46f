// Texts and numbers of edit controls.
#include "afx_app.h"
#include "afx_data_exchange.h"
#include "afxres.h"
#include "atlcomtime.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <limits>

namespace {

[[noreturn]] void refuse(CDataExchange* pDX, UINT prompt) {
    AfxMessageBox(prompt, MB_ICONEXCLAMATION, prompt);
    pDX->Fail();
}

CString text_of(HWND control) {
    CString text;
    const int length = ::GetWindowTextLength(control);
    ::GetWindowText(control, text.GetBuffer(length + 1), length + 1);
    text.ReleaseBuffer();
    return text;
}

// A text that is there already stays, with its selection.
void show(HWND control, const CString& text) {
    if (text_of(control) != text)
        ::SetWindowText(control, text);
}

// Numbers of the type, and blanks around them. Widest is signed as the type is.
template <class Number> bool parse(LPCTSTR text, Number& value) {
    using Limits = std::numeric_limits<Number>;
    while (*text == ' ' || *text == '\t')
        ++text;
    if (!Limits::is_signed && *text == '-')
        return false;
    char* end = nullptr;
    errno = 0;
    if constexpr (Limits::is_signed) {
        const long long number = std::strtoll(text, &end, 10);
        if (number < Limits::min() || number > Limits::max())
            return false;
        value = static_cast<Number>(number);
    } else {
        const unsigned long long number = std::strtoull(text, &end, 10);
        if (number > Limits::max())
            return false;
        value = static_cast<Number>(number);
    }
    const bool any = end != text && errno == 0;
    while (*end == ' ' || *end == '\t')
        ++end;
    return any && *end == '\0';
}

template <class Number> void exchange_number(CDataExchange* pDX, int id, Number& value, UINT prompt) {
    const HWND control = pDX->PrepareEditCtrl(id);
    if (!pDX->m_bSaveAndValidate)
        show(control, std::to_string(value).c_str());
    else if (Number entered; parse(text_of(control), entered))
        value = entered;
    else
        refuse(pDX, prompt);
}

template <class Real> void exchange_real(CDataExchange* pDX, int id, Real& value, int digits) {
    const HWND control = pDX->PrepareEditCtrl(id);
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        text.Format("%.*g", digits, static_cast<double>(value));
        show(control, text);
        return;
    }
    CString text = text_of(control);
    text.Trim();
    char* end = nullptr;
    const double entered = std::strtod(text, &end);
    if (text.IsEmpty() || *end != '\0' || !std::isfinite(static_cast<Real>(entered)))
        refuse(pDX, AFX_IDP_PARSE_REAL);
    value = static_cast<Real>(entered);
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_BYTE);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value) {
    exchange_number(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = text_of(control);
    else
        show(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        show(control, value);
        return;
    }
    const CString text = text_of(control);
    if (text.GetLength() >= nMaxLen) {
        CString prompt;
        AfxFormatString1(prompt, AFX_IDP_PARSE_STRING_SIZE, std::to_string(nMaxLen - 1).c_str());
        AfxMessageBox(prompt, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
        pDX->Fail();
    }
    lstrcpyn(value, text, nMaxLen);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    exchange_real(pDX, nIDC, value, FLT_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    exchange_real(pDX, nIDC, value, DBL_DIG);
}

void AFXAPI afx_text_of_date(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
        show(control, value.Format());
    else if (COleDateTime entered; entered.ParseDateTime(text_of(control)))
        value = entered;
    else
        refuse(pDX, AFX_IDP_PARSE_DATETIME);
}

#include "afx_data_exchange.h"
#include "afx_app.h"
#include "afx_exception.h"

#include <cerrno>
#include <cfloat>
#include <climits>
#include <cstdlib>

HWND CDataExchange::PrepareCtrl(int nIDC) {
    const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), nIDC);
    if (control == nullptr)
        AfxThrowNotSupportedException();
    m_idLastControl = nIDC;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_idLastControl != 0) {
        const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), m_idLastControl);
        ::SetFocus(control);
        if (m_bEditLastControl)
            ::SendMessage(control, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* exception) {
        exception->Delete(); // the user has been told already
        return FALSE;
    }
}

void CWnd::DoDataExchange(CDataExchange* pDX) {}

namespace {

// The whole text as one number within bounds, or the exchange fails.
template <class Number, class Parse> Number parsed(CDataExchange* pDX, HWND control, Parse parse, LPCTSTR complaint) {
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    char* end = nullptr;
    errno = 0;
    const auto number = parse(text.Trim().GetString(), &end);
    if (!text.IsEmpty() && *end == '\0' && errno != ERANGE && static_cast<Number>(number) == number)
        return static_cast<Number>(number);
    AfxMessageBox(complaint, MB_ICONEXCLAMATION);
    pDX->Fail();
}

template <class Number> void exchange_integer(CDataExchange* pDX, int nIDC, Number& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        const auto parse = [](const char* text, char** end) { return std::strtoll(text, end, 10); };
        value = parsed<Number>(pDX, control, parse, "Please enter an integer.");
        return;
    }
    CString text;
    text.Format("%lld", static_cast<long long>(value));
    ::SetWindowText(control, text);
}

template <class Number> void exchange_float(CDataExchange* pDX, int nIDC, Number& value, int digits) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        const auto parse = [](const char* text, char** end) {
            if constexpr (sizeof(Number) == sizeof(float))
                return std::strtof(text, end);
            else
                return std::strtod(text, end);
        };
        value = parsed<Number>(pDX, control, parse, "Please enter a number.");
        return;
    }
    CString text;
    text.Format("%.*g", digits, static_cast<double>(value));
    ::SetWindowText(control, text);
}

void exchange_index(CDataExchange* pDX, int nIDC, int& index, UINT get, UINT set) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(control, get, 0, 0));
    else
        ::SendMessage(control, set, static_cast<WPARAM>(index), 0);
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        CWnd::FromHandle(control)->GetWindowText(value);
    else
        ::SetWindowText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    exchange_integer(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    exchange_integer(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    exchange_integer(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    exchange_float(pDX, nIDC, value, FLT_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    exchange_float(pDX, nIDC, value, DBL_DIG);
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    exchange_index(pDX, nIDC, value, BM_GETCHECK, BM_SETCHECK);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    exchange_index(pDX, nIDC, index, LB_GETCURSEL, LB_SETCURSEL);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    exchange_index(pDX, nIDC, index, CB_GETCURSEL, CB_SETCURSEL);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    do { // the buttons of the group, in tab order, up to where the next group begins
        if ((::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0) {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessage(control, BM_SETCHECK, index == value, 0);
            else if (::SendMessage(control, BM_GETCHECK, 0, 0) != 0)
                value = index;
            ++index;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control != nullptr && (::GetWindowLongPtr(control, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr)
        return;
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
        AfxThrowNotSupportedException();
}

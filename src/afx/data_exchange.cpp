#include "afx_data_exchange.h"
#include "afx_app.h"
#include "afxres.h"
#include "thread_state.h"

#include <utility>

namespace {

// Holds the notifications of a window's controls back: they tell of what the program does itself.
class held_back {
public:
    explicit held_back(HWND window) : m_outer(std::exchange(this_thread().updating, window)) {}
    ~held_back() { this_thread().updating = m_outer; }
    held_back(const held_back&) = delete;
    held_back& operator=(const held_back&) = delete;

private:
    HWND m_outer;
};

} // namespace

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    const held_back notifications(m_hWnd);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* exception) {
        exception->Delete(); // the user has been told already
    } catch (CException* exception) {
        exception->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        exception->Delete();
    }
    return FALSE;
}

void CWnd::DoDataExchange(CDataExchange* pDX) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), nIDC);
    if (nIDC == 0 || nIDC == -1 || control == nullptr)
        AfxThrowNotSupportedException();
    m_idLastControl = nIDC;
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), m_idLastControl);
    if (m_bSaveAndValidate && control != nullptr) {
        ::SetFocus(control);
        if (m_bEditLastControl)
            ::SendMessage(control, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

#include "afx_data_exchange.h"
#include "afx_exception.h"

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

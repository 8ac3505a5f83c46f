#include "afxdlgs.h"
#include "modal_parent.h"

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd), m_pd{} {
    m_pd.lStructSize = sizeof(m_pd);
    m_pd.Flags = dwFlags | (bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC);
}

BOOL CPrintDialog::GetDefaults() {
    m_pd.Flags |= PD_RETURNDEFAULT;
    return ::PrintDlg(&m_pd);
}

INT_PTR CPrintDialog::DoModal() {
    const modal_parent parent(m_pParentWnd);
    m_pd.hwndOwner = parent.handle();
    if (::PrintDlg(&m_pd))
        return IDOK;
    return ::CommDlgExtendedError() == 0 ? IDCANCEL : -1;
}

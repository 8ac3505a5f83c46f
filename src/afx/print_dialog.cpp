#include "afxdlgs.h"

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd), m_pd{} {
    m_pd.lStructSize = sizeof(m_pd);
    m_pd.Flags = dwFlags | (bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC);
}

BOOL CPrintDialog::GetDefaults() {
    m_pd.Flags |= PD_RETURNDEFAULT;
    return ::PrintDlg(&m_pd);
}

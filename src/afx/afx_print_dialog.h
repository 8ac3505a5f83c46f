// The print dialog; included by afxdlgs.h.
#pragma once

#include "afx_file_dialog.h"

class ZOPAFX_API CPrintDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPrintDialog)

public:
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS | PD_HIDEPRINTTOFILE |
                                          PD_NOSELECTION,
                          CWnd* pParentWnd = nullptr);

    // Fills m_pd for the default printer without showing anything; FALSE where there is none. The device context, which
    // is made unless only the setup was asked for, and the memory of hDevMode and hDevNames are the caller's.
    BOOL GetDefaults();
    // IDOK or IDCANCEL; -1 where the dialog cannot be shown. m_pd holds what was chosen, and is the caller's as above.
    INT_PTR DoModal() override;
    HDC GetPrinterDC() const { return m_pd.hDC; }

    PRINTDLG m_pd;
};

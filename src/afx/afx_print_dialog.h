// The dialogs for printing and for the page; included by afxdlgs.h.
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
    HDC CreatePrinterDC();
    int GetFromPage() const { return PrintRange() ? m_pd.nFromPage : -1; }
    int GetToPage() const { return PrintRange() ? m_pd.nToPage : -1; }
    int GetCopies() const;
    BOOL PrintCollate() const { return (m_pd.Flags & PD_COLLATE) != 0; }
    BOOL PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    BOOL PrintAll() const { return !PrintRange() && !PrintSelection(); }
    BOOL PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }
    // Locked in the platform's memory, whose handle m_pd.hDevMode is.
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;

    PRINTDLG m_pd;
};

// Paper, margins and printer of a document. The memory of hDevMode and hDevNames in m_psd is the caller's.
class ZOPAFX_API CPageSetupDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPageSetupDialog)

public:
    explicit CPageSetupDialog(DWORD dwFlags = PSD_MARGINS | PSD_INWININIINTLMEASURE, CWnd* pParentWnd = nullptr);

    INT_PTR DoModal() override;
    HDC CreatePrinterDC();
    CSize GetPaperSize() const { return CSize(m_psd.ptPaperSize.x, m_psd.ptPaperSize.y); }
    // Thousandths of an inch or hundredths of a millimetre. Either may be null.
    void GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const;
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    // Before the sample page is drawn, of paper and orientation, and for each of its parts (WM_PSD_ messages), within
    // the rectangle: an answer other than 0 leaves the whole page, or that part, as it is.
    virtual UINT PreDrawPage(WORD wPaper, WORD wFlags, LPPAGESETUPDLG pPSD);
    virtual UINT OnDrawPage(CDC* pDC, UINT nMessage, LPRECT lpRect);

    PAGESETUPDLG m_psd;

private:
    static UINT_PTR CALLBACK PaintHookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
};

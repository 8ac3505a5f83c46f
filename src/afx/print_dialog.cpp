#include "afxdlgs.h"
#include "modal_parent.h"
#include "printer.h"

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

HDC CPrintDialog::CreatePrinterDC() {
    m_pd.hDC = create_printer_context(m_pd);
    return m_pd.hDC;
}

int CPrintDialog::GetCopies() const {
    const LPDEVMODE mode = (m_pd.Flags & PD_USEDEVMODECOPIES) != 0 ? GetDevMode() : nullptr;
    return mode != nullptr ? mode->dmCopies : m_pd.nCopies;
}

LPDEVMODE CPrintDialog::GetDevMode() const {
    return m_pd.hDevMode != nullptr ? static_cast<LPDEVMODE>(::GlobalLock(m_pd.hDevMode)) : nullptr;
}

CString CPrintDialog::Name(WORD DEVNAMES::*offset) const {
    const auto* names =
        m_pd.hDevNames != nullptr ? static_cast<const DEVNAMES*>(::GlobalLock(m_pd.hDevNames)) : nullptr;
    if (names == nullptr)
        return {};
    const CString name = reinterpret_cast<LPCTSTR>(names) + names->*offset;
    ::GlobalUnlock(m_pd.hDevNames);
    return name;
}

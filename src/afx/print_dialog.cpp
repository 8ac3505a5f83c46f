#include "afxdlgs.h"
#include "modal_parent.h"
#include "printer.h"
#include "wnd_state.h"

#include <utility>

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CPageSetupDialog, CCommonDialog)

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

namespace {

CString name_in(HGLOBAL memory, WORD DEVNAMES::*offset) {
    const auto* names = memory != nullptr ? static_cast<const DEVNAMES*>(::GlobalLock(memory)) : nullptr;
    if (names == nullptr)
        return {};
    const CString name = reinterpret_cast<LPCTSTR>(names) + names->*offset;
    ::GlobalUnlock(memory);
    return name;
}

} // namespace

CString CPrintDialog::GetDriverName() const {
    return name_in(m_pd.hDevNames, &DEVNAMES::wDriverOffset);
}

CString CPrintDialog::GetDeviceName() const {
    return name_in(m_pd.hDevNames, &DEVNAMES::wDeviceOffset);
}

CString CPrintDialog::GetPortName() const {
    return name_in(m_pd.hDevNames, &DEVNAMES::wOutputOffset);
}

CPageSetupDialog::CPageSetupDialog(DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd), m_psd{} {
    m_psd.lStructSize = sizeof(m_psd);
    m_psd.Flags = dwFlags | PSD_ENABLEPAGEPAINTHOOK;
    m_psd.lpfnPagePaintHook = &CPageSetupDialog::PaintHookProc;
}

UINT CPageSetupDialog::PreDrawPage(WORD, WORD, LPPAGESETUPDLG) {
    return 0;
}

UINT CPageSetupDialog::OnDrawPage(CDC*, UINT, LPRECT) {
    return 0;
}

namespace {

// The page's window knows nothing of the dialog's object.
thread_local CPageSetupDialog* shown_page_setup = nullptr;

} // namespace

UINT_PTR CALLBACK CPageSetupDialog::PaintHookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        if (shown_page_setup == nullptr)
            return 0;
        if (message == WM_PSD_PAGESETUPDLG)
            return shown_page_setup->PreDrawPage(LOWORD(wParam), HIWORD(wParam),
                                                 reinterpret_cast<LPPAGESETUPDLG>(lParam));
        return shown_page_setup->OnDrawPage(CDC::FromHandle(reinterpret_cast<HDC>(wParam)), message,
                                            reinterpret_cast<LPRECT>(lParam));
    } catch (...) {
        answer_exception({hwnd, message, wParam, lParam, 0, {0, 0}});
        return TRUE;
    }
}

INT_PTR CPageSetupDialog::DoModal() {
    const modal_parent parent(m_pParentWnd);
    m_psd.hwndOwner = parent.handle();
    CPageSetupDialog* const before = std::exchange(shown_page_setup, this);
    const BOOL chosen = ::PageSetupDlg(&m_psd);
    shown_page_setup = before;
    if (chosen)
        return IDOK;
    return ::CommDlgExtendedError() == 0 ? IDCANCEL : -1;
}

HDC CPageSetupDialog::CreatePrinterDC() {
    PRINTDLG chosen{};
    chosen.hDevMode = m_psd.hDevMode;
    chosen.hDevNames = m_psd.hDevNames;
    return create_printer_context(chosen);
}

void CPageSetupDialog::GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const {
    if (lpRectMargins != nullptr)
        *lpRectMargins = m_psd.rtMargin;
    if (lpRectMinMargins != nullptr)
        *lpRectMinMargins = m_psd.rtMinMargin;
}

LPDEVMODE CPageSetupDialog::GetDevMode() const {
    return m_psd.hDevMode != nullptr ? static_cast<LPDEVMODE>(::GlobalLock(m_psd.hDevMode)) : nullptr;
}

CString CPageSetupDialog::GetDriverName() const {
    return name_in(m_psd.hDevNames, &DEVNAMES::wDriverOffset);
}

CString CPageSetupDialog::GetDeviceName() const {
    return name_in(m_psd.hDevNames, &DEVNAMES::wDeviceOffset);
}

CString CPageSetupDialog::GetPortName() const {
    return name_in(m_psd.hDevNames, &DEVNAMES::wOutputOffset);
}

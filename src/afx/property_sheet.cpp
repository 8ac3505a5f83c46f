#include "afxdlgs.h"
#include "modal_parent.h"
#include "wnd_state.h"

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)
IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

CPropertyPage::CPropertyPage(UINT nIDTemplate) : CDialog(nIDTemplate), m_psp{} {
    m_psp.dwSize = sizeof(m_psp);
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.pszTemplate = m_lpszTemplateName;
    m_psp.pfnDlgProc = &CPropertyPage::PageProc;
    m_psp.pfnCallback = &CPropertyPage::PageCallback;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
}

BOOL CPropertyPage::FindModule(HINSTANCE& module) const {
    return module != nullptr ? ::FindResource(module, m_lpszTemplateName, RT_DIALOG) != nullptr
                             : FindTemplate(m_lpszTemplateName, module) != nullptr;
}

// The next window that the system creates is the page's; a page that it could not create is released all the same.
UINT CALLBACK CPropertyPage::PageCallback(HWND, UINT message, PROPSHEETPAGE* page) {
    if (message == PSPCB_RELEASE)
        AfxUnhookWindowCreate();
    if (message != PSPCB_CREATE)
        return TRUE;
    try {
        AfxHookWindowCreate(reinterpret_cast<CPropertyPage*>(page->lParam));
        return TRUE;
    } catch (...) {
        answer_exception({});
        return FALSE; // there will be no such page
    }
}

INT_PTR CALLBACK CPropertyPage::PageProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        AfxUnhookWindowCreate();
    return DialogProc(hwnd, message, wParam, lParam);
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg); // the sheet's keys and tab order include the page's
}

BOOL CPropertyPage::OnSetActive() {
    UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive() {
    return UpdateData();
}

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset() {
    OnCancel();
}

BOOL CPropertyPage::OnQueryCancel() {
    return TRUE;
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

void CPropertyPage::SetModified(BOOL bChanged) {
    if (CWnd* sheet = GetParent())
        sheet->SendMessage(bChanged ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd));
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    if (header->hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    switch (header->code) {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        return TRUE;
    case PSN_KILLACTIVE:
        *pResult = !OnKillActive();
        return TRUE;
    case PSN_APPLY:
        *pResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return TRUE;
    case PSN_RESET:
        OnReset();
        return TRUE;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        return TRUE;
    default:
        return FALSE;
    }
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(MAKEINTRESOURCE(nIDCaption), pParentWnd, iSelectPage) {}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : m_psh{}, m_caption(pszCaption), m_parent(pParentWnd) {
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE | PSH_MODELESS;
    m_psh.nStartPage = iSelectPage;
}

BOOL CPropertySheet::CreateSheet(HWND owner) {
    std::vector<PROPSHEETPAGE> records;
    for (CPropertyPage* page : m_pages) {
        records.push_back(page->m_psp);
        if (!page->FindModule(records.back().hInstance))
            return FALSE;
    }
    if (m_psh.nStartPage >= records.size())
        m_psh.nStartPage = 0;
    m_psh.hwndParent = owner;
    m_psh.pszCaption = m_caption;
    m_psh.nPages = static_cast<UINT>(records.size());
    m_psh.ppsp = records.data();
    AfxHookWindowCreate(this);
    const INT_PTR hwnd = ::PropertySheet(&m_psh);
    m_psh.ppsp = nullptr;
    if (!AfxUnhookWindowCreate() && m_hWnd == nullptr) { // else it is a page that was not created
        PostNcDestroy();
        return FALSE;
    }
    return hwnd != -1 && m_hWnd != nullptr;
}

INT_PTR CPropertySheet::DoModal() {
    if (m_hWnd != nullptr)
        return -1;
    modal_parent parent(m_parent);
    if (m_pages.empty() || !CreateSheet(parent.handle()))
        return -1;
    CenterWindow();
    m_modalResult = -1;
    return parent.run(*this, MLF_SHOWONIDLE);
}

// A sheet that has been answered has no current page any more.
BOOL CPropertySheet::ContinueModal() {
    if (CWnd::ContinueModal() && PropSheet_GetCurrentPageHwnd(m_hWnd) == nullptr)
        EndModalLoop(PropSheet_GetResult(m_hWnd) > 0 ? IDOK : IDCANCEL);
    return CWnd::ContinueModal();
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PropSheet_IsDialogMessage(m_hWnd, pMsg);
}

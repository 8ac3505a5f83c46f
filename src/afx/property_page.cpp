#include "afxdlgs.h"
#include "afxpriv.h"
#include "wnd_state.h"

#include <utility>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage() : m_psp{} {}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, dwSize) {}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD) : m_psp{} {
    Construct(lpszTemplateName, nIDCaption);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD dwSize)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize) {}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD)
    : m_psp{} {
    Construct(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

namespace {

void load_text(CString& text, UINT id, DWORD& flags, DWORD flag) {
    if (id == 0)
        return;
    if (!text.LoadString(id))
        AfxThrowResourceException();
    flags |= flag;
}

} // namespace

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle) {
    Construct(lpszTemplateName, nIDCaption);
    load_text(m_strHeaderTitle, nIDHeaderTitle, m_psp.dwFlags, PSP_USEHEADERTITLE);
    load_text(m_strHeaderSubTitle, nIDHeaderSubTitle, m_psp.dwFlags, PSP_USEHEADERSUBTITLE);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption) {
    m_lpszTemplateName = lpszTemplateName;
    m_psp = {};
    m_psp.dwSize = sizeof(m_psp);
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.pszTemplate = m_lpszTemplateName;
    m_psp.pfnDlgProc = &CPropertyPage::PageProc;
    m_psp.pfnCallback = &CPropertyPage::PageCallback;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    load_text(m_strCaption, nIDCaption, m_psp.dwFlags, PSP_USETITLE);
    if (nIDCaption != 0)
        m_psp.pszTitle = m_strCaption;
}

// The page as the platform takes it; FALSE where there is no template.
BOOL CPropertyPage::Describe(PROPSHEETPAGE& record) const {
    record = m_psp;
    const auto name = [&](LPCTSTR& name, const CString& text, DWORD flag) {
        if ((record.dwFlags & flag) != 0 && !text.IsEmpty())
            name = text; // it may have changed its place
    };
    name(record.pszTitle, m_strCaption, PSP_USETITLE);
    name(record.pszHeaderTitle, m_strHeaderTitle, PSP_USEHEADERTITLE);
    name(record.pszHeaderSubTitle, m_strHeaderSubTitle, PSP_USEHEADERSUBTITLE);
    return record.dwSize != 0 && FindModule(record.hInstance);
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
    if (message == WM_INITDIALOG) {
        AfxUnhookWindowCreate();
        if (auto* page = dynamic_cast<CPropertyPage*>(CWnd::FromHandlePermanent(hwnd)))
            page->m_bFirstSetActive = TRUE;
    }
    return DialogProc(hwnd, message, wParam, lParam);
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg); // the sheet's keys and tab order include the page's
}

// OnInitDialog has shown the data when the page becomes active first, and may have changed what it shows.
BOOL CPropertyPage::OnSetActive() {
    if (!std::exchange(m_bFirstSetActive, FALSE))
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

LRESULT CPropertyPage::OnWizardBack() {
    return 0;
}

LRESULT CPropertyPage::OnWizardNext() {
    return 0;
}

BOOL CPropertyPage::OnWizardFinish() {
    return TRUE;
}

HWND CPropertyPage::OnWizardFinishEx() {
    return OnWizardFinish() ? nullptr : m_hWnd;
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

void CPropertyPage::SetModified(BOOL bChanged) {
    if (CWnd* sheet = GetParent())
        sheet->SendMessage(bChanged ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd));
}

void CPropertyPage::CancelToClose() {
    if (CWnd* sheet = GetParent())
        sheet->PostMessage(PSM_CANCELTOCLOSE);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam) {
    CWnd* sheet = GetParent();
    return sheet != nullptr ? sheet->SendMessage(PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

CPropertySheet* CPropertyPage::GetParentSheet() {
    return dynamic_cast<CPropertySheet*>(GetParent());
}

void CPropertyPage::EndDialog(int nEndID) {
    if (CPropertySheet* sheet = GetParentSheet())
        sheet->EndDialog(nEndID);
}

// Not every version of the sheet sees to the focus.
void CPropertyPage::FinishWizard(LRESULT* result) {
    const HWND stay = OnWizardFinishEx();
    *result = stay != nullptr;
    if (stay != m_hWnd && ::IsChild(m_hWnd, stay))
        ::SendMessage(::GetParent(m_hWnd), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(stay), TRUE);
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
    case PSN_WIZBACK:
        *pResult = OnWizardBack();
        return TRUE;
    case PSN_WIZNEXT:
        *pResult = OnWizardNext();
        return TRUE;
    case PSN_WIZFINISH:
        FinishWizard(pResult);
        return TRUE;
    case PSN_HELP:
        SendMessage(WM_COMMANDHELP);
        return TRUE;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        return TRUE;
    default:
        return FALSE;
    }
}

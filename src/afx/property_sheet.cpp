#include "afxcmn.h"
#include "afxdlgs.h"
#include "dialog_template.h"
#include "modal_parent.h"
#include "wnd_state.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
ON_WM_CLOSE()
END_MESSAGE_MAP()

namespace {

constexpr int tab_control_id = 0x3020;
constexpr DWORD default_style = static_cast<DWORD>(-1);

} // namespace

CPropertySheet::CPropertySheet() {
    Construct("");
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(MAKEINTRESOURCE(nIDCaption), pParentWnd, iSelectPage) {}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(pszCaption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    m_caption = CString(pszCaption); // a number too
    m_parent = pParentWnd;
    m_psh = {};
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE | PSH_MODELESS | PSH_USECALLBACK;
    m_psh.pfnCallback = &CPropertySheet::SheetCallback;
    m_psh.nStartPage = iSelectPage;
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(nIDCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(pszCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(pszCaption, pParentWnd, iSelectPage);
    if (hbmWatermark != nullptr)
        m_psh.dwFlags |= PSH_USEHBMWATERMARK | PSH_WATERMARK;
    if (hpalWatermark != nullptr)
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
    if (hbmHeader != nullptr)
        m_psh.dwFlags |= PSH_USEHBMHEADER | PSH_HEADER;
    m_psh.hbmWatermark = hbmWatermark;
    m_psh.hplWatermark = hpalWatermark;
    m_psh.hbmHeader = hbmHeader;
}

namespace {
// Whose window PropertySheet is about to make; its callback is told nothing else.
thread_local CPropertySheet* sheet_in_creation = nullptr;
} // namespace

// The template before it is used.
int CALLBACK CPropertySheet::SheetCallback(HWND, UINT message, LPARAM lParam) {
    const CPropertySheet* sheet = sheet_in_creation;
    if (message != PSCB_PRECREATE || sheet == nullptr || sheet->m_style == 0)
        return 0;
    BYTE* form = reinterpret_cast<BYTE*>(lParam);
    BYTE* place = form + (is_extended_template(form) ? 12 : 0);
    DWORD style;
    std::memcpy(&style, place, sizeof(style));
    style = sheet->m_style | (style & (DS_SETFONT | DS_SHELLFONT));
    std::memcpy(place, &style, sizeof(style));
    return 0;
}

void CPropertySheet::BuildPropPageArray() {
    m_records.resize(static_cast<std::size_t>(GetPageCount()));
    m_psh.nPages = static_cast<UINT>(GetPageCount());
    m_psh.ppsp = m_records.data();
    for (int i = 0; i < GetPageCount(); ++i) {
        if (!GetPage(i)->Describe(m_records[static_cast<std::size_t>(i)]))
            m_psh.ppsp = nullptr;
    }
}

BOOL CPropertySheet::CreateSheet(HWND owner) {
    BuildPropPageArray();
    if (m_psh.ppsp == nullptr)
        return FALSE;
    if (m_psh.nStartPage >= m_psh.nPages)
        m_psh.nStartPage = 0;
    m_psh.hwndParent = owner;
    m_psh.pszCaption = m_caption;
    CPropertySheet* outer = std::exchange(sheet_in_creation, this);
    AfxHookWindowCreate(this);
    const INT_PTR hwnd = ::PropertySheet(&m_psh);
    sheet_in_creation = outer;
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
    m_bModeless = FALSE;
    m_style = m_extended_style = 0;
    modal_parent parent(m_parent);
    if (m_pages.IsEmpty() || !CreateSheet(parent.handle()))
        return -1;
    CenterWindow();
    m_nModalResult = -1;
    return parent.run(*this, MLF_SHOWONIDLE);
}

// A sheet that has been answered has no current page any more.
BOOL CPropertySheet::ContinueModal() {
    if (CWnd::ContinueModal() && PropSheet_GetCurrentPageHwnd(m_hWnd) == nullptr)
        EndModalLoop(PropSheet_GetResult(m_hWnd) <= 0 ? IDCANCEL : IsWizard() ? ID_WIZFINISH : IDOK);
    return CWnd::ContinueModal();
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PropSheet_IsDialogMessage(m_hWnd, pMsg);
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    if (m_hWnd != nullptr || m_pages.IsEmpty())
        return FALSE;
    m_bModeless = TRUE;
    m_modal = false;
    m_style = dwStyle != default_style ? dwStyle : 0;
    m_extended_style = dwExStyle;
    const DWORD flags = m_psh.dwFlags;
    m_psh.dwFlags |= PSH_NOAPPLYNOW;
    const BOOL created = CreateSheet(pParentWnd->GetSafeHwnd());
    m_psh.dwFlags = flags;
    if (created && m_extended_style != 0)
        ModifyStyleEx(0, m_extended_style, SWP_FRAMECHANGED);
    return created;
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM) {
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog() {
    const HWND tabs = ::GetDlgItem(m_hWnd, tab_control_id);
    if (!m_bStacked && tabs != nullptr)
        CWnd::ModifyStyle(tabs, TCS_MULTILINE, TCS_SINGLELINE, 0);
    const BOOL result = Default() != 0;
    if (m_bModeless && !IsWizard())
        RemoveButtons();
    return result;
}

// A modeless sheet ends where its page ends.
void CPropertySheet::RemoveButtons() {
    CRect place, window;
    GetWindowRect(window);
    int top = window.bottom;
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP}) {
        const HWND button = ::GetDlgItem(m_hWnd, id);
        if (button == nullptr)
            continue;
        if (::GetWindowLongPtr(button, GWL_STYLE) & WS_VISIBLE) {
            ::GetWindowRect(button, place);
            top = std::min<int>(top, place.top);
        }
        ::ShowWindow(button, SW_HIDE);
        ::EnableWindow(button, FALSE);
    }
    SetWindowPos(nullptr, 0, 0, window.Width(), top - window.top, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CPropertySheet::OnClose() {
    if (m_bModeless)
        DestroyWindow();
    else
        Default();
}

void CPropertySheet::EndDialog(int nEndID) {
    EndModalLoop(nEndID);
    if (m_bModeless)
        DestroyWindow();
}

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    m_pages.Add(pPage);
    if (m_hWnd == nullptr)
        return;
    PROPSHEETPAGE record;
    const HPROPSHEETPAGE made = pPage->Describe(record) ? ::CreatePropertySheetPage(&record) : nullptr;
    if (made != nullptr && SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(made)))
        return;
    if (made != nullptr)
        ::DestroyPropertySheetPage(made);
    m_pages.RemoveAt(m_pages.GetUpperBound());
    AfxThrowResourceException();
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) {
    RemovePage(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(int nPage) {
    if (nPage < 0 || nPage >= GetPageCount())
        AfxThrowInvalidArgException();
    if (m_hWnd != nullptr)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(nPage));
    m_pages.RemoveAt(nPage);
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) {
    for (int i = 0; i < GetPageCount(); ++i) {
        if (m_pages[i] == pPage)
            return i;
    }
    return -1;
}

int CPropertySheet::GetActiveIndex() const {
    return m_hWnd != nullptr ? PropSheet_HwndToIndex(m_hWnd, PropSheet_GetCurrentPageHwnd(m_hWnd))
                             : static_cast<int>(m_psh.nStartPage);
}

CPropertyPage* CPropertySheet::GetActivePage() const {
    if (m_hWnd != nullptr)
        return dynamic_cast<CPropertyPage*>(FromHandlePermanent(PropSheet_GetCurrentPageHwnd(m_hWnd)));
    const int start = static_cast<int>(m_psh.nStartPage);
    return start < GetPageCount() ? m_pages[start] : nullptr;
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (nPage < 0 || nPage >= GetPageCount())
        return FALSE;
    if (m_hWnd != nullptr)
        return SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(nPage)) != 0;
    m_psh.nStartPage = static_cast<UINT>(nPage);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) {
    return SetActivePage(GetPageIndex(pPage));
}

CTabCtrl* CPropertySheet::GetTabControl() const {
    return static_cast<CTabCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL))));
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle) {
    m_caption = lpszText;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | nStyle;
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETTITLE, nStyle, reinterpret_cast<LPARAM>(lpszText));
}

#include "afxdlgs.h"
#include "modal_parent.h"
#include "wnd_state.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
}

void CCommonDialog::OnOK() {
    Default();
}

void CCommonDialog::OnCancel() {
    Default();
}

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize, BOOL bVistaStyle)
    : CCommonDialog(pParentWnd), m_ofn{}, m_bOpenFileDialog(bOpenFileDialog), m_strFilter(lpszFilter) {
    if (lpszFileName != nullptr)
        lstrcpyn(m_szFileName, lpszFileName, sizeof(m_szFileName));
    m_strFilter.Replace('|', '\0');
    m_strFilter += CString('\0', 2); // the list's end, also where the filter lacks its own
    m_ofn.lStructSize = sizeof(m_ofn);
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = sizeof(m_szFileName);
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = sizeof(m_szFileTitle);
    m_ofn.lpstrDefExt = lpszDefExt;
    m_ofn.lpstrFilter = lpszFilter != nullptr ? m_strFilter.GetString() : nullptr;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.lpfnHook = &CFileDialog::HookProc;
    m_ofn.lCustData = reinterpret_cast<LPARAM>(this);
}

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = modal_owner(m_pParentWnd);
    m_ofn.lCustData = reinterpret_cast<LPARAM>(this);
    const BOOL chosen = m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CFileDialog::HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG)
        return 0;
    auto* dialog = reinterpret_cast<CFileDialog*>(reinterpret_cast<OPENFILENAME*>(lParam)->lCustData);
    try {
        return !dialog->SubclassWindow(hwnd) || dialog->OnInitDialog();
    } catch (...) {
        answer_exception({hwnd, message, wParam, lParam, 0, {0, 0}});
        return TRUE;
    }
}

void CFileDialog::OnInitDone() {
    GetParent()->CenterWindow();
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CCommonDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    if (reinterpret_cast<const NMHDR*>(lParam)->code != CDN_INITDONE)
        return FALSE;
    OnInitDone();
    return TRUE;
}

CString CFileDialog::GetPathName() const {
    return m_ofn.lpstrFile;
}

CString CFileDialog::GetFileName() const {
    const CString path = GetPathName();
    return path.Mid(path.ReverseFind('\\') + 1);
}

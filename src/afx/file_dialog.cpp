#include "afxdlgs.h"
#include "afxpriv.h"
#include "file_names.h"
#include "modal_parent.h"
#include "shell_file_dialog.h"
#include "wnd_state.h"

#include <dlgs.h>

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
    : CCommonDialog(pParentWnd), m_ofn{}, m_bOpenFileDialog(bOpenFileDialog), m_bVistaStyle(bVistaStyle),
      m_strFilter(lpszFilter) {
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

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal() {
    const modal_parent parent(m_pParentWnd);
    if (m_shell != nullptr || m_bPickFoldersMode) {
        ApplyOFNToShellDialog();
        if (Shell() == nullptr || !Shell()->show(parent.handle()))
            return IDCANCEL;
        UpdateOFNFromShellDialog();
        return m_ofn.lpstrFile != nullptr && *m_ofn.lpstrFile != '\0' ? IDOK : IDCANCEL;
    }
    m_ofn.hwndOwner = parent.handle();
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

BOOL CFileDialog::OnFileNameOK() {
    return FALSE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR) {
    return OFN_SHAREWARN;
}

void CFileDialog::OnFileNameChange() {}

void CFileDialog::OnFolderChange() {}

void CFileDialog::OnTypeChange() {}

// The dialog takes the answer as a dialog's, besides that of the message itself.
BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CCommonDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    const auto* notice = reinterpret_cast<const OFNOTIFY*>(lParam);
    switch (notice->hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        return TRUE;
    case CDN_SELCHANGE:
        OnFileNameChange();
        return TRUE;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        return TRUE;
    case CDN_TYPECHANGE:
        m_ofn.nFilterIndex = notice->lpOFN->nFilterIndex;
        OnTypeChange();
        return TRUE;
    case CDN_HELP: // the command of the button, or the program's help
        if (SendMessage(WM_COMMAND, pshHelp) == 0)
            SendMessage(WM_COMMANDHELP);
        return TRUE;
    case CDN_FILEOK:
        *pResult = OnFileNameOK();
        break;
    case CDN_SHAREVIOLATION:
        *pResult = OnShareViolation(notice->pszFile);
        break;
    default:
        return FALSE;
    }
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

CString CFileDialog::Asked(UINT message) const {
    CString text;
    ::SendMessage(::GetParent(m_hWnd), message, MAX_PATH, reinterpret_cast<LPARAM>(text.GetBufferSetLength(MAX_PATH)));
    text.ReleaseBuffer();
    return text;
}

CString CFileDialog::GetPathName() const {
    if (m_shell != nullptr && m_shell->is_shown())
        return m_shell->path();
    return m_hWnd != nullptr ? Asked(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const {
    return m_hWnd != nullptr ? Asked(CDM_GETSPEC) : file_name_of(GetPathName());
}

CString CFileDialog::GetFileExt() const {
    return extension_of(GetFileName()).Mid(1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    return name.Left(name.GetLength() - extension_of(name).GetLength());
}

CString CFileDialog::GetFolderPath() const {
    if (m_hWnd != nullptr)
        return Asked(CDM_GETFOLDERPATH);
    if (m_shell != nullptr && m_shell->is_shown())
        return m_shell->folder();
    return m_bPickFoldersMode ? GetPathName() : CString();
}

// One file stands with its path; of several, the folder comes first, then each name.
CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const LPCTSTR first = m_ofn.lpstrFile;
    LPCTSTR at = reinterpret_cast<LPCTSTR>(pos);
    if (at == nullptr)
        AfxThrowInvalidArgException();
    const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0 && first[lstrlen(first) + 1] != '\0';
    pos = nullptr;
    if (!several)
        return at;
    const CString folder = first;
    if (at == first)
        at += folder.GetLength() + 1;
    const CString name = at;
    const LPCTSTR next = at + name.GetLength() + 1;
    if (*next != '\0')
        pos = reinterpret_cast<POSITION>(const_cast<LPTSTR>(next));
    return !folder.IsEmpty() && folder[folder.GetLength() - 1] == '\\' ? folder + name : folder + "\\" + name;
}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz) {
    GetParent()->SendMessage(CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID), reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID) {
    GetParent()->SendMessage(CDM_HIDECONTROL, static_cast<WPARAM>(nID));
}

void CFileDialog::SetDefExt(LPCSTR lpsz) {
    GetParent()->SendMessage(CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::SetTemplate(LPCTSTR, LPCTSTR lpWin4ID) {
    m_ofn.hInstance = AfxFindResourceHandle(lpWin4ID, RT_DIALOG);
    m_ofn.lpTemplateName = lpWin4ID;
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

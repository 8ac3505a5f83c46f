#include "afxdlgs.h"

IMPLEMENT_DYNAMIC(CFolderPickerDialog, CFileDialog)

CFolderPickerDialog::CFolderPickerDialog(LPCTSTR lpszFolder, DWORD dwFlags, CWnd* pParentWnd, DWORD dwSize)
    : CFileDialog(TRUE, nullptr, nullptr, dwFlags, nullptr, pParentWnd, dwSize), m_strFolder(lpszFolder) {
    m_bPickFoldersMode = TRUE;
    if (!m_strFolder.IsEmpty())
        m_ofn.lpstrInitialDir = m_strFolder;
}

// The dialog for choosing a folder; included by afxdlgs.h.
#pragma once

#include "afx_file_dialog.h"

// Begins in lpszFolder. After IDOK GetPathName and GetFolderPath answer the chosen folder.
class ZOPAFX_API CFolderPickerDialog : public CFileDialog {
    DECLARE_DYNAMIC(CFolderPickerDialog)

public:
    explicit CFolderPickerDialog(LPCTSTR lpszFolder = nullptr, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr,
                                 DWORD dwSize = 0);

private:
    CString m_strFolder;
};

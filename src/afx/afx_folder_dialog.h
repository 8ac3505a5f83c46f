// The dialog for choosing a folder; included by afxdlgs.h.
#pragma once

#include "afx_file_dialog.h"

// Shows the system's own dialog, in m_ofn.lpstrTitle's name, and begins in lpszFolder. After IDOK GetPathName and
// GetFolderPath answer the chosen folder. Of the flags those are taken that concern folders: OFN_NOCHANGEDIR,
// OFN_PATHMUSTEXIST, OFN_NODEREFERENCELINKS, OFN_DONTADDTORECENT, OFN_FORCESHOWHIDDEN. Its window is the system's:
// no handlers are asked.
class ZOPAFX_API CFolderPickerDialog : public CFileDialog {
    DECLARE_DYNAMIC(CFolderPickerDialog)

public:
    explicit CFolderPickerDialog(LPCTSTR lpszFolder = nullptr, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr,
                                 DWORD dwSize = 0);
    INT_PTR DoModal() override;
    BOOL OnInitDialog() final { return TRUE; }

private:
    BOOL OnFileNameOK() final { return FALSE; }
    UINT OnShareViolation(LPCTSTR) final { return OFN_SHAREWARN; }
    void OnInitDone() final {}
    void OnFileNameChange() final {}
    void OnFolderChange() final {}
    void OnTypeChange() final {}

    CString m_strFolder;
};

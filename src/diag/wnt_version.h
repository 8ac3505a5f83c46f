#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxtempl.h>

#include "zopwnt_api.h"

/// The page of the installed components: each file's status and version information.
class ZOPWNT_API CWntVersionZOPDlg : public CPropertyPage {
    DECLARE_DYNCREATE(CWntVersionZOPDlg)

public:
    CWntVersionZOPDlg();

    /// A piece of a file's version information as a new system string, which the caller frees with SysFreeString():
    /// 1 file version, 2 product version, 3 flags, 4 operating system, 5 file type, 6 language. Empty where the file
    /// has no version information, and for any other kind.
    BSTR GetFileInfo(const char* path, int kind);

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnDestroy();
    // Prints the summary on the default printer.
    afx_msg void OnWntverzopPrint();
    DECLARE_MESSAGE_MAP()

private:
    void FindInstallation();
    void ShowComponents(HWND list);

    CImageList images_;
    CString module_;
    CString full_path_;
    CString directory_;
    CString directory_line_;
    CArray<CString> summary_;
};

/// The page of the Windows environment: machine, user, system, folders.
class ZOPWNT_API CWntVersionWinDlg : public CPropertyPage {
    DECLARE_DYNCREATE(CWntVersionWinDlg)

public:
    CWntVersionWinDlg();

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    CImageList images_;
};

/// Shows which components are installed and on what system.
///
///     CWntVersion("About this installation", this).DoModal();
class ZOPWNT_API CWntVersion : public CPropertySheet {
    DECLARE_DYNAMIC(CWntVersion)

public:
    /// The caption as a string of the host's resources. Page 0 shows the components, 1 the environment.
    explicit CWntVersion(UINT caption, CWnd* parent = nullptr, UINT page = 0);
    /// The caption as a text.
    explicit CWntVersion(const char* caption, CWnd* parent = nullptr, UINT page = 0);

    /// Shows the sheet until it is closed.
    INT_PTR DoModal() override;

protected:
    // Default handling, for derived classes to build on.
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    CWntVersionZOPDlg components_;
    CWntVersionWinDlg environment_;
    bool pages_added_ = false;
};

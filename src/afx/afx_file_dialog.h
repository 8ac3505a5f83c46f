// The file dialog; included by afxdlgs.h.
#pragma once

#include "afxwin.h"

class ZOPAFX_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    // The system ends its own dialogs.
    void OnOK() override;
    void OnCancel() override;
};

// Chooses a file to open (bOpenFileDialog TRUE) or to save. In the object's OnInitDialog its window is a child of the
// dialog, GetParent the dialog itself. lpszFilter is "text|pattern|text|pattern||".
class ZOPAFX_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    INT_PTR DoModal() override;

    CString GetPathName() const;
    CString GetFileName() const;

    OPENFILENAME m_ofn;

protected:
    // The dialog has its final size.
    virtual void OnInitDone();
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    BOOL m_bOpenFileDialog;
    CString m_strFilter;
    char m_szFileTitle[MAX_PATH] = "";
    char m_szFileName[MAX_PATH] = "";

private:
    static UINT_PTR CALLBACK HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
};

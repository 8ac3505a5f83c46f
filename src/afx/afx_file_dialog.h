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

    // While the dialog is shown, what it holds at the moment.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;    // without the dot
    CString GetFileTitle() const;  // without the extension
    CString GetFolderPath() const; // only while it is shown; in CFolderPickerDialog the chosen one
    BOOL IsPickFoldersMode() const { return m_bPickFoldersMode; }
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    // The files chosen with OFN_ALLOWMULTISELECT.
    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_ofn.lpstrFile); }
    CString GetNextPathName(POSITION& pos) const;
    OPENFILENAME& GetOFN() { return m_ofn; }
    const OPENFILENAME& GetOFN() const { return m_ofn; }

    // For its controls, from OnInitDialog on; a template of the program's own before DoModal.
    void SetControlText(int nID, LPCSTR lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);
    void SetTemplate(UINT nWin3ID, UINT nWin4ID) { SetTemplate(MAKEINTRESOURCE(nWin3ID), MAKEINTRESOURCE(nWin4ID)); }
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);

    OPENFILENAME m_ofn;

protected:
    // TRUE keeps the dialog. OnShareViolation answers OFN_SHAREWARN, OFN_SHARENOWARN or OFN_SHAREFALLTHROUGH.
    virtual BOOL OnFileNameOK();
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    // The dialog has its final size.
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    BOOL m_bOpenFileDialog;
    BOOL m_bPickFoldersMode = FALSE;
    CString m_strFilter;
    char m_szFileTitle[MAX_PATH] = "";
    char m_szFileName[MAX_PATH] = "";

private:
    CString Asked(UINT message) const;
    static UINT_PTR CALLBACK HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
};

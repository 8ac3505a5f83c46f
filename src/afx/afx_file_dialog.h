// The file dialog; included by afxdlgs.h.
#pragma once

#include "afxwin.h"

#include <memory>
#include <shobjidl.h>

class shell_file_dialog;

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
// dialog, GetParent the dialog itself. lpszFilter is "text|pattern|text|pattern||". A program that adds controls, or
// chooses folders, gets the system's newer dialog, which has no window for the object: it tells what happens by the
// virtual functions but OnInitDialog and OnInitDone.
class ZOPAFX_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;
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

    // Controls of the program's own in the newer dialog, by numbers that it chooses; before or while it is shown.
    // E_FAIL where bVistaStyle was FALSE. Items belong to menus, combo boxes and lists of radio buttons.
    HRESULT StartVisualGroup(DWORD dwIDCtl, const CString& strLabel);
    HRESULT EndVisualGroup();
    HRESULT AddMenu(DWORD dwIDCtl, const CString& strLabel);
    HRESULT AddPushButton(DWORD dwIDCtl, const CString& strLabel);
    HRESULT AddComboBox(DWORD dwIDCtl);
    HRESULT AddRadioButtonList(DWORD dwIDCtl);
    HRESULT AddCheckButton(DWORD dwIDCtl, const CString& strLabel, BOOL bChecked);
    HRESULT AddEditBox(DWORD dwIDCtl, const CString& strText);
    HRESULT AddSeparator(DWORD dwIDCtl);
    HRESULT AddText(DWORD dwIDCtl, const CString& strText);
    HRESULT AddControlItem(DWORD dwIDCtl, DWORD dwIDItem, const CString& strLabel);
    HRESULT RemoveControlItem(DWORD dwIDCtl, DWORD dwIDItem);
    HRESULT EnableOpenDropDown(DWORD dwIDCtl);
    HRESULT MakeProminent(DWORD dwIDCtl);
    HRESULT SetControlLabel(DWORD dwIDCtl, const CString& strLabel);
    HRESULT GetControlState(DWORD dwIDCtl, CDCONTROLSTATEF& dwState);
    HRESULT SetControlState(DWORD dwIDCtl, CDCONTROLSTATEF dwState);
    HRESULT GetControlItemState(DWORD dwIDCtl, DWORD dwIDItem, CDCONTROLSTATEF& dwState);
    HRESULT SetControlItemState(DWORD dwIDCtl, DWORD dwIDItem, CDCONTROLSTATEF dwState);
    HRESULT SetControlItemText(DWORD dwIDCtl, DWORD dwIDItem, const CString& strLabel);
    HRESULT GetEditBoxText(DWORD dwIDCtl, CString& strText);
    HRESULT SetEditBoxText(DWORD dwIDCtl, const CString& strText);
    HRESULT GetCheckButtonState(DWORD dwIDCtl, BOOL& bChecked);
    HRESULT SetCheckButtonState(DWORD dwIDCtl, BOOL bChecked);
    HRESULT GetSelectedControlItem(DWORD dwIDCtl, DWORD& dwIDItem);
    HRESULT SetSelectedControlItem(DWORD dwIDCtl, DWORD dwIDItem);
    // Folders beside the list of files.
    void AddPlace(LPCWSTR lpszFolder, FDAP fdap = FDAP_TOP);
    void AddPlace(IShellItem* psi, FDAP fdap = FDAP_TOP);
    // DoModal does both.
    void ApplyOFNToShellDialog();
    virtual void UpdateOFNFromShellDialog();
    // The newer dialog itself, counted for the caller; null where it is none of that kind.
    IFileOpenDialog* GetIFileOpenDialog();
    IFileSaveDialog* GetIFileSaveDialog();
    IFileDialogCustomize* GetIFileDialogCustomize();

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
    // Of added controls.
    virtual void OnItemSelected(DWORD dwIDCtl, DWORD dwIDItem);
    virtual void OnButtonClicked(DWORD dwIDCtl);
    virtual void OnCheckButtonToggled(DWORD dwIDCtl, BOOL bChecked);
    virtual void OnControlActivating(DWORD dwIDCtl);
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    BOOL m_bOpenFileDialog;
    BOOL m_bVistaStyle;
    BOOL m_bPickFoldersMode = FALSE;
    CString m_strFilter;
    char m_szFileTitle[MAX_PATH] = "";
    char m_szFileName[MAX_PATH] = "";

private:
    friend class shell_file_dialog;
    shell_file_dialog* Shell();
    template <class... Parameters, class... Arguments>
    HRESULT Control(HRESULT (STDMETHODCALLTYPE IFileDialogCustomize::*call)(Parameters...), Arguments... arguments);
    template <class Interface> Interface* Ask();
    CString Asked(UINT message) const;
    static UINT_PTR CALLBACK HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    std::unique_ptr<shell_file_dialog> m_shell;
};

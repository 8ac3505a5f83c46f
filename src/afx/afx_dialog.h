// Dialogs, modal and modeless, from templates in the resource chain or in memory.
#pragma once

#include "afx_data_exchange.h"

class ZOPAFX_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
    DECLARE_MESSAGE_MAP()

public:
    CDialog() = default;
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // Modeless; OnInitDialog has run, and thrown nothing, when they answer TRUE.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    using CWnd::Create;
    // From templates in memory, with the initial data of boxes where there is some.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    // For a DoModal with a template in memory, which the caller keeps until then.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr, void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    // Runs the dialog with its parent disabled; the argument of EndDialog, or -1 where it cannot be created, is
    // shown already, or ends by other means.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    void NextDlgCtrl() const { ::PostMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::PostMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl) {
        ::PostMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->GetSafeHwnd()), TRUE);
    }
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }
    // Whether DoModal is to centre a dialog whose template does not place it.
    virtual BOOL CheckAutoCenter();
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; }
    // The font of the controls, before they are made.
    virtual void OnSetFont(CFont* pFont);

    // TRUE lets the system set the focus.
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    // The handlers of IDOK and IDCANCEL: both end a modal dialog, OK after the exchange of data.
    virtual void OnOK();
    virtual void OnCancel();
    // Before OnInitDialog.
    virtual void PreInitDialog();

    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    // For the maps of programs: WM_INITDIALOG and WM_SETFONT lead to OnInitDialog and OnSetFont without them.
    afx_msg LRESULT HandleInitDialog(WPARAM, LPARAM) { return Default(); }
    afx_msg LRESULT HandleSetFont(WPARAM, LPARAM) { return Default(); }
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnHelpHitTest(WPARAM wParam, LPARAM lParam);

    UINT m_nIDHelp = 0; // the template's number, or another for the help
    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;

    static LPCDLGTEMPLATE FindTemplate(LPCTSTR name, HINSTANCE& module);
    static INT_PTR CALLBACK DialogProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

private:
    // After an exception of OnInitDialog.
    virtual void RefuseToOpen();
    BOOL CreateFrom(LPCDLGTEMPLATE form, HINSTANCE module, HWND owner);

    CRect m_made_at{0, 0, 0, 0}; // before OnInitDialog
};

// Its name in the first versions.
#define CModalDialog CDialog

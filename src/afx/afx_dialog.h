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
    // For a DoModal with a template in memory, which the caller keeps until then.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr, void* lpDialogInit = nullptr);

    // Runs the dialog with its parent disabled; the argument of EndDialog, or -1 where it cannot be created, is
    // shown already, or ends by other means.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    // TRUE lets the system set the focus.
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    // The handlers of IDOK and IDCANCEL: both end a modal dialog, OK after the exchange of data.
    virtual void OnOK();
    virtual void OnCancel();

    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;

    static LPCDLGTEMPLATE FindTemplate(LPCTSTR name, HINSTANCE& module);
    static INT_PTR CALLBACK DialogProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

private:
    // After an exception of OnInitDialog.
    virtual void RefuseToOpen();
    BOOL CreateFrom(LPCDLGTEMPLATE form, HINSTANCE module, HWND owner);
};

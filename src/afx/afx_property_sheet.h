// Property sheets and their pages; included by afxdlgs.h.
#pragma once

#include "afxwin.h"

#include <vector>

#include <prsht.h>

// One page of a sheet, a dialog whose template's caption is the tab's.
class ZOPAFX_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)

public:
    explicit CPropertyPage(UINT nIDTemplate);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    PROPSHEETPAGE m_psp; // hInstance set: the template is that module's, whatever the resource chain holds

    // FALSE keeps what the sheet was asked to leave: another page, its end. Leaving a page and applying take its data
    // over; OnApply calls OnOK.
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual BOOL OnApply();
    virtual void OnReset();
    virtual BOOL OnQueryCancel();
    void SetModified(BOOL bChanged = TRUE);

protected:
    // The sheet's buttons end the sheet; a page has none of its own.
    void OnOK() override;
    void OnCancel() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    friend class CPropertySheet;
    void RefuseToOpen() override { EnableWindow(FALSE); } // stays: the sheet counts on its page's window and shows it
    BOOL FindModule(HINSTANCE& module) const;
    static UINT CALLBACK PageCallback(HWND hwnd, UINT message, PROPSHEETPAGE* page);
    static INT_PTR CALLBACK PageProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
};

// Pages are the caller's and outlive the sheet.
class ZOPAFX_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)

public:
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);

    void AddPage(CPropertyPage* pPage) { m_pages.push_back(pPage); }
    int GetActiveIndex() const { return PropSheet_HwndToIndex(m_hWnd, PropSheet_GetCurrentPageHwnd(m_hWnd)); }
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }

    // IDOK or IDCANCEL, or -1 where the sheet cannot be created. The pages' templates are looked up before any window
    // of the sheet exists.
    virtual INT_PTR DoModal();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ContinueModal() override;

    PROPSHEETHEADER m_psh;

private:
    BOOL CreateSheet(HWND owner);

    CString m_caption;
    CWnd* m_parent;
    std::vector<CPropertyPage*> m_pages;
};

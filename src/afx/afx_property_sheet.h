// Property sheets and their pages; included by afxdlgs.h.
#pragma once

#include "afxtempl.h"
#include "afxwin.h"

#include <vector>

#include <prsht.h>

class CPropertySheet;
class CTabCtrl;

#ifndef ID_WIZBACK
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025
#endif
#ifndef ID_APPLY_NOW
#define ID_APPLY_NOW 0x3021
#endif

// One page of a sheet, a dialog whose template's caption is the tab's unless the constructor is given another.
class ZOPAFX_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    // With the header of a wizard with PSH_WIZARD97.
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    void Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0) {
        Construct(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
    }
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0);
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0) { Construct(MAKEINTRESOURCE(nIDTemplate), nIDCaption); }
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    PROPSHEETPAGE m_psp; // hInstance set: the template is that module's, whatever the resource chain holds
    PROPSHEETPAGE& GetPSP() { return m_psp; }
    const PROPSHEETPAGE& GetPSP() const { return m_psp; }

    // FALSE keeps what the sheet was asked to leave: another page, its end. Leaving a page and applying take its data
    // over; OnApply calls OnOK.
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual BOOL OnApply();
    virtual void OnReset();
    virtual BOOL OnQueryCancel();
    // 0 goes on, -1 stays, the template of another page of the sheet leads there. FALSE of the last keeps the sheet.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    virtual BOOL OnWizardFinish();
    // Null ends the sheet; else it stays, with the focus in the control. Calls OnWizardFinish.
    virtual HWND OnWizardFinishEx();

    void SetModified(BOOL bChanged = TRUE);
    // What was done cannot be undone any more: the buttons say so.
    void CancelToClose();
    // PSM_QUERYSIBLINGS goes from page to page until one answers something other than 0.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);
    virtual CPropertySheet* GetParentSheet();
    void EndDialog(int nEndID);

protected:
    // The sheet's buttons end the sheet; a page has none of its own.
    void OnOK() override;
    void OnCancel() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    CString m_strCaption, m_strHeaderTitle, m_strHeaderSubTitle;

private:
    friend class CPropertySheet;
    void RefuseToOpen() override { EnableWindow(FALSE); } // stays: the sheet counts on its page's window and shows it
    void FinishWizard(LRESULT* result);
    BOOL FindModule(HINSTANCE& module) const;
    BOOL Describe(PROPSHEETPAGE& record) const;
    static UINT CALLBACK PageCallback(HWND hwnd, UINT message, PROPSHEETPAGE* page);
    static INT_PTR CALLBACK PageProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    BOOL m_bFirstSetActive = TRUE;
};

// Pages are the caller's and outlive the sheet.
class ZOPAFX_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)
    DECLARE_MESSAGE_MAP()

public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    // With pictures, which stay the caller's, for a wizard with PSH_WIZARD97: beside the first and the last page, and
    // over the others.
    CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    void Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr) {
        Construct(MAKEINTRESOURCE(nIDCaption), pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
    }
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0) {
        Construct(MAKEINTRESOURCE(nIDCaption), pParentWnd, iSelectPage);
    }
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);

    // Pages may come and go while the sheet is shown.
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.GetSize()); }
    CPropertyPage* GetPage(int nPage) const { return m_pages[nPage]; }
    int GetPageIndex(CPropertyPage* pPage); // -1 where it is not in the sheet
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    // The first page to be shown, or, while the sheet is, the current one.
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);
    CTabCtrl* GetTabControl() const;
    void EnableStackedTabs(BOOL bStacked) { m_bStacked = bStacked; }
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);

    BOOL IsModeless() const { return m_bModeless; }
    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    BOOL IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0; }
    void SetWizardButtons(DWORD dwFlags) { PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags)); }
    void SetFinishText(LPCTSTR lpszText) { SendMessage(PSM_SETFINISHTEXT, 0, reinterpret_cast<LPARAM>(lpszText)); }

    // IDOK, ID_WIZFINISH or IDCANCEL, or -1 where the sheet cannot be created. The pages' templates are looked up
    // before any window of the sheet exists.
    virtual INT_PTR DoModal();
    // Modeless: without buttons of its own, until DestroyWindow. dwStyle -1: a popup with a caption, visible.
    virtual BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1), DWORD dwExStyle = 0);
    using CWnd::Create;
    void EndDialog(int nEndID);
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    BOOL PressButton(int nButton) { return SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton)) != 0; }

    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ContinueModal() override;

    PROPSHEETHEADER m_psh;
    // Makes the pages' records in m_psh, which a program may change then: ppsp null where a template is missing.
    virtual void BuildPropPageArray();

protected:
    CTypedPtrArray<CPtrArray, CPropertyPage*> m_pages;
    BOOL m_bModeless = FALSE;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnClose();

private:
    BOOL CreateSheet(HWND owner);
    void RemoveButtons();
    static int CALLBACK SheetCallback(HWND hwnd, UINT message, LPARAM lParam);

    CString m_caption;
    CWnd* m_parent = nullptr;
    std::vector<PROPSHEETPAGE> m_records;
    BOOL m_bStacked = TRUE;
    DWORD m_style = 0, m_extended_style = 0;
};

// The older names of what can do this now.
typedef CPropertyPage CPropertyPageEx;
typedef CPropertySheet CPropertySheetEx;

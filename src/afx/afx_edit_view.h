// Views that are a text editor; included by afxext.h.
#pragma once

#include "afx_controls.h"
#include "afx_view.h"

// The control holds the text; the document's Serialize calls SerializeRaw. Edit commands work by themselves.
class ZOPAFX_API CEditView : public CCtrlView {
    DECLARE_DYNCREATE(CEditView)
    DECLARE_MESSAGE_MAP()

public:
    CEditView();
    ~CEditView() override;

    static const DWORD dwStyleDefault;
    CEdit& GetEditCtrl() const { return reinterpret_cast<CEdit&>(const_cast<CEditView&>(*this)); }
    UINT GetBufferLength() const;
    // The text until UnlockBuffer; it may be changed in place by nobody else.
    LPCTSTR LockBuffer() const;
    void UnlockBuffer() const;
    void GetSelectedText(CString& strResult) const;
    void SetTabStops(int nTabStops);
    // Selects the next place; FALSE where there is none.
    BOOL FindText(LPCTSTR lpszFind, BOOL bNext = TRUE, BOOL bCase = TRUE);
    void SetPrinterFont(CFont* pFont) { m_hPrinterFont = static_cast<HFONT>(pFont->GetSafeHandle()); }
    CFont* GetPrinterFont() const { return CFont::FromHandle(m_hPrinterFont); }
    // The whole text, without a length in front.
    void SerializeRaw(CArchive& ar);
    virtual void DeleteContents();
    // Draws the text from the place on that fits into the rectangle; answers where it ended.
    UINT PrintInsideRect(CDC* pDC, RECT& rectLayout, UINT nIndexStart, UINT nIndexStop);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override;
    void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override;
    void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;

    // Lays out the pages up to the record's current one; FALSE where there is no such page.
    BOOL PaginateTo(CDC* pDC, CPrintInfo* pInfo);

    // What the box for searching asks for; nothing found is no error, and sounds.
    virtual void OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase);
    virtual void OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace);
    virtual void OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase);
    virtual void OnTextNotFound(LPCTSTR lpszFind);
    void OnEditFindReplace(BOOL bFindOnly);
    BOOL SameAsSelected(LPCTSTR lpszCompare, BOOL bCase);
    // Whether the text in the box is selected; else the next place becomes so.
    BOOL InitializeReplace();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEditChange();
    afx_msg void OnEditCut();
    afx_msg void OnEditCopy();
    afx_msg void OnEditPaste();
    afx_msg void OnEditClear();
    afx_msg void OnEditUndo();
    afx_msg void OnEditSelectAll();
    afx_msg void OnEditFind();
    afx_msg void OnEditReplace();
    afx_msg void OnEditRepeat();
    afx_msg LRESULT OnFindReplaceCmd(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateNeedFind(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedSel(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedClip(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedText(CCmdUI* pCmdUI);
    afx_msg void OnUpdateEditUndo(CCmdUI* pCmdUI);

    int m_nTabStops = 32; // a quarter of a character's breadth

private:
    HFONT m_hPrinterFont = nullptr;
    HFONT m_print_font = nullptr; // the screen's at the printer's size, where no other was set
    std::vector<UINT> m_pages;    // where each page begins
    mutable CString m_shadow;
};

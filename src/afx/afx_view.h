// Views: windows that show a document, in a frame or a pane of a splitter.
#pragma once

#include "afx_frame.h"

class CPreviewView;
class CDocument;
class CPrintDialog;
class CSplitterWnd;
class print_box;

// One printing of a view: what the user chose, and the page that is printed.
struct ZOPAFX_API CPrintInfo {
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD;
    BOOL m_bPreview = FALSE;
    BOOL m_bDirect = FALSE; // nobody is asked
    BOOL m_bContinuePrinting = TRUE;
    UINT m_nCurPage = 1;
    UINT m_nNumPreviewPages = 0; // wished for by the program
    CString m_strPageDesc;
    LPVOID m_lpUserData = nullptr;
    CRect m_rectDraw; // the page, in the context's logical units
    int m_nOffsetPage = 0;
    BOOL m_bDocObject = FALSE; // there are none
    DWORD m_dwFlags = 0;

    void SetMinPage(UINT nMinPage);
    void SetMaxPage(UINT nMaxPage);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    UINT GetFromPage() const;
    UINT GetToPage() const;
    UINT GetOffsetPage() const { return static_cast<UINT>(m_nOffsetPage); }
};

// Draws its document by OnDraw, on the screen and on the printer.
class ZOPAFX_API CView : public CWnd {
    DECLARE_DYNAMIC(CView)
    DECLARE_MESSAGE_MAP()

public:
    CDocument* GetDocument() const { return m_pDocument; }
    // Before the view is shown the first time, and whenever its document is another.
    virtual void OnInitialUpdate();
    virtual BOOL IsSelected(const CObject*) const { return FALSE; }
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr);
    BOOL DoPreparePrinting(CPrintInfo* pInfo);
    static CSplitterWnd* PASCAL GetParentSplitter(const CWnd* pWnd, BOOL bAnyState);
    CScrollBar* GetScrollBarCtrl(int nBar) const override;
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // For the maps of programs, which name them by this class.
    afx_msg void OnFilePrint();
    afx_msg void OnFilePrintPreview();

protected:
    CView();
    ~CView() override;
    virtual void OnDraw(CDC* pDC) = 0;
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    virtual void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd);
    // A printing: prepare asks the user, begin and end frame the pages, print draws one.
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnPrint(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);
    // For programs that have a preview themselves: the framework has none.
    virtual void OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT point, CPreviewView* pView) {}
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnPrintClient(CDC* pDC, UINT nFlags);
    afx_msg LRESULT HandleInitialUpdate(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnSplitCmd(UINT nID);
    afx_msg void OnUpdateSplitCmd(CCmdUI* pCmdUI);
    afx_msg BOOL OnNextPaneCmd(UINT nID);
    afx_msg void OnUpdateNextPaneMenu(CCmdUI* pCmdUI);

    CDocument* m_pDocument = nullptr;

private:
    friend class CDocument;
    friend class CFrameWnd;
    friend class CSplitterWnd;
    bool PrintPages(CDC& dc, CPrintInfo& info, print_box& box);
};

// A view whose window is a control of the platform.
class ZOPAFX_API CCtrlView : public CView {
    DECLARE_DYNAMIC(CCtrlView)
    DECLARE_MESSAGE_MAP()

public:
    CCtrlView(LPCTSTR lpszClass, DWORD dwStyle);
    ~CCtrlView() override;

protected:
    void OnDraw(CDC* pDC) override; // the control draws itself
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(CDC* pDC, UINT nFlags);

    CString m_strClass;
    DWORD m_dwDefaultStyle;
};

#include "afx_view.h"
#include "afx_app.h"
#include "afx_document.h"
#include "afx_splitter.h"
#include "afxmsg_.h"
#include "afxpriv.h"

IMPLEMENT_DYNAMIC(CView, CWnd)
IMPLEMENT_DYNAMIC(CCtrlView, CView)

BEGIN_MESSAGE_MAP(CView, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_MOUSEACTIVATE()
ON_WM_PRINTCLIENT()
ON_MESSAGE(WM_INITIALUPDATE, &CView::HandleInitialUpdate)
ON_COMMAND_EX(ID_WINDOW_SPLIT, &CView::OnSplitCmd)
ON_UPDATE_COMMAND_UI(ID_WINDOW_SPLIT, &CView::OnUpdateSplitCmd)
ON_COMMAND_EX(ID_NEXT_PANE, &CView::OnNextPaneCmd)
ON_COMMAND_EX(ID_PREV_PANE, &CView::OnNextPaneCmd)
ON_UPDATE_COMMAND_UI(ID_NEXT_PANE, &CView::OnUpdateNextPaneMenu)
ON_UPDATE_COMMAND_UI(ID_PREV_PANE, &CView::OnUpdateNextPaneMenu)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CCtrlView, CView)
ON_WM_PAINT()
ON_WM_PRINTCLIENT()
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView() {
    if (m_pDocument != nullptr)
        m_pDocument->RemoveView(this);
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    if ((cs.style & WS_BORDER) != 0) { // the sunken edge in place of a line
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~WS_BORDER;
    }
    return TRUE;
}

int CView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    const auto* context = static_cast<const CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (context != nullptr && context->m_pCurrentDoc != nullptr)
        context->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy() {
    CFrameWnd* frame = GetParentFrame();
    if (frame != nullptr && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr); // whatever the view does there, nothing comes to it any more
    CWnd::OnDestroy();
}

// Created with new: it goes with its window.
void CView::PostNcDestroy() {
    delete this;
}

// The frame's edge around the view is its own: only the outside counts.
void CView::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    if (nAdjustType != adjustBorder)
        CWnd::CalcWindowRect(lpClientRect, nAdjustType);
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           (m_pDocument != nullptr && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo));
}

void CView::OnPaint() {
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

LRESULT CView::OnPrintClient(CDC* pDC, UINT) {
    const int state = ::SaveDC(*pDC);
    OnPrepareDC(pDC);
    OnDraw(pDC);
    ::RestoreDC(*pDC, state);
    return 0;
}

LRESULT CView::HandleInitialUpdate(WPARAM, LPARAM) {
    OnInitialUpdate();
    return 0;
}

void CView::OnInitialUpdate() {
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView*, LPARAM, CObject*) {
    Invalidate();
}

BOOL CView::OnScroll(UINT, UINT, BOOL) {
    return FALSE;
}

BOOL CView::OnScrollBy(CSize, BOOL) {
    return FALSE;
}

void CView::OnActivateView(BOOL bActivate, CView* pActivateView, CView*) {
    if (bActivate && pActivateView == this && IsTopParentActive())
        SetFocus();
}

void CView::OnActivateFrame(UINT, CFrameWnd*) {}

// A click makes the view the active one.
int CView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int result = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT)
        return result;
    CFrameWnd* frame = GetParentFrame();
    if (frame == nullptr)
        return result;
    const HWND focus = ::GetFocus();
    if (frame->GetActiveView() == this && m_hWnd != focus && !::IsChild(m_hWnd, focus))
        OnActivateView(TRUE, this, this);
    else
        frame->SetActiveView(this);
    return result;
}

CSplitterWnd* PASCAL CView::GetParentSplitter(const CWnd* pWnd, BOOL bAnyState) {
    auto* splitter = DYNAMIC_DOWNCAST(CSplitterWnd, pWnd->GetParent());
    if (splitter == nullptr)
        return nullptr;
    for (CWnd* at = splitter; !bAnyState && at != nullptr; at = at->GetParent()) {
        if (at->IsIconic())
            return nullptr;
    }
    return splitter;
}

CScrollBar* CView::GetScrollBarCtrl(int nBar) const {
    CSplitterWnd* splitter =
        (GetStyle() & (nBar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL)) != 0 ? nullptr : GetParentSplitter(this, TRUE);
    int row = 0, column = 0;
    if (splitter == nullptr || !splitter->IsChildPane(const_cast<CView*>(this), &row, &column))
        return nullptr;
    const UINT id = nBar == SB_HORZ ? AFX_IDW_HSCROLL_FIRST + static_cast<UINT>(column)
                                    : AFX_IDW_VSCROLL_FIRST + static_cast<UINT>(row);
    return reinterpret_cast<CScrollBar*>(splitter->GetDlgItem(static_cast<int>(id)));
}

BOOL CView::OnSplitCmd(UINT) {
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    return splitter != nullptr && splitter->DoKeyboardSplit();
}

void CView::OnUpdateSplitCmd(CCmdUI* pCmdUI) {
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    pCmdUI->Enable(splitter != nullptr && (splitter->GetStyle() & SPLS_DYNAMIC_SPLIT) != 0);
}

BOOL CView::OnNextPaneCmd(UINT nID) {
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    if (splitter == nullptr)
        return FALSE;
    splitter->ActivateNext(nID == ID_PREV_PANE);
    return TRUE;
}

void CView::OnUpdateNextPaneMenu(CCmdUI* pCmdUI) {
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    pCmdUI->Enable(splitter != nullptr && splitter->CanActivateNext(pCmdUI->m_nID == ID_PREV_PANE));
}

CCtrlView::CCtrlView(LPCTSTR lpszClass, DWORD dwStyle) : m_strClass(lpszClass), m_dwDefaultStyle(dwStyle) {}

CCtrlView::~CCtrlView() = default;

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT& cs) {
    cs.lpszClass = m_strClass;
    cs.style |= static_cast<LONG>(m_dwDefaultStyle);
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnDraw(CDC*) {}

void CCtrlView::OnPaint() {
    Default();
}

LRESULT CCtrlView::OnPrintClient(CDC*, UINT) {
    return Default();
}

#include "afxcview.h"

IMPLEMENT_DYNCREATE(CListView, CCtrlView)
IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)

CListView::CListView() : CCtrlView(WC_LISTVIEW, AFX_WS_DEFAULT_VIEW) {}

CListView::~CListView() = default;

BOOL CListView::PreCreateWindow(CREATESTRUCT& cs) {
    ::InitCommonControls();
    return CCtrlView::PreCreateWindow(cs);
}

void CListView::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListView::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CCtrlView::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

CTreeView::CTreeView() : CCtrlView(WC_TREEVIEW, AFX_WS_DEFAULT_VIEW) {}

CTreeView::~CTreeView() = default;

BOOL CTreeView::PreCreateWindow(CREATESTRUCT& cs) {
    ::InitCommonControls();
    return CCtrlView::PreCreateWindow(cs);
}

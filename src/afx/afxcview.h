// Views that are a list or a tree.
#pragma once
#ifndef __AFXCVIEW_H__
#define __AFXCVIEW_H__

#include "afxcmn.h"
#include "afxwin.h"

class CListCtrl;
class CTreeCtrl;

class ZOPAFX_API CListView : public CCtrlView {
    DECLARE_DYNCREATE(CListView)

public:
    CListView();
    ~CListView() override;
    CListCtrl& GetListCtrl() const { return reinterpret_cast<CListCtrl&>(const_cast<CListView&>(*this)); }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    // Asked for the items of a list with LVS_OWNERDRAWFIXED.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class ZOPAFX_API CTreeView : public CCtrlView {
    DECLARE_DYNCREATE(CTreeView)

public:
    CTreeView();
    ~CTreeView() override;
    CTreeCtrl& GetTreeCtrl() const { return reinterpret_cast<CTreeCtrl&>(const_cast<CTreeView&>(*this)); }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
};

#endif

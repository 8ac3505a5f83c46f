// Common controls: slider, tool tip, image list.
#pragma once

#include "afxwin.h"

class ZOPAFX_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int nPos) { SendMessage(TBM_SETPOS, TRUE, nPos); }
    int GetRangeMin() const { return static_cast<int>(SendMessage(TBM_GETRANGEMIN)); }
    int GetRangeMax() const { return static_cast<int>(SendMessage(TBM_GETRANGEMAX)); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) {
        SendMessage(TBM_SETRANGEMIN, FALSE, nMin);
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    void SetTicFreq(int nFreq) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
};

// Tips for windows: the tool sees the mouse messages that RelayEvent is given.
class ZOPAFX_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    using CWnd::Create;
    // A tool is a window, or, with lpRectTool and nIDTool, a part of one.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); }
};

// Owns an image list's handle.
class ZOPAFX_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList() = default;
    ~CImageList() override;

    HIMAGELIST m_hImageList = nullptr;

    HIMAGELIST GetSafeHandle() const { return this == nullptr ? nullptr : m_hImageList; }
    operator HIMAGELIST() const { return GetSafeHandle(); }
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
        return Attach(ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
    }
    // From a bitmap of the resource chain, cut into images cx wide; crMask becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL DeleteImageList();
    int Add(CBitmap* pbmImage, CBitmap* pbmMask) {
        return ImageList_Add(m_hImageList, static_cast<HBITMAP>(pbmImage->GetSafeHandle()),
                             static_cast<HBITMAP>(pbmMask->GetSafeHandle()));
    }
    int Add(CBitmap* pbmImage, COLORREF crMask) {
        return ImageList_AddMasked(m_hImageList, static_cast<HBITMAP>(pbmImage->GetSafeHandle()), crMask);
    }
    int Add(HICON hIcon) { return ImageList_ReplaceIcon(m_hImageList, -1, hIcon); }
    BOOL Remove(int nImage) { return ImageList_Remove(m_hImageList, nImage); }
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
        return ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
    }
};

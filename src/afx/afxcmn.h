// Common controls: slider, image list.
#pragma once
#define __AFXCMN_H__

#include "afxwin.h"

class ZOPAFX_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int nPos) { SendMessage(TBM_SETPOS, TRUE, nPos); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) {
        SendMessage(TBM_SETRANGEMIN, FALSE, nMin);
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    void SetTicFreq(int nFreq) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
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
    // From a bitmap of the resource chain, cut into images cx wide; crMask becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL DeleteImageList();
};

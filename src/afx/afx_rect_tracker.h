// A rectangle that the user moves and resizes with the pointer; included by afxext.h.
#pragma once

#include "afx_wnd.h"

// All coordinates are pixels of the window's client area. The rectangle may be inverted after a tracking that allows
// it.
class ZOPAFX_API CRectTracker {
public:
    enum StyleFlags {
        solidLine = 1,
        dottedLine = 2,
        hatchedBorder = 4,
        resizeInside = 8,
        resizeOutside = 16,
        hatchInside = 32
    };
    enum TrackerHit {
        hitNothing = -1,
        hitTopLeft = 0,
        hitTopRight = 1,
        hitBottomRight = 2,
        hitBottomLeft = 3,
        hitTop = 4,
        hitRight = 5,
        hitBottom = 6,
        hitLeft = 7,
        hitMiddle = 8
    };

    CRectTracker() { Construct(); }
    CRectTracker(LPCRECT lpSrcRect, UINT nStyle);
    virtual ~CRectTracker();

    UINT m_nStyle;
    CRect m_rect;
    CSize m_sizeMin;
    int m_nHandleSize;

    void Draw(CDC* pDC) const;
    // With its handles and border.
    void GetTrueRect(LPRECT lpTrueRect) const;
    BOOL SetCursor(CWnd* pWnd, UINT nHitTest) const;
    // From a press of the button until its release; TRUE where the rectangle became another. Escape and the other
    // button give it up. pWndClipTo is the window that the feedback is drawn in.
    BOOL Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert = FALSE, CWnd* pWndClipTo = nullptr);
    BOOL TrackRubberBand(CWnd* pWnd, CPoint point, BOOL bAllowInvert = TRUE);
    int HitTest(CPoint point) const;
    // The handle that stands at the place of this one while the rectangle is inverted.
    int NormalizeHit(int nHandle) const;

    // For a program to override: the feedback; the rectangle before it is taken; news that it was; which handles exist.
    virtual void DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd);
    virtual void AdjustRect(int nHandle, LPRECT lpRect);
    virtual void OnChangedRect(const CRect& rectOld);
    virtual UINT GetHandleMask() const;

protected:
    virtual int GetHandleSize(LPCRECT lpRect = nullptr) const;
    void Construct();
    int HitTestHandles(CPoint point) const;
    void GetHandleRect(int nHandle, CRect* pHandleRect) const;
    // The sides that a handle moves, null where it leaves that direction alone, and where the pointer is held.
    void GetModifyPointers(int nHandle, int** ppx, int** ppy, int* px, int* py);
    virtual BOOL TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo);

    BOOL m_bAllowInvert;
    CRect m_rectLast;
    CSize m_sizeLast;
    BOOL m_bErase;
    BOOL m_bFinalErase;

private:
    void DrawHandles(CDC& dc) const;
    CRect Moved(int handle, CPoint by, const CRect& from);
    bool FollowPointer(int handle, CWnd& wnd, CPoint from, CWnd* clip, CDC& dc);
    void Feedback(LPCRECT rect, CWnd* clip, CDC& dc, CWnd* wnd);
};

// Bars along the sides of a frame: what toolbars, status bars and dialog bars have in common.
#pragma once

#include "afx_wnd.h"
#include "afxres.h"

class CDockBar;
struct AFX_SIZEPARENTPARAMS;

// How CalcDynamicLayout is asked.
#define LM_STRETCH 0x01 // as long as the frame
#define LM_HORZ 0x02
#define LM_MRUWIDTH 0x04 // as wide as it was last while it floated
#define LM_COMMIT 0x08   // the layout asked for is taken
#define LM_HORZDOCK 0x10
#define LM_VERTDOCK 0x20
#define LM_LENGTHY 0x40 // the length is the height

// A bar knows its style (CBRS_...), the side it lies at among it, and how large it wants to be. Its frame asks it to
// take its part of the client area, and to update its commands while the program is idle.
class ZOPAFX_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
    DECLARE_MESSAGE_MAP()

public:
    ~CControlBar() override;

    BOOL m_bAutoDelete = FALSE; // the object goes with its window

    int GetCount() const { return m_nCount; }
    DWORD GetBarStyle() { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle);
    // Between the bar's edge and what it holds, in pixels.
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect) { SetBorders(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    CRect GetBorders() const { return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder); }

    // The sides (CBRS_ALIGN_...) that the bar may be docked to.
    void EnableDocking(DWORD dwDockStyle);
    CFrameWnd* GetDockingFrame() const;
    BOOL IsFloating() const { return (m_dwStyle & CBRS_FLOATING) != 0; }
    virtual BOOL IsDockBar() const { return FALSE; }

    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    // The size for a state (LM_HORZDOCK, LM_VERTDOCK, or floating with LM_MRUWIDTH), or for a length across or, with
    // LM_LENGTHY, down; -1 none.
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
    virtual void CalcInsideRect(CRect& rect, BOOL bHorz) const;
    // Has each item's command updated; the frame is the first target.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;
    virtual BOOL IsVisible() const;
    // Shown or hidden when the frame makes its layout the next time.
    virtual void DelayShow(BOOL bShow);
    // For bars that take their part of the frame themselves, in WM_SIZEPARENT: side and border of the bar, and
    // WS_VISIBLE where it is, or is about to be, visible.
    virtual DWORD RecalcDelayShow(AFX_SIZEPARENTPARAMS* lpLayout);
    virtual void OnBarStyleChange(DWORD dwOldStyle, DWORD dwNewStyle);
    // The prompt of the command under the pointer (flyby help); -1: the pointer has left. TRUE where it changed.
    virtual BOOL SetStatusText(INT_PTR nHit);
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    CControlBar();
    virtual void DoPaint(CDC* pDC);
    virtual void DrawBorders(CDC* pDC, CRect& rect);
    virtual void DrawGripper(CDC* pDC, const CRect& rect);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool IsHorizontal() const { return (m_dwStyle & CBRS_ORIENT_VERT) == 0; }
    bool HasGripper() const { return (m_dwStyle & CBRS_GRIPPER) != 0 && (m_dwStyle & CBRS_FLOATING) == 0; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnHelpHitTest(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg void OnInitialUpdate();

    DWORD m_dwStyle = 0;
    DWORD m_dwDockStyle = 0;
    int m_nCount = 0;
    int m_nMRUWidth = 32767; // of a floating bar
    int m_cxLeftBorder = 6, m_cxRightBorder = 6, m_cyTopBorder = 1, m_cyBottomBorder = 1;
    enum StateFlags { delayHide = 0x1, delayShow = 0x2 };
    UINT m_nStateFlags = 0;
    CFrameWnd* m_pDockSite = nullptr;
    CDockBar* m_pDockBar = nullptr;

private:
    friend class CDockBar;
    friend class CFrameWnd;
    friend class CMiniDockFrameWnd;
    void Undelay();
    struct outline_sizes {
        CSize lying, upright, floating;
    };
    bool DragOutline(CSize held, CPoint& dropped);
    int OutlineAt(CPoint screen, CSize held, const outline_sizes& sizes, CRect& rect);

    INT_PTR m_status_item = -1;
    UINT m_last_side = 0;          // the dock bar that it was docked to last
    CPoint m_last_place{100, 100}; // where it floated last
};

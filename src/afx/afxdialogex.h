// A dialog with a background of its own.
#pragma once

#include "afxwin.h"

class ZOPAFX_API CDialogEx : public CDialog {
    DECLARE_DYNAMIC(CDialogEx)
    DECLARE_MESSAGE_MAP()

public:
    enum BackgroundLocation {
        BACKGR_TILE,
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT,
    };

    CDialogEx() = default;
    explicit CDialogEx(UINT nIDTemplate, CWnd* pParent = nullptr) : CDialog(nIDTemplate, pParent) {}
    explicit CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr) : CDialog(lpszTemplateName, pParentWnd) {}
    ~CDialogEx() override;

    // Also behind texts, boxes and group frames. The color (COLORREF)-1 takes it away.
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    // Not stretched; around it is the color. With bAutoDestroy the bitmap is the dialog's. Null takes it away.
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE, BOOL bAutoDestroy = TRUE,
                            BOOL bRepaint = TRUE);
    // From the resource chain; FALSE, and nothing changed, where it is not found.
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE, BOOL bRepaint = TRUE);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSysColorChange();
    afx_msg void OnDestroy();

    HBITMAP m_hBkgrBitmap = nullptr;
    BackgroundLocation m_BkgrLocation = BACKGR_TILE;
    BOOL m_bAutoDestroyBmp = FALSE;

private:
    void DropImage();
    void Renew(BOOL repaint);
    HBRUSH Background();
    void PlaceImage();

    COLORREF m_color = CLR_INVALID;
    CBrush m_background;
    CSize m_painted{0, 0}; // the client area it was made for
};

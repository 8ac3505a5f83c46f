// Toolbars; included by afxext.h.
#pragma once

#include "afx_frame.h"

class CToolBarCtrl;

// Styles and states of a button, together in one number.
#define TBBS_BUTTON MAKELONG(TBSTYLE_BUTTON, 0)
#define TBBS_SEPARATOR MAKELONG(TBSTYLE_SEP, 0)
#define TBBS_CHECKBOX MAKELONG(TBSTYLE_CHECK, 0)
#define TBBS_GROUP MAKELONG(TBSTYLE_GROUP, 0)
#define TBBS_CHECKGROUP (TBBS_GROUP | TBBS_CHECKBOX)
#define TBBS_DROPDOWN MAKELONG(TBSTYLE_DROPDOWN, 0)
#define TBBS_AUTOSIZE MAKELONG(TBSTYLE_AUTOSIZE, 0)
#define TBBS_NOPREFIX MAKELONG(TBSTYLE_NOPREFIX, 0)
#define TBBS_CHECKED MAKELONG(0, TBSTATE_CHECKED)
#define TBBS_PRESSED MAKELONG(0, TBSTATE_PRESSED)
#define TBBS_DISABLED MAKELONG(0, TBSTATE_ENABLED)
#define TBBS_INDETERMINATE MAKELONG(0, TBSTATE_INDETERMINATE)
#define TBBS_HIDDEN MAKELONG(0, TBSTATE_HIDDEN)
#define TBBS_WRAPPED MAKELONG(0, TBSTATE_WRAP)

// The platform's toolbar as a bar of a frame. Buttons are commands, updated while the program is idle; their tips and
// prompts are texts of the resource chain: prompt, line end, tip.
class ZOPAFX_API CToolBar : public CControlBar {
    DECLARE_DYNAMIC(CToolBar)
    DECLARE_MESSAGE_MAP()

public:
    CToolBar();
    ~CToolBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP, UINT nID = AFX_IDW_TOOLBAR);
    using CControlBar::Create;
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP, CRect rcBorders = CRect(0, 0, 0, 0),
                          UINT nID = AFX_IDW_TOOLBAR);
    using CControlBar::CreateEx;

    // A toolbar of the resource chain (type 241), with the bitmap of the same name.
    BOOL LoadToolBar(LPCTSTR lpszResourceName);
    BOOL LoadToolBar(UINT nIDResource) { return LoadToolBar(MAKEINTRESOURCE(nIDResource)); }
    // Images side by side, in colours that follow the system's. A bitmap that is set is the bar's.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    BOOL SetBitmap(HBITMAP hbmImageWell) { return AddReplaceBitmap(hbmImageWell); }
    // Before the images; in pixels.
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    void SetHeight(int cyHeight);
    // Commands, ID_SEPARATOR for a gap; a null list makes so many empty buttons.
    BOOL SetButtons(const UINT* lpIDArray, int nIDCount);

    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetButtonStyle(int nIndex) const;
    void SetButtonStyle(int nIndex, UINT nStyle);
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    // iImage is a separator's width.
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString& rString) const { rString = GetButtonText(nIndex); }
    CToolBarCtrl& GetToolBarCtrl() const { return reinterpret_cast<CToolBarCtrl&>(const_cast<CToolBar&>(*this)); }
    void SetOwner(CWnd* pOwnerWnd);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD nMode) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    void OnBarStyleChange(DWORD dwOldStyle, DWORD dwNewStyle) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

protected:
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSysColorChange();

    HBITMAP m_hbmImageWell = nullptr;
    SIZE m_sizeImage{16, 15}, m_sizeButton{23, 22}; // of new buttons; Create takes what a constructor has set

private:
    BOOL AddReplaceBitmap(HBITMAP hbmImageWell);
    TBBUTTON ButtonAt(int index) const;
    void ReplaceButton(int index, const TBBUTTON& button);
    void WrapButtons(int width);
    void WrapToHeight(int height);
    int BreadthOf(int index, const TBBUTTON& button) const;
    CSize SizeOfButtons() const;

    HINSTANCE m_images_module = nullptr;
    CString m_images_name;
    LPCTSTR m_images_id = nullptr;
};

// Status bars; included by afxext.h.
#pragma once

#include "afx_frame.h"

#include <vector>

class CStatusBarCtrl;

#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000 // the text is not shown
#define SBPS_STRETCH 0x08000000  // takes the room that the others leave

// The platform's status bar as a bar of a frame: panes with texts, each named by a command that may update it.
class ZOPAFX_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
    DECLARE_MESSAGE_MAP()

public:
    CStatusBar();
    ~CStatusBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    using CControlBar::Create;
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT nID = AFX_IDW_STATUS_BAR);
    using CControlBar::CreateEx;
    // One pane for each; those but the first are as wide as the text of that number. Null: so many empty panes.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);

    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    void GetPaneText(int nIndex, CString& rString) const { rString = GetPaneText(nIndex); }
    CString GetPaneText(int nIndex) const;
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    CStatusBarCtrl& GetStatusBarCtrl() const {
        return reinterpret_cast<CStatusBarCtrl&>(const_cast<CStatusBar&>(*this));
    }
    // Called for a pane with SBPS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg LRESULT HandleSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleGetTextLength(WPARAM wParam, LPARAM lParam);

private:
    struct pane {
        UINT id = 0, style = SBPS_NORMAL;
        int width = 0;
        CString text;
    };
    const pane* PaneAt(int index) const;
    int TextWidth(LPCTSTR text) const;
    void ShowText(int index);
    void PlaceParts();

    std::vector<pane> m_panes;
};

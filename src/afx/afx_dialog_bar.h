// Bars with controls from a dialog template; included by afxext.h.
#pragma once

#include "afx_frame.h"

// The controls are updated like menu items while the program is idle; their commands go to the frame.
class ZOPAFX_API CDialogBar : public CControlBar {
    DECLARE_DYNAMIC(CDialogBar)
    DECLARE_MESSAGE_MAP()

public:
    CDialogBar();
    ~CDialogBar() override;

    // The template has the style of a child without a border.
    virtual BOOL Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID);
    virtual BOOL Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID) {
        return Create(pParentWnd, MAKEINTRESOURCE(nIDTemplate), nStyle, nID);
    }
    using CControlBar::Create;

    CSize m_sizeDefault;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    LPCTSTR m_lpszTemplateName = nullptr; // while it is created
};

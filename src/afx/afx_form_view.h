// Views with controls from a dialog template; included by afxext.h.
#pragma once

#include "afx_data_exchange.h"
#include "afx_scroll_view.h"

// The template has the style of a child without a border. UpdateData moves values like in a dialog.
class ZOPAFX_API CFormView : public CScrollView {
    DECLARE_DYNAMIC(CFormView)
    DECLARE_MESSAGE_MAP()

public:
    void OnInitialUpdate() override;

protected:
    explicit CFormView(LPCTSTR lpszTemplateName);
    explicit CFormView(UINT nIDTemplate);
    ~CFormView() override;

    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                UINT nID, CCreateContext* pContext = nullptr) override;
    void OnDraw(CDC* pDC) override; // the controls draw themselves
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;
    void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd) override;
    BOOL SaveFocusControl();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdate(WPARAM wParam, LPARAM lParam);

    LPCTSTR m_lpszTemplateName;
    CCreateContext* m_pCreateContext = nullptr;
    HWND m_hWndFocus = nullptr; // the control that had the focus last
};

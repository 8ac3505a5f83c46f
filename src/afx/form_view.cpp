#include "afx_form_view.h"
#include "afx_app.h"
#include "afx_document.h"
#include "afxmsg_.h"
#include "afxpriv.h"

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
ON_WM_CREATE()
ON_WM_SETFOCUS()
ON_MESSAGE(WM_INITDIALOG, &CFormView::HandleInitDialog)
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFormView::OnIdleUpdate)
END_MESSAGE_MAP()

CFormView::CFormView(LPCTSTR lpszTemplateName) : m_lpszTemplateName(lpszTemplateName) {}

CFormView::CFormView(UINT nIDTemplate) : CFormView(MAKEINTRESOURCE(nIDTemplate)) {}

CFormView::~CFormView() = default;

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                       CCreateContext* pContext) {
    m_pCreateContext = pContext;
    const BOOL created = CreateDlg(m_lpszTemplateName, pParentWnd);
    m_pCreateContext = nullptr;
    if (!created)
        return FALSE;
    // The template's own size is what there is to scroll.
    CRect form;
    GetWindowRect(form);
    SetScrollSizes(MM_TEXT, form.Size());
    ModifyStyle(WS_BORDER | WS_CAPTION, dwStyle & ~static_cast<DWORD>(WS_BORDER | WS_CAPTION | WS_VISIBLE));
    ModifyStyleEx(0, (dwStyle & WS_BORDER) != 0 ? WS_EX_CLIENTEDGE : 0, SWP_FRAMECHANGED);
    SetDlgCtrlID(static_cast<int>(nID));
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if ((dwStyle & WS_VISIBLE) != 0)
        ShowWindow(SW_SHOWNA);
    return TRUE;
}

// The platform knows nothing of the context: the view brings it.
int CFormView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CScrollView::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (m_pCreateContext != nullptr && m_pCreateContext->m_pCurrentDoc != nullptr)
        m_pCreateContext->m_pCurrentDoc->AddView(this);
    return 0;
}

LRESULT CFormView::HandleInitDialog(WPARAM, LPARAM) {
    Default();
    ExecuteDlgInit(m_lpszTemplateName);
    LoadDynamicLayoutResource(m_lpszTemplateName);
    return FALSE; // no focus yet: it would go, and the form be asked, before its data is there
}

void CFormView::OnInitialUpdate() {
    UpdateData(FALSE);
    CScrollView::OnInitialUpdate();
}

void CFormView::OnDraw(CDC*) {}

LRESULT CFormView::OnIdleUpdate(WPARAM, LPARAM) {
    UpdateDialogControls(GetParentFrame(), FALSE);
    return 0;
}

// Keys of the frame first: a dialog would take them all.
BOOL CFormView::PreTranslateMessage(MSG* pMsg) {
    if (CView::PreTranslateMessage(pMsg))
        return TRUE;
    for (CFrameWnd* frame = GetParentFrame(); frame != nullptr; frame = frame->GetParentFrame()) {
        if (frame->PreTranslateMessage(pMsg))
            return TRUE;
    }
    return PreTranslateInput(pMsg);
}

BOOL CFormView::SaveFocusControl() {
    const HWND focus = ::GetFocus();
    if (focus == nullptr || !::IsChild(m_hWnd, focus))
        return FALSE;
    m_hWndFocus = focus;
    return TRUE;
}

void CFormView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) {
    if (!bActivate)
        SaveFocusControl();
    CScrollView::OnActivateView(bActivate, pActivateView, pDeactiveView);
}

void CFormView::OnActivateFrame(UINT nState, CFrameWnd*) {
    if (nState == WA_INACTIVE)
        SaveFocusControl();
}

// The focus goes on to the control that had it, or to the first.
void CFormView::OnSetFocus(CWnd*) {
    if (::IsWindow(m_hWndFocus) && ::IsChild(m_hWnd, m_hWndFocus)) {
        ::SetFocus(m_hWndFocus);
        return;
    }
    m_hWndFocus = nullptr;
    if (HWND first = ::GetNextDlgTabItem(m_hWnd, nullptr, FALSE))
        ::SetFocus(first);
}

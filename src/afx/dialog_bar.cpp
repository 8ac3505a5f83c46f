#include "afx_dialog_bar.h"
#include "afxmsg_.h"

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
ON_MESSAGE(WM_INITDIALOG, &CDialogBar::HandleInitDialog)
END_MESSAGE_MAP()

CDialogBar::CDialogBar() = default;

CDialogBar::~CDialogBar() {
    CControlBar::DestroyWindow();
}

BOOL CDialogBar::Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID) {
    m_dwStyle = nStyle & CBRS_ALL;
    m_lpszTemplateName = lpszTemplateName;
    const BOOL created = CreateDlg(lpszTemplateName, pParentWnd);
    m_lpszTemplateName = nullptr;
    if (!created)
        return FALSE;
    SetDlgCtrlID(static_cast<int>(nID));
    SetOwner(pParentWnd);
    CRect rect;
    GetWindowRect(rect);
    m_sizeDefault = rect.Size();
    ModifyStyle(0, WS_CLIPSIBLINGS);
    ShowWindow(SW_SHOWNA); // whatever the template says
    return TRUE;
}

LRESULT CDialogBar::HandleInitDialog(WPARAM, LPARAM) {
    Default();
    ExecuteDlgInit(m_lpszTemplateName);
    return FALSE; // a bar does not take the focus of its frame, which may not even be shown yet
}

CSize CDialogBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    if (!bStretch)
        return m_sizeDefault;
    constexpr int endless = 32767;
    return bHorz ? CSize(endless, m_sizeDefault.cy) : CSize(m_sizeDefault.cx, endless);
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

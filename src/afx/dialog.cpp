#include "afx_dialog.h"
#include "afx_app.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "dialog_template.h"
#include "modal_parent.h"
#include "wnd_state.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
ON_MESSAGE(WM_COMMANDHELP, &CDialog::OnCommandHelp)
ON_MESSAGE(WM_HELPHITTEST, &CDialog::OnHelpHitTest)
ON_WM_HELPINFO()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_nIDHelp(IS_INTRESOURCE(lpszTemplateName) ? LOWORD(lpszTemplateName) : 0), m_lpszTemplateName(lpszTemplateName),
      m_pParentWnd(pParentWnd) {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

CDialog::~CDialog() = default;

LPCDLGTEMPLATE CDialog::FindTemplate(LPCTSTR name, HINSTANCE& module) {
    module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC found = ::FindResource(module, name, RT_DIALOG);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    return loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    if (m_hWnd != nullptr)
        return FALSE;
    m_lpszTemplateName = lpszTemplateName;
    if (m_nIDHelp == 0 && IS_INTRESOURCE(lpszTemplateName))
        m_nIDHelp = LOWORD(lpszTemplateName);
    m_pParentWnd = pParentWnd;
    m_modal = false;
    HINSTANCE module = nullptr;
    LPCDLGTEMPLATE found = FindTemplate(lpszTemplateName, module);
    CWnd* parent = pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd();
    return found != nullptr && CreateFrom(found, module, parent->GetSafeHwnd());
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    if (m_hWnd != nullptr || lpDialogTemplate == nullptr)
        return FALSE;
    m_lpDialogInit = lpDialogInit;
    m_pParentWnd = pParentWnd;
    m_modal = false;
    CWnd* parent = pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd();
    return CreateFrom(lpDialogTemplate, AfxGetResourceHandle(), parent->GetSafeHwnd());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    const auto form = static_cast<LPCDLGTEMPLATE>(::GlobalLock(hDialogTemplate));
    const BOOL created = CreateIndirect(form, pParentWnd);
    if (form != nullptr)
        ::GlobalUnlock(hDialogTemplate);
    return created;
}

BOOL CDialog::CreateFrom(LPCDLGTEMPLATE form, HINSTANCE module, HWND owner) {
    AfxHookWindowCreate(this);
    const HWND hwnd = ::CreateDialogIndirectParam(module, form, owner, &CDialog::DialogProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return ::IsWindow(hwnd); // it may have gone in OnInitDialog
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    m_pParentWnd = pParentWnd;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    const auto form = static_cast<LPCDLGTEMPLATE>(::LockResource(hDialogTemplate));
    return form != nullptr && InitModalIndirect(form, pParentWnd);
}

static bool is_placed(LPCDLGTEMPLATE form) {
    const auto* words = reinterpret_cast<const WORD*>(form);
    const auto* place = words + (is_extended_template(form) ? 9 : 5);
    return place[0] != 0 || place[1] != 0;
}

INT_PTR CALLBACK CDialog::DialogProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG && message != WM_SETFONT)
        return FALSE;
    auto* dialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hwnd));
    if (dialog == nullptr)
        return message == WM_INITDIALOG;
    try {
        if (message == WM_SETFONT) {
            dialog->OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
            return FALSE;
        }
        dialog->GetWindowRect(dialog->m_made_at);
        dialog->PreInitDialog();
        return dialog->OnInitDialog();
    } catch (...) {
        answer_exception({hwnd, message, wParam, lParam, 0, {0, 0}});
        if (CWnd::FromHandlePermanent(hwnd) != dialog)
            return FALSE; // gone already
        dialog->RefuseToOpen();
        return FALSE;
    }
}

void CDialog::RefuseToOpen() {
    if (m_modal)
        EndDialog(-1);
    else
        DestroyWindow();
}

INT_PTR CDialog::DoModal() {
    HINSTANCE module = AfxGetResourceHandle();
    LPCDLGTEMPLATE form = m_lpDialogTemplate != nullptr ? m_lpDialogTemplate : FindTemplate(m_lpszTemplateName, module);
    if (form == nullptr || m_hWnd != nullptr)
        return -1;
    modal_parent parent(m_pParentWnd);
    m_modal = true; // OnInitDialog may end the dialog before its loop has begun
    m_nModalResult = -1;
    if (!CreateFrom(form, module, parent.handle()))
        return -1;
    CRect now;
    GetWindowRect(now);
    if (!is_placed(form) && now.TopLeft() == m_made_at.TopLeft() && CheckAutoCenter()) // not moved by OnInitDialog
        CenterWindow();
    const DWORD idle = (GetStyle() & DS_NOIDLEMSG) != 0 ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE;
    if (m_modal)
        return parent.run(*this, idle);
    const int result = m_nModalResult;
    parent.end(m_hWnd);
    return result;
}

void CDialog::EndDialog(int nResult) {
    EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
}

BOOL CDialog::CheckAutoCenter() {
    return (GetStyle() & (DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE)) == 0;
}

void CDialog::PreInitDialog() {}

void CDialog::OnSetFont(CFont* pFont) {}

BOOL CDialog::OnInitDialog() {
    const BOOL filled = m_lpDialogInit != nullptr       ? ExecuteDlgInit(m_lpDialogInit)
                        : m_lpszTemplateName != nullptr ? ExecuteDlgInit(m_lpszTemplateName)
                                                        : TRUE;
    if (m_lpszTemplateName != nullptr)
        LoadDynamicLayoutResource(m_lpszTemplateName);
    if (filled && UpdateData(FALSE))
        return TRUE;
    EndDialog(-1);
    return FALSE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool input = (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST) ||
                       (pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST);
    return input && IsDialogMessage(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Commands go on; the ids of controls and of the system menu stay here.
    if (nCode != CN_COMMAND || nID < 0x8000 || nID >= 0xF000)
        return FALSE;
    CWnd* owner = GetParent();
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

HBRUSH CDialog::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    const CWinApp* app = AfxGetApp();
    const bool bare = nCtlColor == CTLCOLOR_DLG || nCtlColor == CTLCOLOR_BTN || nCtlColor == CTLCOLOR_STATIC;
    if (!bare || pDC == nullptr || app == nullptr || app->m_dialog_ground == nullptr)
        return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    LRESULT own = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&own))
        return reinterpret_cast<HBRUSH>(own);
    pDC->SetBkColor(app->m_dialog_colors[0]);
    pDC->SetTextColor(app->m_dialog_colors[1]);
    return app->m_dialog_ground;
}

#include "afxcmn.h"
#include "afxmsg_.h"
#include "control_classes.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

BEGIN_MESSAGE_MAP(CToolTipCtrl, CWnd)
ON_MESSAGE(TTM_WINDOWFROMPOINT, &CToolTipCtrl::OnWindowFromPoint)
END_MESSAGE_MAP()

namespace {

constexpr int longest_tip = 1024;

CString stored(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

} // namespace

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    return CreateEx(pParentWnd, dwStyle, 0);
}

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx) {
    prepare_class(ICC_BAR_CLASSES);
    const BOOL created =
        CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                       CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), nullptr, nullptr);
    if (created)
        SetOwner(pParentWnd);
    return created;
}

void CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const {
    ti = {};
    ti.cbSize = TTTOOLINFOA_V2_SIZE; // what every version of the control takes
    const HWND window = pWnd->GetSafeHwnd();
    if (nIDTool == 0) {
        ti.hwnd = ::GetParent(window);
        ti.uFlags = TTF_IDISHWND;
        ti.uId = reinterpret_cast<UINT_PTR>(window);
    } else {
        ti.hwnd = window;
        ti.uId = nIDTool;
    }
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    if (lpRectTool != nullptr)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    return afx_int(SendMessage(TTM_ADDTOOL, 0, afx_param(&tool)));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    const CString text = stored(nIDText);
    return AddTool(pWnd, text.GetString(), lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    SendMessage(TTM_DELTOOL, 0, afx_param(&tool));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    SendMessage(TTM_UPDATETIPTEXT, 0, afx_param(&tool));
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool) {
    const CString text = stored(nIDText);
    UpdateTipText(text.GetString(), pWnd, nIDTool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    tool.lpszText = str.GetBufferSetLength(longest_tip);
    *tool.lpszText = '\0';
    SendMessage(TTM_GETTEXT, longest_tip, afx_param(&tool));
    str.ReleaseBuffer();
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const {
    char text[longest_tip + 1] = ""; // the control asks for no length
    FillInToolInfo(ToolInfo, pWnd, nIDTool);
    ToolInfo.lpszText = text;
    const LRESULT known = SendMessage(TTM_GETTOOLINFO, 0, afx_param(&ToolInfo));
    ::lstrcpyn(ToolInfo.szText, ToolInfo.lpszText == text ? text : "", sizeof(ToolInfo.szText));
    if (ToolInfo.lpszText == text)
        ToolInfo.lpszText = ToolInfo.szText;
    return known != 0;
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    tool.rect = *lpRect;
    SendMessage(TTM_NEWTOOLRECT, 0, afx_param(&tool));
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const {
    TTHITTESTINFO test{};
    test.hwnd = pWnd->GetSafeHwnd();
    test.pt = pt;
    test.ti.cbSize = TTTOOLINFOA_V2_SIZE;
    if (SendMessage(TTM_HITTEST, 0, afx_param(&test)) == 0)
        return FALSE;
    *lpToolInfo = test.ti;
    return TRUE;
}

// The system finds no disabled windows, which have tips as well.
LRESULT CToolTipCtrl::OnWindowFromPoint(WPARAM, LPARAM lParam) {
    auto found = reinterpret_cast<HWND>(Default());
    CPoint point = *reinterpret_cast<const POINT*>(lParam);
    ::ScreenToClient(found, &point);
    const HWND child = found != nullptr ? ::ChildWindowFromPointEx(found, point, CWP_SKIPINVISIBLE) : nullptr;
    return reinterpret_cast<LRESULT>(child != nullptr ? child : found);
}

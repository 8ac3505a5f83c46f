#include "afx_rebar.h"
#include "afx_common_ctrls.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "control_classes.h"

IMPLEMENT_DYNAMIC(CReBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CReBar, CControlBar)

BEGIN_MESSAGE_MAP(CReBar, CControlBar)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_NOTIFY_REFLECT(RBN_HEIGHTCHANGE, &CReBar::OnHeightChange)
ON_MESSAGE_VOID(WM_RECALCPARENT, &CReBar::OnRecalcParent)
END_MESSAGE_MAP()

namespace {

// What every version of the control takes.
const UINT band_size = REBARBANDINFOA_V6_SIZE;

} // namespace

BOOL CReBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CReBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    prepare_class(ICC_COOL_CLASSES);
    return CWnd::CreateEx(dwExStyle, REBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CReBarCtrl::GetImageList() const {
    REBARINFO info{sizeof(info), RBIM_IMAGELIST, nullptr};
    return GetBarInfo(&info) ? CImageList::FromHandle(info.himl) : nullptr;
}

BOOL CReBarCtrl::SetImageList(CImageList* pImageList) {
    REBARINFO info{sizeof(info), RBIM_IMAGELIST, pImageList->GetSafeHandle()};
    return SetBarInfo(&info);
}

CToolTipCtrl* CReBarCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(RB_GETTOOLTIPS))));
}

void CReBarCtrl::SetToolTips(CToolTipCtrl* pToolTip) {
    SendMessage(RB_SETTOOLTIPS, reinterpret_cast<WPARAM>(pToolTip->GetSafeHwnd()));
}

BOOL CReBarCtrl::GetColorScheme(COLORSCHEME* lpcs) const {
    lpcs->dwSize = sizeof(*lpcs);
    return Ask(RB_GETCOLORSCHEME, 0, lpcs);
}

void CReBarCtrl::SetColorScheme(const COLORSCHEME* lpcs) {
    SendMessage(RB_SETCOLORSCHEME, 0, reinterpret_cast<LPARAM>(lpcs));
}

CReBar::CReBar() {
    SetBorders();
}

CReBar::~CReBar() {
    CControlBar::DestroyWindow();
}

BOOL CReBar::Create(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    m_dwStyle = dwStyle & CBRS_ALL;
    const DWORD style = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NOMOVEY |
                        CCS_NODIVIDER | CCS_NORESIZE | RBS_VARHEIGHT;
    prepare_class(ICC_COOL_CLASSES);
    if (!CWnd::Create(REBARCLASSNAME, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID))
        return FALSE;
    SetOwner(pParentWnd);
    return TRUE;
}

CSize CReBar::SizeOf(CWnd& bar) {
    if (auto* control_bar = DYNAMIC_DOWNCAST(CControlBar, &bar))
        return control_bar->CalcFixedLayout(FALSE, TRUE);
    CRect rect;
    bar.GetWindowRect(rect);
    return rect.Size();
}

BOOL CReBar::AddBand(CWnd* bar, REBARBANDINFO& band) {
    ENSURE_ARG(bar != nullptr && bar->m_hWnd != nullptr);
    const CSize size = SizeOf(*bar);
    band.cbSize = band_size;
    band.fMask |= RBBIM_STYLE | RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_ID | RBBIM_SIZE | RBBIM_IDEALSIZE;
    band.hwndChild = bar->m_hWnd;
    band.cyMinChild = static_cast<UINT>(size.cy);
    band.cx = band.cxIdeal = static_cast<UINT>(size.cx);
    band.wID = static_cast<UINT>(bar->GetDlgCtrlID());
    bar->ModifyStyle(0, WS_VISIBLE);
    if (SendMessage(RB_INSERTBAND, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&band)) == 0)
        return FALSE;
    // Beside its child a band has a gripper and a text.
    const UINT index = static_cast<UINT>(SendMessage(RB_GETBANDCOUNT)) - 1;
    CRect borders(0, 0, 0, 0);
    SendMessage(RB_GETBANDBORDERS, index, reinterpret_cast<LPARAM>(&borders));
    band.fMask = RBBIM_SIZE;
    band.cx += static_cast<UINT>(borders.left + borders.right);
    SendMessage(RB_SETBANDINFO, index, reinterpret_cast<LPARAM>(&band));
    if (CFrameWnd* frame = GetParentFrame())
        frame->RecalcLayout();
    return TRUE;
}

BOOL CReBar::AddBar(CWnd* pBar, LPCTSTR pszText, CBitmap* pbmp, DWORD dwStyle) {
    REBARBANDINFO band{};
    band.fStyle = dwStyle;
    if (pszText != nullptr) {
        band.fMask |= RBBIM_TEXT;
        band.lpText = const_cast<LPTSTR>(pszText);
    }
    if (pbmp != nullptr) {
        band.fMask |= RBBIM_BACKGROUND;
        band.hbmBack = static_cast<HBITMAP>(pbmp->GetSafeHandle());
    }
    return AddBand(pBar, band);
}

BOOL CReBar::AddBar(CWnd* pBar, COLORREF clrFore, COLORREF clrBack, LPCTSTR pszText, DWORD dwStyle) {
    REBARBANDINFO band{};
    band.fMask = RBBIM_COLORS | (pszText != nullptr ? RBBIM_TEXT : 0);
    band.fStyle = dwStyle;
    band.clrFore = clrFore;
    band.clrBack = clrBack;
    band.lpText = const_cast<LPTSTR>(pszText);
    return AddBand(pBar, band);
}

CSize CReBar::CalcDynamicLayout(int, DWORD nMode) {
    return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}

// As many rows as its bands fill at the frame's breadth.
CSize CReBar::CalcFixedLayout(BOOL, BOOL bHorz) {
    CRect rect;
    GetParent()->GetClientRect(rect);
    constexpr int endless = 32767;
    const int length = bHorz ? rect.Width() : rect.Height();
    CRect now;
    GetWindowRect(now);
    if (length != (bHorz ? now.Width() : now.Height()))
        SetWindowPos(nullptr, 0, 0, bHorz ? length : now.Width(), bHorz ? now.Height() : length,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    const int depth = static_cast<int>(SendMessage(RB_GETBARHEIGHT));
    return bHorz ? CSize(endless, depth) : CSize(depth, endless);
}

void CReBar::OnHeightChange(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    if (CFrameWnd* frame = GetParentFrame())
        frame->PostMessage(WM_RECALCPARENT);
}

// A bar inside wants another size.
void CReBar::OnRecalcParent() {
    const auto count = static_cast<UINT>(SendMessage(RB_GETBANDCOUNT));
    for (UINT i = 0; i < count; ++i) {
        REBARBANDINFO band{};
        band.cbSize = band_size;
        band.fMask = RBBIM_CHILD | RBBIM_CHILDSIZE;
        SendMessage(RB_GETBANDINFO, i, reinterpret_cast<LPARAM>(&band));
        CWnd* bar = FromHandlePermanent(band.hwndChild);
        if (bar == nullptr)
            continue;
        band.fMask = RBBIM_CHILDSIZE;
        band.cyMinChild = static_cast<UINT>(SizeOf(*bar).cy);
        SendMessage(RB_SETBANDINFO, i, reinterpret_cast<LPARAM>(&band));
    }
}

void CReBar::OnUpdateCmdUI(CFrameWnd*, BOOL) {} // the bars inside are updated by themselves

INT_PTR CReBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    CWnd* bar = child != m_hWnd ? FromHandlePermanent(child) : nullptr;
    if (bar == nullptr)
        return -1;
    MapWindowPoints(bar, &point, 1);
    return bar->OnToolHitTest(point, pTI);
}

void CReBar::OnPaint() {
    Default();
}

BOOL CReBar::OnEraseBkgnd(CDC*) {
    return static_cast<BOOL>(Default());
}

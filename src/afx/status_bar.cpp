#include "afx_status_bar.h"
#include "afxmsg_.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
ON_WM_SIZE()
ON_WM_PAINT()
ON_MESSAGE(WM_SETTEXT, &CStatusBar::HandleSetText)
ON_MESSAGE(WM_GETTEXT, &CStatusBar::HandleGetText)
ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::HandleGetTextLength)
END_MESSAGE_MAP()

CStatusBar::CStatusBar() {
    SetBorders();
}

CStatusBar::~CStatusBar() = default;

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    m_dwStyle = dwStyle & CBRS_ALL;
    DWORD style = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NOMOVEY |
                  CCS_NODIVIDER | CCS_NORESIZE;
    if (pParentWnd->GetParent() == nullptr && (pParentWnd->GetStyle() & WS_THICKFRAME) != 0)
        style |= SBARS_SIZEGRIP;
    ::InitCommonControls();
    if (!CWnd::Create(STATUSCLASSNAME, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID))
        return FALSE;
    SetOwner(pParentWnd);
    return TRUE;
}

int CStatusBar::TextWidth(LPCTSTR text) const {
    CClientDC dc(const_cast<CStatusBar*>(this));
    const HGDIOBJ before = ::SelectObject(dc, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    SIZE size{};
    ::GetTextExtentPoint32(dc, text, lstrlen(text), &size);
    ::SelectObject(dc, before);
    return size.cx;
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    if (nIDCount < 1 || nIDCount > 255)
        return FALSE;
    m_panes.assign(static_cast<std::size_t>(nIDCount), pane());
    m_nCount = nIDCount;
    BOOL found = TRUE;
    for (int i = 0; i < nIDCount; ++i) {
        pane& one = m_panes[static_cast<std::size_t>(i)];
        one.id = lpIDArray != nullptr ? lpIDArray[i] : 0;
        if (i == 0)
            one.style = SBPS_STRETCH | SBPS_NOBORDERS, one.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
        if (one.id == 0)
            continue;
        CString text;
        found = text.LoadString(one.id) && found;
        one.width = i == 0 ? one.width : TextWidth(text);
        one.text = text;
        one.style |= i == 0 ? 0 : SBPS_DISABLED; // until the command is updated
    }
    PlaceParts();
    for (int i = 0; i < nIDCount; ++i)
        ShowText(i);
    return found;
}

// The right ends of the parts; the panes that stretch share what is left.
void CStatusBar::PlaceParts() {
    if (m_hWnd == nullptr || m_panes.empty())
        return;
    constexpr int margin = 8;
    int borders[3] = {};
    SendMessage(SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(borders));
    CRect client;
    GetClientRect(client);
    const int grip = (GetStyle() & SBARS_SIZEGRIP) != 0 ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    int fixed = 0, stretching = 0;
    for (const pane& one : m_panes) {
        if ((one.style & SBPS_STRETCH) != 0)
            ++stretching;
        else
            fixed += one.width + margin;
        fixed += borders[2];
    }
    const int share = stretching > 0 ? std::max(client.Width() - grip - fixed, 0) / stretching : 0;
    std::vector<int> ends;
    int at = 0;
    for (const pane& one : m_panes) {
        at += (one.style & SBPS_STRETCH) != 0 ? share : one.width + margin;
        ends.push_back(at);
        at += borders[2];
    }
    SendMessage(SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
}

const CStatusBar::pane* CStatusBar::PaneAt(int index) const {
    return index >= 0 && index < static_cast<int>(m_panes.size()) ? &m_panes[static_cast<std::size_t>(index)] : nullptr;
}

void CStatusBar::ShowText(int index) {
    const pane& one = *PaneAt(index);
    const WPARAM kind = static_cast<WPARAM>(index) | LOWORD(one.style);
    const bool shown = (one.style & SBPS_DISABLED) == 0;
    SendMessage(SB_SETTEXT, kind, reinterpret_cast<LPARAM>(shown ? one.text.GetString() : ""));
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    const auto at = std::find_if(m_panes.begin(), m_panes.end(), [=](const pane& one) { return one.id == nIDFind; });
    return at != m_panes.end() ? static_cast<int>(at - m_panes.begin()) : -1;
}

UINT CStatusBar::GetItemID(int nIndex) const {
    const pane* one = PaneAt(nIndex);
    return one != nullptr ? one->id : 0;
}

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    if (!SendMessage(SB_GETRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)))
        ::SetRectEmpty(lpRect);
}

CString CStatusBar::GetPaneText(int nIndex) const {
    const pane* one = PaneAt(nIndex);
    return one != nullptr ? one->text : CString();
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    const pane* at = PaneAt(nIndex);
    if (at == nullptr)
        return FALSE;
    pane& one = m_panes[static_cast<std::size_t>(nIndex)];
    if (one.text == lpszNewText)
        return TRUE; // the same again would flicker
    one.text = lpszNewText;
    if (bUpdate)
        ShowText(nIndex);
    return TRUE;
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    const pane* one = PaneAt(nIndex);
    nID = one != nullptr ? one->id : 0;
    nStyle = one != nullptr ? one->style : 0;
    cxWidth = one != nullptr ? one->width : 0;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    if (PaneAt(nIndex) == nullptr)
        return;
    pane& one = m_panes[static_cast<std::size_t>(nIndex)];
    one.id = nID;
    one.width = cxWidth;
    SetPaneStyle(nIndex, nStyle);
    PlaceParts();
}

UINT CStatusBar::GetPaneStyle(int nIndex) const {
    const pane* one = PaneAt(nIndex);
    return one != nullptr ? one->style : 0;
}

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    if (PaneAt(nIndex) == nullptr || m_panes[static_cast<std::size_t>(nIndex)].style == nStyle)
        return;
    const UINT before = std::exchange(m_panes[static_cast<std::size_t>(nIndex)].style, nStyle);
    if (((before ^ nStyle) & SBPS_STRETCH) != 0)
        PlaceParts();
    ShowText(nIndex);
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT) {}

// Its parent is asked to draw: that is, the bar itself.
BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL bHorz) {
    int borders[3] = {};
    SendMessage(SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(borders));
    CClientDC dc(this);
    const HGDIOBJ before = ::SelectObject(dc, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    TEXTMETRIC metrics{};
    ::GetTextMetrics(dc, &metrics);
    ::SelectObject(dc, before);
    const int height = metrics.tmHeight + 2 * borders[1] + 4;
    return bHorz ? CSize(32767, height) : CSize(height, 32767);
}

void CStatusBar::OnSize(UINT, int, int) {
    Default();
    PlaceParts();
}

void CStatusBar::OnPaint() {
    Default();
}

// The window's text is the first pane's.
LRESULT CStatusBar::HandleSetText(WPARAM, LPARAM lParam) {
    if (m_panes.empty())
        return Default();
    return SetPaneText(std::max(CommandToIndex(0), 0), reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::HandleGetText(WPARAM wParam, LPARAM lParam) {
    if (m_panes.empty())
        return Default();
    if (wParam == 0)
        return 0;
    const CString& text = PaneAt(std::max(CommandToIndex(0), 0))->text;
    lstrcpyn(reinterpret_cast<LPTSTR>(lParam), text, static_cast<int>(std::min<WPARAM>(wParam, 0x7FFFFFFF)));
    return std::min<LRESULT>(text.GetLength(), static_cast<LRESULT>(wParam) - 1);
}

LRESULT CStatusBar::HandleGetTextLength(WPARAM, LPARAM) {
    return m_panes.empty() ? Default() : PaneAt(std::max(CommandToIndex(0), 0))->text.GetLength();
}

namespace {

// One pane of a status bar: enabled is shown, checked is raised.
class pane_cmd_ui : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        change(SBPS_DISABLED, bOn ? 0 : SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override { change(SBPS_POPOUT, nCheck != 0 ? SBPS_POPOUT : 0); }
    void SetRadio(BOOL bOn) override { SetCheck(bOn); }
    void SetText(LPCTSTR lpszText) override { bar().SetPaneText(static_cast<int>(m_nIndex), lpszText); }

private:
    CStatusBar& bar() { return *static_cast<CStatusBar*>(m_pOther); }
    void change(UINT mask, UINT wanted) {
        const int index = static_cast<int>(m_nIndex);
        bar().SetPaneStyle(index, (bar().GetPaneStyle(index) & ~mask) | wanted);
    }
};

} // namespace

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    pane_cmd_ui state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(m_panes.size());
    const HWND self = m_hWnd; // update handlers may end it
    for (; state.m_nIndex < state.m_nIndexMax && ::IsWindow(self); ++state.m_nIndex) {
        state.m_nID = GetItemID(static_cast<int>(state.m_nIndex));
        if (!CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr))
            state.DoUpdate(pTarget, FALSE); // a pane that nobody updates shows what it was given
    }
    if (::IsWindow(self))
        UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

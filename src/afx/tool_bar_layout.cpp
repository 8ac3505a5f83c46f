// Toolbars: size, borders, and the update of their commands.
#include "afx_tool_bar.h"
#include "afxmsg_.h"

#include <algorithm>

// Along a vertical side every button begins a line of its own.
void CToolBar::WrapButtons(bool vertical) {
    const int count = static_cast<int>(SendMessage(TB_BUTTONCOUNT));
    for (int i = 0; i < count; ++i) {
        TBBUTTON button = ButtonAt(i);
        const BYTE state = vertical ? button.fsState | TBSTATE_WRAP : button.fsState & ~TBSTATE_WRAP;
        if (state == button.fsState)
            continue;
        button.fsState = state;
        ReplaceButton(i, button);
    }
}

CSize CToolBar::SizeOfButtons(bool vertical) const {
    CSize size(0, 0);
    const int count = static_cast<int>(SendMessage(TB_BUTTONCOUNT));
    for (int i = 0; i < count; ++i) {
        const TBBUTTON button = ButtonAt(i);
        if ((button.fsState & TBSTATE_HIDDEN) != 0)
            continue;
        CRect rect;
        GetItemRect(i, rect);
        const bool gap = (button.fsStyle & TBSTYLE_SEP) != 0;
        if (vertical) {
            size.cx = std::max<LONG>(size.cx, gap ? 0 : rect.Width());
            size.cy = std::max(size.cy, rect.bottom);
        } else {
            size.cx += gap && rect.Width() == 0 ? button.iBitmap : rect.Width();
            size.cy = std::max<LONG>(size.cy, gap ? 0 : rect.Height());
        }
    }
    if (count == 0)
        size = m_button;
    return size;
}

CSize CToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return CalcDynamicLayout(-1, (bStretch ? LM_STRETCH : 0) | (bHorz ? LM_HORZ : 0) | LM_COMMIT);
}

CSize CToolBar::CalcDynamicLayout(int, DWORD nMode) {
    const bool horizontal = (nMode & LM_HORZ) != 0;
    WrapButtons(!horizontal);
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, horizontal);
    CSize size = SizeOfButtons(!horizontal);
    size.cx -= inside.Width();
    size.cy -= inside.Height();
    if ((nMode & LM_STRETCH) != 0)
        (horizontal ? size.cx : size.cy) = 32767;
    return size;
}

// The platform's toolbar knows no borders: they lie outside its client area.
void CToolBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* lpncsp) {
    CRect rect;
    CalcInsideRect(rect, IsHorizontal());
    RECT& client = lpncsp->rgrc[0];
    client.left += rect.left;
    client.top += rect.top;
    client.right = std::max(client.left, client.right + rect.right);
    client.bottom = std::max(client.top, client.bottom + rect.bottom);
}

void CToolBar::OnNcPaint() {
    CWindowDC dc(this);
    CRect client, window;
    GetClientRect(client);
    GetWindowRect(window);
    ScreenToClient(&window);
    ::OffsetRect(client, -window.left, -window.top);
    ::OffsetRect(window, -window.left, -window.top);
    ::ExcludeClipRect(dc, client.left, client.top, client.right, client.bottom);
    ::FillRect(dc, window, ::GetSysColorBrush(COLOR_BTNFACE));
    DrawBorders(&dc, window);
    DrawGripper(&dc, window);
}

// The borders belong to the bar: it is dragged by them.
LRESULT CToolBar::OnNcHitTest(CPoint) {
    return HTCLIENT;
}

void CToolBar::OnPaint() {
    Default();
}

BOOL CToolBar::OnEraseBkgnd(CDC*) {
    return static_cast<BOOL>(Default());
}

void CToolBar::OnBarStyleChange(DWORD dwOldStyle, DWORD dwNewStyle) {
    constexpr DWORD sides = CBRS_ALIGN_ANY;
    if (m_hWnd == nullptr)
        return;
    if (((dwOldStyle ^ dwNewStyle) & (sides | CBRS_BORDER_ANY | CBRS_GRIPPER)) != 0)
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_FRAMECHANGED | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

INT_PTR CToolBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const INT_PTR child = CControlBar::OnToolHitTest(point, pTI);
    if (child != -1)
        return child;
    const int index = static_cast<int>(SendMessage(TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point)));
    CRect rect;
    GetClientRect(rect);
    if (index < 0 || !::PtInRect(rect, point))
        return -1;
    const UINT id = GetItemID(index);
    if (pTI != nullptr) {
        GetItemRect(index, rect);
        pTI->hwnd = m_hWnd;
        pTI->rect = rect;
        pTI->uId = id;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return id != 0 ? static_cast<INT_PTR>(id) : -1;
}

namespace {

// One button of a toolbar.
class button_cmd_ui : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        change(TBSTATE_ENABLED, bOn ? TBSTATE_ENABLED : 0);
    }
    void SetCheck(int nCheck) override {
        BYTE wanted = nCheck == 1 ? TBSTATE_CHECKED : 0;
        if (nCheck == 2)
            wanted = TBSTATE_INDETERMINATE;
        change(TBSTATE_CHECKED | TBSTATE_INDETERMINATE, wanted);
    }
    void SetRadio(BOOL bOn) override { SetCheck(bOn ? 1 : 0); }
    void SetText(LPCTSTR) override {} // a button shows its image

private:
    void change(int mask, int wanted) {
        const LRESULT state = m_pOther->SendMessage(TB_GETSTATE, m_nID), changed = (state & ~mask) | wanted;
        if (state != -1 && state != changed) // else it would be painted at every idle moment
            m_pOther->SendMessage(TB_SETSTATE, m_nID, static_cast<LPARAM>(changed));
    }
};

} // namespace

void CToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    button_cmd_ui state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(SendMessage(TB_BUTTONCOUNT));
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        const TBBUTTON button = ButtonAt(static_cast<int>(state.m_nIndex));
        state.m_nID = static_cast<UINT>(button.idCommand);
        if ((button.fsStyle & TBSTYLE_SEP) != 0)
            continue;
        if (!CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr)) // the bar itself may care
            state.DoUpdate(pTarget, bDisableIfNoHndler);
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

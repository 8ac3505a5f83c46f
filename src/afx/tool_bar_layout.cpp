// Toolbars: size, borders, and the update of their commands.
#include "afx_tool_bar.h"
#include "afxmsg_.h"

#include <algorithm>
#include <vector>

// Begins a line of its own behind the buttons that fill the width; at a gap, where there is one in the line.
void CToolBar::WrapButtons(int width) {
    const int count = static_cast<int>(SendMessage(TB_BUTTONCOUNT));
    std::vector<bool> ends(static_cast<std::size_t>(count), false);
    int line = 0, at = 0, gap_in_line = -1;
    for (int i = 0; i < count; ++i) {
        const TBBUTTON button = ButtonAt(i);
        if ((button.fsState & TBSTATE_HIDDEN) != 0)
            continue;
        const int breadth = BreadthOf(i, button);
        const bool gap = (button.fsStyle & TBSTYLE_SEP) != 0;
        if (at + breadth > width && i > line && !gap) {
            const int end = gap_in_line >= 0 ? gap_in_line : i - 1;
            ends[static_cast<std::size_t>(end)] = true;
            line = end + 1;
            at = 0;
            for (int back = line; back < i; ++back)
                at += BreadthOf(back, ButtonAt(back));
            gap_in_line = -1;
        }
        if (gap && i > line)
            gap_in_line = i;
        at += breadth;
    }
    for (int i = 0; i < count; ++i) {
        TBBUTTON button = ButtonAt(i);
        const bool end = ends[static_cast<std::size_t>(i)];
        const auto state = static_cast<BYTE>(end ? button.fsState | TBSTATE_WRAP : button.fsState & ~TBSTATE_WRAP);
        if (state == button.fsState)
            continue;
        button.fsState = state;
        ReplaceButton(i, button);
    }
}

int CToolBar::BreadthOf(int index, const TBBUTTON& button) const {
    if ((button.fsStyle & TBSTYLE_SEP) != 0)
        return button.iBitmap;
    CRect rect;
    GetItemRect(index, rect);
    return rect.Width();
}

// The lines as they are; a gap at a line's end does not count for its length.
CSize CToolBar::SizeOfButtons() const {
    CSize size(0, 0);
    const int count = static_cast<int>(SendMessage(TB_BUTTONCOUNT));
    int at = 0;
    for (int i = 0; i < count; ++i) {
        const TBBUTTON button = ButtonAt(i);
        if ((button.fsState & TBSTATE_HIDDEN) != 0)
            continue;
        CRect rect;
        GetItemRect(i, rect);
        const bool gap = (button.fsStyle & TBSTYLE_SEP) != 0, ends = (button.fsState & TBSTATE_WRAP) != 0;
        if (!gap || !ends)
            at += BreadthOf(i, button);
        if (!gap)
            size.cy = std::max(size.cy, rect.bottom);
        size.cx = std::max<LONG>(size.cx, at);
        at = ends ? 0 : at;
    }
    if (count == 0)
        size = m_sizeButton;
    return size;
}

CSize CToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return CalcDynamicLayout(-1, (bStretch ? LM_STRETCH : 0) | (bHorz ? LM_HORZ : 0) | LM_COMMIT);
}

CSize CToolBar::CalcDynamicLayout(int nLength, DWORD nMode) {
    constexpr int endless = 32767;
    const bool horizontal = (nMode & LM_HORZ) != 0, docked = (nMode & (LM_HORZDOCK | LM_VERTDOCK)) != 0;
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, horizontal);
    if ((m_dwStyle & CBRS_SIZE_FIXED) == 0) {
        if ((nMode & LM_LENGTHY) != 0 && nLength != -1)
            WrapToHeight(nLength + inside.Height());
        else if (nLength != -1)
            WrapButtons(nLength + inside.Width());
        else if ((nMode & LM_MRUWIDTH) != 0)
            WrapButtons(m_nMRUWidth + inside.Width());
        else
            WrapButtons(horizontal ? endless : 0);
    }
    CSize size = SizeOfButtons();
    size.cx -= inside.Width();
    size.cy -= inside.Height();
    if ((nMode & LM_COMMIT) != 0 && !docked && nLength != -1)
        m_nMRUWidth = size.cx;
    if ((nMode & LM_STRETCH) != 0)
        (horizontal ? size.cx : size.cy) = endless;
    return size;
}

// The least width at which the lines are no higher.
void CToolBar::WrapToHeight(int height) {
    constexpr int endless = 32767;
    WrapButtons(endless);
    int width = SizeOfButtons().cx;
    for (int narrower = width; narrower > 0; narrower -= m_sizeButton.cx) {
        WrapButtons(narrower);
        if (SizeOfButtons().cy > height)
            break;
        width = narrower;
    }
    WrapButtons(width);
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

// A control that asks its parent for the background would get none of a frame, which leaves that to its view.
BOOL CToolBar::OnEraseBkgnd(CDC* pDC) {
    if (GetParent()->IsFrameWnd()) {
        CRect rect;
        GetClientRect(rect);
        ::FillRect(*pDC, rect, ::GetSysColorBrush(COLOR_BTNFACE));
        return TRUE;
    }
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
    const HWND self = m_hWnd; // update handlers may end it
    for (; state.m_nIndex < state.m_nIndexMax && ::IsWindow(self); ++state.m_nIndex) {
        const TBBUTTON button = ButtonAt(static_cast<int>(state.m_nIndex));
        state.m_nID = static_cast<UINT>(button.idCommand);
        if ((button.fsStyle & TBSTYLE_SEP) != 0)
            continue;
        if (!CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr)) // the bar itself may care
            state.DoUpdate(pTarget, bDisableIfNoHndler);
    }
    if (::IsWindow(self))
        UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

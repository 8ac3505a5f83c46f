#include "afx_boxes.h"
#include "afxmsg_.h"

#include <memory>

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_KEYDOWN()
END_MESSAGE_MAP()

namespace {

CSize check_size() {
    return CSize(::GetSystemMetrics(SM_CXMENUCHECK), ::GetSystemMetrics(SM_CYMENUCHECK));
}

} // namespace

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if ((dwStyle & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0)
        dwStyle |= LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    return CListBox::Create(dwStyle, rect, pParentWnd, nID);
}

CCheckListBox::check_state* CCheckListBox::State(int index) const {
    const LRESULT kept = const_cast<CCheckListBox*>(this)->DefWindowProc(LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return kept == LB_ERR ? nullptr : reinterpret_cast<check_state*>(kept);
}

CCheckListBox::check_state* CCheckListBox::NeedState(int index) {
    if (index < 0 || index >= GetCount())
        return nullptr;
    if (check_state* known = State(index))
        return known;
    auto made = std::make_unique<check_state>(check_state{0, 0, TRUE});
    if (DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(made.get())) == LB_ERR)
        return nullptr;
    return made.release();
}

void CCheckListBox::DropState(int index) {
    delete State(index);
    DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), 0);
}

void CCheckListBox::SetCheck(int nIndex, int nCheck) {
    if (nCheck == 2 && (m_nStyle == BS_CHECKBOX || m_nStyle == BS_AUTOCHECKBOX))
        return; // there is no third state
    if (check_state* state = NeedState(nIndex)) {
        state->check = nCheck;
        InvalidateCheck(nIndex);
    }
}

int CCheckListBox::GetCheck(int nIndex) {
    const check_state* state = State(nIndex);
    return state != nullptr ? state->check : 0;
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled) {
    if (check_state* state = NeedState(nIndex)) {
        state->enabled = bEnabled;
        InvalidateItem(nIndex);
    }
}

BOOL CCheckListBox::IsEnabled(int nIndex) {
    const check_state* state = State(nIndex);
    return state == nullptr || state->enabled;
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox) {
    return rectCheckBox;
}

int CCheckListBox::CalcMinimumItemHeight() {
    CClientDC dc(this);
    const CFont* font = GetFont();
    CFont* before = font != nullptr ? dc.SelectObject(const_cast<CFont*>(font)) : nullptr;
    TEXTMETRIC metrics;
    dc.GetTextMetrics(&metrics);
    if (before != nullptr)
        dc.SelectObject(before);
    return std::max<int>(check_size().cy, metrics.tmHeight);
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(CalcMinimumItemHeight());
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    const int index = static_cast<int>(lpDrawItemStruct->itemID);
    CRect place(lpDrawItemStruct->rcItem);
    if (index < 0) {
        if ((lpDrawItemStruct->itemAction & ODA_FOCUS) != 0)
            dc->DrawFocusRect(place);
        return;
    }
    const CSize size = check_size();
    CRect box(CPoint(place.left, place.top + (place.Height() - size.cy) / 2), size);
    box = OnGetCheckPosition(place, box);
    const bool usable = IsWindowEnabled() && IsEnabled(index);
    const int check = GetCheck(index);
    UINT state = check == 2 ? DFCS_BUTTON3STATE | DFCS_CHECKED : check == 1 ? DFCS_CHECKED : DFCS_BUTTONCHECK;
    if (!usable)
        state |= DFCS_INACTIVE;
    const bool selected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const COLORREF paper = ::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW);
    const int ink = !usable ? COLOR_GRAYTEXT : selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
    dc->FillSolidRect(place.left, place.top, box.right - place.left, place.Height(), ::GetSysColor(COLOR_WINDOW));
    dc->DrawFrameControl(box, DFC_BUTTON, state);
    place.left = box.right;
    dc->FillSolidRect(place, paper);
    const COLORREF before = dc->SetTextColor(::GetSysColor(ink));
    CString text;
    GetText(index, text);
    CRect words(place);
    words.left += 2;
    dc->DrawText(text, words, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    dc->SetTextColor(before);
    if ((lpDrawItemStruct->itemState & ODS_FOCUS) != 0)
        dc->DrawFocusRect(place);
}

void CCheckListBox::InvalidateItem(int nIndex) {
    CRect place;
    if (GetItemRect(nIndex, place) != LB_ERR)
        InvalidateRect(place, FALSE);
}

void CCheckListBox::InvalidateCheck(int nIndex) {
    InvalidateItem(nIndex);
}

int CCheckListBox::CheckFromPoint(CPoint point, BOOL& bInCheck) {
    bInCheck = FALSE;
    BOOL outside = FALSE;
    const int index = static_cast<int>(ItemFromPoint(point, outside));
    CRect place;
    if (outside || GetItemRect(index, place) == LB_ERR || !place.PtInRect(point))
        return -1;
    const CSize size = check_size();
    const CRect box(CPoint(place.left, place.top + (place.Height() - size.cy) / 2), size);
    bInCheck = OnGetCheckPosition(place, box).PtInRect(point);
    return index;
}

void CCheckListBox::Toggle(int index) {
    if (!IsEnabled(index))
        return;
    if (m_nStyle == BS_AUTOCHECKBOX || m_nStyle == BS_AUTO3STATE)
        SetCheck(index, (GetCheck(index) + 1) % (m_nStyle == BS_AUTO3STATE ? 3 : 2));
    if (CWnd* parent = GetParent())
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE), reinterpret_cast<LPARAM>(m_hWnd));
}

void CCheckListBox::OnLButtonDown(UINT, CPoint point) {
    SetFocus();
    BOOL in_check = FALSE;
    const int index = CheckFromPoint(point, in_check);
    Default();
    if (in_check)
        Toggle(index);
}

void CCheckListBox::OnLButtonDblClk(UINT, CPoint point) {
    BOOL in_check = FALSE;
    const int index = CheckFromPoint(point, in_check);
    if (in_check)
        Toggle(index);
    else
        Default();
}

void CCheckListBox::OnKeyDown(UINT nChar, UINT, UINT) {
    if (nChar == VK_SPACE && GetCaretIndex() >= 0)
        Toggle(GetCaretIndex());
    else
        Default();
}

// The items' numbers are the program's; what the box itself keeps there is hidden, and goes with its item.
LRESULT CCheckListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
    case LB_GETITEMDATA:
        if (index < 0 || index >= GetCount())
            return LB_ERR;
        return State(index) != nullptr ? static_cast<LRESULT>(State(index)->data) : 0;
    case LB_SETITEMDATA:
        if (check_state* state = NeedState(index)) {
            state->data = static_cast<DWORD_PTR>(lParam);
            return 0;
        }
        return LB_ERR;
    case LB_DELETESTRING:
        if (index >= 0 && index < GetCount())
            DropState(index);
        break;
    case LB_RESETCONTENT:
    case WM_DESTROY:
        for (int i = GetCount(); i-- > 0;)
            DropState(i);
        break;
    default:
        break;
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

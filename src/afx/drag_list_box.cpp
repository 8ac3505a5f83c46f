#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CDragListBox, CListBox)

namespace {

// The control tells its parent by a message whose number is the system's.
UINT drag_message() {
    static const UINT number = ::RegisterWindowMessage(DRAGLISTMSGSTRING);
    return number;
}

} // namespace

void CDragListBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    ::MakeDragList(m_hWnd);
}

BOOL CDragListBox::BeginDrag(CPoint) {
    return TRUE;
}

void CDragListBox::CancelDrag(CPoint) {
    DrawInsert(-1);
}

UINT CDragListBox::Dragging(CPoint pt) {
    const int item = ItemFromPt(pt);
    DrawInsert(item);
    return item == LB_ERR ? DL_STOPCURSOR : DL_MOVECURSOR;
}

void CDragListBox::DrawInsert(int nItem) {
    ::DrawInsert(GetParent()->GetSafeHwnd(), m_hWnd, nItem);
}

void CDragListBox::Dropped(int nSrcIndex, CPoint pt) {
    DrawInsert(-1);
    const int before = ItemFromPt(pt);
    if (before == LB_ERR || nSrcIndex == LB_ERR || before == nSrcIndex || before == nSrcIndex + 1)
        return;
    CString text;
    GetText(nSrcIndex, text);
    const DWORD_PTR data = GetItemData(nSrcIndex);
    DeleteString(static_cast<UINT>(nSrcIndex));
    const int place = InsertString(before > nSrcIndex ? before - 1 : before, text);
    SetItemData(place, data);
    SetCurSel(place);
}

BOOL CDragListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != drag_message())
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    const auto& drag = *reinterpret_cast<const DRAGLISTINFO*>(lParam);
    LRESULT answer = 0;
    switch (drag.uNotification) {
    case DL_BEGINDRAG:
        answer = BeginDrag(drag.ptCursor);
        break;
    case DL_CANCELDRAG:
        CancelDrag(drag.ptCursor);
        break;
    case DL_DRAGGING:
        answer = static_cast<LRESULT>(Dragging(drag.ptCursor));
        break;
    case DL_DROPPED:
        Dropped(GetCurSel(), drag.ptCursor);
        break;
    default:
        return FALSE;
    }
    if (pResult != nullptr)
        *pResult = answer;
    return TRUE;
}

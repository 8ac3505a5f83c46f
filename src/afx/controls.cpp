#include "afx_boxes.h"
#include "afx_exception.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

// The message takes the room's size from its first two bytes, which a buffer of one character has not.
int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    const WORD room = static_cast<WORD>(std::clamp(nMaxLength, 0, 0xFFFF));
    char pair[sizeof(room)];
    char* const into = room < sizeof(room) ? pair : lpszBuffer;
    std::memcpy(into, &room, sizeof(room));
    const int copied = GetLine(nIndex, into);
    if (into == pair && copied > 0 && room > 0)
        *lpszBuffer = pair[0];
    return room > 0 ? copied : 0;
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
}

// A map entry for the reflected message comes before the virtual function.
BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

namespace {

// The messages about owner-drawn items, for both kinds of boxes.
template <class Box> bool tell_owner_drawn(Box& box, UINT message, LPARAM lParam, LRESULT* result) {
    switch (message) {
    case WM_DRAWITEM:
        box.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
    case WM_MEASUREITEM:
        box.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        box.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    case WM_COMPAREITEM:
        if (result != nullptr)
            *result = box.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return true;
    default:
        return false;
    }
}

} // namespace

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult) || tell_owner_drawn(*this, message, lParam, pResult))
        return TRUE;
    if (message != WM_VKEYTOITEM && message != WM_CHARTOITEM)
        return FALSE;
    const int answer = message == WM_VKEYTOITEM ? VKeyToItem(LOWORD(wParam), HIWORD(wParam))
                                                : CharToItem(LOWORD(wParam), HIWORD(wParam));
    if (pResult != nullptr)
        *pResult = answer;
    return TRUE;
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult) || tell_owner_drawn(*this, message, lParam, pResult);
}

// Items that nobody draws, measures or compares are like each other and of the platform's size.
void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CListBox::VKeyToItem(UINT, UINT) {
    return static_cast<int>(Default());
}

int CListBox::CharToItem(UINT, UINT) {
    return static_cast<int>(Default());
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

void CListBox::GetText(int nIndex, CString& rString) const {
    const int length = GetTextLen(nIndex);
    rString.Empty();
    if (length <= 0)
        return;
    GetText(nIndex, rString.GetBuffer(length + 1));
    rString.ReleaseBuffer();
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    const int length = GetLBTextLen(nIndex);
    rString.Empty();
    if (length <= 0)
        return;
    GetLBText(nIndex, rString.GetBuffer(length + 1));
    rString.ReleaseBuffer();
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const LRESULT answer = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(answer);
    return LOWORD(answer);
}

#include "afx_rich_edit.h"

#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

namespace {

// Stays loaded: windows of its classes may live until the process ends.
BOOL load(LPCTSTR library) {
    return ::GetModuleHandle(library) != nullptr || ::LoadLibrary(library) != nullptr;
}

} // namespace

BOOL AFXAPI AfxInitRichEdit() {
    return load("RICHED32.DLL");
}

BOOL AFXAPI AfxInitRichEdit2() {
    return load("RICHED20.DLL");
}

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CRichEditCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return AfxInitRichEdit2() &&
           CWnd::CreateEx(dwExStyle, RICHEDIT_CLASSA, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

// The message takes the room's size from its first two bytes.
int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    const WORD room = static_cast<WORD>(std::clamp(nMaxLength, 0, 0xFFFF));
    if (lpszBuffer == nullptr || room < sizeof(room))
        return 0;
    std::memcpy(lpszBuffer, &room, sizeof(room));
    return Ask(EM_GETLINE, nIndex, afx_param(lpszBuffer));
}

int CRichEditCtrl::GetTextRange(int nFirst, int nLast, CString& refString) const {
    const long length = GetTextLength(), last = nLast < 0 ? length : std::min<long>(nLast, length);
    TEXTRANGE range{{nFirst, last}, nullptr};
    refString.Empty();
    if (nFirst < 0 || nFirst >= last)
        return 0;
    constexpr long widest = 2; // bytes of a character
    range.lpstrText = refString.GetBuffer(static_cast<int>((last - nFirst) * widest) + 1);
    const int count = Ask(EM_GETTEXTRANGE, 0, afx_param(&range));
    refString.ReleaseBuffer(count);
    return count;
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const {
    CHARRANGE range{};
    GetSel(range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar) {
    CHARRANGE range{nStartChar, nEndChar};
    SetSel(range);
}

CString CRichEditCtrl::GetSelText() const {
    CHARRANGE range{};
    GetSel(range);
    CString text;
    GetTextRange(range.cpMin, range.cpMax, text);
    return text;
}

CPoint CRichEditCtrl::GetCharPos(long lChar) const {
    POINTL place{};
    SendMessage(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place), lChar);
    return CPoint(place.x, place.y);
}

int CRichEditCtrl::CharFromPos(CPoint pt) const {
    POINTL place{pt.x, pt.y};
    return Ask(EM_CHARFROMPOS, 0, afx_param(&place));
}

void CRichEditCtrl::PasteSpecial(UINT nClipFormat, DWORD dvAspect, HMETAFILE hMF) {
    REPASTESPECIAL how{dvAspect, reinterpret_cast<DWORD_PTR>(hMF)};
    SendMessage(EM_PASTESPECIAL, nClipFormat, afx_param(&how));
}

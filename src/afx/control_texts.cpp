// What controls take and give in wide characters only, and the parts of a split button.
#include "afxcmn.h"
#include "atlconv.h"

#include <cwchar>
#include <vector>

namespace {

constexpr int longest_text = 1 << 16;

// Asks with ever more room, since a control does not tell how long the text is.
template <class Ask> CString text_of(Ask ask) {
    for (int room = 128; room <= longest_text; room *= 2) {
        std::vector<wchar_t> text(static_cast<std::size_t>(room));
        if (!ask(text.data(), room))
            return CString();
        text.back() = L'\0';
        if (std::wcslen(text.data()) + 1 < text.size() || room == longest_text)
            return CString(text.data());
    }
    return CString();
}

// Nothing is written where the room is too small.
bool give(const CString& text, LPTSTR room, UINT count) {
    if (room == nullptr || static_cast<UINT>(text.GetLength()) >= count)
        return false;
    ::lstrcpy(room, text);
    return true;
}

} // namespace

CString CEdit::GetCueBanner() const {
    return text_of([this](LPWSTR text, int room) { return GetCueBanner(text, room); });
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpszText) {
    const CA2W text(lpszText);
    return Ask(CB_SETCUEBANNER, 0, afx_param(static_cast<LPCWSTR>(text))) > 0; // CB_ERR where it is refused
}

CString CComboBox::GetCueBanner() const {
    return text_of([this](LPWSTR text, int room) {
        return SendMessage(CB_GETCUEBANNER, reinterpret_cast<WPARAM>(text), room) > 0;
    });
}

BOOL CComboBox::GetCueBanner(LPTSTR lpszText, int cchText) const {
    return cchText > 0 && give(GetCueBanner(), lpszText, static_cast<UINT>(cchText));
}

CString CListCtrl::GetEmptyText() const {
    return text_of([this](LPWSTR text, int room) { return Ask(LVM_GETEMPTYTEXT, room, afx_param(text)) != 0; });
}

BOOL CButton::SetNote(LPCTSTR lpszNote) {
    const CA2W note(lpszNote);
    return Tell(BCM_SETNOTE, static_cast<LPCWSTR>(note));
}

CString CButton::GetNote() const {
    DWORD room = GetNoteLength() + 1;
    std::vector<wchar_t> note(room);
    const LRESULT given = SendMessage(BCM_GETNOTE, reinterpret_cast<WPARAM>(&room), afx_param(note.data()));
    return given ? CString(note.data()) : CString();
}

BOOL CButton::GetNote(LPTSTR lpszNote, UINT* cchNote) const {
    const CString note = GetNote();
    const BOOL given = give(note, lpszNote, *cchNote);
    *cchNote = static_cast<UINT>(note.GetLength()) + (given ? 0 : 1);
    return given;
}

BUTTON_SPLITINFO CButton::Split(UINT mask) const {
    BUTTON_SPLITINFO info{};
    info.mask = mask;
    GetSplitInfo(&info);
    return info;
}

// The glyph's character stands in the place of the list.
TCHAR CButton::GetSplitGlyph() const {
    return static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(Split(BCSIF_GLYPH).himlGlyph));
}

BOOL CButton::SetSplitGlyph(TCHAR chGlyph) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_GLYPH;
    info.himlGlyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(static_cast<unsigned char>(chGlyph)));
    return SetSplitInfo(&info);
}

CImageList* CButton::GetSplitImageList() const {
    return CImageList::FromHandle(Split(BCSIF_IMAGE).himlGlyph);
}

BOOL CButton::SetSplitImageList(CImageList* pSplitImageList) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_IMAGE;
    info.himlGlyph = pSplitImageList->GetSafeHandle();
    return SetSplitInfo(&info);
}

BOOL CButton::SetSplitStyle(UINT uSplitStyle) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_STYLE;
    info.uSplitStyle = uSplitStyle;
    return SetSplitInfo(&info);
}

BOOL CButton::GetSplitSize(LPSIZE pSize) const {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    const BOOL given = GetSplitInfo(&info);
    *pSize = info.size;
    return given;
}

BOOL CButton::SetSplitSize(LPSIZE pSize) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    info.size = *pSize;
    return SetSplitInfo(&info);
}

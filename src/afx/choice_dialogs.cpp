#include "afxdlgs.h"
#include "modal_parent.h"
#include "wnd_state.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFindReplaceDialog, CCommonDialog)

namespace {

// The object takes the dialog over before it is shown.
UINT_PTR start(CDialog& dialog, HWND hwnd, const MSG& message) {
    try {
        return !dialog.SubclassWindow(hwnd) || dialog.OnInitDialog();
    } catch (...) {
        answer_exception(message);
        return TRUE;
    }
}

UINT color_ok_message() {
    static const UINT number = ::RegisterWindowMessage(COLOROKSTRING);
    return number;
}

UINT set_rgb_message() {
    static const UINT number = ::RegisterWindowMessage(SETRGBSTRING);
    return number;
}

} // namespace

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd), m_cc{} {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.rgbResult = clrInit;
    m_cc.Flags = dwFlags | CC_ENABLEHOOK | CC_RGBINIT;
    m_cc.lpfnHook = &CColorDialog::HookProc;
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors() {
    static COLORREF colors[16];
    static const bool white = (std::fill(std::begin(colors), std::end(colors), RGB(255, 255, 255)), true);
    return white ? colors : nullptr;
}

INT_PTR CColorDialog::DoModal() {
    const modal_parent parent(m_pParentWnd);
    m_cc.hwndOwner = parent.handle();
    m_cc.lCustData = reinterpret_cast<LPARAM>(this);
    return ::ChooseColor(&m_cc) ? IDOK : IDCANCEL;
}

void CColorDialog::SetCurrentColor(COLORREF clr) {
    SendMessage(set_rgb_message(), 0, static_cast<LPARAM>(clr));
}

BOOL CColorDialog::OnColorOK() {
    return FALSE;
}

UINT_PTR CALLBACK CColorDialog::HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const MSG current{hwnd, message, wParam, lParam, 0, {0, 0}};
    if (message == WM_INITDIALOG) {
        auto* record = reinterpret_cast<CHOOSECOLOR*>(lParam);
        return start(*reinterpret_cast<CColorDialog*>(record->lCustData), hwnd, current);
    }
    auto* dialog = dynamic_cast<CColorDialog*>(FromHandlePermanent(hwnd));
    if (message != color_ok_message() || dialog == nullptr)
        return 0;
    try {
        const auto* record = reinterpret_cast<const CHOOSECOLOR*>(lParam);
        dialog->m_cc.rgbResult = record->rgbResult;
        return static_cast<UINT_PTR>(dialog->OnColorOK());
    } catch (...) {
        answer_exception(current);
        return TRUE;
    }
}

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cf{}, m_lf{} {
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.Flags = dwFlags | CF_ENABLEHOOK;
    if (lplfInitial != nullptr) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != nullptr) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
    m_cf.lpLogFont = lplfInitial != nullptr ? lplfInitial : &m_lf; // the choice goes into the caller's record, too
    m_cf.lpszStyle = m_szStyleName;
    m_cf.lpfnHook = &CFontDialog::HookProc;
}

CFontDialog::CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CFontDialog(nullptr, dwFlags | CF_INITTOLOGFONTSTRUCT, pdcPrinter, pParentWnd) {
    constexpr int twips_an_inch = 1440;
    const DWORD named = charformat.dwMask, on = charformat.dwEffects & named;
    m_cf.Flags |= ((named & CFM_FACE) == 0 ? CF_NOFACESEL : 0) | ((named & CFM_SIZE) == 0 ? CF_NOSIZESEL : 0) |
                  ((named & (CFM_BOLD | CFM_ITALIC)) == 0 ? CF_NOSTYLESEL : 0);
    m_lf.lfCharSet = (named & CFM_CHARSET) != 0 ? charformat.bCharSet : BYTE{DEFAULT_CHARSET};
    ::lstrcpyn(m_lf.lfFaceName, (named & CFM_FACE) != 0 ? charformat.szFaceName : "", LF_FACESIZE);
    if ((named & CFM_SIZE) != 0)
        m_lf.lfHeight = -::MulDiv(charformat.yHeight, CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY), twips_an_inch);
    m_lf.lfWeight = (on & CFE_BOLD) != 0 ? FW_BOLD : FW_NORMAL;
    m_lf.lfItalic = (on & CFE_ITALIC) != 0;
    m_lf.lfUnderline = (on & CFE_UNDERLINE) != 0;
    m_lf.lfStrikeOut = (on & CFE_STRIKEOUT) != 0;
    if ((named & CFM_COLOR) != 0 && (on & CFE_AUTOCOLOR) == 0)
        m_cf.rgbColors = charformat.crTextColor;
}

void CFontDialog::GetCharFormat(CHARFORMAT& cf) const {
    constexpr int twips_a_tenth = 2;
    cf = {};
    cf.cbSize = sizeof(cf);
    if ((m_cf.Flags & CF_NOFACESEL) == 0) {
        cf.dwMask |= CFM_FACE | CFM_CHARSET;
        cf.bCharSet = m_lf.lfCharSet;
        cf.bPitchAndFamily = m_lf.lfPitchAndFamily;
        ::lstrcpyn(cf.szFaceName, m_lf.lfFaceName, LF_FACESIZE);
    }
    if ((m_cf.Flags & CF_NOSIZESEL) == 0) {
        cf.dwMask |= CFM_SIZE;
        cf.yHeight = GetSize() * twips_a_tenth;
    }
    if ((m_cf.Flags & CF_NOSTYLESEL) == 0) {
        cf.dwMask |= CFM_BOLD | CFM_ITALIC;
        cf.dwEffects |= (IsBold() ? CFE_BOLD : 0) | (IsItalic() ? CFE_ITALIC : 0);
    }
    if ((m_cf.Flags & CF_EFFECTS) != 0) {
        cf.dwMask |= CFM_UNDERLINE | CFM_STRIKEOUT | CFM_COLOR;
        cf.dwEffects |= (IsUnderline() ? CFE_UNDERLINE : 0) | (IsStrikeOut() ? CFE_STRIKEOUT : 0);
        cf.crTextColor = GetColor();
    }
}

INT_PTR CFontDialog::DoModal() {
    const modal_parent parent(m_pParentWnd);
    m_cf.hwndOwner = parent.handle();
    m_cf.lCustData = reinterpret_cast<LPARAM>(this);
    if (!::ChooseFont(&m_cf))
        return IDCANCEL;
    m_lf = *m_cf.lpLogFont;
    return IDOK;
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf) {
    *lplf = m_lf;
    if (m_hWnd != nullptr)
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
}

UINT_PTR CALLBACK CFontDialog::HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG)
        return 0;
    auto* record = reinterpret_cast<CHOOSEFONT*>(lParam);
    return start(*reinterpret_cast<CFontDialog*>(record->lCustData), hwnd, {hwnd, message, wParam, lParam, 0, {0, 0}});
}

CFindReplaceDialog::CFindReplaceDialog() : CCommonDialog(nullptr), m_fr{} {
    m_fr.lStructSize = sizeof(m_fr);
    m_fr.Flags = FR_ENABLEHOOK;
    m_fr.lpfnHook = &CFindReplaceDialog::HookProc;
    m_fr.lpstrFindWhat = m_szFindWhat;
    m_fr.wFindWhatLen = sizeof(m_szFindWhat);
    m_fr.lpstrReplaceWith = m_szReplaceWith;
    m_fr.wReplaceWithLen = sizeof(m_szReplaceWith);
}

BOOL CFindReplaceDialog::Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith, DWORD dwFlags,
                                CWnd* pParentWnd) {
    CWnd* parent = pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd();
    if (m_hWnd != nullptr || parent == nullptr)
        return FALSE;
    m_fr.Flags |= dwFlags;
    m_fr.hwndOwner = parent->m_hWnd;
    m_fr.lCustData = reinterpret_cast<LPARAM>(this);
    lstrcpyn(m_szFindWhat, lpszFindWhat != nullptr ? lpszFindWhat : "", sizeof(m_szFindWhat));
    lstrcpyn(m_szReplaceWith, lpszReplaceWith != nullptr ? lpszReplaceWith : "", sizeof(m_szReplaceWith));
    return (bFindDialogOnly ? ::FindText(&m_fr) : ::ReplaceText(&m_fr)) != nullptr;
}

CFindReplaceDialog* PASCAL CFindReplaceDialog::GetNotifier(LPARAM lParam) {
    return reinterpret_cast<CFindReplaceDialog*>(reinterpret_cast<const FINDREPLACE*>(lParam)->lCustData);
}

void CFindReplaceDialog::PostNcDestroy() {
    delete this;
}

UINT_PTR CALLBACK CFindReplaceDialog::HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG)
        return 0;
    auto* record = reinterpret_cast<FINDREPLACE*>(lParam);
    return start(*reinterpret_cast<CFindReplaceDialog*>(record->lCustData), hwnd,
                 {hwnd, message, wParam, lParam, 0, {0, 0}});
}

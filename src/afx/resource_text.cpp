// Texts put together from the resource chain.
#include "afx_app.h"

#include <span>

namespace {

// %1 to %9 are replaced; what there is no text for stays empty.
CString filled(LPCTSTR format, std::span<const LPCTSTR> texts) {
    CString result;
    for (const char* at = format; *at != '\0'; ++at) {
        if (*at != '%' || at[1] < '1' || at[1] > '9') {
            result += *at;
            continue;
        }
        const auto index = static_cast<std::size_t>(*++at - '1');
        if (index < texts.size() && texts[index] != nullptr)
            result += texts[index];
    }
    return result;
}

void format(CString& text, UINT id, std::span<const LPCTSTR> texts) {
    CString stored;
    stored.LoadString(id);
    text = filled(stored, texts);
}

} // namespace

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) {
    const LPCTSTR texts[] = {lpsz1};
    format(rString, nIDS, texts);
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    const LPCTSTR texts[] = {lpsz1, lpsz2};
    format(rString, nIDS, texts);
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep) {
    for (const char* from = lpszFullString; from != nullptr;) {
        const char* end = std::strchr(from, chSep);
        if (iSubString-- == 0) {
            rString = end != nullptr ? CString(from, static_cast<int>(end - from)) : CString(from);
            return TRUE;
        }
        from = end != nullptr ? end + 1 : nullptr;
    }
    if (lpszFullString != nullptr)
        rString.Empty();
    return FALSE;
}

int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf) {
    CString text;
    text.LoadString(nID);
    return nMaxBuf > 0 ? lstrlen(lstrcpyn(lpszBuf, text, static_cast<int>(nMaxBuf))) : 0;
}

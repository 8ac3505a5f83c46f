// Conversions between texts of the program's code page and the platform's wide characters. In this build T is A.
#pragma once

#include "afx_base.h"

#include <malloc.h>

#include <string>

namespace ATL {

ZOPAFX_API std::wstring afx_widen(LPCSTR text, UINT code_page);
ZOPAFX_API std::string afx_narrow(LPCWSTR text, UINT code_page);
// Into the room of so many characters, which the text fits.
ZOPAFX_API LPWSTR afx_widen_into(LPWSTR room, int count, LPCSTR text);
ZOPAFX_API LPSTR afx_narrow_into(LPSTR room, int count, LPCWSTR text);

// The converted text, while the object lives; null for null.
class CA2W {
public:
    CA2W(LPCSTR psz, UINT nCodePage = CP_ACP) : m_text(afx_widen(psz, nCodePage)), m_null(psz == nullptr) {}
    CA2W(const CA2W&) = delete;
    CA2W& operator=(const CA2W&) = delete;
    operator LPWSTR() const { return m_null ? nullptr : const_cast<LPWSTR>(m_text.c_str()); }

private:
    std::wstring m_text;
    bool m_null;
};

class CW2A {
public:
    CW2A(LPCWSTR psz, UINT nCodePage = CP_ACP) : m_text(afx_narrow(psz, nCodePage)), m_null(psz == nullptr) {}
    CW2A(const CW2A&) = delete;
    CW2A& operator=(const CW2A&) = delete;
    operator LPSTR() const { return m_null ? nullptr : const_cast<LPSTR>(m_text.c_str()); }

private:
    std::string m_text;
    bool m_null;
};

// Nothing to convert: the text itself.
class CA2CA {
public:
    CA2CA(LPCSTR psz, UINT = CP_ACP) : m_text(psz) {}
    operator LPCSTR() const { return m_text; }

private:
    LPCSTR m_text;
};

typedef CA2W CT2W, CA2CW, CT2CW;
typedef CW2A CW2T, CW2CA, CW2CT;
typedef CA2CA CA2CT, CT2CA, CT2A, CA2T;

} // namespace ATL

using namespace ATL;

// The older ones: the texts live as long as the function that they are converted in.
#define USES_CONVERSION                                                                                                \
    [[maybe_unused]] int _convert = 0;                                                                                 \
    [[maybe_unused]] LPCSTR _lpa = nullptr;                                                                            \
    [[maybe_unused]] LPCWSTR _lpw = nullptr

#define A2W(text)                                                                                                      \
    ((_lpa = (text)) == nullptr                                                                                        \
         ? nullptr                                                                                                     \
         : (_convert = lstrlenA(_lpa) + 1,                                                                             \
            ATL::afx_widen_into(static_cast<LPWSTR>(_alloca(_convert * sizeof(WCHAR))), _convert, _lpa)))
#define W2A(text)                                                                                                      \
    ((_lpw = (text)) == nullptr ? nullptr                                                                              \
                                : (_convert = (lstrlenW(_lpw) + 1) * 3,                                                \
                                   ATL::afx_narrow_into(static_cast<LPSTR>(_alloca(_convert)), _convert, _lpw)))
#define A2CW(text) static_cast<LPCWSTR>(A2W(text))
#define W2CA(text) static_cast<LPCSTR>(W2A(text))
#define T2W A2W
#define T2CW A2CW
#define T2OLE A2W
#define T2COLE A2CW
#define A2OLE A2W
#define W2T W2A
#define W2CT W2CA
#define OLE2T W2A
#define OLE2CT W2CA
#define OLE2A W2A
#define A2T(text) (text)
#define A2CT(text) static_cast<LPCSTR>(text)
#define T2A(text) (text)
#define T2CA(text) static_cast<LPCSTR>(text)

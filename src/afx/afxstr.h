// CString: a string of bytes in the process's ANSI code page.
#pragma once

#include "afx_base.h"

#include <string>

// Positions and lengths are byte counts. Positions outside the text are clamped.
// A null text is an empty one; a resource id in place of the constructor's text (MAKEINTRESOURCE)
// loads that string.
class ZOPAFX_API CString {
public:
    CString() = default;
    CString(const CString& source) = default;
    CString(CString&& source) noexcept = default;
    CString(LPCSTR source);
    CString(LPCWSTR source);
    CString(LPCSTR source, int length);
    explicit CString(char c, int repeat = 1);

    CString& operator=(const CString& source) = default;
    CString& operator=(CString&& source) noexcept = default;
    CString& operator=(LPCSTR source);

    CString& operator+=(const CString& text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(char c);

    operator LPCSTR() const { return m_text.c_str(); }
    LPCSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    char operator[](int index) const; // '\0' outside the text

    // Room for minimum characters; valid until the next call on the object. End writing with ReleaseBuffer.
    LPSTR GetBuffer(int minimum = 0);
    // length -1: up to the first null character.
    void ReleaseBuffer(int length = -1);

    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;

    int ReverseFind(char c) const; // -1 where there is none

    int Compare(LPCSTR text) const;
    int CompareNoCase(LPCSTR text) const;
    // How many places changed.
    int Replace(char oldChar, char newChar);

    void AFX_CDECL Format(LPCSTR format, ...) AFX_PRINTF(2, 3);
    void AFX_CDECL AppendFormat(LPCSTR format, ...) AFX_PRINTF(2, 3);
    void FormatV(LPCSTR format, va_list arguments);
    void AppendFormatV(LPCSTR format, va_list arguments);

    // Both leave the string empty and answer FALSE where there is nothing to load.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE instance, UINT id);

    BSTR AllocSysString() const;

private:
    // std::string wants no negative positions.
    std::size_t clamp(int position) const;

    std::string m_text;
};

ZOPAFX_API CString AFXAPI operator+(const CString& a, const CString& b);
ZOPAFX_API CString AFXAPI operator+(const CString& a, LPCSTR b);
ZOPAFX_API CString AFXAPI operator+(LPCSTR a, const CString& b);
// Without these two a character would count as an offset of the text's pointer.
ZOPAFX_API CString AFXAPI operator+(const CString& a, char b);
ZOPAFX_API CString AFXAPI operator+(char a, const CString& b);

inline bool operator==(const CString& a, const CString& b) {
    return a.Compare(b) == 0;
}
inline bool operator==(const CString& a, LPCSTR b) {
    return a.Compare(b) == 0;
}
inline bool operator==(LPCSTR a, const CString& b) {
    return b.Compare(a) == 0;
}
inline bool operator!=(const CString& a, const CString& b) {
    return a.Compare(b) != 0;
}
inline bool operator!=(const CString& a, LPCSTR b) {
    return a.Compare(b) != 0;
}
inline bool operator!=(LPCSTR a, const CString& b) {
    return b.Compare(a) != 0;
}
inline bool operator<(const CString& a, const CString& b) {
    return a.Compare(b) < 0;
}
inline bool operator<(const CString& a, LPCSTR b) {
    return a.Compare(b) < 0;
}
inline bool operator>(const CString& a, const CString& b) {
    return a.Compare(b) > 0;
}
inline bool operator>(const CString& a, LPCSTR b) {
    return a.Compare(b) > 0;
}
inline bool operator<=(const CString& a, const CString& b) {
    return a.Compare(b) <= 0;
}
inline bool operator>=(const CString& a, const CString& b) {
    return a.Compare(b) >= 0;
}

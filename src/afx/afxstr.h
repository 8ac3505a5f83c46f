// CString: a string of bytes in the process's ANSI code page.
#pragma once

#include "afx_base.h"

#include <string>

// Positions and lengths are byte counts. Positions outside the text are clamped; Find functions answer -1.
// A null text is an empty one; a resource id in place of a text (MAKEINTRESOURCE) loads that string.
class ZOPAFX_API CString {
public:
    CString() = default;
    CString(const CString& source) = default;
    CString(CString&& source) noexcept = default;
    CString(LPCSTR source);
    CString(const unsigned char* source) : CString(reinterpret_cast<LPCSTR>(source)) {}
    CString(LPCWSTR source);
    CString(LPCSTR source, int length);
    explicit CString(char c, int repeat = 1);

    CString& operator=(const CString& source) = default;
    CString& operator=(CString&& source) noexcept = default;
    CString& operator=(LPCSTR source);
    CString& operator=(LPCWSTR source);
    CString& operator=(char c);

    CString& operator+=(const CString& text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(char c);

    operator LPCSTR() const { return m_text.c_str(); }
    LPCSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    char GetAt(int index) const;
    char operator[](int index) const { return GetAt(index); }
    void SetAt(int index, char c);
    void SetString(LPCSTR text) { *this = text; }
    void SetString(LPCSTR text, int length);

    // Room for minimum characters; valid until the next call on the object. End writing with ReleaseBuffer.
    LPSTR GetBuffer(int minimum = 0);
    // length -1: up to the first null character.
    void ReleaseBuffer(int length = -1);

    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    CString SpanExcluding(LPCSTR charset) const;
    // Next token from start, which moves behind it; start becomes -1 after the last one.
    CString Tokenize(LPCSTR tokens, int& start) const;

    int Find(char c, int start = 0) const;
    int Find(LPCSTR text, int start = 0) const;
    int ReverseFind(char c) const;
    int FindOneOf(LPCSTR charset) const;

    int Compare(LPCSTR text) const;
    int CompareNoCase(LPCSTR text) const;

    CString& MakeUpper();
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(char c) { return TrimRight(c).TrimLeft(c); }
    CString& Trim(LPCSTR targets) { return TrimRight(targets).TrimLeft(targets); }
    CString& TrimLeft();
    CString& TrimLeft(char c);
    CString& TrimLeft(LPCSTR targets);
    CString& TrimRight();
    CString& TrimRight(char c);
    CString& TrimRight(LPCSTR targets);
    // Replace and Remove answer how many places changed; Insert and Delete the new length.
    int Replace(char oldChar, char newChar);
    int Replace(LPCSTR oldText, LPCSTR newText);
    int Remove(char c);
    int Insert(int index, char c);
    int Insert(int index, LPCSTR text);
    int Delete(int index, int count = 1);

    void AFX_CDECL Format(LPCSTR format, ...) AFX_PRINTF(2, 3);
    void AFX_CDECL Format(UINT formatId, ...);
    void AFX_CDECL AppendFormat(LPCSTR format, ...) AFX_PRINTF(2, 3);
    void AFX_CDECL AppendFormat(UINT formatId, ...);
    void FormatV(LPCSTR format, va_list arguments);
    void AppendFormatV(LPCSTR format, va_list arguments);

    // Both leave the string empty and answer FALSE where there is nothing to load.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE instance, UINT id);
    BOOL GetEnvironmentVariable(LPCSTR name);

    BSTR AllocSysString() const;

private:
    // std::string wants no negative positions.
    std::size_t clamp(int position) const;

    std::string m_text;
};

typedef CString CStringA;

ZOPAFX_API CString AFXAPI operator+(const CString& a, const CString& b);
ZOPAFX_API CString AFXAPI operator+(const CString& a, LPCSTR b);
ZOPAFX_API CString AFXAPI operator+(LPCSTR a, const CString& b);
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

// CString: a string of bytes in the process's ANSI code page.
#pragma once

#include "afx_simple_string.h"

#include <climits>

#ifdef _ATL_CSTRING_EXPLICIT_CONSTRUCTORS
#define AFX_EXPLICIT_STRING explicit
#else
#define AFX_EXPLICIT_STRING
#endif

// Positions and lengths are byte counts; searches step by characters, of which some code pages make two bytes. A
// resource id in place of the constructor's text (MAKEINTRESOURCE) loads that string.
class ZOPAFX_API CString : public CSimpleStringT<char> {
public:
    CString() = default;
    CString(const CString& source) = default;
    CString(CString&& source) noexcept = default;
    CString(LPCSTR source);
    CString(LPCWSTR source);
    CString(const class CStringW& source);
    CString(LPCSTR source, int length) : CSimpleStringT(Start(source, length)) {}
    CString(LPCWSTR source, int length);
    AFX_EXPLICIT_STRING CString(const unsigned char* source) : CString(reinterpret_cast<LPCSTR>(source)) {}
    AFX_EXPLICIT_STRING CString(char c, int repeat = 1);
    AFX_EXPLICIT_STRING CString(wchar_t c, int repeat = 1);

    CString& operator=(const CString& source) = default;
    CString& operator=(CString&& source) noexcept = default;
    CString& operator=(LPCSTR source) { return SetString(source), *this; }
    CString& operator=(LPCWSTR source) { return *this = CString(source); }
    CString& operator=(const CStringW& source) { return *this = CString(source); }
    CString& operator=(const unsigned char* source) { return *this = reinterpret_cast<LPCSTR>(source); }
    CString& operator=(char c) { return *this = CString(c); }
    CString& operator=(wchar_t c) { return *this = CString(c); }

    CString& operator+=(const CString& text) { return Append(text), *this; }
    CString& operator+=(LPCSTR text) { return Append(text), *this; }
    CString& operator+=(char c) { return AppendChar(c), *this; }
    CString& operator+=(wchar_t c) { return *this += CString(c); }

    CString Mid(int first, int count = INT_MAX) const { return CString(Part(first, count)); }
    CString Left(int count) const { return Mid(0, count); }
    CString Right(int count) const { return Mid(GetLength() - static_cast<int>(Clamp(count))); }
    // The longest start that holds only, or none of, these characters.
    CString SpanIncluding(LPCSTR characters) const;
    CString SpanExcluding(LPCSTR characters) const;
    // The next piece between these characters, from start on, which moves behind it: -1, with an empty text, at the
    // end.
    CString Tokenize(LPCSTR characters, int& start) const;

    // -1 where there is none.
    int Find(char c, int start = 0) const;
    int Find(LPCSTR text, int start = 0) const;
    int FindOneOf(LPCSTR characters) const;
    int ReverseFind(char c) const;

    int Compare(LPCSTR text) const;
    int CompareNoCase(LPCSTR text) const;
    // By the rules of the user's language.
    int Collate(LPCSTR text) const;
    int CollateNoCase(LPCSTR text) const;

    // The new length.
    int Insert(int index, char c);
    int Insert(int index, LPCSTR text);
    int Delete(int index, int count = 1);
    // How many places changed.
    int Replace(char oldChar, char newChar);
    int Replace(LPCSTR oldText, LPCSTR newText);
    int Remove(char c);

    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(char c) { return TrimRight(c).TrimLeft(c); }
    CString& Trim(LPCSTR characters) { return TrimRight(characters).TrimLeft(characters); }
    CString& TrimLeft();
    CString& TrimLeft(char c) { return TrimLeft(CString(c)); }
    CString& TrimLeft(LPCSTR characters);
    CString& TrimRight();
    CString& TrimRight(char c) { return TrimRight(CString(c)); }
    CString& TrimRight(LPCSTR characters);
    void AnsiToOem();
    void OemToAnsi();

    // As printf; a CString may stand for %s. The forms with a number take the format from the string table.
    template <class... Arguments> void Format(LPCSTR format, Arguments... arguments);
    template <class... Arguments> void Format(UINT id, Arguments... arguments);
    template <class... Arguments> void AppendFormat(LPCSTR format, Arguments... arguments);
    template <class... Arguments> void AppendFormat(UINT id, Arguments... arguments);
    void FormatV(LPCSTR format, va_list arguments);
    void AppendFormatV(LPCSTR format, va_list arguments);
    // As the platform's function of that name: %1 to %99.
    template <class... Arguments> void FormatMessage(LPCSTR format, Arguments... arguments);
    template <class... Arguments> void FormatMessage(UINT id, Arguments... arguments);
    void FormatMessageV(LPCSTR format, va_list* arguments);

    // Both leave the string empty and answer FALSE where there is nothing to load.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE instance, UINT id);
    BOOL LoadString(HINSTANCE instance, UINT id, WORD language);
    BOOL GetEnvironmentVariable(LPCSTR name);

    BSTR AllocSysString() const;
    BSTR SetSysString(BSTR* text) const;

private:
    explicit CString(std::string text) : CSimpleStringT(std::move(text)) {}
    CString& FormatArguments(LPCSTR format, ...);
    void FormatMessageArguments(LPCSTR format, ...);
    static CString Stored(UINT id);
};

typedef CString CStringA, CAtlString, CAtlStringA;
inline const CString afxEmptyString;

template <class Text>
requires std::is_base_of_v<CString, Text>
inline LPCSTR afx_variadic(const Text& text) {
    return text.GetString();
}

template <class... Arguments> void CString::Format(LPCSTR format, Arguments... arguments) {
    *this = CString().FormatArguments(format, afx_variadic(arguments)...);
}
template <class... Arguments> void CString::Format(UINT id, Arguments... arguments) {
    Format(Stored(id).GetString(), arguments...);
}
template <class... Arguments> void CString::AppendFormat(LPCSTR format, Arguments... arguments) {
    *this += CString().FormatArguments(format, afx_variadic(arguments)...);
}
template <class... Arguments> void CString::AppendFormat(UINT id, Arguments... arguments) {
    AppendFormat(Stored(id).GetString(), arguments...);
}
template <class... Arguments> void CString::FormatMessage(LPCSTR format, Arguments... arguments) {
    FormatMessageArguments(format, afx_variadic(arguments)...);
}
template <class... Arguments> void CString::FormatMessage(UINT id, Arguments... arguments) {
    FormatMessage(Stored(id).GetString(), arguments...);
}

ZOPAFX_API CString AFXAPI operator+(const CString& a, const CString& b);
ZOPAFX_API CString AFXAPI operator+(const CString& a, LPCSTR b);
ZOPAFX_API CString AFXAPI operator+(LPCSTR a, const CString& b);
// Without these two a character would count as an offset of the text's pointer.
ZOPAFX_API CString AFXAPI operator+(const CString& a, char b);
ZOPAFX_API CString AFXAPI operator+(char a, const CString& b);
inline CString AFXAPI operator+(const CString& a, wchar_t b) {
    return a + CString(b);
}
inline CString AFXAPI operator+(wchar_t a, const CString& b) {
    return CString(a) + b;
}

#define AFX_COMPARE_BY(op, text, letters)                                                                              \
    inline bool operator op(const text& a, const text& b) {                                                            \
        return a.Compare(b) op 0;                                                                                      \
    }                                                                                                                  \
    inline bool operator op(const text& a, letters b) {                                                                \
        return a.Compare(b) op 0;                                                                                      \
    }                                                                                                                  \
    inline bool operator op(letters a, const text& b) {                                                                \
        return 0 op b.Compare(a);                                                                                      \
    }
#define AFX_COMPARE_STRINGS(text, letters)                                                                             \
    AFX_COMPARE_BY(==, text, letters)                                                                                  \
    AFX_COMPARE_BY(!=, text, letters)                                                                                  \
    AFX_COMPARE_BY(<, text, letters)                                                                                   \
    AFX_COMPARE_BY(>, text, letters)                                                                                   \
    AFX_COMPARE_BY(<=, text, letters)                                                                                  \
    AFX_COMPARE_BY(>=, text, letters)
AFX_COMPARE_STRINGS(CString, LPCSTR)

inline bool operator==(const CString& a, char b) {
    return a.GetLength() == 1 && a[0] == b;
}
inline bool operator!=(const CString& a, char b) {
    return !(a == b);
}

// The C library's functions take a string for its text, which their ellipsis would not.
#define AFX_TAKE_STRINGS(function, parameters, arguments)                                                              \
    template <class... Values>                                                                                         \
    requires(std::is_base_of_v<CString, Values> || ...) inline int function parameters {                               \
        return ::function arguments;                                                                                   \
    }
AFX_TAKE_STRINGS(printf, (LPCSTR format, Values... values), (format, afx_variadic(values)...))
AFX_TAKE_STRINGS(fprintf, (FILE * file, LPCSTR format, Values... values), (file, format, afx_variadic(values)...))
AFX_TAKE_STRINGS(sprintf, (LPSTR text, LPCSTR format, Values... values), (text, format, afx_variadic(values)...))
AFX_TAKE_STRINGS(wsprintfA, (LPSTR text, LPCSTR format, Values... values), (text, format, afx_variadic(values)...))
AFX_TAKE_STRINGS(snprintf, (LPSTR text, std::size_t size, LPCSTR format, Values... values),
                 (text, size, format, afx_variadic(values)...))
AFX_TAKE_STRINGS(_snprintf, (LPSTR text, std::size_t size, LPCSTR format, Values... values),
                 (text, size, format, afx_variadic(values)...))
AFX_TAKE_STRINGS(sprintf_s, (LPSTR text, std::size_t size, LPCSTR format, Values... values),
                 (text, size, format, afx_variadic(values)...))
AFX_TAKE_STRINGS(_snprintf_s, (LPSTR text, std::size_t size, std::size_t most, LPCSTR format, Values... values),
                 (text, size, most, format, afx_variadic(values)...))
AFX_TAKE_STRINGS(printf_s, (LPCSTR format, Values... values), (format, afx_variadic(values)...))
AFX_TAKE_STRINGS(fprintf_s, (FILE * file, LPCSTR format, Values... values), (file, format, afx_variadic(values)...))
#undef AFX_TAKE_STRINGS
template <std::size_t size, class... Values>
requires(std::is_base_of_v<CString, Values> || ...) inline int sprintf_s(char (&text)[size], LPCSTR format,
                                                                         Values... values) {
    return ::sprintf_s(text, size, format, afx_variadic(values)...);
}
template <std::size_t size, class... Values>
requires(std::is_base_of_v<CString, Values> || ...) inline int _snprintf_s(char (&text)[size], std::size_t most,
                                                                           LPCSTR format, Values... values) {
    return ::_snprintf_s(text, size, most, format, afx_variadic(values)...);
}

#include "afx_wide_string.h"
#undef AFX_COMPARE_STRINGS
#undef AFX_COMPARE_BY

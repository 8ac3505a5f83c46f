// CStringW: a text of the platform's wide characters; included by afxstr.h.
#pragma once

// As CString, in characters of 16 bits. Texts of the program's code page are converted.
class ZOPAFX_API CStringW {
public:
    typedef wchar_t XCHAR;
    typedef LPWSTR PXSTR;
    typedef LPCWSTR PCXSTR;

    CStringW() = default;
    CStringW(LPCWSTR source) : m_text(OrEmpty(source)) {}
    CStringW(LPCWSTR source, int length);
    CStringW(LPCSTR source) : CStringW(CString(source)) {}
    CStringW(const CString& source);
    AFX_EXPLICIT_STRING CStringW(wchar_t c, int repeat = 1) : m_text(repeat > 0 ? std::size_t(repeat) : 0, c) {}

    CStringW& operator=(LPCWSTR source) { return *this = CStringW(source); }
    CStringW& operator=(LPCSTR source) { return *this = CStringW(source); }
    CStringW& operator=(wchar_t c) { return *this = CStringW(c); }
    CStringW& operator+=(const CStringW& text) { return m_text += text.m_text, *this; }
    CStringW& operator+=(LPCWSTR text) { return *this += CStringW(text); }
    CStringW& operator+=(LPCSTR text) { return *this += CStringW(text); }
    CStringW& operator+=(wchar_t c) { return m_text += c, *this; }

    operator LPCWSTR() const { return m_text.c_str(); }
    LPCWSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    wchar_t GetAt(int index) const; // raises CInvalidArgException outside the text
    wchar_t operator[](int index) const { return index >= 0 && index < GetLength() ? m_text[std::size_t(index)] : 0; }
    // As in CString.
    LPWSTR GetBuffer(int minimum = 0);
    void ReleaseBuffer(int length = -1);

    CStringW Mid(int first, int count = INT_MAX) const;
    CStringW Left(int count) const { return Mid(0, count); }
    CStringW Right(int count) const;
    // -1 where there is none.
    int Find(wchar_t c, int start = 0) const { return Found(m_text.find(c, Clamp(start))); }
    int Find(LPCWSTR text, int start = 0) const { return Found(m_text.find(OrEmpty(text), Clamp(start))); }
    int ReverseFind(wchar_t c) const { return Found(m_text.rfind(c)); }
    int Compare(LPCWSTR text) const { return m_text.compare(OrEmpty(text)); }
    int CompareNoCase(LPCWSTR text) const { return ::_wcsicmp(m_text.c_str(), OrEmpty(text)); }
    int Replace(LPCWSTR oldText, LPCWSTR newText);
    CStringW& MakeUpper();
    CStringW& MakeLower();
    CStringW& Trim() { return TrimRight().TrimLeft(); }
    CStringW& TrimLeft();
    CStringW& TrimRight();
    // As wprintf: %s is a wide text, %S one of the code page.
    template <class... Arguments> void Format(LPCWSTR format, Arguments... arguments) {
        *this = CStringW().FormatArguments(format, Printed(arguments)...);
    }

private:
    template <class Value> static auto Printed(const Value& value) {
        if constexpr (std::is_base_of_v<CStringW, Value>)
            return value.GetString();
        else
            return afx_variadic(value);
    }
    CStringW& FormatArguments(LPCWSTR format, ...);
    std::size_t Clamp(int at) const { return at <= 0 ? 0 : at < GetLength() ? std::size_t(at) : m_text.size(); }
    static LPCWSTR OrEmpty(LPCWSTR text) { return text != nullptr ? text : L""; }
    static int Found(std::size_t at) { return at != std::wstring::npos ? static_cast<int>(at) : -1; }

    std::wstring m_text;
};

inline CStringW operator+(const CStringW& a, const CStringW& b) {
    return CStringW(a) += b;
}
inline CStringW operator+(const CStringW& a, LPCWSTR b) {
    return CStringW(a) += b;
}
inline CStringW operator+(LPCWSTR a, const CStringW& b) {
    return CStringW(a) += b;
}
inline CStringW operator+(const CStringW& a, wchar_t b) {
    return CStringW(a) += b;
}

AFX_COMPARE_STRINGS(CStringW, LPCWSTR)

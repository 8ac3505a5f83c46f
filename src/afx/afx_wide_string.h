// CStringW: a text of the platform's wide characters; included by afxstr.h.
#pragma once

// As CString, in characters of 16 bits. Texts of the program's code page are converted.
class ZOPAFX_API CStringW : public CSimpleStringT<wchar_t> {
public:
    CStringW() = default;
    CStringW(LPCWSTR source);
    CStringW(LPCWSTR source, int length) : CSimpleStringT(Start(source, length)) {}
    CStringW(LPCSTR source) : CStringW(CString(source)) {}
    CStringW(const CString& source);
    AFX_EXPLICIT_STRING CStringW(wchar_t c, int repeat = 1);

    CStringW& operator=(LPCWSTR source) { return SetString(source), *this; }
    CStringW& operator=(LPCSTR source) { return *this = CStringW(source); }
    CStringW& operator=(wchar_t c) { return *this = CStringW(c); }
    CStringW& operator+=(const CStringW& text) { return Append(text), *this; }
    CStringW& operator+=(LPCWSTR text) { return Append(text), *this; }
    CStringW& operator+=(LPCSTR text) { return *this += CStringW(text); }
    CStringW& operator+=(wchar_t c) { return AppendChar(c), *this; }

    CStringW Mid(int first, int count = INT_MAX) const { return CStringW(Part(first, count)); }
    CStringW Left(int count) const { return Mid(0, count); }
    CStringW Right(int count) const { return Mid(GetLength() - static_cast<int>(Clamp(count))); }
    // -1 where there is none.
    int Find(wchar_t c, int start = 0) const { return start >= 0 ? Found(m_text.find(c, Clamp(start))) : -1; }
    int Find(LPCWSTR text, int start = 0) const {
        const bool within = text != nullptr && start >= 0 && start <= GetLength();
        return within ? Found(m_text.find(text, Clamp(start))) : -1;
    }
    int FindOneOf(LPCWSTR characters) const { return Found(m_text.find_first_of(OrEmpty(characters))); }
    int ReverseFind(wchar_t c) const { return Found(m_text.rfind(c)); }
    int Compare(LPCWSTR text) const { return m_text.compare(OrEmpty(text)); }
    int CompareNoCase(LPCWSTR text) const { return ::_wcsicmp(m_text.c_str(), OrEmpty(text)); }
    // The new length.
    int Insert(int index, LPCWSTR text) {
        return m_text.insert(Clamp(index), std::wstring(OrEmpty(text))), GetLength();
    }
    int Delete(int index, int count = 1) { return m_text.erase(Clamp(index), ClampedLength(count)), GetLength(); }
    // How many places changed.
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
    template <class... Arguments> void AppendFormat(LPCWSTR format, Arguments... arguments) {
        *this += CStringW().FormatArguments(format, Printed(arguments)...);
    }
    // As in CString.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE instance, UINT id);
    BSTR AllocSysString() const;

private:
    explicit CStringW(std::wstring text) : CSimpleStringT(std::move(text)) {}
    template <class Value> static auto Printed(const Value& value) {
        if constexpr (std::is_base_of_v<CStringW, Value>)
            return value.GetString();
        else
            return afx_variadic(value);
    }
    CStringW& FormatArguments(LPCWSTR format, ...);
    static int Found(std::size_t at) { return at != std::wstring::npos ? static_cast<int>(at) : -1; }
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

#include "afxstr.h"
#include "afx_exception.h"
#include "afx_module.h"

#include <algorithm>
#include <cwchar>

CStringW::CStringW(LPCWSTR source) : CSimpleStringT(OrEmpty(source)) {}

CStringW::CStringW(wchar_t c, int repeat) : CSimpleStringT(std::wstring(ClampedLength(repeat), c)) {}

CStringW::CStringW(const CString& source) {
    const int length = ::MultiByteToWideChar(CP_ACP, 0, source, source.GetLength(), nullptr, 0);
    ::MultiByteToWideChar(CP_ACP, 0, source, source.GetLength(), GetBufferSetLength(length), length);
}

CString::CString(const CStringW& source) : CString(source.GetString(), source.GetLength()) {}

BOOL CStringW::LoadString(UINT id) {
    return LoadString(AfxFindStringResourceHandle(id), id);
}

BOOL CStringW::LoadString(HINSTANCE instance, UINT id) {
    // Length 0 asks for a pointer to the resource itself, whatever its length.
    LPCWSTR resource = nullptr;
    const int length = instance != nullptr ? ::LoadStringW(instance, id, reinterpret_cast<LPWSTR>(&resource), 0) : 0;
    SetString(resource, length);
    return length > 0;
}

BSTR CStringW::AllocSysString() const {
    const BSTR text = ::SysAllocStringLen(m_text.data(), static_cast<UINT>(m_text.size()));
    if (text == nullptr)
        AfxThrowMemoryException();
    return text;
}

int CStringW::Replace(LPCWSTR oldText, LPCWSTR newText) {
    const std::wstring wanted = CStringW(oldText).m_text, other = CStringW(newText).m_text;
    int count = 0;
    for (std::size_t at = 0; !wanted.empty() && (at = m_text.find(wanted, at)) != std::wstring::npos; ++count) {
        m_text.replace(at, wanted.size(), other);
        at += other.size();
    }
    return count;
}

CStringW& CStringW::MakeUpper() {
    ::CharUpperBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CStringW& CStringW::MakeLower() {
    ::CharLowerBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CStringW& CStringW::TrimLeft() {
    m_text.erase(m_text.begin(), std::ranges::find_if_not(m_text, [](wchar_t c) { return ::iswspace(c); }));
    return *this;
}

CStringW& CStringW::TrimRight() {
    while (!m_text.empty() && ::iswspace(m_text.back()))
        m_text.pop_back();
    return *this;
}

CStringW& CStringW::FormatArguments(LPCWSTR format, ...) {
    va_list arguments, counted;
    if (format == nullptr)
        return *this;
    va_start(arguments, format);
    va_copy(counted, arguments);
    const int length = ::_vscwprintf(format, counted);
    va_end(counted);
    m_text.resize(static_cast<std::size_t>(std::max(length, 0)) + 1);
    ::_vsnwprintf(m_text.data(), m_text.size(), format, arguments);
    va_end(arguments);
    m_text.pop_back();
    return *this;
}

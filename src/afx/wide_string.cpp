#include "afxstr.h"
#include "afx_exception.h"

#include <algorithm>
#include <cwchar>

CStringW::CStringW(LPCWSTR source, int length) {
    if (source != nullptr && length > 0)
        m_text.assign(source, static_cast<std::size_t>(length));
}

CStringW::CStringW(const CString& source) {
    const int length = ::MultiByteToWideChar(CP_ACP, 0, source, source.GetLength(), nullptr, 0);
    m_text.resize(static_cast<std::size_t>(length));
    ::MultiByteToWideChar(CP_ACP, 0, source, source.GetLength(), m_text.data(), length);
}

CString::CString(const CStringW& source) : CString(source.GetString()) {}

wchar_t CStringW::GetAt(int index) const {
    if (index < 0 || index > GetLength()) // the terminator may be read
        AfxThrowInvalidArgException();
    return (*this)[index];
}

LPWSTR CStringW::GetBuffer(int minimum) {
    if (minimum > GetLength())
        m_text.resize(static_cast<std::size_t>(minimum), L'\0');
    return m_text.data();
}

void CStringW::ReleaseBuffer(int length) {
    m_text.resize(length < 0 ? wcsnlen(m_text.data(), m_text.size()) : Clamp(length));
}

CStringW CStringW::Mid(int first, int count) const {
    CStringW part;
    part.m_text = m_text.substr(Clamp(first), static_cast<std::size_t>(std::max(count, 0)));
    return part;
}

CStringW CStringW::Right(int count) const {
    return Mid(GetLength() - static_cast<int>(Clamp(count)));
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

#include "afxstr.h"
#include "afx_exception.h"
#include "afx_module.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <mbstring.h>

namespace {

std::string to_ansi(LPCWSTR source, int count) {
    const int length = WideCharToMultiByte(CP_ACP, 0, source, count, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(std::max(length, 0)), '\0');
    WideCharToMultiByte(CP_ACP, 0, source, count, text.data(), length, nullptr, nullptr);
    return text;
}

std::string to_ansi(LPCWSTR source) {
    return source != nullptr ? to_ansi(source, lstrlenW(source)) : std::string();
}

} // namespace

CString::CString(LPCSTR source) {
    if (source != nullptr && IS_INTRESOURCE(source))
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(source)));
    else
        m_text = OrEmpty(source);
}

CString::CString(LPCWSTR source) : CSimpleStringT(to_ansi(source)) {}

CString::CString(LPCWSTR source, int length) {
    if (source != nullptr && length > 0)
        m_text = to_ansi(source, length);
}

CString::CString(char c, int repeat) : CSimpleStringT(std::string(ClampedLength(repeat), c)) {}

CString::CString(wchar_t c, int repeat) {
    const wchar_t wide[] = {c, 0};
    const std::string one = c != 0 ? to_ansi(wide) : std::string(1, '\0');
    for (int i = 0; i < repeat; ++i)
        m_text += one;
}

void CString::FormatV(LPCSTR format, va_list arguments) {
    if (format == nullptr) {
        m_text.clear();
        return;
    }
    va_list counted;
    va_copy(counted, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, counted);
    va_end(counted);
    // Formatted aside: an argument may point into this text.
    std::string text(static_cast<std::size_t>(std::max(length, 0)) + 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, arguments);
    text.pop_back();
    m_text = std::move(text);
}

void CString::AppendFormatV(LPCSTR format, va_list arguments) {
    CString tail;
    tail.FormatV(format, arguments);
    m_text += tail.m_text;
}

CString& CString::FormatArguments(LPCSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
    return *this;
}

CString CString::Stored(UINT id) {
    CString text;
    if (!text.LoadString(id))
        AfxThrowResourceException();
    return text;
}

void CString::FormatMessageV(LPCSTR format, va_list* arguments) {
    LPSTR made = nullptr;
    const DWORD length = ::FormatMessage(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                                         reinterpret_cast<LPSTR>(&made), 0, arguments);
    const CString text(made, static_cast<int>(length));
    ::LocalFree(made);
    if (length == 0 && *OrEmpty(format) != '\0')
        AfxThrowMemoryException();
    *this = text;
}

void CString::FormatMessageArguments(LPCSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    FormatMessageV(format, &arguments);
    va_end(arguments);
}

BOOL CString::GetEnvironmentVariable(LPCSTR name) {
    m_text.clear();
    // Again where the variable grew in between.
    for (DWORD room = ::GetEnvironmentVariable(name, nullptr, 0); room > 0;) {
        m_text.resize(room);
        const DWORD length = ::GetEnvironmentVariable(name, m_text.data(), room);
        if (length < room) {
            m_text.resize(length);
            return length > 0;
        }
        room = length;
    }
    return FALSE;
}

BOOL CString::LoadString(UINT id) {
    return LoadString(AfxFindStringResourceHandle(id), id);
}

BOOL CString::LoadString(HINSTANCE instance, UINT id) {
    CStringW text;
    const BOOL found = text.LoadString(instance, id);
    *this = text;
    return found;
}

// A block of the table holds sixteen strings, each behind its length.
BOOL CString::LoadString(HINSTANCE instance, UINT id, WORD language) {
    m_text.clear();
    const HRSRC found = ::FindResourceEx(instance, RT_STRING, MAKEINTRESOURCE(id / 16 + 1), language);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(instance, found) : nullptr;
    const auto* at = loaded != nullptr ? static_cast<const WCHAR*>(::LockResource(loaded)) : nullptr;
    const WCHAR* end = at != nullptr ? at + ::SizeofResource(instance, found) / sizeof(WCHAR) : at;
    for (UINT before = id % 16; before > 0 && at < end; --before)
        at += *at + 1;
    if (at >= end || *at == 0 || *at >= end - at)
        return FALSE;
    m_text = to_ansi(at + 1, *at);
    return TRUE;
}

BSTR CString::AllocSysString() const {
    return CStringW(*this).AllocSysString();
}

BSTR CString::SetSysString(BSTR* text) const {
    BSTR made = AllocSysString();
    SysFreeString(*text);
    return *text = made;
}

CString AFXAPI operator+(const CString& a, const CString& b) {
    return CString(a) += b;
}

CString AFXAPI operator+(const CString& a, LPCSTR b) {
    return CString(a) += b;
}

CString AFXAPI operator+(LPCSTR a, const CString& b) {
    return CString(a) += b;
}

CString AFXAPI operator+(const CString& a, char b) {
    return CString(a) += b;
}

CString AFXAPI operator+(char a, const CString& b) {
    return CString(a, 1) += b;
}

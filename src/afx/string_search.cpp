// Searching and changing the text of CString, character by character where the code page has characters of two bytes.
#include "afxstr.h"
#include "afx_exception.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <mbctype.h>
#include <mbstring.h>

namespace {

const unsigned char* bytes(LPCSTR text) {
    return reinterpret_cast<const unsigned char*>(text != nullptr ? text : "");
}

int offset(LPCSTR text, const unsigned char* found) {
    return found != nullptr ? static_cast<int>(found - bytes(text)) : -1;
}

// How many bytes at the start are characters of the set, or of none of it.
int span(const unsigned char* text, const unsigned char* set, bool of_it) {
    const unsigned char* at = text;
    while (*at != 0 && (_mbschr(set, _mbsnextc(at)) != nullptr) == of_it)
        at = _mbsinc(at);
    return static_cast<int>(at - text);
}

// By whole characters: some runtimes' own search finds texts in the middle of one.
const unsigned char* find_text(const unsigned char* text, const unsigned char* wanted) {
    if (_getmbcp() == 0) // of one byte each
        return reinterpret_cast<const unsigned char*>(
            std::strstr(reinterpret_cast<LPCSTR>(text), reinterpret_cast<LPCSTR>(wanted)));
    const std::size_t length = std::strlen(reinterpret_cast<LPCSTR>(wanted));
    for (const unsigned char* at = text;; at = _mbsinc(at)) {
        if (std::strncmp(reinterpret_cast<LPCSTR>(at), reinterpret_cast<LPCSTR>(wanted), length) == 0)
            return at;
        if (*at == 0)
            return nullptr;
    }
}

constexpr LPCSTR white_space = " \t\n\v\f\r";

} // namespace

int CString::Find(char c, int start) const {
    if (start < 0 || start >= GetLength())
        return -1;
    return offset(*this, _mbschr(bytes(m_text.c_str() + start), static_cast<unsigned char>(c)));
}

int CString::Find(LPCSTR text, int start) const {
    if (text == nullptr || start < 0 || start > GetLength())
        return -1;
    return offset(*this, find_text(bytes(m_text.c_str() + start), bytes(text)));
}

int CString::FindOneOf(LPCSTR characters) const {
    const int before = span(bytes(*this), bytes(characters), false);
    return (*this)[before] != '\0' ? before : -1;
}

int CString::ReverseFind(char c) const {
    const unsigned char* text = bytes(m_text.c_str());
    const unsigned char* found = _mbsrchr(text, static_cast<unsigned char>(c));
    return found != nullptr ? static_cast<int>(found - text) : -1;
}

int CString::Compare(LPCSTR text) const {
    return _mbscmp(bytes(m_text.c_str()), bytes(text));
}

int CString::CompareNoCase(LPCSTR text) const {
    return _mbsicmp(bytes(m_text.c_str()), bytes(text));
}

int CString::Replace(char oldChar, char newChar) {
    int changed = 0;
    // Character by character: the second byte of another one may have the same value.
    const unsigned char* const end = bytes(m_text.data()) + m_text.size();
    for (const unsigned char* at = bytes(m_text.data()); at < end; at = _mbsinc(at)) {
        char& c = m_text[static_cast<std::size_t>(at - bytes(m_text.data()))];
        changed += c == oldChar && oldChar != newChar;
        if (c == oldChar)
            c = newChar;
    }
    return changed;
}

int CString::Collate(LPCSTR text) const {
    return ::lstrcmp(*this, text != nullptr ? text : "");
}

int CString::CollateNoCase(LPCSTR text) const {
    return ::lstrcmpi(*this, text != nullptr ? text : "");
}

CString CString::SpanIncluding(LPCSTR characters) const {
    return Left(span(bytes(*this), bytes(characters), true));
}

CString CString::SpanExcluding(LPCSTR characters) const {
    return Left(span(bytes(*this), bytes(characters), false));
}

CString CString::Tokenize(LPCSTR characters, int& start) const {
    if (start < 0 || start > GetLength()) {
        start = -1;
        return {};
    }
    const unsigned char* separators = bytes(characters);
    const int first = start + span(bytes(m_text.c_str() + start), separators, true);
    if (first >= GetLength()) {
        start = -1;
        return {};
    }
    const int length = span(bytes(m_text.c_str() + first), separators, false);
    start = first + length + 1; // behind the separator, too
    return Mid(first, length);
}

int CString::Insert(int index, char c) {
    m_text.insert(Clamp(index), 1, c);
    return GetLength();
}

int CString::Insert(int index, LPCSTR text) {
    m_text.insert(Clamp(index), std::string(text != nullptr ? text : ""));
    return GetLength();
}

int CString::Delete(int index, int count) {
    m_text.erase(Clamp(index), ClampedLength(count));
    return GetLength();
}

int CString::Replace(LPCSTR oldText, LPCSTR newText) {
    const CString wanted(oldText), replacement(newText);
    if (wanted.IsEmpty())
        return 0;
    CString result;
    int changed = 0, from = 0;
    for (int at = Find(wanted); at >= 0; at = Find(wanted, from), ++changed) {
        result += Mid(from, at - from) + replacement;
        from = at + wanted.GetLength();
    }
    if (changed > 0)
        *this = result + Mid(from);
    return changed;
}

int CString::Remove(char c) {
    const int before = GetLength();
    for (int at = Find(c); at >= 0; at = Find(c, at))
        Delete(at);
    return before - GetLength();
}

CString& CString::MakeUpper() {
    ::CharUpperBuff(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CString& CString::MakeLower() {
    ::CharLowerBuff(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CString& CString::MakeReverse() {
    _mbsrev(reinterpret_cast<unsigned char*>(m_text.data()));
    return *this;
}

CString& CString::TrimLeft() {
    return TrimLeft(white_space);
}

CString& CString::TrimLeft(LPCSTR characters) {
    m_text.erase(0, static_cast<std::size_t>(span(bytes(*this), bytes(characters), true)));
    return *this;
}

CString& CString::TrimRight() {
    return TrimRight(white_space);
}

CString& CString::TrimRight(LPCSTR characters) {
    // From the front: backwards, the second byte of a character could not be told from a character of its own.
    const unsigned char* const begin = bytes(*this);
    const unsigned char* rest = begin;
    for (const unsigned char* at = begin; *at != 0; at = _mbsinc(at)) {
        if (_mbschr(bytes(characters), _mbsnextc(at)) == nullptr)
            rest = _mbsinc(at);
    }
    m_text.resize(static_cast<std::size_t>(rest - begin));
    return *this;
}

void CString::AnsiToOem() {
    ::CharToOemBuff(m_text.c_str(), m_text.data(), static_cast<DWORD>(m_text.size()));
}

void CString::OemToAnsi() {
    ::OemToCharBuff(m_text.c_str(), m_text.data(), static_cast<DWORD>(m_text.size()));
}

// CSimpleStringT: what texts of bytes and of wide characters have in common; included by afxstr.h.
#pragma once

#include "afx_base.h"

#include <string>

[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowInvalidArgException();

// Positions and lengths count characters of the type. Positions outside the text are clamped; a null text is an empty
// one.
template <class Char> class CSimpleStringT {
public:
    typedef Char XCHAR;
    typedef Char* PXSTR;
    typedef const Char* PCXSTR;

    operator PCXSTR() const { return m_text.c_str(); }
    PCXSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    int GetAllocLength() const { return static_cast<int>(m_text.capacity()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    void FreeExtra() { m_text.shrink_to_fit(); }
    void Preallocate(int length) { m_text.reserve(ClampedLength(length)); }

    void Append(const CSimpleStringT& text) { m_text += text.m_text; }
    void Append(PCXSTR text) { m_text += OrEmpty(text); }
    void Append(PCXSTR text, int length) { m_text += Start(text, length); }
    void AppendChar(Char c) { m_text += c; }
    void SetString(PCXSTR text) {
        if (text != nullptr)
            m_text = std::basic_string<Char>(text); // which may lie inside this one
        else
            m_text.clear();
    }
    void SetString(PCXSTR text, int length) { m_text = Start(text, length); }

    // Raises CInvalidArgException outside the text; its terminator may be read.
    Char GetAt(int index) const {
        if (index < 0 || index > GetLength())
            AfxThrowInvalidArgException();
        return (*this)[index];
    }
    void SetAt(int index, Char c) {
        if (index < 0 || index >= GetLength())
            AfxThrowInvalidArgException();
        m_text[static_cast<std::size_t>(index)] = c;
    }
    // The null character outside the text.
    Char operator[](int index) const {
        return index >= 0 && index < GetLength() ? m_text[static_cast<std::size_t>(index)] : Char();
    }

    // Room for minimum characters; valid until the next call on the object. The old text stays in front, and null
    // characters behind it. End writing with ReleaseBuffer.
    PXSTR GetBuffer(int minimum = 0) { return GetBufferSetLength(minimum > GetLength() ? minimum : GetLength()); }
    PXSTR GetBufferSetLength(int length) {
        m_text.resize(ClampedLength(length));
        return m_text.data();
    }
    PXSTR LockBuffer() { return GetBuffer(); }
    void UnlockBuffer() {}
    // length -1: up to the first null character.
    void ReleaseBuffer(int length = -1) {
        const std::size_t end = length < 0 ? m_text.find(Char()) : Clamp(length);
        m_text.resize(end < m_text.size() ? end : m_text.size());
    }
    void ReleaseBufferSetLength(int length) { ReleaseBuffer(length); }
    void Truncate(int length) { ReleaseBuffer(length); }

    static int StringLength(PCXSTR text) { return static_cast<int>(std::char_traits<Char>::length(OrEmpty(text))); }
    static void CopyChars(PXSTR to, PCXSTR from, int count) {
        std::char_traits<Char>::copy(to, from, ClampedLength(count));
    }

protected:
    CSimpleStringT() = default;
    explicit CSimpleStringT(std::basic_string<Char> text) : m_text(std::move(text)) {}

    static PCXSTR OrEmpty(PCXSTR text) {
        static constexpr Char empty[1] = {};
        return text != nullptr ? text : empty;
    }
    static std::basic_string<Char> Start(PCXSTR text, int length) {
        return std::basic_string<Char>(OrEmpty(text), text != nullptr ? ClampedLength(length) : 0);
    }
    std::basic_string<Char> Part(int first, int count) const {
        return m_text.substr(Clamp(first), ClampedLength(count));
    }
    // The text's type wants no negative positions.
    std::size_t Clamp(int position) const { return position < GetLength() ? ClampedLength(position) : m_text.size(); }
    static std::size_t ClampedLength(int length) { return length > 0 ? static_cast<std::size_t>(length) : 0; }

    std::basic_string<Char> m_text;
};

typedef CSimpleStringT<char> CSimpleString, CSimpleStringA;
typedef CSimpleStringT<wchar_t> CSimpleStringW;

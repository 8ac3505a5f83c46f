#include "afx_archive.h"
#include "atltypes.h"

#include <algorithm>
#include <cstring>
#include <exception>

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void*)
    : m_pFile(pFile), m_nMode(nMode), m_exceptions(std::uncaught_exceptions()),
      m_buffer(static_cast<std::size_t>(std::max(nBufSize, 128))) {}

CArchive::~CArchive() noexcept(false) {
    if (std::uncaught_exceptions() == m_exceptions && (m_nMode & bNoFlushOnDelete) == 0)
        Close();
}

void CArchive::Fail(int cause) const {
    AfxThrowArchiveException(cause, m_pFile != nullptr ? m_pFile->GetFilePath().GetString() : nullptr);
}

void CArchive::Flush() {
    if (m_pFile == nullptr)
        return;
    const std::size_t from = m_cur, to = std::max(m_cur, m_max);
    m_cur = m_max = 0;
    if (IsStoring() && from > 0)
        m_pFile->Write(m_buffer.data(), static_cast<UINT>(from));
    if (IsLoading() && from < to)
        m_pFile->Seek(-static_cast<LONGLONG>(to - from), CFile::current);
}

void CArchive::Close() {
    Flush();
    m_pFile = nullptr;
}

void CArchive::Abort() {
    m_cur = m_max = 0;
    m_pFile = nullptr;
}

bool CArchive::Refill() {
    m_cur = 0;
    m_max = m_pFile != nullptr ? m_pFile->Read(m_buffer.data(), static_cast<UINT>(m_buffer.size())) : 0;
    return m_max > 0;
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    if (IsStoring())
        Fail(CArchiveException::writeOnly);
    auto* to = static_cast<BYTE*>(lpBuf);
    UINT left = nMax;
    while (left > 0) {
        if (m_cur == m_max && left >= m_buffer.size()) // past the buffer
            return nMax - left + (m_pFile != nullptr ? m_pFile->Read(to, left) : 0);
        if (m_cur == m_max && !Refill())
            break;
        const std::size_t part = std::min<std::size_t>(left, m_max - m_cur);
        std::memcpy(to, m_buffer.data() + m_cur, part);
        m_cur += part;
        to += part;
        left -= static_cast<UINT>(part);
    }
    return nMax - left;
}

void CArchive::EnsureRead(void* lpBuf, UINT nCount) {
    if (Read(lpBuf, nCount) != nCount)
        Fail(CArchiveException::endOfFile);
}

void CArchive::Write(const void* lpBuf, UINT nMax) {
    if (IsLoading())
        Fail(CArchiveException::readOnly);
    if (nMax == 0)
        return;
    if (m_pFile == nullptr)
        Fail(CArchiveException::genericException);
    if (nMax > m_buffer.size() - m_cur)
        Flush();
    if (nMax > m_buffer.size()) {
        m_pFile->Write(lpBuf, nMax);
        return;
    }
    std::memcpy(m_buffer.data() + m_cur, lpBuf, nMax);
    m_cur += nMax;
}

BOOL CArchive::ReadString(CString& rString) {
    rString.Empty();
    char c = '\0';
    bool any = false;
    for (; Read(&c, 1) == 1 && c != '\n'; any = true)
        rString += c;
    any = any || c == '\n';
    if (!rString.IsEmpty() && rString[rString.GetLength() - 1] == '\r')
        rString.Truncate(rString.GetLength() - 1);
    return any;
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax) {
    UINT length = 0;
    char c = '\0';
    bool any = false;
    while (length < nMax && Read(&c, 1) == 1) {
        any = true;
        if (c == '\n')
            break;
        lpsz[length++] = c;
    }
    if (c == '\n' && length > 0 && lpsz[length - 1] == '\r')
        --length;
    lpsz[length] = '\0';
    return any ? lpsz : nullptr;
}

void CArchive::WriteString(LPCTSTR lpsz) {
    Write(lpsz, static_cast<UINT>(std::strlen(lpsz)));
}

void CArchive::WriteCount(DWORD_PTR dwCount) {
    if (dwCount < 0xFFFF) {
        *this << static_cast<WORD>(dwCount);
        return;
    }
    *this << static_cast<WORD>(0xFFFF);
    if (dwCount < 0xFFFFFFFF)
        *this << static_cast<DWORD>(dwCount);
    else
        *this << static_cast<DWORD>(0xFFFFFFFF) << static_cast<ULONGLONG>(dwCount);
}

DWORD_PTR CArchive::ReadCount() {
    WORD small_count;
    *this >> small_count;
    if (small_count != 0xFFFF)
        return small_count;
    DWORD count;
    *this >> count;
    if (count != 0xFFFFFFFF)
        return count;
    ULONGLONG large_count;
    *this >> large_count;
    return large_count;
}

namespace {

struct stored_length {
    std::size_t characters;
    bool wide;
};

// A byte; where that is not enough, a word, then a double word behind it. 0xFFFE first tells of wide characters.
stored_length read_length(CArchive& ar) {
    bool wide = false;
    for (;;) {
        BYTE byte;
        ar >> byte;
        if (byte != 0xFF)
            return {byte, wide};
        WORD word;
        ar >> word;
        if (word == 0xFFFE && !wide) {
            wide = true;
            continue;
        }
        if (word != 0xFFFF)
            return {word, wide};
        DWORD length;
        ar >> length;
        if (length >= 0x7FFFFFF0)
            AfxThrowArchiveException(CArchiveException::badIndex);
        return {length, wide};
    }
}

// By pieces: a length that the file does not hold fails before its memory is asked for.
template <class Text> Text read_text(CArchive& ar, std::size_t length) {
    Text text;
    while (text.size() < length) {
        const std::size_t from = text.size(), part = std::min<std::size_t>(length - from, 0x10000);
        text.resize(from + part);
        const auto bytes = static_cast<UINT>(part * sizeof(text[0]));
        if (ar.Read(text.data() + from, bytes) != bytes)
            AfxThrowArchiveException(CArchiveException::endOfFile);
    }
    return text;
}

} // namespace

CArchive& AFXAPI operator<<(CArchive& ar, const CString& text) {
    const auto length = static_cast<DWORD>(text.GetLength());
    if (length < 0xFF)
        ar << static_cast<BYTE>(length);
    else if (length < 0xFFFE)
        ar << static_cast<BYTE>(0xFF) << static_cast<WORD>(length);
    else
        ar << static_cast<BYTE>(0xFF) << static_cast<WORD>(0xFFFF) << length;
    ar.Write(text.GetString(), length);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CString& text) {
    const stored_length length = read_length(ar);
    if (length.wide) {
        const auto wide = read_text<std::wstring>(ar, length.characters);
        text = CString(wide.data(), static_cast<int>(wide.size()));
    } else {
        const auto narrow = read_text<std::string>(ar, length.characters);
        text = CString(narrow.data(), static_cast<int>(narrow.size()));
    }
    return ar;
}

CArchive& AFXAPI operator<<(CArchive& ar, SIZE size) {
    return ar << size.cx << size.cy;
}

CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size) {
    return ar >> size.cx >> size.cy;
}

CArchive& AFXAPI operator<<(CArchive& ar, POINT point) {
    return ar << point.x << point.y;
}

CArchive& AFXAPI operator>>(CArchive& ar, POINT& point) {
    return ar >> point.x >> point.y;
}

CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect) {
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}

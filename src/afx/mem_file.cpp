#include "afx_file.h"

#include <algorithm>
#include <climits>
#include <utility>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::~CMemFile() {
    CMemFile::Close();
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    CMemFile::Close();
    m_grow = nGrowBytes;
    m_memory = lpBuffer;
    m_room = nBufferSize;
    m_size = nGrowBytes == 0 ? nBufferSize : 0;
    m_own = false;
}

BYTE* CMemFile::Detach() {
    m_position = m_size = m_room = 0;
    m_own = true;
    return std::exchange(m_memory, nullptr);
}

void CMemFile::Close() {
    m_position = m_size = m_room = 0;
    BYTE* memory = std::exchange(m_memory, nullptr);
    if (memory != nullptr && std::exchange(m_own, true))
        Free(memory);
}

BOOL CMemFile::Open(LPCTSTR, UINT, CFileException*) {
    AfxThrowNotSupportedException();
}

void CMemFile::GrowFile(SIZE_T dwNewLen) {
    if (dwNewLen <= m_room)
        return;
    if (m_grow == 0)
        AfxThrowFileException(CFileException::diskFull);
    // By half as well: many small writes into a large file would copy it again and again.
    const SIZE_T wanted = std::max(dwNewLen, m_room + m_room / 2), room = (wanted + m_grow - 1) / m_grow * m_grow;
    if (room < dwNewLen)
        AfxThrowMemoryException();
    BYTE* moved = m_memory != nullptr ? Realloc(m_memory, room) : Alloc(room);
    if (moved == nullptr)
        AfxThrowMemoryException();
    m_memory = moved;
    m_room = room;
    m_own = true;
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    const SIZE_T count = m_position < m_size ? std::min<SIZE_T>(nCount, m_size - m_position) : 0;
    if (count > 0)
        Memcpy(static_cast<BYTE*>(lpBuf), m_memory + m_position, count);
    m_position += count;
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0)
        return;
    const SIZE_T size_before = m_size;
    GrowFile(m_position + nCount);
    if (m_position > size_before)
        std::fill(m_memory + size_before, m_memory + m_position, BYTE{0});
    Memcpy(m_memory + m_position, static_cast<const BYTE*>(lpBuf), nCount);
    m_position += nCount;
    m_size = std::max(m_size, m_position);
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    const LONGLONG base = nFrom == begin ? 0 : static_cast<LONGLONG>(nFrom == current ? m_position : m_size);
    if (nFrom > end || lOff < -base || lOff > LLONG_MAX - base)
        AfxThrowFileException(CFileException::badSeek);
    return m_position = static_cast<SIZE_T>(base + lOff);
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    const SIZE_T before = m_size;
    GrowFile(dwNewLen);
    m_size = dwNewLen;
    if (m_size > before)
        std::fill(m_memory + before, m_memory + m_size, BYTE{0});
    m_position = std::min(m_position, m_size);
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

CFile* CMemFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

BOOL CMemFile::GetStatus(CFileStatus& rStatus) const {
    rStatus = CFileStatus();
    rStatus.m_size = m_size;
    lstrcpyn(rStatus.m_szFullName, m_strFileName, sizeof(rStatus.m_szFullName));
    return TRUE;
}

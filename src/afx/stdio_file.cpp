#include "afx_file.h"
#include "file_names.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <utility>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

// Null where the C library has no mode for the flags.
LPCTSTR stream_mode(UINT flags) {
    const bool binary = (flags & CFile::typeBinary) != 0, keep = (flags & CFile::modeNoTruncate) != 0;
    const bool create = (flags & CFile::modeCreate) != 0;
    if ((flags & CFile::modeReadWrite) != 0)
        return create && !keep ? (binary ? "w+b" : "w+t") : (binary ? "r+b" : "r+t");
    if ((flags & CFile::modeWrite) != 0)
        return create && !keep ? (binary ? "wb" : "wt") : (binary ? "r+b" : "r+t");
    return binary ? "rb" : "rt";
}

} // namespace

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException reason;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &reason))
        AfxThrowFileException(reason.m_cause, reason.m_lOsError, lpszFileName);
}

CStdioFile::~CStdioFile() {
    if (m_hFile != hFileNull)
        CStdioFile::Abort();
}

void CStdioFile::ThrowStreamError() const {
    AfxThrowFileException(errno == ENOSPC ? CFileException::diskFull : CFileException::ErrnoToException(errno),
                          static_cast<LONG>(_doserrno), m_strFileName);
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    Abort();
    if (!CFile::Open(lpszFileName, nOpenFlags & ~static_cast<UINT>(typeText | typeBinary), pError))
        return FALSE;
    const int text = (nOpenFlags & typeBinary) != 0 ? _O_BINARY : _O_TEXT;
    const int access = (nOpenFlags & (modeWrite | modeReadWrite)) == 0 ? _O_RDONLY : 0;
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(m_hFile), text | access);
    m_pStream = descriptor != -1 ? _fdopen(descriptor, stream_mode(nOpenFlags)) : nullptr;
    if (m_pStream != nullptr)
        return TRUE;
    if (pError != nullptr) {
        pError->m_lOsError = static_cast<LONG>(_doserrno);
        pError->m_cause = CFileException::ErrnoToException(errno);
        pError->m_strFileName = lpszFileName;
    }
    if (descriptor != -1) {
        _close(descriptor);
        m_hFile = hFileNull;
    }
    CFile::Abort();
    return FALSE;
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax) {
    const LPTSTR line = std::fgets(lpsz, static_cast<int>(nMax), m_pStream);
    if (line == nullptr && !std::feof(m_pStream)) {
        std::clearerr(m_pStream);
        ThrowStreamError();
    }
    return line;
}

BOOL CStdioFile::ReadString(CString& rString) {
    rString.Empty();
    char part[256];
    bool any = false;
    while (CStdioFile::ReadString(part, sizeof(part)) != nullptr) {
        any = true;
        rString += part;
        if (part[0] != '\0' && part[std::strlen(part) - 1] == '\n') {
            rString.Truncate(rString.GetLength() - 1);
            break;
        }
    }
    return any;
}

void CStdioFile::WriteString(LPCTSTR lpsz) {
    if (std::fputs(lpsz, m_pStream) == EOF)
        ThrowStreamError();
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount) {
    const auto count = static_cast<UINT>(nCount != 0 ? std::fread(lpBuf, 1, nCount, m_pStream) : 0);
    if (count < nCount && std::ferror(m_pStream)) {
        std::clearerr(m_pStream);
        ThrowStreamError();
    }
    return count;
}

void CStdioFile::Write(const void* lpBuf, UINT nCount) {
    if (std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount)
        ThrowStreamError();
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom) {
    if (_fseeki64(m_pStream, lOff, static_cast<int>(nFrom)) != 0)
        AfxThrowFileException(CFileException::badSeek, static_cast<LONG>(_doserrno), m_strFileName);
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const {
    const long long position = _ftelli64(m_pStream);
    if (position < 0)
        AfxThrowFileException(CFileException::invalidFile, static_cast<LONG>(_doserrno), m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const {
    std::fflush(m_pStream);
    const long long length = _filelengthi64(_fileno(m_pStream));
    if (length < 0)
        AfxThrowFileException(CFileException::invalidFile, static_cast<LONG>(_doserrno), m_strFileName);
    return static_cast<ULONGLONG>(length);
}

void CStdioFile::SetLength(ULONGLONG dwNewLen) {
    Flush();
    if (_chsize_s(_fileno(m_pStream), static_cast<long long>(dwNewLen)) != 0)
        ThrowStreamError();
}

void CStdioFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

CFile* CStdioFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

void CStdioFile::Flush() {
    if (m_pStream != nullptr && std::fflush(m_pStream) != 0)
        ThrowStreamError();
}

// The stream closes the file's handle, too.
void CStdioFile::Close() {
    FILE* stream = std::exchange(m_pStream, nullptr);
    m_hFile = hFileNull;
    if (stream != nullptr && std::fclose(stream) != 0)
        ThrowStreamError();
    m_strFileName.Empty();
}

void CStdioFile::Abort() {
    FILE* stream = std::exchange(m_pStream, nullptr);
    if (stream == nullptr) {
        CFile::Abort();
        return;
    }
    m_hFile = hFileNull;
    m_strFileName.Empty();
    std::fclose(stream);
}

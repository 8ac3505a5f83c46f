#include "afx_file.h"
#include "file_names.h"

#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

DWORD access_of(UINT flags) {
    if ((flags & CFile::modeReadWrite) != 0)
        return GENERIC_READ | GENERIC_WRITE;
    return (flags & CFile::modeWrite) != 0 ? GENERIC_WRITE : GENERIC_READ;
}

DWORD sharing_of(UINT flags) {
    switch (flags & 0x70) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD disposition_of(UINT flags) {
    if ((flags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (flags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD attributes_of(UINT flags) {
    static constexpr std::pair<UINT, DWORD> meanings[] = {{CFile::osNoBuffer, FILE_FLAG_NO_BUFFERING},
                                                          {CFile::osWriteThrough, FILE_FLAG_WRITE_THROUGH},
                                                          {CFile::osRandomAccess, FILE_FLAG_RANDOM_ACCESS},
                                                          {CFile::osSequentialScan, FILE_FLAG_SEQUENTIAL_SCAN}};
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    for (const auto& [flag, attribute] : meanings) {
        if ((flags & flag) != 0)
            attributes |= attribute;
    }
    return attributes;
}

} // namespace

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException reason;
    if (!CFile::Open(lpszFileName, nOpenFlags, &reason))
        AfxThrowFileException(reason.m_cause, reason.m_lOsError, lpszFileName);
}

CFile::~CFile() {
    CFile::Abort();
}

void CFile::ThrowLastError() const {
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    Abort();
    SECURITY_ATTRIBUTES inheritance{sizeof(inheritance), nullptr, (nOpenFlags & modeNoInherit) == 0};
    m_hFile = ::CreateFile(lpszFileName, access_of(nOpenFlags), sharing_of(nOpenFlags), &inheritance,
                           disposition_of(nOpenFlags), attributes_of(nOpenFlags), nullptr);
    if (m_hFile != hFileNull) {
        m_strFileName = full_path_of(lpszFileName);
        return TRUE;
    }
    if (pError != nullptr) {
        pError->m_lOsError = static_cast<LONG>(::GetLastError());
        pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
        pError->m_strFileName = lpszFileName;
    }
    return FALSE;
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    DWORD done = 0;
    if (nCount != 0 && !::ReadFile(m_hFile, lpBuf, nCount, &done, nullptr))
        ThrowLastError();
    return done;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    DWORD done = 0;
    if (nCount == 0)
        return;
    if (!::WriteFile(m_hFile, lpBuf, nCount, &done, nullptr))
        ThrowLastError();
    if (done != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    LARGE_INTEGER distance, position;
    distance.QuadPart = lOff;
    if (!::SetFilePointerEx(m_hFile, distance, &position, nFrom))
        ThrowLastError();
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const {
    LARGE_INTEGER distance{}, position;
    if (!::SetFilePointerEx(m_hFile, distance, &position, FILE_CURRENT))
        ThrowLastError();
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const {
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length))
        ThrowLastError();
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    if (!::SetEndOfFile(m_hFile))
        ThrowLastError();
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::LockFile(m_hFile, static_cast<DWORD>(dwPos), static_cast<DWORD>(dwPos >> 32), static_cast<DWORD>(dwCount),
                    static_cast<DWORD>(dwCount >> 32)))
        ThrowLastError();
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::UnlockFile(m_hFile, static_cast<DWORD>(dwPos), static_cast<DWORD>(dwPos >> 32), static_cast<DWORD>(dwCount),
                      static_cast<DWORD>(dwCount >> 32)))
        ThrowLastError();
}

CFile* CFile::Duplicate() const {
    auto copy = std::make_unique<CFile>();
    HANDLE handle = nullptr;
    if (!::DuplicateHandle(::GetCurrentProcess(), m_hFile, ::GetCurrentProcess(), &handle, 0, FALSE,
                           DUPLICATE_SAME_ACCESS))
        ThrowLastError();
    copy->m_hFile = handle;
    copy->m_strFileName = m_strFileName;
    return copy.release();
}

void CFile::Flush() {
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile))
        ThrowLastError();
}

void CFile::Close() {
    const HANDLE file = m_hFile;
    m_hFile = hFileNull;
    if (file != hFileNull && !::CloseHandle(file))
        ThrowLastError();
    m_strFileName.Empty();
}

void CFile::Abort() {
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_strFileName.Empty();
}

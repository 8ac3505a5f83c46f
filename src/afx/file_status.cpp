// What the file system knows about files.
#include "afx_file.h"
#include "file_names.h"

namespace {

[[noreturn]] void fail(LPCTSTR name) {
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), name);
}

CTime time_of(const FILETIME& time) {
    return CTime::IsValidFILETIME(time) ? CTime(time) : CTime();
}

class open_file {
public:
    explicit open_file(LPCTSTR name)
        : m_handle(::CreateFile(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr)) {
        if (m_handle == INVALID_HANDLE_VALUE)
            fail(name);
    }
    ~open_file() { ::CloseHandle(m_handle); }
    open_file(const open_file&) = delete;
    open_file& operator=(const open_file&) = delete;
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

void set_times(LPCTSTR name, const CFileStatus& status) {
    FILETIME times[3];
    const FILETIME* wanted[3] = {};
    const CTime given[3] = {status.m_ctime, status.m_atime, status.m_mtime};
    for (int i = 0; i < 3; ++i) {
        if (given[i].GetTime() == 0)
            continue;
        AfxTimeToFileTime(given[i], &times[i]);
        wanted[i] = &times[i];
    }
    const open_file file(name);
    if (!::SetFileTime(file.get(), wanted[0], wanted[1], wanted[2]))
        fail(name);
}

} // namespace

CString CFile::GetFilePath() const {
    return m_strFileName;
}

CString CFile::GetFileName() const {
    return file_name_of(m_strFileName);
}

CString CFile::GetFileTitle() const {
    return title_of(m_strFileName);
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName, ATL::CAtlTransactionManager*) {
    if (!::MoveFile(lpszOldName, lpszNewName))
        fail(lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName, ATL::CAtlTransactionManager*) {
    if (!::DeleteFile(lpszFileName))
        fail(lpszFileName);
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const {
    BY_HANDLE_FILE_INFORMATION known;
    if (m_hFile == hFileNull || !::GetFileInformationByHandle(m_hFile, &known))
        return FALSE;
    rStatus.m_ctime = time_of(known.ftCreationTime);
    rStatus.m_mtime = time_of(known.ftLastWriteTime);
    rStatus.m_atime = time_of(known.ftLastAccessTime);
    rStatus.m_size = GetLength();
    rStatus.m_attribute = known.dwFileAttributes;
    lstrcpyn(rStatus.m_szFullName, m_strFileName, sizeof(rStatus.m_szFullName));
    return TRUE;
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus, ATL::CAtlTransactionManager*) {
    WIN32_FILE_ATTRIBUTE_DATA known;
    if (!::GetFileAttributesEx(lpszFileName, GetFileExInfoStandard, &known))
        return FALSE;
    rStatus.m_ctime = time_of(known.ftCreationTime);
    rStatus.m_mtime = time_of(known.ftLastWriteTime);
    rStatus.m_atime = time_of(known.ftLastAccessTime);
    rStatus.m_size = static_cast<ULONGLONG>(known.nFileSizeHigh) << 32 | known.nFileSizeLow;
    rStatus.m_attribute = known.dwFileAttributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL);
    lstrcpyn(rStatus.m_szFullName, full_path_of(lpszFileName), sizeof(rStatus.m_szFullName));
    return TRUE;
}

// A file that is to become writable again becomes so first, and one that is to become read-only does so last.
void PASCAL CFile::SetStatus(LPCTSTR lpszFileName, const CFileStatus& status, ATL::CAtlTransactionManager*) {
    const DWORD before = ::GetFileAttributes(lpszFileName);
    if (before == INVALID_FILE_ATTRIBUTES)
        fail(lpszFileName);
    const DWORD wanted = status.m_attribute;
    if (wanted != before && (before & readOnly) != 0 && !::SetFileAttributes(lpszFileName, wanted))
        fail(lpszFileName);
    if (status.m_ctime.GetTime() != 0 || status.m_atime.GetTime() != 0 || status.m_mtime.GetTime() != 0)
        set_times(lpszFileName, status);
    if (wanted != before && (before & readOnly) == 0 && !::SetFileAttributes(lpszFileName, wanted))
        fail(lpszFileName);
}

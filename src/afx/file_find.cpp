#include "afx_file.h"
#include "file_names.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

CFileFind::~CFileFind() {
    CFileFind::CloseContext();
}

void CFileFind::Close() {
    CloseContext();
    m_found = m_next = WIN32_FIND_DATA{};
}

void CFileFind::CloseContext() {
    const HANDLE context = std::exchange(m_hContext, nullptr);
    if (context != nullptr)
        ::FindClose(context);
}

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD) {
    Close();
    const LPCTSTR wanted = pstrName != nullptr ? pstrName : "*.*";
    const HANDLE context = ::FindFirstFile(wanted, &m_next);
    if (context == INVALID_HANDLE_VALUE) {
        m_next = WIN32_FIND_DATA{};
        return FALSE;
    }
    m_hContext = context;
    const CString path = full_path_of(wanted);
    m_root = path.Left(path.GetLength() - file_name_of(path).GetLength());
    return TRUE;
}

BOOL CFileFind::FindNextFile() {
    if (m_hContext == nullptr)
        return FALSE;
    m_found = m_next;
    return ::FindNextFile(m_hContext, &m_next);
}

CString CFileFind::GetFileTitle() const {
    const CString name = GetFileName();
    return name.Left(name.GetLength() - extension_of(name).GetLength());
}

CString CFileFind::GetFileURL() const {
    CString path = GetFilePath();
    path.Replace('\\', '/');
    path.Replace(" ", "%20");
    return "file:///" + path;
}

BOOL CFileFind::IsDots() const {
    return IsDirectory() && (lstrcmp(m_found.cFileName, ".") == 0 || lstrcmp(m_found.cFileName, "..") == 0);
}

BOOL CFileFind::CopyTime(const FILETIME& from, FILETIME* to) const {
    if (m_hContext == nullptr || to == nullptr)
        return FALSE;
    *to = from;
    return TRUE;
}

BOOL CFileFind::CopyTime(const FILETIME& from, CTime& to) const {
    if (m_hContext == nullptr)
        return FALSE;
    to = CTime::IsValidFILETIME(from) ? CTime(from) : CTime();
    return TRUE;
}

#include "afx_exception.h"
#include "afx_app.h"
#include "atlexcept.h"

#include <cctype>
#include <cerrno>
#include <cstdio>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(COleException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

void copy_text(LPTSTR to, UINT room, LPCTSTR text) {
    if (to != nullptr && room > 0)
        lstrcpyn(to, text, static_cast<int>(room));
}

BOOL system_message(DWORD code, LPTSTR to, UINT room) {
    if (to == nullptr || room == 0)
        return FALSE;
    *to = '\0';
    DWORD length = ::FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, to,
                                   room, nullptr);
    while (length > 0 && std::isspace(static_cast<unsigned char>(to[length - 1])))
        to[--length] = '\0'; // the system's texts end with a line end
    return length > 0;
}

} // namespace

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    copy_text(lpszError, nMaxError, "");
    return FALSE;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    return static_cast<const CException*>(this)->GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

int CException::ReportError(UINT nType, UINT nMessageID) {
    char text[512];
    UINT help = 0;
    if (GetErrorMessage(text, sizeof(text), &help))
        return AfxMessageBox(text, nType, help);
    return AfxMessageBox(nMessageID != 0 ? nMessageID : AFX_IDP_NO_ERROR_AVAILABLE, nType, help);
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    copy_text(lpszError, nMaxError, m_strMessage);
    return !m_strMessage.IsEmpty();
}

CMemoryException::CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, "Out of memory.") {}
CResourceException::CResourceException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, "A required resource is not available.") {}
CInvalidArgException::CInvalidArgException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, "An argument is not valid.") {}
CNotSupportedException::CNotSupportedException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, "An unsupported operation was attempted.") {}
CUserException::CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

BOOL COleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    if (system_message(static_cast<DWORD>(m_sc), lpszError, nMaxError))
        return TRUE;
    CString text;
    text.Format("Error 0x%08lX.", static_cast<unsigned long>(m_sc));
    copy_text(lpszError, nMaxError, text);
    return TRUE;
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    char reason[256];
    if (m_lOsError <= 0 || !system_message(static_cast<DWORD>(m_lOsError), reason, sizeof(reason)))
        std::snprintf(reason, sizeof(reason), "File error %d.", m_cause);
    CString text(reason);
    if (!m_strFileName.IsEmpty())
        text = m_strFileName + ": " + reason;
    copy_text(lpszError, nMaxError, text);
    return TRUE;
}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    static constexpr LPCTSTR reasons[] = {
        "No error.",
        "The archive failed.",
        "An archive that is loaded was written to.",
        "The file ends too early.",
        "An archive that is stored was read from.",
        "The file has an invalid format.",
        "The file holds an object of an unexpected class.",
        "The file was written by another version of the program.",
        "The text does not fit.",
    };
    const CString reason = m_cause >= 0 && m_cause <= bufferFull ? reasons[m_cause] : reasons[genericException];
    copy_text(lpszError, nMaxError, m_strFileName.IsEmpty() ? reason : m_strFileName + ": " + reason);
    return TRUE;
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName) {
    throw new CArchiveException(cause, lpszArchiveName);
}

int PASCAL CFileException::ErrnoToException(int nErrno) {
    switch (nErrno) {
    case EPERM:
    case EACCES:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case EDEADLOCK:
        return sharingViolation;
    case EMFILE:
        return tooManyOpenFiles;
    case ENOENT:
    case ENFILE:
        return fileNotFound;
    case ENOSPC:
        return diskFull;
    case EINVAL:
    case EIO:
        return hardIO;
    default:
        return genericException;
    }
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName) {
    AfxThrowFileException(ErrnoToException(nErrno), static_cast<LONG>(_doserrno), lpszFileName);
}

int PASCAL CFileException::OsErrorToException(LONG lOsError) {
    switch (lOsError) {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_FILENAME_EXCED_RANGE:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK:
        return badSeek;
    case ERROR_CRC:
    case ERROR_IO_DEVICE:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT:
        return hardIO;
    case ERROR_SHARING_VIOLATION:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void AFXAPI AfxThrowMemoryException() {
    throw new CMemoryException;
}

void AFXAPI AfxThrowResourceException() {
    throw new CResourceException;
}

void AFXAPI AfxThrowInvalidArgException() {
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowNotSupportedException() {
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowUserException() {
    throw new CUserException;
}

void AFXAPI AfxThrowOleException(SCODE sc) {
    COleException* exception = new COleException;
    exception->m_sc = sc;
    throw exception;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}

void AtlThrow(HRESULT hr) {
    if (hr == E_OUTOFMEMORY)
        AfxThrowMemoryException();
    AfxThrowOleException(hr);
}

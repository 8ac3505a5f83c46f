// Exceptions: thrown and caught by pointer, deleted by whoever catches them.
#pragma once

#include "afx_debug.h"
#include "afxstr.h"

class ZOPAFX_API CException : public CObject {
    DECLARE_DYNAMIC(CException)

public:
    // An exception made with bAutoDelete FALSE survives Delete.
    explicit CException(BOOL bAutoDelete = TRUE) : m_bAutoDelete(bAutoDelete) {}
    void Delete();
    // A text for the user; FALSE, with an empty text, where there is none. Older programs override the second form,
    // which answers as the first; reports ask for it.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr);
    // Shows the text, or the string nMessageID where there is none, in a message box.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

    BOOL m_bAutoDelete;
};

class ZOPAFX_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)

public:
    explicit CSimpleException(BOOL bAutoDelete = TRUE) : CException(bAutoDelete) {}
    CSimpleException(BOOL bAutoDelete, LPCTSTR lpszMessage) : CException(bAutoDelete), m_strMessage(lpszMessage) {}
    using CException::GetErrorMessage;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

private:
    CString m_strMessage;
};

#define AFX_DECLARE_SIMPLE_EXCEPTION(class_name)                                                                       \
    class ZOPAFX_API class_name : public CSimpleException {                                                            \
        DECLARE_DYNAMIC(class_name)                                                                                    \
                                                                                                                       \
    public:                                                                                                            \
        explicit class_name(BOOL bAutoDelete = TRUE);                                                                  \
    };

AFX_DECLARE_SIMPLE_EXCEPTION(CMemoryException)
AFX_DECLARE_SIMPLE_EXCEPTION(CResourceException)
AFX_DECLARE_SIMPLE_EXCEPTION(CInvalidArgException)
AFX_DECLARE_SIMPLE_EXCEPTION(CNotSupportedException)
// Raised to stop what the user has already been told about; reported by nobody.
AFX_DECLARE_SIMPLE_EXCEPTION(CUserException)

// An exception with a result code.
class ZOPAFX_API COleException : public CException {
    DECLARE_DYNAMIC(COleException)

public:
    COleException() = default;
    using CException::GetErrorMessage;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    SCODE m_sc = S_OK;
};

class ZOPAFX_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)

public:
    enum {
        none,
        genericException,
        generic = genericException, // its older name
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG lOsError = -1, LPCTSTR lpszFileName = nullptr)
        : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszFileName) {}
    using CException::GetErrorMessage;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    static int PASCAL OsErrorToException(LONG lOsError);
    static int PASCAL ErrnoToException(int nErrno);
    [[noreturn]] static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = nullptr);
    [[noreturn]] static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

// What an archive's file holds is not what was asked for.
class ZOPAFX_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)

public:
    enum {
        none,
        genericException,
        generic = genericException,
        readOnly,
        endOfFile,
        writeOnly,
        badIndex,
        badClass,
        badSchema,
        bufferFull
    };

    explicit CArchiveException(int cause = none, LPCTSTR lpszArchiveName = nullptr)
        : m_cause(cause), m_strFileName(lpszArchiveName) {}
    using CException::GetErrorMessage;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    int m_cause;
    CString m_strFileName;
};

[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = nullptr);
[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowResourceException();
[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowUserException();
[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowOleException(SCODE sc);
[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                          LPCTSTR lpszFileName = nullptr);

// What operator new asks where memory is short; by itself it raises CMemoryException.
#ifndef _PNH_DEFINED
#define _PNH_DEFINED
typedef int(AFX_CDECL* _PNH)(std::size_t);
#endif
ZOPAFX_API _PNH AFXAPI AfxGetNewHandler();
ZOPAFX_API _PNH AFXAPI AfxSetNewHandler(_PNH pfnNewHandler);

// The older way to write try and catch: the block deletes the exception that it caught, unless THROW_LAST passes it on.
class AFX_EXCEPTION_LINK {
public:
    AFX_EXCEPTION_LINK() = default;
    ~AFX_EXCEPTION_LINK() {
        if (m_pException != nullptr)
            m_pException->Delete();
    }
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK&) = delete;
    AFX_EXCEPTION_LINK& operator=(const AFX_EXCEPTION_LINK&) = delete;

    CException* m_pException = nullptr;
};

#define DELETE_EXCEPTION(e) (e)->Delete()
#define TRY                                                                                                            \
    {                                                                                                                  \
        AFX_EXCEPTION_LINK _afxExceptionLink;                                                                          \
        try {
#define CATCH(class_name, e)                                                                                           \
    }                                                                                                                  \
    catch (class_name * e) {                                                                                           \
        _afxExceptionLink.m_pException = e;
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH                                                                                                      \
    }                                                                                                                  \
    }
#define END_CATCH_ALL END_CATCH
// In place of a catch block: the exception is dropped.
#define END_TRY                                                                                                        \
    }                                                                                                                  \
    catch (CException * e) {                                                                                           \
        e->Delete();                                                                                                   \
    }                                                                                                                  \
    }
#define THROW(e) throw e
#define THROW_LAST() (_afxExceptionLink.m_pException = nullptr, throw)

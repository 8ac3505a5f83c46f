// Unbuffered binary files.
#pragma once

#include "afx_exception.h"

// Closes its file with itself. Operations raise CFileException unless they answer FALSE.
class ZOPAFX_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyNone = 0x0040,
        modeCreate = 0x1000
    };
    enum SeekPosition { begin = FILE_BEGIN, end = FILE_END };
    static const HANDLE hFileNull;

    CFile() = default;
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;
    operator HANDLE() const { return m_hFile; }

    // FALSE, with the reason in pError where one is given.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    // Fewer bytes than asked for at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual void Flush();
    virtual void Close();
    // Closes whatever happens; raises nothing.
    virtual void Abort();

    HANDLE m_hFile = INVALID_HANDLE_VALUE;

protected:
    CString m_strFileName;

private:
    [[noreturn]] void ThrowLastError() const;
};

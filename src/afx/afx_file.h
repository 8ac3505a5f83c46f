// Files: unbuffered binary ones, texts of lines, and files in memory.
#pragma once

#include "afx_exception.h"
#include "atltime.h"

namespace ATL {
class CAtlTransactionManager; // there are no transactions: a null pointer stands where one could be given
}

struct CFileStatus {
    CTime m_ctime; // created
    CTime m_mtime; // last written
    CTime m_atime; // last read
    ULONGLONG m_size = 0;
    DWORD m_attribute = 0;
    char m_szFullName[MAX_PATH] = "";
};

// Closes its file with itself. Operations raise CFileException unless they answer FALSE.
class ZOPAFX_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000, // with modeCreate: what is there stays
        typeText = 0x4000,
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum Attribute {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20,
        device = 0x40,
        temporary = 0x100,
        compressed = 0x800
    };
    enum SeekPosition { begin = FILE_BEGIN, current = FILE_CURRENT, end = FILE_END };
    static const HANDLE hFileNull;

    CFile() = default;
    explicit CFile(HANDLE hFile) : m_hFile(hFile) {}
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags, ATL::CAtlTransactionManager*) : CFile(lpszFileName, nOpenFlags) {}
    ~CFile() override;
    operator HANDLE() const { return m_hFile; }

    // FALSE, with the reason in pError where one is given.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    // Another object for the same file and position.
    virtual CFile* Duplicate() const;
    // Fewer bytes than asked for at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    UINT ReadHuge(void* lpBuffer, UINT nCount) { return Read(lpBuffer, nCount); } // older names
    void WriteHuge(const void* lpBuffer, UINT nCount) { Write(lpBuffer, nCount); }
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void Flush();
    virtual void Close();
    // Closes whatever happens; raises nothing.
    virtual void Abort();

    virtual CString GetFileName() const;  // without its folder
    virtual CString GetFileTitle() const; // as the shell shows it
    virtual CString GetFilePath() const;
    virtual void SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }
    BOOL GetStatus(CFileStatus& rStatus) const;

    // Files by their names. The times of SetStatus other than 0 become the file's.
    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName, ATL::CAtlTransactionManager* pTM = nullptr);
    static void PASCAL Remove(LPCTSTR lpszFileName, ATL::CAtlTransactionManager* pTM = nullptr);
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus,
                                 ATL::CAtlTransactionManager* pTM = nullptr);
    static void PASCAL SetStatus(LPCTSTR lpszFileName, const CFileStatus& status,
                                 ATL::CAtlTransactionManager* pTM = nullptr);

    HANDLE m_hFile = INVALID_HANDLE_VALUE;

protected:
    CString m_strFileName;

private:
    [[noreturn]] void ThrowLastError() const;
};

// A file of the C library: buffered, and with typeText (its own default) its lines end with one character.
class ZOPAFX_API CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile() = default;
    // The stream stays the caller's unless the object closes it.
    explicit CStdioFile(FILE* pOpenStream) : m_pStream(pOpenStream) {}
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags, ATL::CAtlTransactionManager*)
        : CStdioFile(lpszFileName, nOpenFlags) {}
    ~CStdioFile() override;

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    // Null, or FALSE, at the end. The first form keeps the line's end, the second does not.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    virtual BOOL ReadString(CString& rString);
    virtual void WriteString(LPCTSTR lpsz);
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    CFile* Duplicate() const override; // not supported
    void Flush() override;
    void Close() override;
    void Abort() override;

    FILE* m_pStream = nullptr;

private:
    [[noreturn]] void ThrowStreamError() const;
};

// A file in memory that grows by nGrowBytes; with 0 it keeps the size of the memory that it was given.
class ZOPAFX_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)

public:
    explicit CMemFile(UINT nGrowBytes = 1024) : m_grow(nGrowBytes) {}
    // Over the caller's memory; with nGrowBytes it may be moved, and must come from malloc.
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0) { Attach(lpBuffer, nBufferSize, nGrowBytes); }
    ~CMemFile() override;

    // Length 0 where the file may grow, else the memory's.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    // The memory, which is the caller's now; released with free.
    BYTE* Detach();

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) final;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override { return m_position; }
    ULONGLONG GetLength() const override { return m_size; }
    void SetLength(ULONGLONG dwNewLen) override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    CFile* Duplicate() const override; // not supported
    void Flush() override {}
    void Close() override;
    void Abort() override { Close(); }
    BOOL GetStatus(CFileStatus& rStatus) const;

protected:
    virtual BYTE* Alloc(SIZE_T nBytes) { return static_cast<BYTE*>(std::malloc(nBytes)); }
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes) { return static_cast<BYTE*>(std::realloc(lpMem, nBytes)); }
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes) {
        return static_cast<BYTE*>(std::memcpy(lpMemTarget, lpMemSource, nBytes));
    }
    virtual void Free(BYTE* lpMem) { std::free(lpMem); }
    virtual void GrowFile(SIZE_T dwNewLen);

    UINT m_grow = 0; // 0: it may not

private:
    SIZE_T m_position = 0, m_size = 0, m_room = 0;
    BYTE* m_memory = nullptr;
    bool m_own = true;
};

// Walks through the files of a folder: FindFile, then FindNextFile before each; that answers FALSE on the last.
class ZOPAFX_API CFileFind : public CObject {
    DECLARE_DYNAMIC(CFileFind)

public:
    CFileFind() = default;
    explicit CFileFind(ATL::CAtlTransactionManager*) {}
    ~CFileFind() override;

    // Null finds all of the current folder.
    virtual BOOL FindFile(LPCTSTR pstrName = nullptr, DWORD dwUnused = 0);
    virtual BOOL FindNextFile();
    void Close();

    virtual CString GetRoot() const { return m_root; } // with a backslash at its end
    virtual CString GetFileName() const { return m_found.cFileName; }
    virtual CString GetFilePath() const { return m_root + m_found.cFileName; }
    virtual CString GetFileTitle() const; // without the extension
    virtual CString GetFileURL() const;
    ULONGLONG GetLength() const { return static_cast<ULONGLONG>(m_found.nFileSizeHigh) << 32 | m_found.nFileSizeLow; }
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const { return CopyTime(m_found.ftCreationTime, pTimeStamp); }
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const {
        return CopyTime(m_found.ftLastAccessTime, pTimeStamp);
    }
    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const { return CopyTime(m_found.ftLastWriteTime, pTimeStamp); }
    virtual BOOL GetCreationTime(CTime& refTime) const { return CopyTime(m_found.ftCreationTime, refTime); }
    virtual BOOL GetLastAccessTime(CTime& refTime) const { return CopyTime(m_found.ftLastAccessTime, refTime); }
    virtual BOOL GetLastWriteTime(CTime& refTime) const { return CopyTime(m_found.ftLastWriteTime, refTime); }

    virtual BOOL MatchesMask(DWORD dwMask) const { return (m_found.dwFileAttributes & dwMask) != 0; }
    virtual BOOL IsDots() const;
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }

protected:
    virtual void CloseContext();

private:
    BOOL CopyTime(const FILETIME& from, FILETIME* to) const;
    BOOL CopyTime(const FILETIME& from, CTime& to) const;

    HANDLE m_hContext = nullptr;
    WIN32_FIND_DATA m_found{}, m_next{};
    CString m_root;
};

// Archives: a file together with the direction in which objects serialise themselves.
#pragma once

#include "afx_file.h"

#include <unordered_map>
#include <vector>

// Buffers what goes to or comes from its file, which stays the caller's and is not closed with the archive. Who uses
// the file itself meanwhile calls Flush first. Numbers are stored with their size, low byte first; an object with its
// class, and each of both only once however often it is pointed to. Fewer bytes than a value needs raise
// CArchiveException.
class ZOPAFX_API CArchive {
public:
    enum Mode : UINT { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    // The buffer is the archive's own; lpBuf is not needed and not used.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    // Closes, unless an exception is on its way: then only what was flushed is in the file.
    ~CArchive() noexcept(false);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return (m_nMode & load) == 0; }
    BOOL IsByteSwapping() const { return FALSE; }
    BOOL IsBufferEmpty() const { return m_cur == m_max; }
    CFile* GetFile() const { return m_pFile; }
    // Whatever was stored is in the file afterwards; while loading, the file stands behind what was read.
    void Flush();
    void Close();
    void Abort();

    // Fewer bytes than asked for at the end of the file.
    UINT Read(void* lpBuf, UINT nMax);
    // Raises CArchiveException where the file has fewer.
    void EnsureRead(void* lpBuf, UINT nCount);
    void Write(const void* lpBuf, UINT nMax);
    // How many objects are expected; to be told before the first.
    void SetLoadParams(UINT nGrowBy = 1024);
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);
    // One line, without its end. False, or null, where the file has ended.
    BOOL ReadString(CString& rString);
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax); // at most nMax characters and the terminator
    void WriteString(LPCTSTR lpsz);

    CObject* ReadObject(const CRuntimeClass* pClass);
    void WriteObject(const CObject* pOb);
    // For an object that is not stored through its pointer, but pointed to by others that are.
    void MapObject(const CObject* pOb);
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = nullptr, UINT* pSchema = nullptr,
                             DWORD* pObTag = nullptr);
    void WriteClass(const CRuntimeClass* pClassRef);
    void SerializeClass(const CRuntimeClass* pClassRef);
    // The version of the object being read; UINT(-1) where none is, and after the first call.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) { m_schema = nSchema; }
    DWORD_PTR ReadCount();
    void WriteCount(DWORD_PTR dwCount);

    CArchive& operator<<(BYTE by) { return Put(by); }
    CArchive& operator<<(WORD w) { return Put(w); }
    CArchive& operator<<(LONG l) { return Put(l); }
    CArchive& operator<<(DWORD dw) { return Put(dw); }
    CArchive& operator<<(float f) { return Put(f); }
    CArchive& operator<<(double d) { return Put(d); }
    CArchive& operator<<(int i) { return Put(i); }
    CArchive& operator<<(short w) { return Put(w); }
    CArchive& operator<<(char ch) { return Put(ch); }
    CArchive& operator<<(wchar_t ch) { return Put(ch); }
    CArchive& operator<<(unsigned u) { return Put(u); }
    CArchive& operator<<(bool b) { return Put(static_cast<BYTE>(b)); }
    CArchive& operator<<(ULONGLONG n) { return Put(n); }
    CArchive& operator<<(LONGLONG n) { return Put(n); }
    CArchive& operator>>(BYTE& by) { return Get(by); }
    CArchive& operator>>(WORD& w) { return Get(w); }
    CArchive& operator>>(LONG& l) { return Get(l); }
    CArchive& operator>>(DWORD& dw) { return Get(dw); }
    CArchive& operator>>(float& f) { return Get(f); }
    CArchive& operator>>(double& d) { return Get(d); }
    CArchive& operator>>(int& i) { return Get(i); }
    CArchive& operator>>(short& w) { return Get(w); }
    CArchive& operator>>(char& ch) { return Get(ch); }
    CArchive& operator>>(wchar_t& ch) { return Get(ch); }
    CArchive& operator>>(unsigned& u) { return Get(u); }
    CArchive& operator>>(bool& b) {
        BYTE by = 0;
        Get(by);
        b = by != 0;
        return *this;
    }
    CArchive& operator>>(ULONGLONG& n) { return Get(n); }
    CArchive& operator>>(LONGLONG& n) { return Get(n); }

    class CDocument* m_pDocument = nullptr; // where the file is a document's

private:
    // What a number in the file stands for.
    struct loaded {
        CObject* object;
        CRuntimeClass* type; // null for an object
        UINT schema;
    };

    template <class Value> CArchive& Put(Value value) {
        Write(&value, sizeof(value));
        return *this;
    }
    template <class Value> CArchive& Get(Value& value) {
        Value read;
        EnsureRead(&read, sizeof(read));
        value = read;
        return *this;
    }
    [[noreturn]] void Fail(int cause) const;
    void CheckCount() const;
    bool Refill();

    CFile* m_pFile;
    UINT m_nMode;
    UINT m_schema = static_cast<UINT>(-1);
    int m_exceptions;
    std::vector<BYTE> m_buffer;
    std::size_t m_cur = 0, m_max = 0; // storing: the bytes before m_cur wait; loading: those up to m_max are there
    std::unordered_map<const void*, DWORD> m_stored;
    std::vector<loaded> m_loaded;
};

inline CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}
inline CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
inline CArchive& AFXAPI operator>>(CArchive& ar, const CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}

ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, const CString& text);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, CString& text);
ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, SIZE size);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size);
ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, POINT point);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, POINT& point);
ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect);

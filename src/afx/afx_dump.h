// Where objects write about themselves for whoever debugs the program.
#pragma once

#include "afx_base.h"

class CFile;
class CObject;

// Writes to the file, or to the debugger.
class ZOPAFX_API CDumpContext {
public:
    explicit CDumpContext(CFile* pFile = nullptr) : m_pFile(pFile) {}
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    // 0: only the object itself; more: objects that it holds, too.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }
    void Flush();

    CDumpContext& operator<<(LPCTSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob);
    CDumpContext& operator<<(BYTE by) { return *this << static_cast<int>(by); }
    CDumpContext& operator<<(WORD w) { return *this << static_cast<int>(w); }
    CDumpContext& operator<<(int n);
    CDumpContext& operator<<(UINT u) { return *this << static_cast<ULONGLONG>(u); }
    CDumpContext& operator<<(LONG l) { return *this << static_cast<LONGLONG>(l); }
    CDumpContext& operator<<(DWORD dw) { return *this << static_cast<ULONGLONG>(dw); }
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);
    CDumpContext& operator<<(HWND h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HDC h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HMENU h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HFONT h) { return *this << static_cast<const void*>(h); }
    CDumpContext& DumpAsHex(BYTE b) { return DumpAsHex(static_cast<ULONGLONG>(b)); }
    CDumpContext& DumpAsHex(WORD w) { return DumpAsHex(static_cast<ULONGLONG>(w)); }
    CDumpContext& DumpAsHex(UINT u) { return DumpAsHex(static_cast<ULONGLONG>(u)); }
    CDumpContext& DumpAsHex(DWORD dw) { return DumpAsHex(static_cast<ULONGLONG>(dw)); }
    CDumpContext& DumpAsHex(int n) { return DumpAsHex(static_cast<UINT>(n)); }
    CDumpContext& DumpAsHex(LONG l) { return DumpAsHex(static_cast<DWORD>(l)); }
    CDumpContext& DumpAsHex(LONGLONG n) { return DumpAsHex(static_cast<ULONGLONG>(n)); }
    CDumpContext& DumpAsHex(ULONGLONG n);
    // Lines of nWidth bytes, each begun with the text.
    void HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth);

    CFile* m_pFile;

protected:
    void OutputString(LPCTSTR lpsz);

private:
    int m_nDepth = 0;
};

ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, double d);
ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, SIZE size);
ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, POINT point);
ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, const RECT& rect);

extern ZOPAFX_API CDumpContext afxDump;
// To the debugger, which may call it, too.
ZOPAFX_API void AFXAPI AfxDump(const CObject* pOb);

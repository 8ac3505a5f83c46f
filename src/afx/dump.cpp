#include "afx_dump.h"
#include "afx_file.h"

#include <cstdio>
#include <cstring>
#include <string>

CDumpContext afxDump;

void AFXAPI AfxDump(const CObject* pOb) {
    afxDump << pOb;
}

void CDumpContext::OutputString(LPCTSTR lpsz) {
    if (m_pFile != nullptr)
        m_pFile->Write(lpsz, static_cast<UINT>(std::strlen(lpsz)));
    else
        ::OutputDebugString(lpsz);
}

void CDumpContext::Flush() {
    if (m_pFile != nullptr)
        m_pFile->Flush();
}

CDumpContext& CDumpContext::operator<<(LPCTSTR lpsz) {
    OutputString(lpsz != nullptr ? lpsz : "(null)");
    return *this;
}

CDumpContext& CDumpContext::operator<<(const void* lp) {
    char text[32];
    std::snprintf(text, sizeof(text), "$%p", lp);
    return *this << text;
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb) {
    return pOb != nullptr ? *this << *pOb : *this << "NULL";
}

CDumpContext& CDumpContext::operator<<(const CObject& ob) {
    ob.Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(int n) {
    return *this << std::to_string(n).c_str();
}

CDumpContext& CDumpContext::operator<<(LONGLONG n) {
    return *this << std::to_string(n).c_str();
}

CDumpContext& CDumpContext::operator<<(ULONGLONG n) {
    return *this << std::to_string(n).c_str();
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, double d) {
    char text[64];
    std::snprintf(text, sizeof(text), "%g", d);
    return dc << text;
}

CDumpContext& CDumpContext::DumpAsHex(ULONGLONG n) {
    char text[32];
    std::snprintf(text, sizeof(text), "0x%llX", n);
    return *this << text;
}

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth) {
    for (int i = 0; i < nBytes; ++i) {
        if (i % (nWidth > 0 ? nWidth : 16) == 0)
            *this << (i == 0 ? "" : "\n") << lpszLine;
        char text[8];
        std::snprintf(text, sizeof(text), " %02X", pby[i]);
        *this << text;
    }
    *this << "\n";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, SIZE size) {
    return dc << "(" << size.cx << " x " << size.cy << ")";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, POINT point) {
    return dc << "(" << point.x << ", " << point.y << ")";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, const RECT& rect) {
    return dc << "(L " << rect.left << ", T " << rect.top << ", R " << rect.right << ", B " << rect.bottom << ")";
}

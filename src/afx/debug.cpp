#include "afx_debug.h"
#include "afx_exception.h"

#include <cstdio>
#include <cstdlib>
#include <new>

#include <malloc.h>

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine) {
    char text[1024];
    std::snprintf(text, sizeof(text), "An assertion failed.\n%s(%d)", lpszFileName, nLine);
    ::OutputDebugString(text);
    switch (::MessageBox(nullptr, text, "Assertion failed", MB_ABORTRETRYIGNORE | MB_ICONHAND | MB_TASKMODAL)) {
    case IDIGNORE:
        return FALSE;
    case IDRETRY:
        return TRUE;
    default:
        std::abort();
    }
}

void AFXAPI AfxAbort() {
    std::abort();
}

void AFX_CDECL afx_trace_text(LPCTSTR lpszFormat, ...) {
    char text[1024];
    va_list arguments;
    va_start(arguments, lpszFormat);
    std::vsnprintf(text, sizeof(text), lpszFormat, arguments);
    va_end(arguments);
    ::OutputDebugString(text);
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine) {
    if (!AfxIsValidAddress(pOb, sizeof(CObject), FALSE)) {
        if (AfxAssertFailedLine(lpszFileName, nLine))
            ::DebugBreak();
        return;
    }
    pOb->AssertValid();
}

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite) {
    constexpr DWORD writable = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    const char *at = static_cast<const char*>(lp), *const end = at + nBytes;
    if (at == nullptr || end < at)
        return FALSE;
    do {
        MEMORY_BASIC_INFORMATION pages;
        if (::VirtualQuery(at, &pages, sizeof(pages)) == 0 || pages.State != MEM_COMMIT ||
            (pages.Protect & (PAGE_NOACCESS | PAGE_GUARD)) != 0 || (bReadWrite && (pages.Protect & writable) == 0))
            return FALSE;
        at = static_cast<const char*>(pages.BaseAddress) + pages.RegionSize;
    } while (at < end);
    return TRUE;
}

BOOL AFXAPI AfxCheckMemory() {
    const int found = ::_heapchk();
    return found == _HEAPOK || found == _HEAPEMPTY;
}

BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength) {
    return nLength >= 0 ? AfxIsValidAddress(lpsz, static_cast<UINT_PTR>(nLength), FALSE)
                        : lpsz != nullptr && !::IsBadStringPtr(lpsz, static_cast<UINT_PTR>(-1));
}

namespace {

int new_failed(std::size_t) {
    AfxThrowMemoryException();
}

_PNH new_handler = &new_failed;

// What the language calls where memory is short; it asks until the allocation succeeds or something is thrown.
void call_new_handler() {
    if (new_handler == nullptr || new_handler(0) == 0)
        throw std::bad_alloc();
}

const bool installed = (std::set_new_handler(&call_new_handler), true);

} // namespace

_PNH AFXAPI AfxGetNewHandler() {
    return new_handler;
}

_PNH AFXAPI AfxSetNewHandler(_PNH pfnNewHandler) {
    const _PNH before = new_handler;
    new_handler = pfnNewHandler;
    return before;
}

// Checks and traces. They do their work where _DEBUG is defined; ENSURE and VERIFY evaluate in every build.
#pragma once

#include "afx_object.h"

#ifndef THIS_FILE
#define THIS_FILE __FILE__
#endif

// Shows where a check failed. TRUE where the program is to stop in the debugger; "Abort" ends the program.
ZOPAFX_API BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
ZOPAFX_API void AFX_CDECL afx_trace_text(LPCTSTR lpszFormat, ...) AFX_PRINTF(1, 2);
template <class... Arguments> inline void AfxTrace(LPCTSTR lpszFormat, Arguments... arguments) {
    afx_trace_text(lpszFormat, afx_variadic(arguments)...);
}
// The second form names what the line is about and how deep it goes: level 0 is shown, higher ones are not.
struct afx_trace_category {};
inline constexpr afx_trace_category traceAppMsg, traceDumpContext, traceWinMsg, traceMemory, traceCmdRouting, traceHtml,
    traceSocket, traceOle, traceDatabase, traceInternet;
template <class Category, class Level, class... Arguments>
requires((std::is_integral_v<Category> || std::is_same_v<Category, afx_trace_category>)&&std::is_integral_v<
         Level>) inline void AfxTrace(Category, Level level, LPCTSTR lpszFormat, Arguments... arguments) {
    if (level == 0)
        afx_trace_text(lpszFormat, afx_variadic(arguments)...);
}
// Stops where the object is null, its memory is not there, or AssertValid objects to it.
ZOPAFX_API void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
ZOPAFX_API BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
// Whether the memory that new takes from is whole.
ZOPAFX_API BOOL AFXAPI AfxCheckMemory();
// nLength -1: up to the null character.
ZOPAFX_API BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);

// The place of an allocation; it is only told to the reader of the source.
inline void* operator new(std::size_t size, LPCSTR, int) {
    return ::operator new(size);
}
inline void* operator new[](std::size_t size, LPCSTR, int) {
    return ::operator new[](size);
}
inline void operator delete(void* at, LPCSTR, int) {
    ::operator delete(at);
}
inline void operator delete[](void* at, LPCSTR, int) {
    ::operator delete[](at);
}

#define AfxDebugBreak() ::DebugBreak()
#define AfxOutputDebugString(lpsz) ::OutputDebugString(lpsz)
// Ends the program at once.
[[noreturn]] ZOPAFX_API void AFXAPI AfxAbort();

#ifdef _DEBUG
#define DEBUG_NEW new (THIS_FILE, __LINE__)
#define ASSERT(f)                                                                                                      \
    do {                                                                                                               \
        if (!(f) && AfxAssertFailedLine(THIS_FILE, __LINE__))                                                          \
            AfxDebugBreak();                                                                                           \
    } while (0)
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (::AfxAssertValidObject(pOb, THIS_FILE, __LINE__))
#define DEBUG_ONLY(f) (f)
#define TRACE ::AfxTrace
#else
#define DEBUG_NEW new
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
// The arguments are checked, but not evaluated.
#define TRACE(...) ((void)(false && (::AfxTrace(__VA_ARGS__), true)))
#endif

#define ATLASSERT(expr) ASSERT(expr)
#define ATLTRACE TRACE
#define ATLTRACE2 TRACE
#define ATLVERIFY(expr) VERIFY(expr)
#define ATLASSUME(expr) ASSERT(expr)
#define AFXASSUME(expr) ASSERT(expr)
#define TRACE0(text) TRACE("%s", text)
#define TRACE1(text, a) TRACE(text, a)
#define TRACE2(text, a, b) TRACE(text, a, b)
#define TRACE3(text, a, b, c) TRACE(text, a, b, c)
#define ASSERT_POINTER(p, type) ASSERT((p) != nullptr && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT((p) == nullptr || AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define UNUSED(x) ((void)(x))
#define UNUSED_ALWAYS(x) ((void)(x))

[[noreturn]] ZOPAFX_API void AFXAPI AfxThrowInvalidArgException();

#define ENSURE_THROW(cond, exception)                                                                                  \
    do {                                                                                                               \
        const bool ensured = !!(cond);                                                                                 \
        ASSERT(ensured);                                                                                               \
        if (!ensured)                                                                                                  \
            exception;                                                                                                 \
    } while (0)
#define ENSURE(cond) ENSURE_THROW(cond, ::AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE(cond)
#define ATLENSURE(cond) ENSURE(cond)
#define ENSURE_VALID(pOb) ENSURE_VALID_THROW(pOb, ::AfxThrowInvalidArgException())
#define ENSURE_VALID_THROW(pOb, exception)                                                                             \
    do {                                                                                                               \
        ENSURE_THROW((pOb) != nullptr, exception);                                                                     \
        ASSERT_VALID(pOb);                                                                                             \
    } while (0)

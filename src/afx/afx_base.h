// Platform headers and the macros shared by every header of the framework subset.
#pragma once

#ifdef UNICODE
#error The framework subset is built for the multi-byte character set only.
#endif
#ifndef STRICT
#define STRICT
#endif
#define _MFC_VER 0x0E00

// Structures and messages of the controls are those of this platform at least, also where a program names an older one.
#if defined(NTDDI_VERSION) && NTDDI_VERSION < 0x06000000
#undef NTDDI_VERSION
#endif
#if defined(_WIN32_WINNT) && _WIN32_WINNT < 0x0600
#undef _WIN32_WINNT
#undef NTDDI_VERSION
#define _WIN32_WINNT 0x0600
#endif
#if defined(WINVER) && WINVER < 0x0600
#undef WINVER
#define WINVER 0x0600
#endif
#if defined(_WIN32_IE) && _WIN32_IE < 0x0600
#undef _WIN32_IE
#define _WIN32_IE 0x0600
#endif

#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <ole2.h>
#include <tchar.h>

#include <crtdbg.h>
#include <float.h>
#include <limits.h>
#include <malloc.h>
#include <math.h>

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <type_traits>

// The platform's macros of these names would take members for them.
#undef DocumentEvent
#undef GetNextWindow
#undef GetCurrentTime
inline HWND GetNextWindow(HWND hWnd, UINT nDirection) {
    return ::GetWindow(hWnd, nDirection);
}
inline DWORD GetCurrentTime() {
    return ::GetTickCount();
}

// The platform's headers have these for C only, as macros, which would break the standard's. NOMINMAX tells nothing of
// the program: the standard library's headers define it.
#if !defined(min) && !defined(max)
template <class A, class B> constexpr std::common_type_t<A, B> min(A a, B b) {
    return b < a ? b : a;
}
template <class A, class B> constexpr std::common_type_t<A, B> max(A a, B b) {
    return a < b ? b : a;
}
#endif

#ifdef ZOPAFX_BUILD
#define ZOPAFX_API __declspec(dllexport)
#else
#define ZOPAFX_API __declspec(dllimport)
#endif

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define afx_msg
#define AFX_MSG_CALL
#ifdef __clang__
#define AFX_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define AFX_PRINTF(text, first) __attribute__((format(gnu_printf, text, first)))
#endif

// Words of older sources that have no meaning on this platform.
#define BASED_CODE
#define AFX_DATA
#define AFX_DATADEF
#define AFX_EXT_DATA
#define AFX_EXT_DATADEF
#define AFX_STATIC static
#define AFX_STATIC_DATA static
#define AFX_INLINE inline
#define _AFX_INLINE inline
#define AFX_CORE_DATA
#define AFX_COMDAT
#define AFX_NOVTABLE

#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#define AFX_EXT_API AFX_EXT_CLASS

// A place in a list; null behind the last.
struct __POSITION;
typedef __POSITION* POSITION;

// A class in an ellipsis would arrive as an address that nobody expects there: the compiler is to tell.
#ifndef __clang__ // which refuses it of itself
#pragma GCC diagnostic warning "-Wconditionally-supported"
#endif

// What a variable argument list takes for a value; strings add their own.
class CString;
template <class Value>
requires(!std::is_base_of_v<CString, Value>) inline Value afx_variadic(Value value) {
    static_assert(std::is_trivially_copyable_v<Value>, "an object cannot be printed");
    return value;
}

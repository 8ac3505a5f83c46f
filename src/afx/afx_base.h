// Platform headers, export macros and diagnostics shared by every header of the framework subset.
#pragma once

#ifdef UNICODE
#error The framework subset is built for the multi-byte character set only.
#endif
#ifndef STRICT
#define STRICT
#endif

#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <ole2.h>
#include <tchar.h>

#include <cstdarg>
#include <cstddef>
#include <cstdint>

// Names of the framework's own that the platform's function-like macros would rewrite.
#undef GetCurrentTime
#undef GetNextWindow

#ifdef ZOPAFX_BUILD
#define ZOPAFX_API __declspec(dllexport)
#else
#define ZOPAFX_API __declspec(dllimport)
#endif

// An extension library defines _AFXEXT while it is built and exports with these; its users import.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_DATA
#define AFX_DATADEF
#define afx_msg
#define AFX_PRINTF(text, first) __attribute__((format(gnu_printf, text, first)))

// Writes a formatted line to the debugger; compiled out of release builds by the TRACE macros.
ZOPAFX_API void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...) AFX_PRINTF(1, 2);
ZOPAFX_API BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);

#ifdef _DEBUG
#define TRACE ::AfxTrace
#define ASSERT(f) ((f) ? (void)0 : (void)::AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(f) ASSERT(f)
#else
#define TRACE(...) ((void)0)
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#endif
#define TRACE0(text) TRACE("%s", text)
#define TRACE1(format, a) TRACE(format, a)
#define TRACE2(format, a, b) TRACE(format, a, b)
#define TRACE3(format, a, b, c) TRACE(format, a, b, c)
#define ASSERT_VALID(pointer) ASSERT((pointer) != nullptr)

// Platform headers and the macros shared by every header of the framework subset.
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

#ifdef ZOPAFX_BUILD
#define ZOPAFX_API __declspec(dllexport)
#else
#define ZOPAFX_API __declspec(dllimport)
#endif

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define afx_msg
#ifdef __clang__
#define AFX_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define AFX_PRINTF(text, first) __attribute__((format(gnu_printf, text, first)))
#endif

// Window classes, and the way in which a window comes to its object; part of afx_wnd.h.
#pragma once

#include "afx_base.h"

class CWnd;

ZOPAFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
// Registers a class for these values and answers its name; the same values give the same name.
// Raises CResourceException where the class cannot be registered.
ZOPAFX_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                              HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
// TRUE where the class is registered already, too.
ZOPAFX_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);
// Sets the object that takes over the next window that this thread creates; AfxUnhookWindowCreate tells whether one
// did.
ZOPAFX_API void AFXAPI AfxHookWindowCreate(CWnd* pWnd);
ZOPAFX_API BOOL AFXAPI AfxUnhookWindowCreate();

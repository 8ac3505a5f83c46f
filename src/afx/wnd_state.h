// What the window procedure and the window class share. The framework serves one user-interface thread.
#pragma once

#include "afx_wnd.h"

// The window message that is being handled, or the last one that was.
extern MSG last_message;

LRESULT AfxCallWndProc(CWnd* wnd, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
// In a handler of any exception that must not reach the system: reports it and gives the message's answer.
LRESULT answer_exception(const MSG& message);

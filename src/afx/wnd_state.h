// What the window procedure and the window class share. The framework serves one user-interface thread.
#pragma once

#include "afx_wnd.h"

// The window message that is being handled; all zero while none is.
extern MSG last_message;

// Whether the object holds the window now.
bool AfxTakeOverWindow(CWnd* wnd, HWND hwnd);
// The answer to a message whose handler failed: a creation is refused.
LRESULT refusal(const MSG& message);
// The argument of the quit message that ended the loop; 0 where none did.
int quit_code();
// In a handler of any exception that must not reach the system: reports it and gives the message's answer.
LRESULT answer_exception(const MSG& message);

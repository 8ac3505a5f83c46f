// What the window procedure and the window class share.
#pragma once

#include "afx_wnd.h"
#include "thread_state.h"

// Whether the object holds the window now.
bool take_over_window(CWnd* wnd, HWND hwnd);
// The answer to a message whose handler failed: a creation is refused.
LRESULT refusal(const MSG& message);
// The argument of the quit message that ended the loop; 0 where none did.
int quit_code();
// In a handler of any exception that must not reach the system: reports it and gives the message's answer.
LRESULT answer_exception(const MSG& message);

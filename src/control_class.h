#pragma once

#include <afxwin.h>

namespace wnt {

/// Registers the window class by whose name dialog templates place a widget, once a process. Its windows are blank
/// until an object takes them over: its PreSubclassWindow() then makes what its OnCreate() makes of a window of its
/// own, which PreCreateWindow() told of. A name that is taken stays who has it.
void register_control_class(const char* name);

/// The client area of a window that is taken over, whose size is told by no message.
inline CSize client_size(HWND window) {
    RECT client = {};
    ::GetClientRect(window, &client);
    return CSize(client.right, client.bottom);
}

} // namespace wnt

#pragma once

#include <afxwin.h>

namespace wnt {

/// Registers the window class by whose name dialog templates place a widget, once a process. Its windows are blank
/// until an object takes them over: its PreSubclassWindow() then makes what its OnCreate() makes of a window of its
/// own, which PreCreateWindow() told of. A name that is taken stays who has it.
void register_control_class(const char* name);

/// True in the middle of a window's creation, when its object is joined to it and nothing can be made in it yet.
inline bool without_size(HWND window) {
    RECT place = {};
    return !::GetWindowRect(window, &place) || ::IsRectEmpty(&place);
}

/// The client area of a window that is taken over, whose size is told by no message.
inline CSize client_size(HWND window) {
    RECT client = {};
    ::GetClientRect(window, &client);
    return CSize(client.right, client.bottom);
}

} // namespace wnt

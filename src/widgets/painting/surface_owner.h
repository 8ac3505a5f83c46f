#pragma once

#include "out/wnt_out.h"

namespace wnt {

// What the widgets' windows have in common.

/// Right after reset() white lines and black fills count as in force without being so: one call each with another
/// colour force the first real change.
inline void prime_colours(CWntOut& out) {
    out.linecolour(COLORREF{0x010101}, 0);
    out.fillcolour(COLORREF{0x010101}, 0);
}

/// reset() with colours that can be relied on; false when nothing can be drawn.
inline bool begin_painting(CWntOut& out) {
    if (!out.reset())
        return false;
    prime_colours(out);
    return true;
}

/// Moves a child that exists to its place and shows it, or hides it.
inline void place_child(CWnd& child, int x, int y, int width, int height, bool shown = true) {
    if (!child.m_hWnd)
        return;
    child.SetWindowPos(nullptr, x, y, width > 0 ? width : 0, height > 0 ? height : 0, SWP_NOZORDER | SWP_NOACTIVATE);
    child.ShowWindow(shown ? SW_SHOW : SW_HIDE);
}

/// Whether a window and its object outlived what was called in between.
class StillThere {
public:
    explicit StillThere(CWnd& window) : handle_(window.m_hWnd), window_(&window) {}
    explicit operator bool() const { return ::IsWindow(handle_) && CWnd::FromHandlePermanent(handle_) == window_; }

private:
    const HWND handle_;
    const CWnd* const window_;
};

/// Tells the parent by a notify message that begins with this header; what the handler answers. `alive` is false when
/// the parent destroyed the window, which must not be used then.
inline LRESULT notify_parent(CWnd& window, NMHDR& notification, UINT code, bool& alive) {
    const StillThere self(window);
    notification = {window.m_hWnd, static_cast<UINT_PTR>(window.GetDlgCtrlID()), code};
    alive = true;
    const HWND parent = ::GetParent(window.m_hWnd);
    if (!parent)
        return 0;
    const LRESULT answer =
        ::SendMessage(parent, WM_NOTIFY, notification.idFrom, reinterpret_cast<LPARAM>(&notification));
    alive = static_cast<bool>(self);
    return answer;
}

/// The same with nothing but the code, as the last thing that the window does.
inline void notify_parent(CWnd& window, UINT code) {
    NMHDR notification;
    bool alive;
    notify_parent(window, notification, code, alive);
}

} // namespace wnt

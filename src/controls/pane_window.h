#pragma once

#include "control_window.h"

namespace wnt {

/// A control that holds windows of the host's. What those tell their parent, and the control does not handle, goes on
/// to the control's own parent, as if they were the host's children still.
class ZOPWNT_API PaneWindow : public ControlWindow {
protected:
    explicit PaneWindow(const char* class_name) : ControlWindow(class_name, Draws::itself) {}

    /// The pane while it is a child of this window, otherwise null.
    HWND living(HWND pane) const;

    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// Makes a window of the host's a child; false for none, or for one that holds the parent.
ZOPWNT_API bool adopt_child(CWnd& parent, CWnd* child);

} // namespace wnt

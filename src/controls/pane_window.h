#pragma once

#include "control_window.h"

namespace wnt {

/// A control that holds windows of the host's. What those tell their parent, and the control does not handle, goes on
/// to the control's own parent, as if they were the host's children still.
class ZOPWNT_API PaneWindow : public ControlWindow {
protected:
    explicit PaneWindow(const char* class_name) : ControlWindow(class_name, Draws::around_children) {}

    /// The pane while it is a child of this window, otherwise null.
    HWND living(HWND pane) const;
    /// The present WM_GETDLGCODE asks about the Return key, which is a dialog's default button's unless taken.
    static bool asks_about_return();

    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool answer_as_dialog(UINT message, WPARAM wParam, LPARAM lParam);
};

/// A window of the host's that may become a child: of this thread, and not one that holds the parent.
ZOPWNT_API bool adoptable(const CWnd& parent, const CWnd* child);

/// Makes it one; false where it must not.
ZOPWNT_API bool adopt_child(CWnd& parent, CWnd* child);

} // namespace wnt

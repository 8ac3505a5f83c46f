#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

namespace wnt {

/// What the widgets have in common as windows: each can be created, or take a window over, be it one that a dialog
/// template placed by the widget's class name, or any other.
class ZOPWNT_API ControlWindow : public CWnd {
public:
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;

protected:
    /// A surface must be told when it is uncovered; around children nothing is painted over them.
    enum class Draws { on_surface, itself, around_children };

    /// Registers the window class by whose name dialog templates place the widget, once a process. Its windows are
    /// blank until an object takes them over. A name that is taken stays who has it.
    explicit ControlWindow(const char* class_name, Draws draws = Draws::on_surface);
    ~ControlWindow() override;

    /// Makes what the widget has in its new window; false: the window is not created, or not taken over.
    virtual bool build() = 0;
    /// Destroys what build() made in another window.
    virtual void leave() {}
    /// Does with the text of a window that was taken over, and built, what belongs to it.
    virtual void take_text(const CString&) {}
    /// Places everything in a client area of this size; also called before build().
    virtual void lay_out(int cx, int cy) = 0;

    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    DWORD with_clipping(DWORD style) const;
    bool build_here();
    void take_over();

    const Draws draws_;
    HWND built_in_ = nullptr;
    bool created_here_ = false; // its window is being created by it; otherwise it takes one over
};

} // namespace wnt

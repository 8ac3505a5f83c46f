#pragma once

#include <afxwin.h>

#include <memory>

#include "control_window.h"
#include "out/wnt_out.h"
#include "widgets/button/button_properties.h"
#include "zopwnt_api.h"

namespace wnt {
class ButtonModel;
struct ButtonInside;
struct ButtonBox;
} // namespace wnt

/// A titled rectangle with a three-dimensional border that sinks while the left mouse button is held on it.
///
///     CWntButton button;
///     button.Create(nullptr, "Start", WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 40), this, 2);
///     button.load(":TITLE=Start", 0);
///     button.load("", 2);
///
/// In a dialog template its class is "WntButton" and its text the title; DDX_Control() joins it to an object.
///
/// It sends no notification: a host watches the border type of getproperties() (2 raised, 3 sunk) or handles the
/// mouse messages in a class derived from it. A press that is released outside leaves it sunk. Its window never has
/// WS_CLIPCHILDREN: with the surface clipped away it would not learn what of it was uncovered.
class ZOPWNT_API CWntButton : public wnt::ControlWindow {
public:
    CWntButton();
    ~CWntButton() override;

    CWntButton(const CWntButton&) = delete;
    CWntButton& operator=(const CWntButton&) = delete;

    /// mode 1 begins a script, 0 applies one line, 2 ends the script and repaints. Always 0. A script that ends with
    /// a border open on any side leaves the button fixed.
    unsigned char load(const char* line, int mode);

    /// Copies the block out: 1, or 0 for null.
    unsigned char getproperties(Tcbtn_properties* block);
    /// Takes a block over and repaints if it differs. Always 1.
    unsigned char setproperties(const Tcbtn_properties* block);

    /// 1 when the point (client coordinates) lies inside; points on the edge lie outside.
    unsigned char mouse_in_button(CPoint point);

    /// The first step of painting, for an owner that repaints parts: border and frame, and the ground while a change is
    /// pending.
    void draw_background();
    /// The second step: the title.
    void draw_foreground();
    /// Moves the picture: 0 pressed, 1 released. The border type is changed for good.
    void draw_button(unsigned char up);

protected:
    afx_msg void OnDestroy();
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    bool build() override;
    void leave() override;
    void take_text(const CString& text) override;
    void lay_out(int cx, int cy) override;
    void repaint();
    void draw_all();
    void open_surface();
    void move_picture(unsigned char up);

    CWntOut out_;
    bool created_ = false;
    std::unique_ptr<wnt::ButtonModel> model_;
    std::unique_ptr<wnt::ButtonBox> box_;
    std::unique_ptr<wnt::ButtonInside> inside_;
};

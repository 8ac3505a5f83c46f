#pragma once

#include <memory>
#include <vector>

#include "control_window.h"
#include "controls/control_font.h"
#include "controls/tabs_layout.h"
#include "controls/tabs_painter.h"
#include "controls/tool_tip_ex.h"

class CWntTabs;

namespace wnt {

/// The window with the tabs: paints them, and turns pointer and keys into what the user does to the tabs. Its owner is
/// told as the last thing in a handler, since a host may destroy both then.
class TabsStrip : public ControlWindow {
public:
    explicit TabsStrip(CWntTabs& tabs);
    ~TabsStrip() override;

    const TabsLayout& layout() const { return layout_; }
    int scale() const { return scale_; }
    void rescale(bool settings_changed);
    /// Texts or icons changed.
    void measure();
    /// For this size of the owner's; `wanted` must be seen (-1: none).
    void arrange(int width, int height, int wanted);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    bool build() override { return true; }
    void lay_out(int, int) override {}

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg void OnCancelMode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    TabsPoint hit(CPoint point) const;
    CRect box(const PixelRect& in_owner) const;
    void repaint(const TabsPoint& at);
    void hover(const TabsPoint& at);
    void drag_to(CPoint point);
    void end_press();
    void place_tips();
    void scroll(int step);
    void open_menu();
    void select_by_key(UINT key);
    void move_by_key(int step);

    CWntTabs& tabs_;
    TabsSizes sizes_ = {};
    TabsLayout layout_;
    std::vector<int> lengths_;
    std::unique_ptr<ControlFont> font_;
    int scale_ = 100;
    CToolTipCtrlEx tips_; // made when a tab has one
    int tip_count_ = 0;
    TabsPoint hot_;
    TabsPoint pressed_; // what the button was pressed on, while it is held
    CPoint pressed_at_;
    int gap_ = -1; // where a dragged tab would go; -1: none is dragged
};

} // namespace wnt

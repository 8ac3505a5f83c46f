#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <memory>

#include "control_window.h"
#include "out/wnt_out.h"
#include "zopwnt_api.h"

namespace wnt {
struct ColourGrid;
class SurfaceBuffer;
} // namespace wnt

/// Picks one colour of a palette, shown as a grid of eight columns under a sample strip; on request with three sliders
/// that follow the colour under the mouse, and with a list of named items of which the selected one gets the colour.
///
///     CWntColorSel colours;
///     colours.Create(nullptr, "Colours", WS_CHILD | WS_VISIBLE, CRect(10, 10, 170, 100), this, 5);
///     colours.SetColorPalette(table, 16);
///     // in the parent: ON_NOTIFY(1, 5, OnColour), then colours.GetSelectedColorID()
///
/// In a dialog template its class is "WntColorSel"; DDX_Control() joins it to an object.
///
/// A pick is told by a notify message to the parent with code 1. The palette and the array of the items' colours belong
/// to the host and must outlive their use; the names are copied. Every paint and every pick writes the selected colour
/// into the selected item's entry, -1 or a number past the palette included where such a place was clicked.
class ZOPWNT_API CWntColorSel : public wnt::ControlWindow {
public:
    CWntColorSel();
    ~CWntColorSel() override;

    CWntColorSel(const CWntColorSel&) = delete;
    CWntColorSel& operator=(const CWntColorSel&) = delete;

    /// Ignored for null and for a count below 1.
    void SetColorPalette(DWORD* colours, int count);
    /// For a created selector. Names are added to those in the list; without one of the three: palette only. The
    /// selected item, the first one at first, stays selected: follow with SetSelectedColorID() of its colour, which the
    /// next paint writes into it.
    void SetColorItems(char** names, int* colours, int count);
    /// Selects a colour and gives it to the selected item.
    void SetSelectedColorID(int index);
    /// The colour picked or set last.
    int GetSelectedColorID();
    /// The entry of the item colours at the selected colour (not at the selected item); 0 when there is none.
    DWORD GetSelectedColor();
    /// Does nothing.
    void SetSelectedColor(DWORD colour);

    /// The colour under the mouse, -1 in the sample strip; it may lie outside the palette. Also paints the hover
    /// sample where that is on.
    int ComputeSelectedColor();
    /// Paints the grid, without the sample strip's colour.
    void PaintPanel(int unused);
    /// Shows a colour in the sample strip and gives it to the selected item.
    void SetSelectedColorPanel(int colour);

    /// Sliders for red, green and blue, off in a new window; for a created selector, as are the two below. Without
    /// items they cut off the panel's right columns, because its cells are laid out for the whole width.
    void ShowSliders(int on);
    /// Cells with a 3-D edge, off in a new window.
    void Set3DCells(int on);
    /// The colour under the mouse at the left of the sample strip, off in a new window.
    void SetHoverSample(int on);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    bool build() override;
    void leave() override;
    void lay_out(int cx, int cy) override;
    void place_parts();
    wnt::ColourGrid grid();
    void paint_sample(int x, int y, int width, int height, int colour);
    void paint_cell(int x, int y, int width, int height, int colour, bool edged);

    int sliders_shown_ = 0;
    CSliderCtrl sliders_[3];
    CFont font_;
    int panel_width_ = 0;
    int panel_height_ = 0;
    CWntOut out_;
    std::unique_ptr<wnt::SurfaceBuffer> painting_; // while a painter runs
    CListBox list_;
    int cells_3d_ = 0;
    int no_items_ = 1;
    int hover_sample_ = 0;
    int selected_colour_ = 0;
    int* item_colours_ = nullptr;
    int item_count_ = 0;
    int selected_item_ = 0;
};

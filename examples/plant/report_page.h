#pragma once

#include "front_page.h"

/// What the channels did since the start: a bar from the least to the greatest value of each, the mean marked, as
/// shares of their ranges.
class CReportPage : public CFrontPage {
public:
    using CFrontPage::CFrontPage;
    void ShowReadings() override;
    void ShowSettings() override { Invalidate(FALSE); }

protected:
    bool CreateContents() override;
    void Arrange(int width, int height) override;
    afx_msg void OnPaint();
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; } // the surface and the axes cover it
    DECLARE_MESSAGE_MAP()

private:
    void PaintAll(CDC& dc);
    void PaintGrid();
    void PaintBar(std::size_t channel);
    int PlotX(int axis_x) const { return plot_.left + axis_x; }
    int PlotY(int axis_y) const { return out_.ymax - plot_.top - axis_y; }

    CWntOut out_; // the whole page; the axes lie on it
    CWntAxis names_axis_, share_axis_;
    CString names_[plant_channels + 1]; // the first stands at the origin, where only half of it would show
    CRect plot_;
    ULONGLONG painted_ = 0;
};

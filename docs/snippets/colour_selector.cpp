#include <zopwnt.h>

namespace {

//! [host]
class LegendWindow : public CWnd {
public:
    bool open(CWnd* parent) {
        if (!Create(nullptr, "Legend", WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 160), parent, 8) ||
            !selector_.Create(nullptr, "Colours", WS_CHILD | WS_VISIBLE, CRect(10, 10, 330, 150), this, 5))
            return false;
        selector_.SetColorPalette(palette_, 16);
        selector_.SetColorItems(names_, colours_, 2);
        selector_.SetSelectedColorID(colours_[0]); // or the first paint gives the first item colour 0
        return true;
    }

protected:
    afx_msg void OnColour(NMHDR*, LRESULT* result) {
        picked_ = selector_.GetSelectedColorID();
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntColorSel selector_;
    DWORD palette_[16] = {RGB(255, 255, 255), RGB(200, 0, 0), RGB(0, 160, 0), RGB(0, 0, 200)};
    char inflow_[7] = "Inflow";
    char outflow_[8] = "Outflow"; // in ascending order, as the list sorts them
    char* names_[2] = {inflow_, outflow_};
    int colours_[2] = {2, 1};
    int picked_ = -1;
};

BEGIN_MESSAGE_MAP(LegendWindow, CWnd)
ON_NOTIFY(1, 5, &LegendWindow::OnColour)
END_MESSAGE_MAP()
//! [host]

} // namespace

void colour_selector_snippets(CWnd* parent) {
    LegendWindow legend;
    legend.open(parent);
}

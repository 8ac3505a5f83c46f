#include <zopwnt.h>

namespace {

CWntAxis axis;
CString labels[3] = {"North", "East", "South"};

} // namespace

void axis_snippets(CWnd* parent) {
    //! [numeric]
    axis.Create(nullptr, "Load", WS_CHILD | WS_VISIBLE, CRect(40, 200, 640, 240), parent, 3);
    axis.SetFlags(2, 100, 0); // below the plot, numeric
    axis.SetRange(0.0f, 25.0f);
    int x = 0;
    if (axis.ValueToScreen(12.5f, &x) == 0) {
        // x is the pixel of 12.5 in the axis' client area: the column of the plot above it
    }
    for (int i = 0; i < axis.GetScaleLineCount(); ++i)
        x = axis.GetScaleLinePos(i); // the plot's grid line i
    //! [numeric]

    //! [texts]
    axis.SetAxisType(1);
    axis.SetTexts(3, labels); // the array must outlive the axis
    //! [texts]

    //! [time]
    TAxisdatetime start = {.day = 16, .month = 11, .year = 2026, .hour = 6, .minute = 0, .second = 0, .hundredths = 0};
    TAxisdatetime end = start;
    end.hour = 14;
    axis.SetViewTime(&start, &end); // makes it a time axis
    axis.SetCurrentDay(2026, 11, 16);
    const int at_nine = axis.SetCurrentTime(9 * 60 * 60 * 100); // hundredths since midnight: the pixel of 9:00
    axis.Invalidate();
    //! [time]
    static_cast<void>(at_nine);
}

void axis_commands() {
    //! [zoom]
    axis.SendMessage(WM_COMMAND, 100); // shows the zoom control, and hides it again
    axis.SendMessage(WM_COMMAND, 101); // opens the properties
    //! [zoom]
}

namespace {

//! [notify]
class ChartWindow : public CWnd {
protected:
    afx_msg void OnAxisDoubleClick(NMHDR*, LRESULT* result) {
        const int step = axis_.QueryDoubleclickedItem(); // of a text axis; may lie outside the labels
        if (step >= 0 && step < label_count_)
            selected_ = step;
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntAxis axis_; // made with the identifier 3
    int label_count_ = 0;
    int selected_ = -1;
};

BEGIN_MESSAGE_MAP(ChartWindow, CWnd)
ON_NOTIFY(103, 3, &ChartWindow::OnAxisDoubleClick)
END_MESSAGE_MAP()
//! [notify]

} // namespace

void axis_host_snippet() {
    ChartWindow window;
}

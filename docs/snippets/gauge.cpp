#include <zopwnt.h>

namespace {

constexpr UINT_PTR tick = 1;

int read_pressure() {
    static int value = 0;
    return value = (value + 7) % 101;
}

//! [host]
class PressureWindow : public CFrameWnd {
public:
    bool open() {
        if (!Create(nullptr, "Boiler", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 330, 350)) ||
            !gauge_.Create(nullptr, "Pressure", WS_CHILD | WS_VISIBLE, CRect(10, 10, 250, 250), this, 1))
            return false;
        gauge_.LoadFromFile("boiler_pressure.dat");
        SetTimer(tick, 500, nullptr);
        return true;
    }

protected:
    afx_msg void OnTimer(UINT_PTR) { gauge_.SetCurVal(read_pressure()); }
    DECLARE_MESSAGE_MAP()

private:
    CWntGauge gauge_;
};

BEGIN_MESSAGE_MAP(PressureWindow, CFrameWnd)
ON_WM_TIMER()
END_MESSAGE_MAP()
//! [host]

void configure(CWntGauge& gauge) {
    //! [lines]
    gauge.LoadLine("", 1); // begin
    gauge.LoadLine(":TYPE=THERMOMETER", 0);
    gauge.LoadLine(":TITLE=Tank 3", 0);
    gauge.LoadLine(":MAXVAL=250", 0);
    gauge.LoadLine("", 2); // end: orders the range, repaints the face
    //! [lines]

    //! [calls]
    gauge.SetRange(0, 250);
    gauge.SetTitles("Tank 3", "cm");
    gauge.ClearMarks();
    gauge.AddMark(30, "RED");   // up to 30
    gauge.AddMark(220, "BLUE"); // 30 to 220
    gauge.AddMark(219, "YELLOW");
    gauge.AddMark(219, "YELLOW"); // the rest
    gauge.SetType(1);             // shown with the next repaint
    gauge.Invalidate();
    //! [calls]
}

} // namespace

void gauge_snippets() {
    PressureWindow window;
    window.open();
    CWntGauge gauge;
    configure(gauge);
}

#pragma once

#include <afxwin.h>

#include <memory>

#include "control_window.h"
#include "diag/wnt_trace.h"
#include "out/wnt_out.h"
#include "zopwnt_api.h"

namespace wnt {
struct GaugeModel;
class GaugePainter;
} // namespace wnt

/// Shows one integer value within a range, in one of six views: percent bar, thermometer, analogue dial, digital
/// display, peak line, turning knob. Up to ten coloured marks divide the range into coloured zones.
///
///     CWntGauge gauge;
///     gauge.Create(nullptr, "Pressure", WS_CHILD | WS_VISIBLE, CRect(10, 10, 210, 210), this, 1);
///     gauge.LoadFromFile("boiler.dat");       // or LoadLine(":TYPE=ANALOG", 0), ... LoadLine("", 2)
///     gauge.SetCurVal(42);
///
/// In a dialog template its class is "WntGauge", its text the name of a script or else the title; DDX_Control() joins
/// it to an object. Any other window becomes a gauge by SubclassWindow().
///
/// Nothing is reported: unknown script keys and values, and values outside the range, are ignored. A new gauge shows
/// a sample configuration. Files dropped on it are loaded as scripts.
class ZOPWNT_API CWntGauge : public wnt::ControlWindow {
public:
    CWntGauge();
    ~CWntGauge() override;

    CWntGauge(const CWntGauge&) = delete;
    CWntGauge& operator=(const CWntGauge&) = delete;

    /// mode 1 begins a script, 0 applies one line, 2 ends the script and repaints. Always 0.
    unsigned char LoadLine(const char* line, int mode);
    /// Reads a whole script; quotes around the path are taken off. Always 1.
    unsigned char LoadFromFile(const char* path);

    /// Shows a value at once; one outside the range, or the current one, changes nothing.
    void SetCurVal(int value);
    /// The value that is shown; 0 on a null object.
    int GetCurVal() const;
    /// Taken as given: minimum may exceed maximum, the current value may lie outside.
    void SetRange(long minimum, long maximum);
    /// 0 percent bar, 1 thermometer, 2 analogue, 3 digital, 4 peak line, 5 knob; others draw nothing. Shown with the
    /// next repaint.
    void SetType(int type);
    /// At most 49 characters each; null empties.
    void SetTitles(const char* title, const char* unit_title);
    /// 1 gives room to a scroll bar that sets the value and a button that switches the view, with the next resize.
    void SetTestMode(int mode);
    /// Range 0 to 100, value 50. Marks and titles stay.
    void Clear();
    /// Shown with the next repaint, as is AddMark().
    void ClearMarks();
    /// Adds a mark and the colour (by name) of its zone; an eleventh is ignored. Add them in ascending order.
    void AddMark(int value, const char* colour);

    /// Draws at once what was changed since the last painting; nothing while the window is hidden.
    void Repaint();

    /// The first occurrence of a word in a text, or null.
    static const char* GAUGEstrstr(const char* text, const char* word);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnHScroll(UINT request, UINT position, CScrollBar* bar);
    afx_msg void OnDropFiles(HDROP files);
    DECLARE_MESSAGE_MAP()

private:
    int getmarkercolour(long value);
    bool build() override;
    void leave() override;
    void take_text(const CString& text) override;
    void lay_out(int cx, int cy) override;
    bool create_children();
    void run_built_in_script();
    void end_script();

    int width_ = 0;
    int height_ = 0; // without the strip of the test mode
    CWntOut out_;
    CWntTrace trace_;
    CScrollBar scroll_bar_;
    CButton switch_button_;
    std::unique_ptr<wnt::GaugeModel> model_;
    std::unique_ptr<wnt::GaugePainter> painter_;
};

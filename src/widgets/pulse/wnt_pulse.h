#pragma once

#include <afxwin.h>

#include <memory>

#include "control_window.h"
#include "controls/tool_tip_ex.h"
#include "controls/wnt_scroll_bar.h"
#include "widgets/axis/wnt_axis.h"
#include "zopwnt_api.h"

namespace wnt {
class PaintPass;
class PulseChart;
struct ChartLayout;
} // namespace wnt

/// Notifications of a strip chart, as WM_NOTIFY with a WntPulseNotify, for what its user did and for what happened.
enum WntPulseCode : UINT {
    WNT_PULSE_VIEW = 170,      ///< another stretch of time is shown, or live or not
    WNT_PULSE_CURSOR = 171,    ///< a cursor was set or moved to, or removed from (see GetCursor) `time`: `which` 0 or 1
    WNT_PULSE_CURVE = 172,     ///< a curve was shown or hidden by the legend: `which`
    WNT_PULSE_RECORDING = 173, ///< recording was started or ended, or failed: GetRecordingError()
    WNT_PULSE_READ = 174,      ///< reading a file ended: `which` 1 at its end, 2 at what is no sample, 0 cancelled
};

struct WntPulseNotify {
    NMHDR hdr;
    int which;
    __int64 time;
};

/// Commands of a chart's menu, which a host may send it as WM_COMMAND, too.
enum WntPulseCommand : UINT {
    WNT_PULSE_CMD_LIVE = 320,
    WNT_PULSE_CMD_PAUSE,
    WNT_PULSE_CMD_FIT,
    WNT_PULSE_CMD_CURSORS, ///< both cursors in the middle, or none
    WNT_PULSE_CMD_RECORD,  ///< asks for a file; ends recording where it runs
    WNT_PULSE_CMD_OPEN,
    WNT_PULSE_CMD_PRINT,
    WNT_PULSE_CMD_COPY_PICTURE,
    WNT_PULSE_CMD_COPY_VALUES,
    WNT_PULSE_CMD_CURVE,                           ///< and the nine after it: another colour for that curve
    WNT_PULSE_CMD_ZOOM = WNT_PULSE_CMD_CURVE + 10, ///< shows and hides the time axis' zoom control
    WNT_PULSE_CMD_LAST = WNT_PULSE_CMD_ZOOM,
};

/// A strip chart: up to ten curves of samples over time, live or looked back at, recorded to and read from pulse files.
///
///     CWntPulse chart;
///     chart.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 800, 400), this, 5);
///     const int pressure = chart.AddCurve("Pressure", RGB(200, 0, 0), 0, 10);
///     ...
///     chart.AddSample(pressure, 4.2); // from a timer, on the thread of the window
///
/// Times are hundredths of a second as a time axis counts them (CWntAxis); Now() is the present moment. Curves with the
/// same range share it: the left axis shows the range of the first curve that is shown, the right one the next other
/// range. Every sample counts in the picture, however many there are.
///
/// While the chart is live, now stands at the right edge: the newest sample's time, or, where samples bear the clock's
/// time, the clock's. Dragging the plot, the wheel with Shift, the
/// scroll bar, arrows, Page Up and Down and Home look back; End is live again, Space pauses and goes on. The wheel
/// zooms at the pointer, plus and minus in the middle, dragging with Shift to the stretch it marks, the slider of the
/// time axis' zoom control to what it covers when it is let go. A click sets the
/// first cursor, with Control the second one, whose difference to the first is told; Left and Right move the first one
/// where it is shown, with Shift the second, with Control by ten pixels; Escape removes them. The digits 1 to 9 and 0
/// hide and show a curve, as a click on a name of the legend does; the right button opens the menu. A file of samples
/// that is dropped is opened, any other one read as a script.
///
/// In a dialog template its class is "WntPulse" and its text the name of a script or else the title. Operations answer
/// 1, or 0 when they did nothing; unknown script keys and values are ignored.
class ZOPWNT_API CWntPulse : public wnt::ControlWindow {
public:
    CWntPulse();
    ~CWntPulse() override;

    /// mode 1 begins a script, 0 applies one line, 2 ends the script and repaints. Always 0.
    unsigned char LoadLine(const char* line, int mode);
    /// Reads a whole script; quotes around the path are taken off. 1, or 0 when there is no such file.
    unsigned char LoadFromFile(const char* path);
    void SetTitle(const char* title);
    /// Of the plot; text: of what lies over its curves.
    void SetColours(COLORREF background, COLORREF text, COLORREF grid);

    /// The curve's number, 0 to 9; -1 for an eleventh one, a range that is none, or without room for its samples. At
    /// most 24 characters.
    int AddCurve(const char* title, COLORREF colour, double low, double high);
    void RemoveCurves();
    int GetCurveCount() const;
    int SetRange(int curve, double low, double high);
    /// As set, whether or not what is shown was fitted.
    int GetRange(int curve, double* low, double* high) const;
    int SetColour(int curve, COLORREF colour);
    /// style: a surface's line style, 0 to 7. steps: a value holds until the next. marks: samples that lie far apart
    /// are marked.
    int SetLook(int curve, int style, int steps, int marks);
    int ShowCurve(int curve, int shown);
    int IsCurveShown(int curve) const;

    /// The present moment, in local time without daylight saving. It never runs back.
    static __int64 Now();
    /// 0 for a curve that is not there, a time before the curve's newest one, while a file is read, and without memory.
    /// What is no number makes a gap.
    int AddSample(int curve, double value, __int64 time);
    int AddSample(int curve, double value);
    /// How many of them were taken: up to the first that is refused.
    int AddSamples(int curve, const double* values, const __int64* times, int count);
    /// Samples that each curve keeps; the oldest gives way. 1,000,000 unless set; 0 for more than 100,000,000 of all.
    int SetCapacity(int samples);
    /// A pause longer than these hundredths is a gap in a curve, 10 s unless set; 0: none is. A file that is opened
    /// sets it to ten times the usual one, if that is more.
    int SetLongestPause(__int64 hundredths);
    int GetSampleCount(int curve) const;
    void RemoveSamples();

    int SetLive(int live);
    int IsLive() const;
    /// The stretch of time across the plot, a second to ten years. The right edge of a live chart stays, otherwise the
    /// middle.
    int SetSpan(__int64 hundredths);
    __int64 GetSpan() const;
    /// Looks back at a stretch.
    int ShowTime(__int64 start, __int64 end);
    int GetShownTime(__int64* start, __int64* end) const;
    /// Ranges follow what is shown, in round steps, instead of being fixed.
    void SetFit(int fit);
    int IsFit() const;
    /// Rows of the chart's client area, for many values of a curve; those outside of its range lie outside of the plot.
    int ValuesToScreen(int curve, const double* values, int count, int* rows) const;

    /// which: 0 or 1.
    int SetCursor(int which, __int64 time);
    int HideCursor(int which);
    int GetCursor(int which, __int64* time) const;
    /// The last value until then; 0 before the first and in a gap.
    int GetValueAt(int curve, __int64 time, double* value) const;

    /// Writes every value that arrives from now on for a curve that is there now, behind what an existing file of the
    /// same curves holds: with two decimals and in whole seconds of its time; gaps, and times before 1970, are left
    /// out. It ends by itself, and the host is told, when the disk refuses, which is seen a second later at most if
    /// samples arrive; and when the curves are removed. 0, and nothing changes, while it runs and for a file of
    /// something else.
    int StartRecording(const char* path);
    /// GetRecordingError() tells then whether all was written.
    int StopRecording();
    int IsRecording() const;
    /// A new file at every so many bytes (0: never; at least 4096), or every day, with the day or a number in its name.
    int SetRecordingParts(__int64 bytes, int daily);
    /// Of the last time; empty without. Belongs to the chart.
    const char* GetRecordingError() const;
    /// Replaces the samples, and the curves' titles, by those of a file, in pieces, while the window, without which
    /// nothing is read, stays alive: Escape cancels, keeping what was read. spread: samples of a second lie evenly in
    /// it.
    int OpenFile(const char* path, int spread);
    int IsReading() const;
    /// Keeps what was read.
    int StopReading();

    /// Without the scroll bar, whatever lies over the window.
    int CopyPicture();
    /// The values shown, a line a sample: time, curve, value, parted by tabs. 0 for more than 2,000,000 of them.
    int CopyValues();
    /// Of the window, on the default printer.
    int Print();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    struct State;
    class TimeAxis : public CWntAxis {
    public:
        /// The zoom control's slider covers all of the axis again.
        void cover() { SetZoomRects(1); }

    protected:
        void OnZoomed() override;
    };

    bool build() override;
    void leave() override;
    void take_text(const CString& text) override;
    void lay_out(int cx, int cy) override;

    void forget_window();
    void arrange();
    void rescale(bool settings_changed);
    void restyle();
    void samples_arrived();
    void tick();
    void refresh(bool anew);
    void update_ranges();
    void update_axes(CDC* onto);
    void update_scroll_bar();
    void update_surroundings();
    void update_tip();
    void view_changed();
    void tell(UINT code, int which = 0, __int64 time = 0);
    CRect focus_place() const;
    void paint(wnt::PaintPass& pass, bool surroundings, bool plot);
    void paint_legend(wnt::PaintPass& pass);
    void draw_plot();
    void copy_columns(CDC& dc, int from, int to);
    void paint_plot(CDC& dc);
    void follow(CDC& dc);
    void paint_overlay(wnt::PaintPass& pass);
    bool legend_click(CPoint point);
    void toggle_curve(int curve);
    void zoom_at(int x, double factor);
    void move_cursor(int which, int columns);
    void put_cursor(int which, __int64 time);
    void end_drag();
    void remove_cursors();
    void toggle_cursors();
    void choose_recording();
    void choose_file();
    void choose_colour(int curve);
    void show_menu(CPoint screen);
    void read_on();
    void end_reading(int whole);

    std::unique_ptr<State> state_;
    CWntAxis left_, right_;
    TimeAxis time_;
    CWntScrollBar scroll_;
    CToolTipCtrlEx tip_;
};

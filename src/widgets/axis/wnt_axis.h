#pragma once

#include <afxwin.h>

#include <memory>

#include "control_window.h"
#include "widgets/axis/axis_types.h"
#include "zopwnt_api.h"

namespace wnt {
struct AxisModel;
struct AxisRect;
struct AxisTick;
class MemoryBitmap;
struct ZoomControl;
enum class ZoomGrip;
} // namespace wnt

/// One axis of a chart: ticks and labels for a range of values, a list of texts or a stretch of calendar time, and the
/// conversions with which a host places its data on the same pixels.
///
///     CWntAxis axis;
///     axis.Create(nullptr, "Time", WS_CHILD | WS_VISIBLE, CRect(40, 200, 640, 240), this, 3);
///     axis.SetFlags(2, 100, 0);               // below the plot, numeric
///     axis.SetRange(0.0f, 25.0f);
///     int x;
///     axis.ValueToScreen(12.5f, &x);          // pixel of the axis' client area
///
/// Pixels are those of the axis' client area. Horizontal axes grow to the right, vertical ones upwards. Conversions
/// hold once the window has a size; where a division has no answer they give the origin. Null result pointers are
/// refused with 0. The maximum of a horizontal axis lies at the pixel `width`, one right of the window.
///
/// Ticks and labels beyond the maximum are left out, and so is all but one for a pixel. Labels are centred on their
/// ticks and clipped by the window: of the first one of a text or time axis, whose tick lies at the origin, half is cut
/// off. A host that wants it whole begins the range a step earlier, or puts twice as many blanks as letters before it.
///
/// Time values count hundredths of a second. Days count from 1 January 1980, which is day 1, in years of 365.25 days.
///
/// In a dialog template its class is "WntAxis"; DDX_Control() joins it to an object.
///
/// Command 100 shows and hides a zoom control, whose slider the mouse moves without any effect on the range, but for
/// what a derived class makes of it (OnZoomed); command 101 opens the axis' properties. A double click is told to the
/// parent by a notify message with code 103.
class ZOPWNT_API CWntAxis : public wnt::ControlWindow {
public:
    CWntAxis();
    ~CWntAxis() override;

    CWntAxis(const CWntAxis&) = delete;
    CWntAxis& operator=(const CWntAxis&) = delete;

    /// Position: 0 above the plot, 1 left of it, 2 below, 3 right. Type: 0 numeric, 1 texts, 2 time. gridCount as in
    /// SetTicks(). Shown with the next repaint.
    void SetFlags(int position, int gridCount, int type);
    /// The position alone.
    void SetAxisPosition(int position);
    /// The type alone.
    void SetAxisType(int type);
    /// Number of grid steps across the axis, until SetRange() or the next size of a numeric axis computes it anew.
    void SetTicks(int count);

    /// Range of a numeric axis; its grid is computed for the current position and size, and the zoom slider laid over
    /// the whole axis again. Write 0.0f: with two integers the call is ambiguous.
    void SetRange(float minimum, float maximum);
    /// Range of a time axis; the type stays. The records that GetViewTime then copies hold the year less 1900.
    void SetRange(__int64 start, __int64 end);
    /// The same for a range that moves many times a second: drawn at once, without the detour over a paint message and
    /// without OnPaint(). `onto` shows the axis' client area at its origin; null: the window's own device context.
    void FollowRange(__int64 start, __int64 end, CDC* onto = nullptr);
    /// Range of a time axis by full years; makes it one. Shown with the next repaint. An upright axis shows labels only
    /// for a range set by values.
    void SetViewTime(TAxisdatetime* start, TAxisdatetime* end);
    /// Copies the range's two records out; a null place is left out.
    void GetViewTime(TAxisdatetime* start, TAxisdatetime* end);
    /// One label a grid step, which becomes 1, from 0 to count; the type stays. Ignored for no labels. The array stays
    /// the host's and must outlive the axis or be replaced.
    void SetTexts(int count, CString* texts);

    /// Kept for derived classes; the axis does not show it.
    void SetTitle(CString* title);
    /// Kept for derived classes; the axis does not show it.
    void SetValueTitle(CString* title);

    /// Computes the numeric grid: steps of 2, 5 or 10 times a power of ten, at least 3 pixels wide.
    void MakeRange();
    /// The number of grid steps.
    int GetGridCount();
    /// The number of labelled lines.
    int GetScaleLineCount();
    /// Pixel of labelled line i; one just outside for a line beyond the range. Lines of a text axis are counted from
    /// the first labelled value of the last numeric grid.
    int GetScaleLinePos(int i);
    /// Pixels a grid step; 1 without a grid.
    float PixelPerGrid();
    /// The same in whole pixels, truncated.
    int GetTickWidth();

    /// 0, and nothing stored, outside the axis or for an empty range.
    int CalcFloatCoord(int pixel, float* value);
    /// Clamps to the axis: 1 for a value in the range, 0 for one outside; nothing stored for an empty range.
    int CalcPixelCoord(float value, int* pixel);
    /// 1 on the axis, 0 beyond its ends, where the conversion goes on.
    int ScreenToValue(int pixel, float* value);
    /// The same for a time axis.
    int ScreenToValue(int pixel, __int64* time);
    /// 0 in the range; -1 below and 1 above it, with the pixel just beyond that end. The maximum of an upright axis
    /// lies one pixel below its upper end.
    int ValueToScreen(float value, int* pixel);
    /// The same for a time axis.
    int ValueToScreen(__int64 time, int* pixel);

    /// The day that SetCurrentTime(int) counts from: full year, month and day from 1 on, unchecked. Always 1.
    int SetCurrentDay(short year, short month, short day);
    /// Copies that day out. Always 1.
    int GetCurrentDay(short* year, short* month, short* day);
    /// Pixel of a moment, by hundredths since the start of the current day.
    int SetCurrentTime(int offset);
    /// Pixel of a moment; at and beyond the ends the pixel just outside. Runs downwards on a vertical axis.
    int SetCurrentTime(__int64 time);

    /// Which part of the axis the zoom control's slider covers, as shares of its length from the minimum on, 0 to 1.
    /// 0, and nothing stored, while it is hidden or covers nothing.
    int GetZoom(double* from, double* to) const;

    /// Grid step that was double-clicked last on a text axis, counted from the left or from the top; a pixel without a
    /// grid. Not bounded by the number of labels.
    int QueryDoubleclickedItem();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
    DECLARE_MESSAGE_MAP()

    /// Lays the zoom control out; keep: its slider covers it again.
    void SetZoomRects(int keep);
    /// The user let the zoom control's slider go. Does nothing; it may destroy the axis.
    virtual void OnZoomed();

    /// flag 0 looks sunk, 1 raised; fill: the inside becomes grey.
    void DrawBorder(CPaintDC* dc, int x, int y, int width, int height, int flag, long fill);
    /// An engraved line; the second one lies right of the first (horizontal) or below it.
    void shadowline(CPaintDC* dc, int x1, int y1, int x2, int y2, int horizontal);
    /// A mark across the axis at so many percent of its length.
    void horizontal_time_scale(CPaintDC* dc, float percent);
    /// The same for an upright axis.
    void vertical_time_scale(CPaintDC* dc, float percent);
    /// The control's green box and its slider.
    void PaintZoomControl(CPaintDC* dc);

    CString title_;
    CString value_title_;
    const char* position_description_ = "Tite1"; ///< Set when painted.
    int flag_ = 1;                               ///< Kept for derived classes, like the pen and the fonts below.
    BOOL engraved_ticks_ = TRUE;                 ///< Ticks of values have a highlight beside them.
    CPen face_pen_;
    CFont title_font_; ///< 25 pixels high.
    CFont value_font_; ///< 15 pixels high.

private:
    friend class CWntAxisProperties;

    bool build() override;
    void take_text(const CString& text) override;
    void lay_out(int cx, int cy) override;
    void repaint();
    void tick_line(int start, int length, int pixel, int (&ends)[4]) const;
    void paint(CDC& dc, wnt::MemoryBitmap& picture);
    void draw_ticks(CDC& dc);
    void draw_tick(CDC& dc, const wnt::AxisTick& tick);
    void draw_time_tick(CDC& dc, const wnt::AxisTick& tick);
    void draw_label(CDC& dc, const wnt::AxisTick& tick, int distance);
    void engrave(CDC& dc, int x1, int y1, int x2, int y2, bool horizontal);
    void draw_border(CDC& dc, int x, int y, int width, int height, bool raised, bool fill);
    void fill_box(CDC& dc, int x, int y, int width, int height, COLORREF colour);
    void draw_zoom_control(CDC& dc);
    bool show_zoom_cursor(wnt::ZoomGrip grip);
    void drag_zoom(CPoint point);
    void invalidate_painted(const wnt::AxisRect& r);
    bool open_properties();
    void end_zoom_drag();

    int double_clicked_item_ = 0;
    CString* texts_ = nullptr;
    float shown_limits_[2] = {0.0f, 100.0f}; ///< What the properties show.
    CPen shadow_pen_;
    CPen highlight_pen_;
    CFont label_font_; ///< 10 pixels high.
    std::unique_ptr<wnt::AxisModel> model_;
    std::unique_ptr<wnt::ZoomControl> zoom_;
    std::unique_ptr<wnt::MemoryBitmap> picture_; ///< What was painted last, kept for its room.
};

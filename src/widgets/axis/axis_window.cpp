#include "widgets/axis/wnt_axis.h"

#include <utility>

#include "arithmetic.h"
#include "library_resources.h"
#include "widgets/axis/axis_model.h"
#include "widgets/axis/wnt_axis_properties.h"
#include "widgets/axis/zoom_control.h"
#include "widgets/painting/memory_bitmap.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr UINT toggle_zoom_command = 100;
constexpr UINT properties_command = 101;
constexpr UINT double_clicked = 103; // notification code

void make_font(CFont& font, int height) {
    font.DeleteObject();
    font.CreateFont(-height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                    DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
}

void make_pen(CPen& pen, int system_colour) {
    pen.DeleteObject();
    pen.CreatePen(PS_SOLID, 1, ::GetSysColor(system_colour));
}

} // namespace

BEGIN_MESSAGE_MAP(CWntAxis, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_MESSAGE(WM_PRINTCLIENT, &CWntAxis::OnPrintClient)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_CAPTURECHANGED()
ON_WM_SETCURSOR()
END_MESSAGE_MAP()

CWntAxis::CWntAxis()
    : ControlWindow("WntAxis", Draws::itself), model_(std::make_unique<wnt::AxisModel>()),
      zoom_(std::make_unique<wnt::ZoomControl>()), picture_(std::make_unique<wnt::MemoryBitmap>()) {}

CWntAxis::~CWntAxis() {
    DestroyWindow(); // while its handlers and what they use still exist
}

// A dialog's text is the title.
void CWntAxis::take_text(const CString& text) {
    title_ = text;
}

bool CWntAxis::build() {
    make_pen(shadow_pen_, COLOR_BTNSHADOW);
    make_pen(highlight_pen_, COLOR_BTNHIGHLIGHT);
    make_pen(face_pen_, COLOR_BTNFACE);
    make_font(title_font_, 25);
    make_font(value_font_, 15);
    make_font(label_font_, 10);
    return true;
}

void CWntAxis::repaint() {
    if (m_hWnd)
        Invalidate();
}

void CWntAxis::SetFlags(int position, int gridCount, int type) {
    model_->position = position;
    model_->grid.count = gridCount;
    model_->type = type;
}

void CWntAxis::SetAxisPosition(int position) {
    model_->position = position;
}

void CWntAxis::SetAxisType(int type) {
    model_->type = type;
}

void CWntAxis::SetTicks(int count) {
    model_->grid.count = count;
    repaint();
}

void CWntAxis::SetRange(float minimum, float maximum) {
    model_->set_range(minimum, maximum);
    SetZoomRects(1);
    repaint();
}

void CWntAxis::SetRange(__int64 start, __int64 end) {
    model_->set_time_range(start, end);
    repaint();
}

void CWntAxis::SetViewTime(TAxisdatetime* start, TAxisdatetime* end) {
    if (start && end)
        model_->set_view_time(*start, *end);
}

void CWntAxis::GetViewTime(TAxisdatetime* start, TAxisdatetime* end) {
    if (!start || !end)
        return;
    *start = model_->view_start;
    *end = model_->view_end;
}

void CWntAxis::SetTexts(int count, CString* texts) {
    if (count == 0 || !texts)
        return;
    texts_ = texts;
    model_->set_texts(count);
    repaint();
}

void CWntAxis::SetTitle(CString* title) {
    if (title)
        title_ = *title;
}

void CWntAxis::SetValueTitle(CString* title) {
    if (title)
        value_title_ = *title;
}

void CWntAxis::MakeRange() {
    model_->make_range();
}

int CWntAxis::GetGridCount() {
    return model_->grid.count;
}

int CWntAxis::GetScaleLineCount() {
    return model_->grid.scale_lines;
}

int CWntAxis::GetScaleLinePos(int i) {
    return model_->scale_line_pos(i);
}

float CWntAxis::PixelPerGrid() {
    return model_->pixel_per_grid();
}

int CWntAxis::GetTickWidth() {
    return model_->tick_width();
}

int CWntAxis::CalcFloatCoord(int pixel, float* value) {
    return model_->calc_float_coord(pixel, value);
}

int CWntAxis::CalcPixelCoord(float value, int* pixel) {
    return model_->calc_pixel_coord(value, pixel);
}

int CWntAxis::ScreenToValue(int pixel, float* value) {
    return model_->screen_to_value(pixel, value);
}

int CWntAxis::ScreenToValue(int pixel, __int64* time) {
    return model_->screen_to_value(pixel, time);
}

int CWntAxis::ValueToScreen(float value, int* pixel) {
    return std::as_const(*model_).value_to_screen(value, pixel);
}

int CWntAxis::ValueToScreen(__int64 time, int* pixel) {
    return model_->value_to_screen(time, pixel);
}

int CWntAxis::SetCurrentDay(short year, short month, short day) {
    model_->set_current_day(year, month, day);
    return 1;
}

int CWntAxis::GetCurrentDay(short* year, short* month, short* day) {
    if (!year || !month || !day)
        return 1;
    *year = static_cast<short>(model_->current_day.year);
    *month = static_cast<short>(model_->current_day.month);
    *day = static_cast<short>(model_->current_day.day);
    return 1;
}

int CWntAxis::SetCurrentTime(int offset) {
    return model_->set_current_offset(offset);
}

int CWntAxis::SetCurrentTime(__int64 time) {
    return model_->set_current_time(time);
}

int CWntAxis::QueryDoubleclickedItem() {
    return double_clicked_item_;
}

void CWntAxis::SetZoomRects(int keep) {
    zoom_->lay_out(*model_, keep != 0);
}

int CWntAxis::GetZoom(double* from, double* to) const {
    return from && to && zoom_->shown && zoom_->part(model_->horizontal(), *from, *to);
}

void CWntAxis::lay_out(int cx, int cy) {
    model_->resize(cx, cy);
    SetZoomRects(0);
    repaint();
}

BOOL CWntAxis::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT command = LOWORD(wParam);
    if (command == toggle_zoom_command) {
        end_zoom_drag();
        zoom_->shown = !zoom_->shown;
        if (!zoom_->has_slider(model_->horizontal()))
            SetZoomRects(1); // never laid out since the axis has a size, or its ends were dragged past each other
        repaint();
    } else if (command == properties_command && !open_properties()) {
        return TRUE;
    }
    return CWnd::OnCommand(wParam, lParam);
}

// False where the axis is gone by the time that the dialog closes.
bool CWntAxis::open_properties() {
    const HWND self = m_hWnd;
    end_zoom_drag();
    CWntAxisProperties properties(this);
    properties.SetAxis(this);
    properties.DoModal();
    if (CWnd::FromHandlePermanent(self) != this)
        return false;
    Invalidate();
    return true;
}

void CWntAxis::OnLButtonDblClk(UINT, CPoint point) {
    if (model_->type == wnt::axis_text) {
        const auto at = static_cast<float>(model_->horizontal() ? point.x : point.y);
        double_clicked_item_ = wnt::truncated_int(at / model_->pixel_per_grid());
    }
    wnt::notify_parent(*this, double_clicked);
}

void CWntAxis::OnLButtonDown(UINT, CPoint point) {
    if (!zoom_->shown)
        return;
    SetCapture();
    zoom_->lost = false;
    zoom_->last_x = point.x;
    zoom_->last_y = point.y;
}

void CWntAxis::OnLButtonUp(UINT, CPoint) {
    if (!zoom_->shown)
        return;
    const bool dragging = ::GetCapture() == m_hWnd;
    end_zoom_drag();
    if (dragging)
        OnZoomed();
}

void CWntAxis::OnZoomed() {}

void CWntAxis::end_zoom_drag() {
    zoom_->enlarging = false;
    if (m_hWnd && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    zoom_->lost = false;
}

void CWntAxis::OnCaptureChanged(CWnd* other) {
    zoom_->enlarging = false;
    zoom_->lost = true;
    CWnd::OnCaptureChanged(other);
}

void CWntAxis::OnRButtonDown(UINT, CPoint) {
    Default();
}

void CWntAxis::OnMouseMove(UINT flags, CPoint point) {
    if (!zoom_->shown || !zoom_->hit(point.x, point.y))
        return;
    if (flags & MK_LBUTTON) {
        if (!zoom_->lost)
            drag_zoom(point);
    } else {
        zoom_->lost = false;
        show_zoom_cursor(zoom_->hover(model_->horizontal(), point.x, point.y));
    }
}

// Without this the class' own pointer would come in between at every step of the mouse.
BOOL CWntAxis::OnSetCursor(CWnd* window, UINT hit, UINT message) {
    CPoint at;
    ::GetCursorPos(&at);
    ScreenToClient(&at);
    if (hit == HTCLIENT && zoom_->shown && zoom_->hit(at.x, at.y) &&
        show_zoom_cursor(zoom_->grip_at(model_->horizontal(), at.x, at.y)))
        return TRUE;
    return CWnd::OnSetCursor(window, hit, message);
}

bool CWntAxis::show_zoom_cursor(wnt::ZoomGrip grip) {
    if (grip == wnt::ZoomGrip::none)
        return false;
    const bool horizontal = model_->horizontal();
    const char* move = horizontal ? "IDC_AXIS_X_MOVE" : "IDC_AXIS_Y_MOVE";
    const char* enlarge = horizontal ? "IDC_AXIS_X_ENLARGE" : "IDC_AXIS_Y_ENLARGE";
    ::SetCursor(::LoadCursor(wnt::library_module(), grip == wnt::ZoomGrip::move ? move : enlarge));
    return true;
}

// The slider may reach beyond its box: it keeps its place where the axis changes its size.
void CWntAxis::drag_zoom(CPoint point) {
    for (const wnt::AxisRect& r : {zoom_->box, zoom_->slider})
        invalidate_painted(r);
    zoom_->drag(model_->horizontal(), point.x, point.y);
    invalidate_painted(zoom_->slider);
    UpdateWindow();
}

void CWntAxis::invalidate_painted(const wnt::AxisRect& r) {
    const CRect painted(CPoint(r.left, r.top), CSize(r.right, r.bottom));
    InvalidateRect(&painted, FALSE);
}

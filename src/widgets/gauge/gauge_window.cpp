#include "widgets/gauge/wnt_gauge.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "script/keywords.h"
#include "script/script_on_disk.h"
#include "widgets/gauge/gauge_model.h"
#include "widgets/gauge/gauge_painter.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr int surface_id = 100;
constexpr int trace_id = 101;
constexpr int scroll_bar_id = 103;
constexpr int switch_button_id = 104;
constexpr int strip_height = 10; // of the test mode
constexpr int longest_dropped_name = 256;

// The message carries 16 bits of a thumb's position; the bar knows all 32 while its thumb is held.
int thumb_position(CScrollBar& bar, UINT given) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    if (::GetScrollInfo(bar.m_hWnd, SB_CTL, &info) && (info.nTrackPos & 0xFFFF) == static_cast<int>(given & 0xFFFF))
        return info.nTrackPos;
    return static_cast<int>(given);
}

} // namespace

BEGIN_MESSAGE_MAP(CWntGauge, wnt::ControlWindow)
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_HSCROLL()
ON_WM_DROPFILES()
END_MESSAGE_MAP()

CWntGauge::CWntGauge()
    : ControlWindow("WntGauge"), model_(std::make_unique<wnt::GaugeModel>()),
      painter_(std::make_unique<wnt::GaugePainter>()) {}

CWntGauge::~CWntGauge() {
    DestroyWindow(); // while its handlers and what they use still exist
}

void CWntGauge::leave() {
    out_.DestroyWindow();
    scroll_bar_.DestroyWindow();
    switch_button_.DestroyWindow();
    trace_.DestroyWindow();
}

// A dialog's text names a script or is the title.
void CWntGauge::take_text(const CString& text) {
    if (text.IsEmpty())
        return;
    if (wnt::names_script(text))
        LoadFromFile(text);
    else
        SetTitles(text, "");
}

bool CWntGauge::build() {
    if (!create_children())
        return false;
    trace_.SetFilename("gaugeocx.log");
    trace_.Trace("GaugCtrl::OnCreate\n");
    DragAcceptFiles();
    *model_ = wnt::GaugeModel(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNHIGHLIGHT),
                              ::GetSysColor(COLOR_3DDKSHADOW));
    run_built_in_script();
    return true;
}

bool CWntGauge::create_children() {
    const CRect corner(0, 0, 5, 5);
    return out_.Create(nullptr, "GaugeOut1", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, surface_id) &&
           scroll_bar_.Create(WS_CHILD | SBS_HORZ, corner, this, scroll_bar_id) &&
           switch_button_.Create("*", WS_CHILD | BS_PUSHBUTTON, corner, this, switch_button_id) &&
           trace_.Create(nullptr, "GaugeWtrace1", WS_CHILD, CRect(0, 0, 0, 0), this, trace_id);
}

void CWntGauge::run_built_in_script() {
    LoadLine("", wnt::script_begin);
    for (const std::string_view line : wnt::gauge_built_in_script)
        LoadLine(line.data(), wnt::script_line);
    model_->history.clear(); // a sample is no measured value
    LoadLine("", wnt::script_end);
}

void CWntGauge::OnDestroy() {
    out_.ReleaseDrawing();
    painter_->release();
    CWnd::OnDestroy();
}

unsigned char CWntGauge::LoadLine(const char* line, int mode) {
    if (!this || !line)
        return 0;
    if (mode == wnt::script_line)
        model_->load_line(line);
    else if (mode == wnt::script_end)
        end_script();
    return 0;
}

void CWntGauge::end_script() {
    model_->end_script();
    if (model_->test_mode && scroll_bar_.m_hWnd) {
        scroll_bar_.SetScrollRange(model_->minimum, model_->maximum, FALSE);
        scroll_bar_.SetScrollPos(model_->current);
    }
    Repaint();
    model_->repaint_mask = 0;
}

unsigned char CWntGauge::LoadFromFile(const char* path) {
    if (!this || !path)
        return 1;
    LoadLine("", wnt::script_begin);
    wnt::feed_script_on_disk(path, [this](const char* line, int mode) { LoadLine(line, mode); });
    return 1;
}

void CWntGauge::SetCurVal(int value) {
    if (!this)
        return;
    trace_.Trace("SetCurVal %d, Range(%d,%d), Current(%d)", value, model_->minimum, model_->maximum, model_->current);
    if (model_->set_current_value(value))
        Repaint();
}

int CWntGauge::GetCurVal() const {
    return this ? model_->current : 0;
}

void CWntGauge::SetRange(long minimum, long maximum) {
    if (!this)
        return;
    model_->set_range(minimum, maximum);
    if (m_hWnd)
        Invalidate();
}

void CWntGauge::SetType(int type) {
    if (this)
        model_->set_type(type);
}

void CWntGauge::SetTitles(const char* title, const char* unit_title) {
    if (!this)
        return;
    model_->set_titles(title, unit_title);
    if (m_hWnd)
        Invalidate();
}

void CWntGauge::SetTestMode(int mode) {
    if (!this)
        return;
    model_->set_test_mode(mode);
    if (m_hWnd)
        Invalidate();
}

void CWntGauge::Clear() {
    if (!this)
        return;
    model_->clear();
    if (m_hWnd)
        Invalidate();
}

void CWntGauge::ClearMarks() {
    if (this)
        model_->clear_marks();
}

void CWntGauge::AddMark(int value, const char* colour) {
    if (this)
        model_->add_mark(value, wnt::colour_lookup(wnt::text_of(colour)));
}

int CWntGauge::getmarkercolour(long value) {
    return model_->getmarkercolour(value);
}

const char* CWntGauge::GAUGEstrstr(const char* text, const char* word) {
    return text && word ? std::strstr(text, word) : nullptr;
}

void CWntGauge::Repaint() {
    if (!this)
        return;
    if (out_.reset()) {
        painter_->paint(out_, width_, height_, *model_, model_->repaint_mask);
        out_.endpaint();
    }
}

BOOL CWntGauge::OnEraseBkgnd(CDC*) {
    return TRUE; // every pixel is painted over at once
}

void CWntGauge::OnPaint() {
    CPaintDC validate(this);
    model_->repaint_mask = wnt::repaint_all;
    Repaint();
    model_->repaint_mask = 0;
}

void CWntGauge::lay_out(int cx, int cy) {
    const bool test = model_->test_mode;
    const int strip = test ? strip_height : 0;
    width_ = cx;
    height_ = std::max(cy - strip, 0);
    wnt::place_child(out_, 0, 0, width_, height_);
    wnt::place_child(scroll_bar_, 0, test ? height_ : 0, test ? cx - strip : 0, strip);
    wnt::place_child(switch_button_, test ? cx - strip : 0, test ? height_ : 0, strip, strip);
    model_->repaint_mask = wnt::repaint_all;
    Invalidate(FALSE); // a smaller window is laid out anew, too
}

void CWntGauge::OnHScroll(UINT request, UINT position, CScrollBar* bar) {
    if (!bar || !bar->m_hWnd)
        return;
    const int target =
        model_->scroll_target(static_cast<int>(request), bar->GetScrollPos(), thumb_position(*bar, position));
    bar->SetScrollPos(target);
    SetCurVal(target);
}

BOOL CWntGauge::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) == switch_button_id) {
        trace_.Trace("View switched");
        model_->switch_view();
        Invalidate();
    }
    return CWnd::OnCommand(wParam, lParam);
}

void CWntGauge::OnDropFiles(HDROP files) {
    char name[longest_dropped_name + 1];
    if (::DragQueryFileA(files, 0, name, sizeof name)) {
        LoadFromFile(name);
        Invalidate();
    }
    CWnd::OnDropFiles(files);
    ::DragFinish(files);
}

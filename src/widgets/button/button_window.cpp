#include "widgets/button/wnt_button.h"

#include <cstring>

#include "script/script_line.h"
#include "widgets/button/button_painter.h"
#include "widgets/painting/surface_buffer.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr int surface_id = 101;

} // namespace

BEGIN_MESSAGE_MAP(CWntButton, wnt::ControlWindow)
ON_WM_DESTROY()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_PAINT()
ON_WM_RBUTTONDOWN()
ON_WM_RBUTTONUP()
ON_WM_SETFOCUS()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CWntButton::CWntButton()
    : ControlWindow("WntButton"), model_(std::make_unique<wnt::ButtonModel>()),
      box_(std::make_unique<wnt::ButtonBox>()), inside_(std::make_unique<wnt::ButtonInside>()) {}

CWntButton::~CWntButton() {
    DestroyWindow(); // while its handlers and what they use still exist
}

void CWntButton::leave() {
    out_.DestroyWindow();
}

// A dialog's text is the title.
void CWntButton::take_text(const CString& text) {
    if (!text.IsEmpty())
        load(":TITLE=" + text, wnt::script_line);
    load("", wnt::script_end);
}

bool CWntButton::build() {
    model_->clear();
    *box_ = {};
    *inside_ = {};
    created_ = true;
    if (!out_.Create(nullptr, "Button.Out", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), this, surface_id))
        return false;
    load("", wnt::script_begin);
    for (const char* line : wnt::button_built_in_script)
        load(line, wnt::script_line);
    load("", wnt::script_end);
    return true;
}

void CWntButton::OnDestroy() {
    created_ = false;
    out_.ReleaseDrawing();
    CWnd::OnDestroy();
}

unsigned char CWntButton::load(const char* line, int mode) {
    if (!this || !line)
        return 0;
    if (mode == wnt::script_line) {
        model_->load_line(line);
    } else if (mode == wnt::script_end) {
        model_->end_script();
        repaint();
    }
    return 0;
}

unsigned char CWntButton::getproperties(Tcbtn_properties* block) {
    if (!this || !block)
        return 0;
    std::memcpy(block, &model_->properties(), sizeof *block);
    return 1;
}

unsigned char CWntButton::setproperties(const Tcbtn_properties* block) {
    if (!this || !block)
        return 1;
    model_->assign(*block);
    if (created_ && model_->repaint_mask())
        repaint();
    return 1;
}

unsigned char CWntButton::mouse_in_button(CPoint point) {
    return this && box_->holds(point.x, point.y);
}

void CWntButton::repaint() {
    // A whole button is shown when it is finished; without its ground it is drawn over what is there.
    if (model_->repaint_mask() & wnt::button_background) {
        wnt::SurfaceBuffer picture(out_);
        if (model_->properties().visible)
            picture.show({0, box_->height - 1, box_->width - 1, 0});
        draw_all();
    } else {
        const bool drawable = wnt::begin_painting(out_);
        draw_all();
        if (drawable)
            out_.endpaint();
    }
    model_->painted();
}

void CWntButton::draw_all() {
    draw_background(); // measures, even where nothing can be drawn
    draw_foreground();
}

// For painters that their owner calls: a whole paint leaves the surface without a device context.
void CWntButton::open_surface() {
    if (!out_.dc)
        wnt::begin_painting(out_);
}

void CWntButton::draw_background() {
    if (!this || !model_->properties().visible)
        return;
    open_surface();
    wnt::paint_button_background(out_, model_->properties(), *box_, model_->repaint_mask());
    *inside_ = wnt::button_inside(model_->properties(), *box_);
}

void CWntButton::draw_foreground() {
    if (!this || !model_->properties().visible)
        return;
    open_surface();
    wnt::paint_button_title(out_, model_->properties(), *inside_);
}

void CWntButton::draw_button(unsigned char up) {
    if (!this || !created_ || !model_->properties().visible)
        return;
    model_->set_border_type(up ? wnt::border_raised : wnt::border_sunk);
    draw_background();
    wnt::move_button_picture(out_, model_->properties(), *inside_, !up);
}

void CWntButton::move_picture(unsigned char up) {
    const bool drawable = wnt::begin_painting(out_);
    draw_button(up);
    if (drawable)
        out_.endpaint();
}

void CWntButton::OnLButtonDown(UINT, CPoint point) {
    if (model_->can_press() && mouse_in_button(point))
        move_picture(0);
    Default();
}

void CWntButton::OnLButtonUp(UINT, CPoint point) {
    if (model_->can_release() && mouse_in_button(point))
        move_picture(1);
    Default();
}

void CWntButton::OnLButtonDblClk(UINT, CPoint) {
    Default();
}

void CWntButton::OnRButtonDown(UINT, CPoint) {
    Default();
}

void CWntButton::OnRButtonUp(UINT, CPoint) {
    Default();
}

void CWntButton::OnSetFocus(CWnd*) {
    Default();
}

BOOL CWntButton::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CWntButton::OnPaint() {
    CPaintDC validate(this);
    model_->request(wnt::button_background | wnt::button_foreground);
    repaint();
}

void CWntButton::lay_out(int cx, int cy) {
    box_->width = cx;
    box_->height = cy;
    if (!out_.m_hWnd)
        return;
    wnt::place_child(out_, 0, 0, cx, cy);
    Invalidate(FALSE); // a smaller window is laid out anew, too
}

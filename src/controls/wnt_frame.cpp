#include "controls/wnt_frame.h"

#include <algorithm>

#include "controls/control_font.h"
#include "controls/frame_model.h"
#include "controls/pixel_rects.h"
#include "screen_scale.h"
#include "script/colours.h"
#include "script/script_on_disk.h"
#include "widgets/painting/paint_pass.h"

namespace {

constexpr int title_height = 13; // of the characters, pixels at 96 dots an inch
constexpr int title_margin = 4;

COLORREF colour_of(int index, int system) {
    return index == wnt::system_colour ? ::GetSysColor(system) : wnt::colour_values[index];
}

// Upper and left sides last: the corners belong to the light.
void paint_border(wnt::PaintPass& pass, const CRect& r, int height, int sides, COLORREF top_left,
                  COLORREF bottom_right) {
    if (sides & wnt::side_right)
        pass.fill(CRect(r.right - height, r.top, r.right, r.bottom), bottom_right);
    if (sides & wnt::side_bottom)
        pass.fill(CRect(r.left, r.bottom - height, r.right, r.bottom), bottom_right);
    if (sides & wnt::side_left)
        pass.fill(CRect(r.left, r.top, r.left + height, r.bottom), top_left);
    if (sides & wnt::side_top)
        pass.fill(CRect(r.left, r.top, r.right, r.top + height), top_left);
}

UINT format_of(int align) {
    constexpr UINT across[] = {DT_LEFT, DT_RIGHT, DT_CENTER, DT_LEFT};
    return across[align % 4] | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX;
}

} // namespace

struct CWntFrame::Anchored {
    HWND window;
    wnt::Anchor anchor;
};

BEGIN_MESSAGE_MAP(CWntFrame, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SETTINGCHANGE()
END_MESSAGE_MAP()

CWntFrame::CWntFrame() : CWntFrame("WntFrame") {}

CWntFrame::CWntFrame(const char* class_name) : PaneWindow(class_name), model_(std::make_unique<wnt::FrameModel>()) {}

CWntFrame::~CWntFrame() {
    DestroyWindow(); // while its handlers and what they use still exist
}

bool CWntFrame::build() {
    rescale(false);
    return true;
}

// A dialog's text names a script or is the title.
void CWntFrame::take_text(const CString& text) {
    if (wnt::names_script(text))
        LoadFromFile(text);
    else
        SetTitle(text);
}

void CWntFrame::rescale(bool settings_changed) {
    scale_ = wnt::screen_scale(settings_changed);
    wnt::make_control_font(title_font_, title_height, scale_, FW_NORMAL);
}

int CWntFrame::GetScale() const {
    return this ? scale_ : 0;
}

int CWntFrame::title_rows() const {
    return ::MulDiv(title_height + title_margin, scale_, 100);
}

unsigned char CWntFrame::LoadLine(const char* line, int mode) {
    if (!this || !line)
        return 0;
    if (mode == wnt::script_line) {
        model_->load_line(line);
    } else if (mode == wnt::script_end && m_hWnd) {
        StyleChanged();
        UpdateWindow();
    }
    return 0;
}

unsigned char CWntFrame::LoadFromFile(const char* path) {
    if (!this || !path)
        return 0;
    LoadLine("", wnt::script_begin);
    return wnt::feed_script_on_disk(path, [this](const char* line, int mode) { LoadLine(line, mode); });
}

void CWntFrame::SetTitle(const char* title) {
    if (!this)
        return;
    model_->set_title(wnt::text_of(title));
    StyleChanged();
}

void CWntFrame::StyleChanged() {
    if (!m_hWnd)
        return;
    Invalidate(FALSE); // first: children may tell the host, which may end all this
    place_children();
}

CRect CWntFrame::GetContentRect() const {
    return this && m_hWnd ? ContentRect() : CRect(0, 0, 0, 0);
}

CRect CWntFrame::ContentRect() const {
    CRect client;
    GetClientRect(&client);
    return wnt::rect_of(wnt::frame_layout(*model_, client.Width(), client.Height(), scale_, title_rows()).content);
}

int CWntFrame::SetAnchor(CWnd* child, double left, double top, double right, double bottom) {
    CWnd* const holder = this ? GetHolder() : nullptr;
    if (!holder || !wnt::adopt_child(*holder, child))
        return 0;
    CRect place;
    child->GetWindowRect(&place);
    holder->ScreenToClient(&place);
    RemoveAnchor(child);
    anchored_.push_back({child->m_hWnd, wnt::Anchor::at(wnt::pixels_of(place), wnt::pixels_of(GetAnchorArea()),
                                                        {left, top, right, bottom})});
    return 1;
}

int CWntFrame::RemoveAnchor(CWnd* child) {
    return this && child && std::erase_if(anchored_, [=](const Anchored& a) { return a.window == child->m_hWnd; }) > 0;
}

void CWntFrame::place_children() {
    const HWND holder = GetHolder()->GetSafeHwnd();
    std::erase_if(anchored_, [=](const Anchored& a) { return ::GetParent(a.window) != holder; });
    const wnt::PixelRect content = wnt::pixels_of(GetAnchorArea());
    HDWP moves = ::BeginDeferWindowPos(static_cast<int>(anchored_.size()));
    for (const Anchored& each : anchored_) {
        const CRect place = wnt::rect_of(each.anchor.place(content));
        if (moves)
            moves = ::DeferWindowPos(moves, each.window, nullptr, place.left, place.top, place.Width(), place.Height(),
                                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (moves)
        ::EndDeferWindowPos(moves);
}

void CWntFrame::lay_out(int, int) {
    StyleChanged();
}

void CWntFrame::OnSettingChange(UINT flags, LPCTSTR section) {
    wnt::PaneWindow::OnSettingChange(flags, section);
    rescale(true);
    StyleChanged();
}

BOOL CWntFrame::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CWntFrame::OnPaint() {
    wnt::PaintPass pass(*this);
    PaintPanel(pass, true);
}

COLORREF CWntFrame::TitleColour() const {
    return colour_of(model_->text, COLOR_BTNTEXT);
}

void CWntFrame::PaintPanel(wnt::PaintPass& pass, bool titled) {
    const wnt::FrameModel& m = *model_;
    const CRect area = pass.area();
    const wnt::FrameLayout layout = wnt::frame_layout(m, area.Width(), area.Height(), scale_, title_rows());
    pass.fill(area, colour_of(m.background, COLOR_BTNFACE));
    const COLORREF sun = colour_of(m.sun, COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = colour_of(m.shadow, COLOR_3DDKSHADOW);
    const bool raised = m.border_type == wnt::border_raised;
    paint_border(pass, area, layout.border, m.border_sides, raised ? sun : shadow,
                 m.border_type == wnt::border_sunk ? sun : shadow);
    if (!titled)
        return;
    CRect title = wnt::rect_of(layout.title);
    title.DeflateRect(::MulDiv(title_margin, scale_, 100), 0);
    pass.text(title, m.title.c_str(), format_of(m.align), TitleColour(), &title_font_);
}

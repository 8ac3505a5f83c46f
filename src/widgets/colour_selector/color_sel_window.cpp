#include "widgets/colour_selector/wnt_color_sel.h"

#include "diag/wnt_trace.h"
#include "out/point_font.h"
#include "widgets/colour_selector/colour_grid.h"
#include "widgets/painting/surface_buffer.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr int surface_id = 100;
constexpr int list_id = 101;
constexpr int first_slider_id = 102;
constexpr int slider_width = 20;
constexpr UINT picked = 1; // notification code

} // namespace

BEGIN_MESSAGE_MAP(CWntColorSel, wnt::ControlWindow)
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CWntColorSel::CWntColorSel() : ControlWindow("WntColorSel") {}

CWntColorSel::~CWntColorSel() {
    DestroyWindow(); // while its handlers and what they use still exist
}

void CWntColorSel::leave() {
    out_.DestroyWindow();
    list_.DestroyWindow();
    for (CSliderCtrl& slider : sliders_)
        slider.DestroyWindow();
}

bool CWntColorSel::build() {
    sliders_shown_ = 0;
    cells_3d_ = 0;
    hover_sample_ = 0;
    no_items_ = 1;
    item_colours_ = nullptr;
    font_.DeleteObject();
    font_.Attach(wnt::make_point_font(80, "MS Sans Serif"));
    const CRect nowhere(0, 0, 0, 0);
    if (!out_.Create(nullptr, "ColorSel.Out", WS_CHILD | WS_VISIBLE, nowhere, this, surface_id) ||
        !list_.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_SORT | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, nowhere, this,
                      list_id))
        return false;
    list_.SetFont(&font_);
    for (int i = 0; i < 3; ++i) {
        if (!sliders_[i].Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | TBS_VERT | TBS_BOTH, nowhere, this,
                                static_cast<UINT>(first_slider_id + i)))
            return false;
        sliders_[i].SetRange(0, 255);
    }
    return true;
}

void CWntColorSel::OnDestroy() {
    out_.ReleaseDrawing();
    CWnd::OnDestroy();
}

void CWntColorSel::SetColorPalette(DWORD* colours, int count) {
    if (!this || !colours || count <= 0)
        return;
    out_.setcolorpalette(colours, count);
    if (m_hWnd)
        Invalidate(FALSE);
}

void CWntColorSel::SetColorItems(char** names, int* colours, int count) {
    if (!this)
        return;
    no_items_ = !names || !colours || count <= 0;
    item_colours_ = no_items_ ? nullptr : colours; // an array that is taken back is not written into any more
    item_count_ = no_items_ ? 0 : count;
    if (!no_items_) {
        for (int i = 0; i < count && list_.m_hWnd; ++i)
            if (names[i])
                list_.AddString(names[i]);
    }
    if (m_hWnd)
        place_parts();
}

void CWntColorSel::SetSelectedColorID(int index) {
    if (!this)
        return;
    selected_colour_ = index;
    SetSelectedColorPanel(index);
}

int CWntColorSel::GetSelectedColorID() {
    return this ? selected_colour_ : 0;
}

DWORD CWntColorSel::GetSelectedColor() {
    if (!this || !item_colours_ || selected_colour_ < 0 || selected_colour_ >= item_count_)
        return 0;
    return static_cast<DWORD>(item_colours_[selected_colour_]); // intended: indexed by the colour
}

void CWntColorSel::SetSelectedColor(DWORD) {}

void CWntColorSel::ShowSliders(int on) {
    if (!this)
        return;
    sliders_shown_ = on != 0;
    if (m_hWnd)
        place_parts();
}

void CWntColorSel::Set3DCells(int on) {
    if (!this)
        return;
    cells_3d_ = on != 0;
    if (m_hWnd)
        Invalidate(FALSE);
}

void CWntColorSel::SetHoverSample(int on) {
    if (!this)
        return;
    hover_sample_ = on != 0;
    if (m_hWnd)
        Invalidate(FALSE);
}

wnt::ColourGrid CWntColorSel::grid() {
    return {out_.palettecount > 0 ? out_.palettecount : 0, panel_width_, panel_height_, cells_3d_ != 0};
}

void CWntColorSel::paint_cell(int x, int y, int width, int height, int colour, bool edged) {
    if (width < 1 || height < 1)
        return;
    out_.linecolour(0, 0);
    out_.fillcolour(colour, 0);
    out_.boxr1(x, y, width, height);
    if (edged)
        out_.drawshadow(x, y, x + width, y + height, 1);
}

void CWntColorSel::paint_sample(int x, int y, int width, int height, int colour) {
    const wnt::SurfacePainting painting(out_, painting_, {x, y + height, x + width, y});
    if (painting)
        paint_cell(x, y, width, height, colour, true);
}

void CWntColorSel::PaintPanel(int) {
    if (!this)
        return;
    const wnt::ColourGrid g = grid();
    const int m = g.margin();
    const wnt::SurfacePainting painting(out_, painting_, {0, g.height - 1, g.width - 1, 0});
    if (!painting)
        return;
    out_.linecolour(0, 0);
    out_.fillcolour(::GetSysColor(COLOR_BTNFACE), 0);
    out_.boxr1(0, 0, g.width - 1, g.height - 1);
    for (int i = 0; i < g.rows() * wnt::ColourGrid::columns && g.cell_height() > 0; ++i)
        paint_cell(g.cell_left(i) + m, g.cell_bottom(i) + m, g.cell_width() - 2 * m, g.cell_height() - 2 * m, i, m > 0);
    out_.drawshadow(0, 0, g.width - 1, g.height - 1, 0);
}

int CWntColorSel::ComputeSelectedColor() {
    if (!this)
        return 0;
    int at[2] = {};
    out_.getmousepos(at);
    const wnt::ColourGrid g = grid();
    const int colour = g.hit(at[0], at[1]);
    const int m = g.margin();
    if (hover_sample_ && colour != -1)
        paint_sample(m, g.height - g.cell_height() + m, g.cell_width() - 2 * m, g.cell_height() - 1 - 2 * m, colour);
    return colour;
}

void CWntColorSel::SetSelectedColorPanel(int colour) {
    if (!this)
        return;
    const wnt::ColourGrid g = grid();
    const int m = g.margin();
    const int left = m + (hover_sample_ ? g.cell_width() : 0);
    paint_sample(left, g.height - g.cell_height() + m, g.width - 1 - m - left, g.cell_height() - 1 - 2 * m, colour);
    if (item_colours_ && selected_item_ >= 0 && selected_item_ < item_count_)
        item_colours_[selected_item_] = colour;
}

// The children cover it but for a column that is left over where the halves of panel and list are rounded down.
BOOL CWntColorSel::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(client.right - 1, 0, 1, client.bottom, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

void CWntColorSel::OnPaint() {
    CPaintDC validate(this);
    WntTrace("WntColorSel::OnPaint()");
    const wnt::SurfacePainting all(out_, painting_);
    PaintPanel(0);
    if (hover_sample_) // asking for the mouse takes as long as half a paint
        ComputeSelectedColor();
    SetSelectedColorPanel(selected_colour_);
}

void CWntColorSel::place_parts() {
    CRect client;
    GetClientRect(&client);
    lay_out(client.Width(), client.Height());
}

void CWntColorSel::lay_out(int w, int h) {
    for (int i = 0; i < 3; ++i)
        wnt::place_child(sliders_[i], i * slider_width, 0, slider_width, h, sliders_shown_);
    const int x0 = sliders_shown_ ? 3 * slider_width : 0;
    const int half = (w - x0) / 2;
    wnt::place_child(out_, x0, 0, no_items_ ? w - x0 : half, h);
    wnt::place_child(list_, x0 + half, 0, half, h, !no_items_);
    panel_width_ = no_items_ ? w : w / 2; // intended: of the whole width
    panel_height_ = h;
    Invalidate(FALSE);
}

// The parent may destroy the selector on the notification: nothing follows it.
void CWntColorSel::OnLButtonUp(UINT, CPoint) {
    selected_colour_ = ComputeSelectedColor();
    SetSelectedColorPanel(selected_colour_);
    wnt::notify_parent(*this, picked);
}

void CWntColorSel::OnMouseMove(UINT, CPoint) {
    const int index = ComputeSelectedColor();
    if (!sliders_shown_ || !grid().holds(index))
        return;
    const COLORREF colour = out_.palette[index];
    const int parts[3] = {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
    for (int i = 0; i < 3; ++i)
        sliders_[i].SetPos(parts[i]);
}

BOOL CWntColorSel::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT code = HIWORD(wParam);
    if (LOWORD(wParam) != list_id || (code != LBN_SELCHANGE && code != LBN_DBLCLK))
        return CWnd::OnCommand(wParam, lParam);
    const int selection = list_.m_hWnd ? list_.GetCurSel() : -1;
    if (selection >= 0 && selection < item_count_) {
        selected_item_ = selection; // intended: the list is sorted, its index is taken for the item's
        if (item_colours_)
            SetSelectedColorPanel(item_colours_[selection]);
    }
    return TRUE;
}

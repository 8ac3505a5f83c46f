// The view's commands, and what of the sheet it shows.
#include "sketch_view.h"

#include "main_frame.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

IMPLEMENT_DYNCREATE(CSketchView, CScrollView)

BEGIN_MESSAGE_MAP(CSketchView, CScrollView)
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_CAPTURECHANGED()
ON_WM_SETCURSOR()
ON_COMMAND_RANGE(ID_TOOL_SELECT, ID_TOOL_TEXT, &CSketchView::OnTool)
ON_UPDATE_COMMAND_UI_RANGE(ID_TOOL_SELECT, ID_TOOL_TEXT, &CSketchView::OnUpdateTool)
ON_COMMAND_RANGE(ID_PATTERN_SOLID, ID_PATTERN_DASH_DOT_DOT, &CSketchView::OnPattern)
ON_UPDATE_COMMAND_UI_RANGE(ID_PATTERN_SOLID, ID_PATTERN_DASH_DOT_DOT, &CSketchView::OnUpdatePattern)
ON_COMMAND_RANGE(ID_WIDTH_HAIRLINE, ID_WIDTH_HEAVY, &CSketchView::OnWidth)
ON_UPDATE_COMMAND_UI_RANGE(ID_WIDTH_HAIRLINE, ID_WIDTH_HEAVY, &CSketchView::OnUpdateWidth)
ON_COMMAND(ID_FILLED, &CSketchView::OnFilled)
ON_UPDATE_COMMAND_UI(ID_FILLED, &CSketchView::OnUpdateFilled)
ON_NOTIFY(1, IDC_LINE_COLOUR, &CSketchView::OnLineColour)
ON_NOTIFY(1, IDC_FILL_COLOUR, &CSketchView::OnFillColour)
ON_COMMAND_RANGE(ID_ZOOM_IN, ID_ZOOM_FIT, &CSketchView::OnZoom)
ON_UPDATE_COMMAND_UI_RANGE(ID_ZOOM_IN, ID_ZOOM_FIT, &CSketchView::OnUpdateZoom)
ON_COMMAND(ID_EDIT_CLEAR, &CSketchView::OnEditClear)
ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CSketchView::OnUpdateSelected)
ON_COMMAND(ID_EDIT_COPY, &CSketchView::OnEditCopy)
ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CSketchView::OnUpdateCopy)
ON_COMMAND(IDCANCEL, &CSketchView::OnCancel)
ON_COMMAND(ID_FILE_PRINT, &CSketchView::OnFilePrint)
ON_COMMAND(ID_FILE_PRINT_DIRECT, &CSketchView::OnFilePrint)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_POSITION, &CSketchView::OnUpdatePosition)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_ZOOM, &CSketchView::OnUpdateZoomText)
END_MESSAGE_MAP()

namespace {

constexpr int zoom_steps[] = {25, 50, 75, 100, 150, 200, 300, 400};
constexpr int widths[] = {1, 3, 5, 10, 20}; // tenths of a millimetre, in the order of the commands

} // namespace

void CSketchView::OnInitialUpdate() {
    m_bCenter = TRUE;
    selected_ = nullptr;
    CScrollView::OnInitialUpdate();
    FitZoom();
    static_cast<CMainFrame*>(GetParentFrame())->ShowColours(style_.line_colour, fill_colour_);
}

void CSketchView::OnUpdate(CView*, LPARAM, CObject*) {
    const auto& figures = Doc().Contents().Figures();
    if (std::find(figures.begin(), figures.end(), selected_) == figures.end())
        selected_ = nullptr; // undone, or another drawing
    SetZoom(zoom_);
}

// -- From sheet to window and back ------------------------------------------------------------------------------------

double CSketchView::Scale() const {
    const CWindowDC screen(nullptr);
    return screen.GetDeviceCaps(LOGPIXELSX) * zoom_ / (100 * units_per_inch);
}

CSize CSketchView::SheetPixels() const {
    const CSize sheet = Doc().Contents().Sheet();
    return CSize(std::lround(sheet.cx * Scale()), std::lround(sheet.cy * Scale()));
}

void CSketchView::SetZoom(int percent) {
    zoom_ = percent;
    SetScrollSizes(MM_TEXT, SheetPixels() + CSize(2 * desk, 2 * desk));
    Invalidate();
}

void CSketchView::FitZoom() {
    CRect client;
    GetWindowRect(&client); // as it is without scroll bars
    zoom_ = 100;
    const CSize whole = SheetPixels();
    const int fitting =
        static_cast<int>(100 * std::min(static_cast<double>(client.Width() - 2 * desk - 4) / whole.cx,
                                        static_cast<double>(client.Height() - 2 * desk - 4) / whole.cy));
    SetZoom(std::clamp(fitting, zoom_steps[0], *std::rbegin(zoom_steps)));
}

CPoint CSketchView::ToSheet(CPoint client) {
    CClientDC dc(this);
    OnPrepareDC(&dc);
    dc.DPtoLP(&client);
    return CPoint(std::lround((client.x - desk) / Scale()),
                  std::lround((SheetPixels().cy + desk - 1 - client.y) / Scale()));
}

// The box of a figure on the window, with room for its line and its handles.
CRect CSketchView::OnScreen(const CRect& box) {
    constexpr int around = 10;
    const double scale = Scale();
    const int bottom = SheetPixels().cy + desk - 1;
    CRect shown(desk + std::lround(box.left * scale), bottom - std::lround(box.bottom * scale),
                desk + std::lround(box.right * scale), bottom - std::lround(box.top * scale));
    const int room = around + static_cast<int>(FigureStyle::widest_line * scale / 2);
    shown.InflateRect(room, room);
    CClientDC dc(this);
    OnPrepareDC(&dc);
    dc.LPtoDP(shown);
    return shown;
}

// How near to a figure the pointer has to be: some pixels, in units of the sheet.
int CSketchView::Reach() const {
    return static_cast<int>(std::ceil(4 / Scale()));
}

void CSketchView::OnSize(UINT type, int cx, int cy) {
    CScrollView::OnSize(type, cx, cy);
    Invalidate(); // a small sheet stands in the middle
}

// -- Commands ---------------------------------------------------------------------------------------------------------

void CSketchView::OnTool(UINT id) {
    tool_ = id;
    if (tool_ != ID_TOOL_SELECT)
        Select(nullptr);
}

void CSketchView::OnUpdateTool(CCmdUI* ui) {
    ui->SetRadio(ui->m_nID == tool_);
}

void CSketchView::Select(FigurePtr figure) {
    if (figure == selected_)
        return;
    selected_ = std::move(figure);
    Invalidate();
    const FigureStyle style = CurrentStyle();
    static_cast<CMainFrame*>(GetParentFrame())->ShowColours(style.line_colour, style.fill_colour);
}

// For the selected figure, and for those to come.
void CSketchView::ChangeStyle(const FigureStyle& style) {
    style_ = style;
    if (!selected_ || selected_->Style() == style)
        return;
    FigurePtr changed = selected_->WithStyle(style);
    const FigurePtr before = std::exchange(selected_, changed);
    Doc().Replace(before, changed);
}

void CSketchView::OnPattern(UINT id) {
    FigureStyle style = CurrentStyle();
    style.pattern = static_cast<int>(id - ID_PATTERN_SOLID);
    ChangeStyle(style);
}

void CSketchView::OnUpdatePattern(CCmdUI* ui) {
    ui->SetRadio(static_cast<int>(ui->m_nID - ID_PATTERN_SOLID) == CurrentStyle().pattern);
}

void CSketchView::OnWidth(UINT id) {
    FigureStyle style = CurrentStyle();
    style.width = widths[id - ID_WIDTH_HAIRLINE];
    ChangeStyle(style);
}

void CSketchView::OnUpdateWidth(CCmdUI* ui) {
    ui->SetRadio(widths[ui->m_nID - ID_WIDTH_HAIRLINE] == CurrentStyle().width);
}

void CSketchView::OnFilled() {
    FigureStyle style = CurrentStyle();
    style.fill_colour = style.fill_colour == FigureStyle::no_fill ? fill_colour_ : FigureStyle::no_fill;
    ChangeStyle(style);
}

void CSketchView::OnUpdateFilled(CCmdUI* ui) {
    ui->SetCheck(CurrentStyle().fill_colour != FigureStyle::no_fill);
}

namespace {

// The colour that was picked; -1 where it is none of the palette's.
int picked(const NMHDR& header) {
    auto* selector = dynamic_cast<CWntColorSel*>(CWnd::FromHandlePermanent(header.hwndFrom));
    const int colour = selector ? selector->GetSelectedColorID() : -1;
    return colour < FigureStyle::colours ? colour : -1;
}

} // namespace

void CSketchView::OnLineColour(NMHDR* header, LRESULT*) {
    FigureStyle style = CurrentStyle();
    style.line_colour = picked(*header);
    if (style.line_colour >= 0)
        ChangeStyle(style);
}

void CSketchView::OnFillColour(NMHDR* header, LRESULT*) {
    const int colour = picked(*header);
    if (colour < 0)
        return;
    fill_colour_ = colour;
    FigureStyle style = CurrentStyle();
    style.fill_colour = colour;
    ChangeStyle(style);
}

void CSketchView::OnZoom(UINT id) {
    const auto above = std::upper_bound(std::begin(zoom_steps), std::end(zoom_steps), zoom_);
    const auto at = std::lower_bound(std::begin(zoom_steps), std::end(zoom_steps), zoom_);
    if (id == ID_ZOOM_IN && above != std::end(zoom_steps))
        SetZoom(*above);
    else if (id == ID_ZOOM_OUT && at != std::begin(zoom_steps))
        SetZoom(*std::prev(at));
    else if (id == ID_ZOOM_ACTUAL)
        SetZoom(100);
    else if (id == ID_ZOOM_FIT)
        FitZoom();
}

void CSketchView::OnUpdateZoom(CCmdUI* ui) {
    ui->Enable((ui->m_nID != ID_ZOOM_IN || zoom_ < *std::rbegin(zoom_steps)) &&
               (ui->m_nID != ID_ZOOM_OUT || zoom_ > zoom_steps[0]) && (ui->m_nID != ID_ZOOM_ACTUAL || zoom_ != 100));
}

void CSketchView::OnEditClear() {
    Doc().Remove(selected_);
}

void CSketchView::OnUpdateSelected(CCmdUI* ui) {
    ui->Enable(selected_ != nullptr);
}

void CSketchView::OnUpdateCopy(CCmdUI* ui) {
    ui->Enable(!Doc().Contents().Figures().empty());
}

void CSketchView::OnUpdatePosition(CCmdUI* ui) {
    CString text;
    text.Format("x %.1f mm  y %.1f mm", pointer_.x / 10.0, pointer_.y / 10.0);
    ui->Enable();
    ui->SetText(text);
}

void CSketchView::OnUpdateZoomText(CCmdUI* ui) {
    CString text;
    text.Format("%d %%", zoom_);
    ui->Enable();
    ui->SetText(text);
}

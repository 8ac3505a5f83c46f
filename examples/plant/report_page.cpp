#include "report_page.h"

#include "resource.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr ULONGLONG repaint_period = 1000; // milliseconds
constexpr COLORREF paper = RGB(252, 252, 250), grid = RGB(222, 226, 230), ink = RGB(50, 56, 64);
constexpr int above_centred = 2; // how a text stands at its point

} // namespace

BEGIN_MESSAGE_MAP(CReportPage, CFrontPage)
ON_WM_PAINT()
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

bool CReportPage::CreateContents() {
    const CRect nowhere(0, 0, 0, 0);
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
    if (!names_axis_.Create(nullptr, "", style, nowhere, this, 1) ||
        !share_axis_.Create(nullptr, "", style, nowhere, this, 2) || !out_.Create(nullptr, "", style, nowhere, this, 3))
        return false;
    out_.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    for (std::size_t i = 0; i < plant_channels; ++i)
        names_[i + 1] = plant_ranges[i].name;
    names_axis_.SetFlags(2, 100, 1); // below the plot, texts
    share_axis_.SetFlags(1, 100, 0); // left of it, numbers
    return true;
}

void CReportPage::Arrange(int width, int height) {
    const int margin = Scaled(16), title = Scaled(56), below = 30, left = 46;
    plot_ = CRect(margin + left, title, std::max(width - margin, margin + left + 1),
                  std::max(height - margin - below, title + 1));
    out_.MoveWindow(0, 0, width, height);
    names_axis_.MoveWindow(plot_.left, plot_.bottom, plot_.Width(), below);
    share_axis_.MoveWindow(plot_.left - left, plot_.top, left, plot_.Height());
    names_axis_.SetTexts(static_cast<int>(std::size(names_)), names_);
    share_axis_.SetRange(0.0f, 100.0f);
    Invalidate(FALSE);
}

void CReportPage::ShowReadings() {
    const ULONGLONG now = ::GetTickCount64();
    if (now - painted_ < repaint_period || !IsWindowVisible())
        return;
    painted_ = now;
    Invalidate(FALSE);
}

// -- Painting ---------------------------------------------------------------------------------------------------------

// In memory first, so that nothing flickers; the surface draws on any device context.
void CReportPage::OnPaint() {
    CPaintDC validate(this);
    CClientDC shown(&out_);
    CRect area;
    out_.GetClientRect(area);
    CDC memory;
    CBitmap picture;
    if (!memory.CreateCompatibleDC(&shown) ||
        !picture.CreateCompatibleBitmap(&shown, std::max(area.Width(), 1), std::max(area.Height(), 1)))
        return;
    CBitmap* const before = memory.SelectObject(&picture);
    PaintAll(memory);
    memory.SelectClipRgn(nullptr);
    shown.BitBlt(0, 0, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(before);
}

void CReportPage::PaintAll(CDC& dc) {
    if (!out_.reset(dc.m_hDC))
        return;
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    out_.linecolour(face, 0);
    out_.fillcolour(face, 0);
    out_.boxa1(0, 0, out_.xmax, out_.ymax);
    out_.linecolour(ink, 0);
    out_.titlechars(
        plot_.left, out_.ymax - Scaled(34), plot_.Width(), Scaled(24),
        const_cast<char*>(
            "Least, mean and greatest values since the start, per cent of their ranges; as a number the mean"));
    PaintGrid();
    for (std::size_t i = 0; i < plant_channels; ++i)
        if (front_end_.station.Statistics().Count(i) > 0)
            PaintBar(i);
    out_.endpaint();
}

void CReportPage::PaintGrid() {
    out_.linecolour(grid, 0);
    out_.fillcolour(paper, 0);
    out_.boxa1(PlotX(0), PlotY(plot_.Height() - 1), PlotX(plot_.Width() - 1), PlotY(0));
    for (int share = 10; share < 100; share += 10) {
        int y = 0;
        if (share_axis_.ValueToScreen(static_cast<float>(share), &y) == 0)
            out_.hline(PlotX(1), PlotY(y), plot_.Width() - 3);
    }
}

void CReportPage::PaintBar(std::size_t channel) {
    const PlantStatistics::Values shares = front_end_.station.Statistics().Shares(channel);
    const int width = std::max(names_axis_.GetTickWidth() / 3, 2);
    int x = 0, least = 0, mean = 0, greatest = 0;
    names_axis_.ValueToScreen(static_cast<float>(channel + 1), &x);
    for (const auto& [share, pixel] :
         {std::pair(shares.least, &least), {shares.mean, &mean}, {shares.greatest, &greatest}})
        share_axis_.CalcPixelCoord(static_cast<float>(100 * share), pixel);
    const int left = PlotX(x - width / 2), right = left + width;
    out_.linecolour(ink, 0);
    out_.fillcolour(front_end_.settings.Colour(channel), 0);
    out_.boxa1(left, PlotY(least), right, PlotY(greatest));
    out_.boxa1(left - Scaled(6), PlotY(mean) - 1, right + Scaled(6), PlotY(mean) + 1);
    out_.settext(0, 0, 0, 15, 0, 0);
    CString text;
    const ChannelRange& range = plant_ranges[channel];
    text.Format("%.0f %s", range.least + shares.mean * (range.greatest - range.least), range.unit);
    out_.linecolour(ink, 0);
    out_.chars(left + width / 2, PlotY(greatest) + Scaled(4), text.GetBuffer(), above_centred);
    text.ReleaseBuffer();
}

void CReportPage::OnDestroy() {
    out_.ReleaseDrawing();
    CFrontPage::OnDestroy();
}

#include "page.h"

#include <algorithm>

#include "log.h"

BEGIN_MESSAGE_MAP(CGalleryPage, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

bool CGalleryPage::Open(CWnd* parent, const CRect& place) {
    return Create(nullptr, Title(), Style(), place, parent, 1);
}

BOOL CGalleryPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    Log("command %d from %d", HIWORD(wParam), LOWORD(wParam));
    return CWnd::OnCommand(wParam, lParam);
}

BOOL CGalleryPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    Log("notify %d from %d", static_cast<int>(header.code), static_cast<int>(header.idFrom));
    return CWnd::OnNotify(wParam, lParam, result);
}

int CGalleryPage::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1)
        return -1;
    return CreateContents() ? 0 : -1;
}

void CGalleryPage::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    Arrange(cx, cy);
}

void CGalleryPage::Place(CWnd& window, int x, int y, int width, int height) {
    window.SetWindowPos(nullptr, x, y, std::max(width, 0), std::max(height, 0), SWP_NOZORDER | SWP_NOACTIVATE);
}

void CGalleryPage::Place(CWnd& window, const CRect& place) {
    Place(window, place.left, place.top, place.Width(), place.Height());
}

BOOL CGalleryPage::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(&client);
    ::FillRect(dc->m_hDC, &client, ::GetSysColorBrush(COLOR_BTNFACE));
    return TRUE;
}

BEGIN_MESSAGE_MAP(CSurfacePage, CGalleryPage)
ON_WM_PAINT()
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

bool CSurfacePage::CreateContents() {
    return out_.Create(nullptr, "Surface", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, 100);
}

void CSurfacePage::Arrange(int width, int height) {
    Place(out_, 0, TopHeight(), width, height - TopHeight());
    Invalidate(FALSE);
}

void FillSurface(CWntOut& out, COLORREF colour) {
    out.fillcolour(colour, 0);
    out.boxa2(0, 0, out.xmax, out.ymax);
}

void CSurfacePage::OnPaint() {
    CPaintDC validate(this);
    CClientDC shown(&out_);
    CRect area;
    out_.GetClientRect(&area);
    CDC memory;
    CBitmap picture;
    const bool palettes = shown.GetDeviceCaps(RASTERCAPS) & RC_PALETTE; // are realised on the window alone
    if (palettes || !memory.CreateCompatibleDC(&shown) ||
        !picture.CreateCompatibleBitmap(&shown, area.Width(), area.Height())) {
        PaintOn(shown);
        return;
    }
    CBitmap* previous = memory.SelectObject(&picture);
    PaintOn(memory);
    ::SelectClipRgn(memory.m_hDC, nullptr);
    shown.BitBlt(0, 0, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(previous);
}

void CSurfacePage::PaintOn(CDC& dc) {
    if (!out_.reset(dc.m_hDC))
        return;
    Paint(out_);
    out_.endpaint();
}

// The surface covers the rest.
BOOL CSurfacePage::OnEraseBkgnd(CDC* dc) {
    CRect bar;
    GetClientRect(&bar);
    bar.bottom = TopHeight();
    ::FillRect(dc->m_hDC, &bar, ::GetSysColorBrush(COLOR_BTNFACE));
    return TRUE;
}

void CSurfacePage::OnDestroy() {
    out_.ReleaseDrawing();
    CGalleryPage::OnDestroy();
}

bool CBarPage::CreateContents() {
    font_.CreatePointFont(90, "Arial");
    return CSurfacePage::CreateContents();
}

CButton* CBarPage::AddButton(const char* text, UINT id, int width) {
    BarButton& added = buttons_.emplace_back();
    added.width = width;
    if (!added.button.Create(text, WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(0, 0, 0, 0), this, id))
        return nullptr;
    added.button.SetFont(&font_);
    return &added.button;
}

void CBarPage::Arrange(int width, int height) {
    int x = 8;
    for (BarButton& each : buttons_) {
        Place(each.button, x, 6, each.width, TopHeight() - 10);
        x += each.width + 8;
    }
    CSurfacePage::Arrange(width, height);
}

GalleryPages MakePages(const NamedFiles& files) {
    GalleryPages pages;
    pages.push_back(MakeSurfacePage());
    pages.push_back(MakeTextPage());
    pages.push_back(MakeGaugesPage());
    pages.push_back(MakeScriptsPage(files.scripts));
    pages.push_back(MakeButtonsPage());
    pages.push_back(MakeScrollBarsPage());
    pages.push_back(MakeFramesPage());
    pages.push_back(MakeFoldingFramesPage());
    pages.push_back(MakeSashPage());
    pages.push_back(MakeToolBarsPage());
    pages.push_back(MakeTabsPage());
    pages.push_back(MakeTipsPage());
    pages.push_back(MakeTipOfTheDayPage());
    pages.push_back(MakeChartsPage());
    pages.push_back(MakePulsePage());
    pages.push_back(MakeCalendarPage());
    pages.push_back(MakeColoursPage());
    pages.push_back(MakeAxesPage());
    pages.push_back(MakeDiagnosticsPage());
    pages.push_back(MakeBitmapPage(files.pictures));
    pages.push_back(MakeBitmapDrawingPage());
    pages.push_back(MakePalettePage());
    return pages;
}

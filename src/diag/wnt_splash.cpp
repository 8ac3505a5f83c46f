#include "diag/wnt_splash.h"

#include <vector>

#include "bitmap/log_palette.h"
#include "out/device_state.h"

namespace {

constexpr UINT_PTR splash_timer = 1;
constexpr UINT most_colours = 256;

bool has_palette(CDC& dc) {
    return dc.GetDeviceCaps(RASTERCAPS) & RC_PALETTE;
}

std::vector<RGBQUAD> colour_table(CDC& screen, CBitmap& bitmap) {
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap* previous = memory.SelectObject(&bitmap);
    std::vector<RGBQUAD> colours(most_colours);
    colours.resize(::GetDIBColorTable(memory, 0, most_colours, colours.data()));
    memory.SelectObject(previous);
    return colours;
}

void make_palette(CPalette& palette, const std::vector<RGBQUAD>& colours) {
    wnt::LogPalette description(static_cast<UINT>(colours.size()));
    if (!description.get())
        return;
    description.take(colours.data());
    palette.CreatePalette(description.get());
}

bool dismisses(UINT message) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(CWntSplash, CWnd)
ON_WM_PAINT()
ON_WM_TIMER()
END_MESSAGE_MAP()

CWntSplash::CWntSplash(UINT bitmap, UINT time) : bitmap_id_(bitmap), time_(time) {}

CWntSplash::~CWntSplash() {
    ends_itself_ = false; // it is ending already
    DestroyWindow();
    owner_.DestroyWindow();
}

BOOL CWntSplash::Create() {
    BITMAP picture = {};
    if (m_hWnd || !GetBitmapAndPalette(bitmap_id_, bitmap_, palette_) || !bitmap_.GetBitmap(&picture) ||
        !CreateWindows(CSize(picture.bmWidth, picture.bmHeight)))
        return FALSE;
    ShowWindow(SW_SHOW);
    UpdateWindow();
    if (!m_hWnd) // ended while it was being shown: the object is the caller's again
        return FALSE;
    SetTimer(splash_timer, time_, nullptr);
    ends_itself_ = true;
    return TRUE;
}

BOOL CWntSplash::CreateWindows(CSize size) {
    owner_.DestroyWindow();
    if (!owner_.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr))
        return FALSE;
    const int x = (::GetSystemMetrics(SM_CXSCREEN) - size.cx) / 2;
    const int y = (::GetSystemMetrics(SM_CYSCREEN) - size.cy) / 2;
    return CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "", WS_POPUP, x, y, size.cx, size.cy, owner_.m_hWnd,
                    nullptr);
}

BOOL CWntSplash::GetBitmapAndPalette(UINT id, CBitmap& bitmap, CPalette& palette) {
    HANDLE loaded = ::LoadImageA(AfxGetResourceHandle(), MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    if (!loaded)
        return FALSE;
    bitmap.DeleteObject();
    bitmap.Attach(loaded);
    palette.DeleteObject();
    CClientDC screen(nullptr);
    if (wnt::few_colours(screen))
        make_palette(palette, colour_table(screen, bitmap));
    else
        palette.CreateHalftonePalette(&screen);
    return TRUE;
}

void CWntSplash::OnPaint() {
    CPaintDC dc(this);
    CRect area;
    GetClientRect(&area);
    CPalette* previous_palette = nullptr;
    if (palette_.m_hObject && has_palette(dc)) {
        previous_palette = dc.SelectPalette(&palette_, FALSE);
        dc.RealizePalette();
    }
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* previous = memory.SelectObject(&bitmap_);
    dc.BitBlt(0, 0, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(previous);
    if (previous_palette)
        dc.SelectPalette(previous_palette, TRUE);
}

void CWntSplash::OnTimer(UINT_PTR timer) {
    if (timer != splash_timer) {
        CWnd::OnTimer(timer);
        return;
    }
    KillTimer(timer);
    DestroyWindow(); // the object goes with it
}

BOOL CWntSplash::PreTranslateMessage(MSG* message) {
    if (message->hwnd != m_hWnd || !dismisses(message->message))
        return CWnd::PreTranslateMessage(message);
    DestroyWindow(); // the object goes with it
    return TRUE;
}

void CWntSplash::PostNcDestroy() {
    if (ends_itself_)
        delete this; // and the owner's window with it
}

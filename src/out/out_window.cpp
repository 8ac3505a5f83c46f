#include "out/wnt_out.h"

#include "arithmetic.h"
#include "script/colours.h"

namespace wrapped = wnt::wrapped;

BEGIN_MESSAGE_MAP(CWntOut, CWnd)
ON_WM_CHAR()
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_FONTCHANGE()
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_SYSCOLORCHANGE()
ON_WM_ERASEBKGND()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

namespace {

struct DefaultPalette {
    COLORREF entries[wnt::colour_count];

    constexpr DefaultPalette() : entries() {
        for (int i = 0; i < wnt::colour_count; ++i)
            entries[i] = wnt::colour_values[i];
    }
};

// Hosts get it as a pointer that is not const.
constinit DefaultPalette default_palette;

} // namespace

CWntOut::CWntOut()
    : cliprect(), textparams(), palette(default_palette.entries), palettecount(wnt::colour_count), font(nullptr),
      bkbitmap(0) {}

CWntOut::~CWntOut() {
    if (!dc || dc == windowdc_)
        give_back(nullptr, external_); // a brush made without a device context
}

void CWntOut::initialise() {}

int CWntOut::reset() {
    if (!this)
        return 0;
    forget_lost_window();
    if (!outmode && !targetmode && !dc && m_hWnd && ::IsWindowVisible(m_hWnd)) {
        if (!windowdc_) {
            windowdc_ = ::GetDC(m_hWnd);
            dcwindow_ = m_hWnd;
        }
        dc = windowdc_;
    }
    if (!dc)
        return 0;

    linecolour_ = 0xFFFFFF; // intended: white lines and black fills count as already in force
    fillcolour_ = 0;
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextAlign(dc, TA_LEFT | TA_BOTTOM);

    ymax = 0;
    RECT client;
    if (m_hWnd && ::GetClientRect(m_hWnd, &client)) {
        ymax = client.bottom - 1;
        xmax = client.right - 1;
    }
    if (!targetmode && !clipset)
        resetclip();
    return 1;
}

int CWntOut::reset(HDC hdc) {
    if (!this)
        return 0;
    forget_lost_window();
    if (dc != hdc)
        end_external();
    dc = hdc;
    externaldc = 1;
    return reset();
}

void CWntOut::endpaint() {
    if (!this || !externaldc)
        return;
    end_external();
    dc = nullptr;
    externaldc = 0;
}

void CWntOut::ReleaseDrawing() {
    if (!this)
        return;
    forget_lost_window();
    end_external();
    give_back(windowdc_, window_);
    if (windowdc_)
        ::ReleaseDC(dcwindow_, windowdc_);
    windowdc_ = nullptr;
    dc = nullptr;
    externaldc = 0;
    pen = nullptr;
    brush = nullptr;
}

// Makes a new pen or brush the selected one. What it replaces is deleted if this surface made it; what the caller
// had selected is only remembered.
void CWntOut::select_made(HGDIOBJ made, HGDIOBJ Selection::*ours, HGDIOBJ Selection::*foreign) {
    Selection& s = selection();
    if (dc) {
        HGDIOBJ replaced = ::SelectObject(dc, made);
        if (replaced != s.*ours)
            s.*foreign = replaced;
    }
    if (s.*ours)
        ::DeleteObject(s.*ours);
    s.*ours = made;
}

void CWntOut::give_back(HDC target, Selection& s) {
    auto end = [target](HGDIOBJ made, HGDIOBJ foreign, UINT kind, int stock) {
        if (!made)
            return;
        if (target && ::GetCurrentObject(target, kind) == made && !(foreign && ::SelectObject(target, foreign)))
            ::SelectObject(target, ::GetStockObject(stock));
        ::DeleteObject(made);
    };
    end(s.pen, s.foreign_pen, OBJ_PEN, BLACK_PEN);
    end(s.brush, s.foreign_brush, OBJ_BRUSH, WHITE_BRUSH);
    s = Selection();
}

void CWntOut::end_external() {
    if (dc == windowdc_ && dc)
        return;
    give_back(dc, external_);
    pen = static_cast<HPEN>(window_.pen);
    brush = static_cast<HBRUSH>(window_.brush);
}

// A device context dies with its window: an object that has another one now, or none, must not go on using it.
void CWntOut::forget_lost_window() {
    if (!windowdc_ || dcwindow_ == m_hWnd)
        return;
    give_back(nullptr, window_);
    if (dc == windowdc_) {
        dc = nullptr;
        pen = nullptr;
        brush = nullptr;
    }
    windowdc_ = nullptr;
}

int CWntOut::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1)
        return -1;
    facename = "Arial";
    ::SetRectEmpty(&cliprect);
    endpaint();
    return 0;
}

void CWntOut::OnPaint() {
    CPaintDC validate(this);
}

BOOL CWntOut::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CWntOut::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    xmax = cx; // intended: one more than reset() will say
    ymax = cy;
}

BOOL CWntOut::OnMouseWheel(UINT, short, CPoint) {
    return TRUE;
}

void CWntOut::OnChar(UINT, UINT, UINT) {
    Default();
}

void CWntOut::OnClose() {
    Default();
}

void CWntOut::OnFontChange() {
    Default();
}

void CWntOut::OnKillFocus(CWnd*) {
    Default();
}

void CWntOut::OnSetFocus(CWnd* old) {
    CWnd::OnSetFocus(old);
}

void CWntOut::OnDestroy() {
    CWnd::OnDestroy();
}

void CWntOut::OnSysColorChange() {
    CWnd::OnSysColorChange();
}

BOOL CWntOut::OnCommand(WPARAM wParam, LPARAM lParam) {
    return CWnd::OnCommand(wParam, lParam);
}

void CWntOut::setbackground(COLORREF colour, int flag) {
    if (!this)
        return;
    bkcolour = colour;
    bkflag = flag;
}

void CWntOut::setbackgroundbitmap(unsigned id) {
    if (this)
        bkbitmap = id;
}

void CWntOut::queryupdaterect(RECT* r) {
    if (this && r && ::IsWindow(m_hWnd))
        *r = update_rect();
}

void CWntOut::scroll(int x, int y, int w, int h, int dx, int dy, int) {
    if (!ready() || outmode)
        return;
    if (w == 0)
        w = wrapped::add(xmax, 1);
    if (h == 0)
        h = wrapped::add(ymax, 1);
    const std::int64_t top = std::int64_t{ymax} - y - h + 1;
    const std::int64_t src = top > 0 ? top : 0;
    ::BitBlt(dc, static_cast<int>(std::int64_t{x} + dx), static_cast<int>(src - dy), w, h, dc, x, static_cast<int>(src),
             SRCCOPY);
}

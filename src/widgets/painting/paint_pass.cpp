#include "widgets/painting/paint_pass.h"

#include "widgets/painting/surface_owner.h"

namespace wnt {

PaintPass::PaintPass(CWnd& window)
    : painting_(std::in_place, &window), shown_(painting_->m_hDC), part_(painting_->m_ps.rcPaint) {
    window.GetClientRect(&area_);
    begin(window);
}

PaintPass::PaintPass(CWnd& window, HDC onto) : shown_(onto) {
    window.GetClientRect(&area_);
    part_ = area_;
    begin(window);
}

void PaintPass::begin(CWnd& window) {
    const HWND handle = window.m_hWnd;
    font_ = reinterpret_cast<HFONT>(::SendMessage(handle, WM_GETFONT, 0, 0));
    if (part_.IsRectEmpty())
        return;
    HDC target = shown_;
    if (bitmap_.create(target, part_.Width(), part_.Height())) {
        target = bitmap_.dc();
        ::SetViewportOrgEx(target, -part_.left, -part_.top, nullptr);
    }
    out_.targetmode = 1;
    out_.reset(target);
    out_.xmax = area_.Width() - 1;
    out_.ymax = area_.Height() - 1;
    prime_colours(out_);
}

PaintPass::~PaintPass() {
    if (font_before_) {
        ::SelectObject(out_.dc, font_before_);
        ::SetTextAlign(out_.dc, align_before_);
    }
    out_.endpaint();
    if (bitmap_)
        ::BitBlt(shown_, part_.left, part_.top, part_.Width(), part_.Height(), bitmap_.dc(), part_.left, part_.top,
                 SRCCOPY); // both count from the client area's corner
}

void PaintPass::fill(const CRect& rect, COLORREF colour) {
    if (rect.IsRectEmpty())
        return;
    out_.fillcolour(colour, 0);
    out_.boxa2(rect.left, up(rect.bottom - 1), rect.right - 1, up(rect.top));
}

void PaintPass::edge(const CRect& rect, bool raised) {
    if (rect.Width() > 1 && rect.Height() > 1)
        out_.drawshadow(rect.left, up(rect.bottom - 1), rect.right - 1, up(rect.top), raised);
}

void PaintPass::frame(const CRect& rect, COLORREF colour) {
    if (rect.IsRectEmpty())
        return;
    out_.linecolour(colour, 0);
    out_.boxr0(rect.left, up(rect.bottom - 1), rect.Width() - 1, rect.Height() - 1);
}

void PaintPass::focus(const CRect& rect) {
    if (!out_.dc || rect.IsRectEmpty())
        return;
    ::SetTextColor(out_.dc, 0);
    ::SetBkColor(out_.dc, RGB(255, 255, 255));
    ::DrawFocusRect(out_.dc, &rect);
}

void PaintPass::text(const CRect& rect, const CString& text, UINT format, COLORREF colour, CFont* font) {
    if (!out_.dc || rect.IsRectEmpty() || text.IsEmpty())
        return;
    const HDC dc = out_.dc;
    const HGDIOBJ wanted = font ? font->GetSafeHandle() : font_;
    use_font(wanted ? wanted : ::GetStockObject(DEFAULT_GUI_FONT));
    ::SetTextColor(dc, colour);
    RECT place = rect;
    ::DrawTextA(dc, text, text.GetLength(), &place, format);
}

// Selecting one takes as long as a short text.
void PaintPass::use_font(HGDIOBJ font) {
    if (font == selected_)
        return;
    const HGDIOBJ before = ::SelectObject(out_.dc, font);
    selected_ = font;
    if (font_before_)
        return;
    font_before_ = before;
    align_before_ = ::SetTextAlign(out_.dc, TA_LEFT | TA_TOP);
    ::SetBkMode(out_.dc, TRANSPARENT);
}

} // namespace wnt

#pragma once

#include <afxwin.h>

#include <optional>

#include "out/wnt_out.h"
#include "widgets/painting/memory_bitmap.h"

namespace wnt {

/// One painting of a window: a surface that draws into memory, shown finished at the end. Rectangles here are the
/// window's client coordinates, y downwards, right and bottom exclusive; the surface itself counts upwards.
class PaintPass {
public:
    /// Answers a paint message.
    explicit PaintPass(CWnd& window);
    /// Draws all of the window elsewhere, at the device context's origin.
    PaintPass(CWnd& window, HDC onto);
    ~PaintPass();
    PaintPass(const PaintPass&) = delete;
    PaintPass& operator=(const PaintPass&) = delete;

    CWntOut& out() { return out_; }
    CDC& dc() { return *CDC::FromHandle(out_.dc); }
    /// The client area.
    const CRect& area() const { return area_; }
    /// Something of it has to be painted.
    bool touches(const CRect& rect) const { return CRect().IntersectRect(&rect, &part_) != FALSE; }

    void fill(const CRect& rect, COLORREF colour);
    /// The library's border, a pixel wide, along the inside of the rectangle.
    void edge(const CRect& rect, bool raised);
    /// A pixel wide, along the inside.
    void frame(const CRect& rect, COLORREF colour);
    void focus(const CRect& rect);
    /// In the window's font or the one given, DrawText's format; marks access keys as the window shows them.
    void text(const CRect& rect, const CString& text, UINT format, COLORREF colour, CFont* font = nullptr);

private:
    void begin(CWnd& window);
    void use_font(HGDIOBJ font);
    int up(int y) const { return area_.Height() - 1 - y; }

    std::optional<CPaintDC> painting_;
    HDC shown_;
    CRect area_;
    CRect part_; // of it, to be painted
    MemoryBitmap bitmap_;
    CWntOut out_;
    HFONT font_ = nullptr;
    HGDIOBJ selected_ = nullptr;
    HGDIOBJ font_before_ = nullptr; // and the next: what the first text found
    UINT align_before_ = 0;
};

} // namespace wnt

#include "widgets/painting/paint_buffer.h"

namespace wnt {

PaintBuffer::PaintBuffer(CDC& dc, MemoryBitmap& bitmap, int width, int height)
    : dc_(dc), window_(dc.m_hDC), width_(width), height_(height), bitmap_(bitmap) {
    if (bitmap_.create(window_, width, height))
        redirect(bitmap_.dc());
}

PaintBuffer::~PaintBuffer() {
    if (!bitmap_)
        return;
    redirect(window_);
    ::BitBlt(window_, 0, 0, width_, height_, bitmap_.dc(), 0, 0, SRCCOPY);
}

void PaintBuffer::redirect(HDC target) {
    dc_.m_hDC = target;
    dc_.m_hAttribDC = target;
}

} // namespace wnt

#include "widgets/paint_buffer.h"

namespace wnt {

PaintBuffer::PaintBuffer(CDC& dc, int width, int height)
    : dc_(dc), window_(dc.m_hDC), width_(width), height_(height), memory_(::CreateCompatibleDC(window_)),
      bitmap_(memory_ && width > 0 && height > 0 ? ::CreateCompatibleBitmap(window_, width, height) : nullptr) {
    if (!bitmap_)
        return;
    previous_ = ::SelectObject(memory_, bitmap_);
    redirect(memory_);
}

PaintBuffer::~PaintBuffer() {
    if (bitmap_) {
        redirect(window_);
        ::BitBlt(window_, 0, 0, width_, height_, memory_, 0, 0, SRCCOPY);
        ::SelectObject(memory_, previous_);
        ::DeleteObject(bitmap_);
    }
    if (memory_)
        ::DeleteDC(memory_);
}

void PaintBuffer::redirect(HDC target) {
    dc_.m_hDC = target;
    dc_.m_hAttribDC = target;
}

} // namespace wnt

#include "widgets/paint_buffer.h"

namespace wnt {

PaintBuffer::PaintBuffer(CDC& dc, int width, int height) : dc_(dc), window_(dc.m_hDC), width_(width), height_(height) {
    if (picture_.create(window_, width, height))
        redirect(picture_.dc());
}

PaintBuffer::~PaintBuffer() {
    if (!picture_)
        return;
    redirect(window_);
    ::BitBlt(window_, 0, 0, width_, height_, picture_.dc(), 0, 0, SRCCOPY);
}

void PaintBuffer::redirect(HDC target) {
    dc_.m_hDC = target;
    dc_.m_hAttribDC = target;
}

} // namespace wnt

#pragma once

#include <afxwin.h>

#include "widgets/painting/memory_bitmap.h"

namespace wnt {

/// Lets a device context draw into a bitmap for the guard's life and shows the finished picture at its end. Without
/// memory for the picture the context draws as before. Making a bitmap takes longer than most pictures: it is the
/// window's, who keeps it from one picture to the next.
class PaintBuffer {
public:
    PaintBuffer(CDC& dc, MemoryBitmap& bitmap, int width, int height);
    ~PaintBuffer();
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

private:
    void redirect(HDC target);

    CDC& dc_;
    HDC window_;
    int width_;
    int height_;
    MemoryBitmap& bitmap_;
};

} // namespace wnt

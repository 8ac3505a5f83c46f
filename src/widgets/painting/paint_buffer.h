#pragma once

#include <afxwin.h>

#include "widgets/painting/memory_bitmap.h"

namespace wnt {

/// Lets a device context draw into memory for the guard's life and shows the finished picture at its end. Without
/// memory for the picture the context draws as before.
class PaintBuffer {
public:
    PaintBuffer(CDC& dc, int width, int height);
    ~PaintBuffer();
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

private:
    void redirect(HDC target);

    CDC& dc_;
    HDC window_;
    int width_;
    int height_;
    MemoryBitmap bitmap_;
};

} // namespace wnt

#include "widgets/painting/memory_bitmap.h"

namespace wnt {

void MemoryBitmap::release() {
    if (bitmap_) {
        ::SelectObject(dc_, previous_);
        ::DeleteObject(bitmap_);
    }
    if (dc_)
        ::DeleteDC(dc_);
    bitmap_ = nullptr;
    dc_ = nullptr;
}

bool MemoryBitmap::create(HDC like, int width, int height) {
    if (bitmap_ && width == width_ && height == height_)
        return true;
    release();
    if (width < 1 || height < 1)
        return false;
    width_ = width;
    height_ = height;
    dc_ = ::CreateCompatibleDC(like);
    bitmap_ = dc_ ? ::CreateCompatibleBitmap(like, width, height) : nullptr;
    if (bitmap_)
        previous_ = ::SelectObject(dc_, bitmap_);
    return bitmap_ != nullptr;
}

} // namespace wnt

#include "widgets/painting/memory_bitmap.h"

namespace wnt {

MemoryBitmap::~MemoryBitmap() {
    if (bitmap_) {
        ::SelectObject(dc_, previous_);
        ::DeleteObject(bitmap_);
    }
    if (dc_)
        ::DeleteDC(dc_);
}

bool MemoryBitmap::create(HDC like, int width, int height) {
    if (width < 1 || height < 1)
        return false;
    dc_ = ::CreateCompatibleDC(like);
    bitmap_ = dc_ ? ::CreateCompatibleBitmap(like, width, height) : nullptr;
    if (bitmap_)
        previous_ = ::SelectObject(dc_, bitmap_);
    return bitmap_ != nullptr;
}

} // namespace wnt

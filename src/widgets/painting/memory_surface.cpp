#include "widgets/painting/memory_surface.h"

#include "widgets/painting/surface_owner.h"

namespace wnt {

namespace {

constexpr std::int64_t most_pixels = 64 * 1024 * 1024; // far beyond any screen

} // namespace

bool MemorySurface::create(int width, int height) {
    release();
    if (width < 1 || height < 1 || std::int64_t{width} * height > most_pixels)
        return false;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the first row is the upper one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    dc_ = ::CreateCompatibleDC(nullptr);
    bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!dc_ || !bitmap_) {
        release();
        return false;
    }
    previous_ = ::SelectObject(dc_, bitmap_);
    bits_ = static_cast<std::uint32_t*>(bits);
    width_ = width;
    height_ = height;

    out_.targetmode = 1; // the clip is set here, not by reset()
    out_.reset(dc_);
    out_.xmax = width - 1;
    out_.ymax = height - 1;
    prime_colours(out_);
    return true;
}

void MemorySurface::release() {
    out_.ReleaseDrawing();
    if (previous_)
        ::SelectObject(dc_, previous_);
    if (bitmap_)
        ::DeleteObject(bitmap_);
    if (dc_)
        ::DeleteDC(dc_);
    previous_ = nullptr;
    bitmap_ = nullptr;
    dc_ = nullptr;
    bits_ = nullptr;
    width_ = 0;
    height_ = 0;
}

} // namespace wnt

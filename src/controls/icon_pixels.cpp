#include "controls/icon_pixels.h"

#include <algorithm>

namespace wnt {

namespace {

constexpr long long most_pixels = 1 << 24;

BITMAPINFO top_down(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    return info;
}

} // namespace

PixelBitmap::PixelBitmap(int width, int height) : dc_(::CreateCompatibleDC(nullptr)) {
    const BITMAPINFO info = top_down(width, height);
    void* bits = nullptr;
    bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap_)
        return;
    previous_ = ::SelectObject(dc_, bitmap_);
    bits_ = static_cast<Argb*>(bits);
}

PixelBitmap::~PixelBitmap() {
    if (previous_)
        ::SelectObject(dc_, previous_);
    if (bitmap_)
        ::DeleteObject(bitmap_);
    ::DeleteDC(dc_);
}

SIZE icon_size(HICON icon) {
    ICONINFO info;
    if (!icon || !::GetIconInfo(icon, &info))
        return {};
    BITMAP bitmap = {};
    ::GetObjectA(info.hbmColor ? info.hbmColor : info.hbmMask, sizeof bitmap, &bitmap);
    if (info.hbmColor)
        ::DeleteObject(info.hbmColor);
    else
        bitmap.bmHeight /= 2; // two masks, one above the other
    ::DeleteObject(info.hbmMask);
    return {bitmap.bmWidth, bitmap.bmHeight};
}

// Over black and over white: what differs tells how much of the ground shines through.
std::vector<Argb> icon_pixels(HICON icon, int size) {
    const PixelBitmap black(size, size), white(size, size);
    if (!icon || !black || !white)
        return {};
    const std::size_t count = static_cast<std::size_t>(size) * static_cast<std::size_t>(size);
    std::fill_n(black.bits(), count, 0);
    std::fill_n(white.bits(), count, 0xFFFFFF);
    if (!::DrawIconEx(black.dc(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL) ||
        !::DrawIconEx(white.dc(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL))
        return {};
    ::GdiFlush();
    std::vector<Argb> pixels(count);
    for (std::size_t i = 0; i < count; ++i) {
        const Argb on_black = black.bits()[i] & 0xFFFFFF;
        const Argb ground = (white.bits()[i] >> 8 & 0xFF) - (on_black >> 8 & 0xFF);
        pixels[i] = (0xFF - std::min(ground, Argb{0xFF})) << 24 | on_black;
    }
    return pixels;
}

std::vector<Argb> bitmap_pixels(HBITMAP bitmap, SIZE& size) {
    BITMAP description = {};
    size = {};
    if (!bitmap || !::GetObjectA(bitmap, sizeof description, &description) || description.bmWidth < 1 ||
        description.bmHeight < 1 || static_cast<long long>(description.bmWidth) * description.bmHeight > most_pixels)
        return {};
    BITMAPINFO info = top_down(description.bmWidth, description.bmHeight);
    std::vector<Argb> pixels(static_cast<std::size_t>(description.bmWidth) *
                             static_cast<std::size_t>(description.bmHeight));
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const int rows =
        ::GetDIBits(dc, bitmap, 0, static_cast<UINT>(description.bmHeight), pixels.data(), &info, DIB_RGB_COLORS);
    ::DeleteDC(dc);
    if (rows != description.bmHeight)
        return {};
    if (description.bmBitsPixel < 32) // no opacity, whatever the conversion left there
        for (Argb& pixel : pixels)
            pixel &= 0xFFFFFF;
    size = {description.bmWidth, description.bmHeight};
    return pixels;
}

} // namespace wnt

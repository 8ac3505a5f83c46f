#pragma once

#include <windows.h>

#include <vector>

#include "controls/tool_picture.h"

namespace wnt {

/// 0 x 0 for none, and for what is no icon.
SIZE icon_size(HICON icon);

/// The icon, drawn so large; empty when that fails.
std::vector<Argb> icon_pixels(HICON icon, int size);

/// A bitmap's pixels as 0xAARRGGBB, upper row first; empty for none, and for one of more than 2^24 pixels.
std::vector<Argb> bitmap_pixels(HBITMAP bitmap, SIZE& size);

/// A 32-bit bitmap selected into a device context of its own.
class PixelBitmap {
public:
    PixelBitmap(int width, int height);
    ~PixelBitmap();
    PixelBitmap(const PixelBitmap&) = delete;
    PixelBitmap& operator=(const PixelBitmap&) = delete;

    explicit operator bool() const { return bits_ != nullptr; }
    HDC dc() const { return dc_; }
    /// Upper row first; after drawing by the system only with its queue flushed.
    Argb* bits() const { return bits_; }

private:
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ previous_ = nullptr;
    Argb* bits_ = nullptr;
};

} // namespace wnt

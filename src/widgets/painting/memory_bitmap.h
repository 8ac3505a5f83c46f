#pragma once

#include <windows.h>

namespace wnt {

/// A bitmap like a device context's, selected into a memory context of its own. Without room for it, or memory, there
/// is none.
class MemoryBitmap {
public:
    MemoryBitmap() = default;
    ~MemoryBitmap();
    MemoryBitmap(const MemoryBitmap&) = delete;
    MemoryBitmap& operator=(const MemoryBitmap&) = delete;

    /// Once in an object's life; false where there is none.
    bool create(HDC like, int width, int height);
    explicit operator bool() const { return bitmap_ != nullptr; }
    HDC dc() const { return dc_; }

private:
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
};

} // namespace wnt

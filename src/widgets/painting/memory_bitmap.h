#pragma once

#include <windows.h>

namespace wnt {

/// A bitmap like a device context's, selected into a memory context of its own. Without room for it, or memory, there
/// is none.
class MemoryBitmap {
public:
    MemoryBitmap() = default;
    ~MemoryBitmap() { release(); }
    MemoryBitmap(const MemoryBitmap&) = delete;
    MemoryBitmap& operator=(const MemoryBitmap&) = delete;

    /// False where there is none. The one of before stays where it has this size, with what is on it.
    bool create(HDC like, int width, int height);
    explicit operator bool() const { return bitmap_ != nullptr; }
    HDC dc() const { return dc_; }

private:
    void release();

    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    int width_ = 0;
    int height_ = 0;
};

} // namespace wnt

#pragma once

#include <windows.h>

namespace wnt {

/// A bitmap like a device context's, selected into a memory context of its own. Without room for it, or memory, there
/// is none.
class MemoryPicture {
public:
    MemoryPicture() = default;
    ~MemoryPicture();
    MemoryPicture(const MemoryPicture&) = delete;
    MemoryPicture& operator=(const MemoryPicture&) = delete;

    /// Once in a picture's life; false where there is none.
    bool create(HDC like, int width, int height);
    explicit operator bool() const { return bitmap_ != nullptr; }
    HDC dc() const { return dc_; }

private:
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
};

} // namespace wnt

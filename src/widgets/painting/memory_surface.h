#pragma once

#include <cstdint>

#include "out/wnt_out.h"

namespace wnt {

/// A 32-bit picture in memory with a drawing surface over it. Library row y is the picture row height - 1 - y.
class MemorySurface {
public:
    MemorySurface() = default;
    ~MemorySurface() { release(); }
    MemorySurface(const MemorySurface&) = delete;
    MemorySurface& operator=(const MemorySurface&) = delete;

    /// Makes a picture of this size; false, and no picture, when there is no memory for it.
    bool create(int width, int height);
    void release();

    int width() const { return width_; }
    int height() const { return height_; }
    HDC dc() const { return dc_; }
    CWntOut& out() { return out_; }
    /// `y` counts downwards.
    std::uint32_t* row(int y) { return bits_ + static_cast<std::size_t>(y) * width_; }

private:
    int width_ = 0;
    int height_ = 0;
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    std::uint32_t* bits_ = nullptr;
    CWntOut out_; // never gets a window
};

} // namespace wnt

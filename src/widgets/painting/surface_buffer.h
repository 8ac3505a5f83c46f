#pragma once

#include <memory>
#include <vector>

#include "out/wnt_out.h"
#include "widgets/painting/memory_bitmap.h"
#include "widgets/painting/upward_rect.h"

namespace wnt {

/// Lets a surface draw into memory for the guard's life and shows at its end the parts that were named. Without memory
/// for the picture the surface draws as before.
class SurfaceBuffer {
public:
    explicit SurfaceBuffer(CWntOut& out);
    ~SurfaceBuffer();
    SurfaceBuffer(const SurfaceBuffer&) = delete;
    SurfaceBuffer& operator=(const SurfaceBuffer&) = delete;

    /// False when nothing can be drawn.
    explicit operator bool() const { return window_ != nullptr; }

    void show(const UpwardRect& part) { parts_.push_back(part); }

private:
    CWntOut& out_;
    HDC window_ = nullptr;
    MemoryBitmap bitmap_;
    std::vector<UpwardRect> parts_;
};

/// Opens a surface for a painter that is called alone, or joins the painting that `open` holds, and clips to the
/// painter's part. An exception out of a painter leaves the surface open to all painters again.
class SurfacePainting {
public:
    using Open = std::unique_ptr<SurfaceBuffer>;

    SurfacePainting(CWntOut& out, Open& open);
    SurfacePainting(CWntOut& out, Open& open, const UpwardRect& part);
    ~SurfacePainting();
    SurfacePainting(const SurfacePainting&) = delete;
    SurfacePainting& operator=(const SurfacePainting&) = delete;

    /// There is a part to draw on.
    explicit operator bool() const { return clipped_; }

private:
    CWntOut& out_;
    Open& open_;
    bool opened_;
    bool clipped_ = false;
};

} // namespace wnt

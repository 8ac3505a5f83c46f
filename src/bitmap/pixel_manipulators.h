#pragma once

#include <cstdint>
#include <memory>

/// Writers of single pixels into a pixel array, one class a depth: the colour is packed when it is set, so that a pixel
/// costs a multiplication and a store. This one, the base, is for depths that are not drawn on: it writes nothing.
///
/// The pixel (x, y) is element y * width + x of the array, in 32-bit arithmetic: rows are not padded, and y counts them
/// in storage order. The coordinates are the caller's to bound; without an array, and below its beginning, nothing is
/// written.
class CDirtyPixelManipulator {
public:
    /// The array stays the caller's and must outlive the drawing; the width is the row length in pixels. The height is
    /// not kept.
    void Init(void* pixels, int width, int height);

    /// Components from 0 to 255.
    virtual void SetColor(int r, int g, int b);
    /// Writes the current colour, black before the first SetColor().
    virtual void SetPixel(int x, int y);

protected:
    /// The place of a pixel of `size` bytes, or null.
    std::uint8_t* element(int x, int y, int size) const;

private:
    std::uint8_t* pixels_ = nullptr;
    std::int32_t width_ = 0;
};

/// 8 bits: a colour-table index made of green and blue, a multiple of 4 up to 60.
class C256ColorPixelManipulator final : public CDirtyPixelManipulator {
public:
    void SetColor(int r, int g, int b) override;
    void SetPixel(int x, int y) override;

private:
    std::uint8_t colour_ = 0;
};

/// 16 bits, 5 for each component. The low bits of a component are packed, not the high ones, and some of them reach
/// into the neighbour's field: only 0 and 255 come out as one would expect.
class CHighColorPixelManipulator final : public CDirtyPixelManipulator {
public:
    void SetColor(int r, int g, int b) override;
    void SetPixel(int x, int y) override;

private:
    std::uint16_t colour_ = 0;
};

/// 24 bits: blue, green, red.
class CTrueColorPixelManipulator final : public CDirtyPixelManipulator {
public:
    void SetColor(int r, int g, int b) override;
    void SetPixel(int x, int y) override;

private:
    std::uint8_t colour_[3] = {};
};

namespace wnt {

/// Deletes a manipulator as what it is: the classes have no virtual destructor.
struct DeleteManipulator {
    void operator()(CDirtyPixelManipulator* manipulator) const;
};
using PixelManipulator = std::unique_ptr<CDirtyPixelManipulator, DeleteManipulator>;

/// The manipulator for a depth.
PixelManipulator make_pixel_manipulator(int bits_per_pixel);

} // namespace wnt

#include "bitmap/pixel_manipulators.h"

#include <cstring>

namespace {

// Final like the others, so that each may be deleted without a virtual destructor.
class UndrawnPixels final : public CDirtyPixelManipulator {};

} // namespace

void CDirtyPixelManipulator::Init(void* pixels, int width, int height) {
    pixels_ = static_cast<std::uint8_t*>(pixels);
    width_ = width;
}

void CDirtyPixelManipulator::SetColor(int r, int g, int b) {}

void CDirtyPixelManipulator::SetPixel(int x, int y) {}

std::uint8_t* CDirtyPixelManipulator::element(int x, int y, int size) const {
    const auto wrapped =
        static_cast<std::uint32_t>(y) * static_cast<std::uint32_t>(width_) + static_cast<std::uint32_t>(x);
    const auto index = static_cast<std::int32_t>(wrapped);
    return pixels_ && index >= 0 ? pixels_ + std::int64_t{index} * size : nullptr;
}

void C256ColorPixelManipulator::SetColor(int r, int g, int b) {
    colour_ = static_cast<std::uint8_t>(((g & 0x0C) | b) & 0x3C);
}

void C256ColorPixelManipulator::SetPixel(int x, int y) {
    if (std::uint8_t* at = element(x, y, sizeof colour_))
        *at = colour_;
}

// Intended, though no usual packing: callers choose their colours by the words that come out.
void CHighColorPixelManipulator::SetColor(int r, int g, int b) {
    const unsigned red = ((static_cast<unsigned>(r) << 2) | static_cast<unsigned>(r)) & 0x1F;
    const auto with_component = [](unsigned word, int component) {
        return (((word << 3) | (component & 7)) << 2) | (component & 0x1F);
    };
    colour_ = static_cast<std::uint16_t>(with_component(with_component(red, g), b));
}

// The array need not be aligned.
void CHighColorPixelManipulator::SetPixel(int x, int y) {
    if (std::uint8_t* at = element(x, y, sizeof colour_))
        std::memcpy(at, &colour_, sizeof colour_);
}

void CTrueColorPixelManipulator::SetColor(int r, int g, int b) {
    colour_[0] = static_cast<std::uint8_t>(b);
    colour_[1] = static_cast<std::uint8_t>(g);
    colour_[2] = static_cast<std::uint8_t>(r);
}

void CTrueColorPixelManipulator::SetPixel(int x, int y) {
    if (std::uint8_t* at = element(x, y, sizeof colour_))
        std::memcpy(at, colour_, sizeof colour_);
}

void wnt::DeleteManipulator::operator()(CDirtyPixelManipulator* manipulator) const {
    if (auto* indexed = dynamic_cast<C256ColorPixelManipulator*>(manipulator))
        delete indexed;
    else if (auto* words = dynamic_cast<CHighColorPixelManipulator*>(manipulator))
        delete words;
    else if (auto* bytes = dynamic_cast<CTrueColorPixelManipulator*>(manipulator))
        delete bytes;
    else
        delete static_cast<UndrawnPixels*>(manipulator);
}

wnt::PixelManipulator wnt::make_pixel_manipulator(int bits_per_pixel) {
    switch (bits_per_pixel) {
    case 8:
        return PixelManipulator(new C256ColorPixelManipulator);
    case 16:
        return PixelManipulator(new CHighColorPixelManipulator);
    case 24:
        return PixelManipulator(new CTrueColorPixelManipulator);
    default:
        return PixelManipulator(new UndrawnPixels);
    }
}

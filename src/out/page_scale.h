#pragma once

namespace wnt {

/// The factor that fits a picture into a page and keeps its proportions. Intended: where both sides ask for exactly the
/// same factor, and where the picture would shrink to a speck, it is printed at its own size.
constexpr double page_scale(int page_width, int page_height, int width, int height) {
    constexpr double smallest = 0.01f; // intended: as single precision has it
    const double across = static_cast<double>(page_width) / width;
    const double down = static_cast<double>(page_height) / height;
    double scale = 0;
    if (across < down)
        scale = across;
    else if (down < across)
        scale = down;
    return scale < smallest ? 1.0 : scale;
}

} // namespace wnt

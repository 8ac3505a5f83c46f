#pragma once

#include <vector>

#include "widgets/painting/memory_surface.h"
#include "widgets/painting/picture.h"
#include "widgets/painting/shape_raster.h"
#include "widgets/painting/text_fonts.h"

namespace wnt {

/// Puts pictures on a surface without a flash: the still part and the whole are kept in memory, shapes are drawn
/// enlarged and averaged down for smooth edges, and only finished pixels reach the device.
class PictureScreen {
public:
    /// Draws both pictures, the value over the face, over the whole width x height at the surface's lower left.
    void draw_all(CWntOut& out, int width, int height, const Picture& face, const Picture& value);
    /// Draws what differs between the value picture that is on the screen and the new one.
    void draw_changes(CWntOut& out, const Picture& shown, const Picture& value);
    /// True while draw_changes() has a face of this size to draw on.
    bool holds(int width, int height) const { return face_.width() == width && face_.height() == height; }
    void release();

private:
    void release_fonts();

    struct Area { // pixels, y up, right and top exclusive
        int left, bottom, right, top;
        bool empty() const { return left >= right || bottom >= top; }
        long size() const { return static_cast<long>(right - left) * (top - bottom); }
    };

    Area pixels_of(const BoxF& box) const;
    static bool overlap(const Area& a, const Area& b);
    void add_area(Area area);
    void collect_changes(const Picture& shown, const Picture& value);
    void render(MemorySurface& target, const Picture& picture, const Area& area);
    void render_shapes(MemorySurface& target, const Picture& picture, const Area& area);
    void render_texts(MemorySurface& target, const Picture& picture, const Area& area);
    void show_face(const Area& area);
    void present(CWntOut& out, const Area& area);

    int scale_ = 1;   // subpixels a pixel, each way
    TextFonts fonts_; // before the surfaces, which have some of them selected to the end
    MemorySurface face_;
    MemorySurface frame_;
    ShapeRaster raster_;
    std::vector<Area> areas_;
};

} // namespace wnt

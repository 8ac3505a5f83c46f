#pragma once

#include <memory>

#include "controls/icon_pixels.h"
#include "controls/tool_bar_model.h"

namespace wnt {

/// A toolbar's pictures: out of strips or of its items' icons, in the size that fits the scaling, in colour and
/// greyed, ready to be drawn.
class ToolPictures {
public:
    /// Copies of bitmaps; CLR_NONE: the colour at the upper left is the key.
    void set_strip(int which, HBITMAP bitmap, COLORREF key);
    bool has_strip(int which) const { return strips_[which].count > 0; }

    /// After the items or the scaling changed: they are made when they are drawn next.
    void forget() { made_.reset(); }
    /// The width and height in which they are shown.
    int size(const ToolBarModel& model, int scale) const { return choice(model, scale).size; }
    bool has(const ToolItem& item) const;
    void draw(HDC dc, const ToolBarModel& model, int scale, int index, int x, int y, bool grey);

private:
    PictureChoice choice(const ToolBarModel& model, int scale) const;
    void make(const ToolBarModel& model, int scale);
    void make_one(const ToolItem& item, const PictureChoice& choice, Argb* to, std::size_t row) const;

    PictureStrip strips_[2];
    std::unique_ptr<PixelBitmap> made_; // side by side, greyed ones below
    int made_size_ = 0;
};

} // namespace wnt

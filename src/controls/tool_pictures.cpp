#include "controls/tool_pictures.h"

#include <commctrl.h>

#include <algorithm>

namespace wnt {

namespace {

constexpr int designed_size = 16; // pixels at 96 dots an inch

constexpr Argb key_of(COLORREF colour) {
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

} // namespace

void ToolPictures::set_strip(int which, HBITMAP bitmap, COLORREF key) {
    SIZE size;
    const std::vector<Argb> pixels = bitmap_pixels(bitmap, size);
    const Argb transparent = key != CLR_NONE || pixels.empty() ? key_of(key) : pixels.front();
    strips_[which] = make_strip(pixels, size.cx, size.cy, transparent);
    forget();
}

bool ToolPictures::has(const ToolItem& item) const {
    const int most = std::max(strips_[0].count, strips_[1].count);
    return item.icons[0] || item.icons[1] || (item.picture >= 0 && item.picture < most);
}

// Strips decide; without them the first item with an icon does.
PictureChoice ToolPictures::choice(const ToolBarModel& model, int scale) const {
    const int wanted = std::max(::MulDiv(designed_size, scale, 100), 1);
    int sizes[2] = {strips_[0].size, strips_[1].size};
    for (int which = 0; which < 2 && !has_strip(0) && !has_strip(1); ++which) {
        const auto& items = model.items();
        const auto found =
            std::find_if(items.begin(), items.end(), [=](const ToolItem& item) { return item.icons[which]; });
        if (found != items.end())
            sizes[which] = static_cast<int>(icon_size(static_cast<HICON>(found->icons[which])).cx);
    }
    const PictureChoice best = choose_picture(sizes[0], sizes[1], wanted);
    return best.size ? best : PictureChoice{0, 1, wanted};
}

void ToolPictures::make(const ToolBarModel& model, int scale) {
    const PictureChoice best = choice(model, scale);
    made_size_ = best.size;
    made_ = std::make_unique<PixelBitmap>(std::max(model.count(), 1) * best.size, 2 * best.size);
    if (!*made_)
        return;
    const std::size_t size = static_cast<std::size_t>(best.size);
    const std::size_t row = static_cast<std::size_t>(std::max(model.count(), 1)) * size;
    std::fill_n(made_->bits(), row * size * 2, 0);
    for (int i = 0; i < model.count(); ++i)
        if (has(model.item(i)))
            make_one(model.item(i), best, made_->bits() + static_cast<std::size_t>(i) * size, row);
    std::transform(made_->bits(), made_->bits() + row * size, made_->bits() + row * size, greyed);
}

void ToolPictures::make_one(const ToolItem& item, const PictureChoice& best, Argb* to, std::size_t row) const {
    const auto size = static_cast<std::size_t>(best.size);
    if (void* const icon = item.icons[best.which] ? item.icons[best.which] : item.icons[!best.which]) {
        const std::vector<Argb> pixels = icon_pixels(static_cast<HICON>(icon), best.size);
        for (std::size_t i = 0; i < pixels.size(); ++i)
            to[i / size * row + i % size] = pixels[i];
        return;
    }
    const PictureStrip& strip = strips_[best.which];
    if (item.picture >= strip.count)
        return;
    for (int y = 0; y < best.size; ++y)
        for (int x = 0; x < best.size; ++x)
            to[static_cast<std::size_t>(y) * row + static_cast<std::size_t>(x)] =
                strip.at(item.picture, x / best.factor, y / best.factor);
}

void ToolPictures::draw(HDC dc, const ToolBarModel& model, int scale, int index, int x, int y, bool grey) {
    if (!made_)
        make(model, scale);
    if (!*made_ || !dc)
        return;
    const BLENDFUNCTION over = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, x, y, made_size_, made_size_, made_->dc(), index * made_size_, grey ? made_size_ : 0,
                    made_size_, made_size_, over);
}

} // namespace wnt

#include "widgets/painting/picture_screen.h"

#include <algorithm>
#include <cmath>

#include "out/device_state.h"
#include "widgets/painting/surface_owner.h"

namespace wnt {

namespace {

constexpr long small_picture = 400 * 400; // up to here edges are averaged from 4 x 4, above from 2 x 2
constexpr long band_pixels = 256 * 1024;  // drawn at once, which bounds the memory for it

// Mixed edge colours need a device that can show them.
int scale_for(HDC dc, int width, int height) {
    if (few_colours(dc))
        return 1;
    return std::int64_t{width} * height <= small_picture ? 4 : 2;
}

// True for two boxes of one colour that differ in one side only, as a bar that grew or shrank.
bool grown(const Picture::Figure& a, const Picture::Figure& b) {
    const BoxF& p = a.bounds;
    const BoxF& q = b.bounds;
    return a.kind == Picture::Kind::box && b.kind == Picture::Kind::box && a.colour == b.colour && !p.empty() &&
           !q.empty() && (p.left != q.left) + (p.right != q.right) + (p.bottom != q.bottom) + (p.top != q.top) == 1;
}

BoxF difference(const BoxF& p, const BoxF& q) {
    BoxF d = hull(p, q);
    if (p.left != q.left)
        d.right = std::max(p.left, q.left);
    else if (p.right != q.right)
        d.left = std::min(p.right, q.right);
    else if (p.bottom != q.bottom)
        d.top = std::max(p.bottom, q.bottom);
    else
        d.bottom = std::min(p.top, q.top);
    return d;
}

int nearest(float v) {
    return static_cast<int>(std::lround(v));
}

} // namespace

PictureScreen::Area PictureScreen::pixels_of(const BoxF& box) const {
    if (box.empty())
        return {};
    // Outlines reach a subpixel beyond a shape's corners.
    const float reach = 1.0f / static_cast<float>(scale_);
    const auto floor = [](float v, int limit) {
        return static_cast<int>(std::clamp(v, 0.0f, static_cast<float>(limit)));
    };
    const auto ceiling = [&](float v, int limit) {
        const int whole = floor(v, limit);
        return whole + (whole < limit && static_cast<float>(whole) < v);
    };
    return {floor(box.left - reach, frame_.width()), floor(box.bottom - reach, frame_.height()),
            ceiling(box.right + reach, frame_.width()), ceiling(box.top + reach, frame_.height())};
}

bool PictureScreen::overlap(const Area& a, const Area& b) {
    return a.left < b.right && b.left < a.right && a.bottom < b.top && b.bottom < a.top;
}

// Areas that meet become one, unless that would cover much more than both: a line across a column, say. Each area is
// drawn whole, so it does no harm that some lie over each other.
void PictureScreen::add_area(Area area) {
    if (area.empty())
        return;
    for (std::size_t i = 0; i < areas_.size();) {
        const Area& other = areas_[i];
        const Area both = {std::min(area.left, other.left), std::min(area.bottom, other.bottom),
                           std::max(area.right, other.right), std::max(area.top, other.top)};
        if (!overlap(other, area) || 2 * both.size() > 3 * (area.size() + other.size())) {
            ++i;
            continue;
        }
        area = both;
        areas_[i] = areas_.back();
        areas_.pop_back();
        i = 0;
    }
    areas_.push_back(area);
}

void PictureScreen::collect_changes(const Picture& shown, const Picture& value) {
    areas_.clear();
    const std::size_t before = shown.figures().size();
    const std::size_t after = value.figures().size();
    for (std::size_t i = 0; i < std::max(before, after); ++i) {
        if (i < before && i < after && Picture::same(shown, value, i))
            continue;
        if (i < before && i < after && grown(shown.figures()[i], value.figures()[i])) {
            add_area(pixels_of(difference(shown.figures()[i].bounds, value.figures()[i].bounds)));
            continue;
        }
        if (i < before)
            add_area(pixels_of(shown.figures()[i].bounds));
        if (i < after)
            add_area(pixels_of(value.figures()[i].bounds));
    }
}

void PictureScreen::release() {
    face_.release();
    frame_.release();
    fonts_.release();
    raster_ = {};
}

void PictureScreen::release_fonts() {
    for (HDC dc : {face_.dc(), frame_.dc()})
        ::SelectObject(dc, ::GetStockObject(SYSTEM_FONT));
    fonts_.release();
}

void PictureScreen::draw_all(CWntOut& out, int width, int height, const Picture& face, const Picture& value) {
    if (!holds(width, height) && !(face_.create(width, height) && frame_.create(width, height))) {
        release();
        if (!face.figures().empty()) { // its ground at least, not what was there before
            prime_colours(out);
            out.fillcolour(COLORREF{face.figures()[0].colour}, 0);
            out.boxa2(0, 0, width - 1, height - 1);
        }
        return;
    }
    if (fonts_.many())
        release_fonts();
    scale_ = scale_for(out.dc, width, height);
    const Area whole = {0, 0, width, height};
    render(face_, face, whole);
    show_face(whole);
    render(frame_, value, whole);
    present(out, whole);
}

void PictureScreen::draw_changes(CWntOut& out, const Picture& shown, const Picture& value) {
    collect_changes(shown, value);
    for (const Area& area : areas_) {
        show_face(area);
        render(frame_, value, area);
        present(out, area);
    }
}

// Puts the face alone back into the frame.
void PictureScreen::show_face(const Area& area) {
    for (int y = frame_.height() - area.top; y < frame_.height() - area.bottom; ++y)
        std::copy_n(face_.row(y) + area.left, area.right - area.left, frame_.row(y) + area.left);
}

void PictureScreen::present(CWntOut& out, const Area& area) {
    const int row = frame_.height() - area.top;
    ::BitBlt(out.dc, area.left, row, area.right - area.left, area.top - area.bottom, frame_.dc(), area.left, row,
             SRCCOPY);
}

void PictureScreen::render(MemorySurface& target, const Picture& picture, const Area& area) {
    render_shapes(target, picture, area);
    render_texts(target, picture, area);
}

void PictureScreen::render_shapes(MemorySurface& target, const Picture& picture, const Area& area) {
    const auto& figures = picture.figures();
    const auto drawn = [&](const Picture::Figure& f, const Area& part) {
        return f.kind != Picture::Kind::text && overlap(pixels_of(f.bounds), part);
    };
    if (std::none_of(figures.begin(), figures.end(), [&](const Picture::Figure& f) { return drawn(f, area); }))
        return;
    const Canvas canvas = {target.row(0), target.width(), target.height()};
    const int rows = static_cast<int>(std::max(band_pixels / (area.right - area.left), 1L));
    for (int bottom = area.bottom; bottom < area.top; bottom += rows) {
        const Area band = {area.left, bottom, area.right, std::min(bottom + rows, area.top)};
        raster_.begin(canvas, {band.left, canvas.height - band.top, band.right, canvas.height - band.bottom}, scale_);
        for (const auto& figure : figures) {
            if (!drawn(figure, band))
                continue;
            if (figure.kind == Picture::Kind::box)
                raster_.box(figure.bounds, figure.colour);
            else
                raster_.polygon(picture.points(figure), static_cast<int>(figure.count), figure.colour);
        }
        raster_.finish();
    }
}

void PictureScreen::render_texts(MemorySurface& target, const Picture& picture, const Area& area) {
    static constexpr UINT alignments[] = {TA_LEFT, TA_RIGHT, TA_CENTER};
    const HDC dc = target.dc();
    const int height = target.height();
    for (const auto& figure : picture.figures()) {
        if (figure.kind != Picture::Kind::text)
            continue;
        const Area cell = pixels_of(figure.bounds);
        if (!overlap(cell, area))
            continue;
        const RECT clip = {std::max(cell.left, area.left), height - std::min(cell.top, area.top),
                           std::min(cell.right, area.right), height - std::max(cell.bottom, area.bottom)};
        fonts_.select(dc, figure.tenths);
        ::SetTextColor(dc, COLORREF{figure.colour});
        ::SetTextAlign(dc, TA_BOTTOM | alignments[static_cast<int>(figure.align)]);
        const std::string_view text = picture.characters(figure);
        ::ExtTextOutA(dc, nearest(figure.at.x), height - nearest(figure.at.y), ETO_CLIPPED, &clip, text.data(),
                      static_cast<UINT>(text.size()), nullptr);
    }
    ::GdiFlush();
}

} // namespace wnt

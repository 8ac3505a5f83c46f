#include "widgets/painting/picture_screen.h"

#include <algorithm>
#include <cmath>

#include "out/device_state.h"
#include "widgets/painting/supersample.h"
#include "widgets/painting/surface_owner.h"

namespace wnt {

namespace {

constexpr long small_picture = 400 * 400;   // up to here edges are averaged from 4 x 4, above from 2 x 2
constexpr long band_subpixels = 512 * 1024; // work area for enlarged shapes

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
    auto bound = [](float v, int limit) { return static_cast<int>(std::clamp(v, 0.0f, static_cast<float>(limit))); };
    return {bound(std::floor(box.left - reach), frame_.width()), bound(std::floor(box.bottom - reach), frame_.height()),
            bound(std::ceil(box.right + reach), frame_.width()), bound(std::ceil(box.top + reach), frame_.height())};
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
    scratch_.release();
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
    scale_ = scale_for(out.dc, width, height);
    const Area whole = {0, 0, width, height};
    render(face_, face, whole);
    ::BitBlt(frame_.dc(), 0, 0, width, height, face_.dc(), 0, 0, SRCCOPY);
    render(frame_, value, whole);
    present(out, whole);
}

void PictureScreen::draw_changes(CWntOut& out, const Picture& shown, const Picture& value) {
    collect_changes(shown, value);
    for (const Area& area : areas_) {
        const int width = area.right - area.left;
        const int height = area.top - area.bottom;
        const int row = frame_.height() - area.top;
        ::BitBlt(frame_.dc(), area.left, row, width, height, face_.dc(), area.left, row, SRCCOPY);
        render(frame_, value, area);
        present(out, area);
    }
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
    if (std::none_of(figures.begin(), figures.end(), [&](const Picture::Figure& f) {
            return f.kind != Picture::Kind::text && overlap(pixels_of(f.bounds), area);
        }))
        return;
    const long row_subpixels = static_cast<long>(area.right - area.left) * scale_ * scale_;
    const int rows = static_cast<int>(std::max(band_subpixels / row_subpixels, 1L));
    for (int bottom = area.bottom; bottom < area.top; bottom += rows)
        render_band(target, picture, {area.left, bottom, area.right, std::min(bottom + rows, area.top)});
}

// The work area grows to what bands of different shapes need, but not to the product of the widest and the highest.
bool PictureScreen::make_scratch(int width, int height) {
    if (scratch_.width() >= width && scratch_.height() >= height)
        return true;
    const int both_width = std::max(scratch_.width(), width);
    const int both_height = std::max(scratch_.height(), height);
    return std::int64_t{both_width} * both_height <= 2 * band_subpixels ? scratch_.create(both_width, both_height)
                                                                        : scratch_.create(width, height);
}

void PictureScreen::render_band(MemorySurface& target, const Picture& picture, const Area& band) {
    const int width = band.right - band.left;
    const int height = band.top - band.bottom;
    if (!make_scratch(width * scale_, height * scale_))
        return;
    const auto pitch = static_cast<std::size_t>(scratch_.width());
    const int first_row = target.height() - band.top;
    for (int y = 0; y < height; ++y)
        enlarge_row(target.row(first_row + y) + band.left, width, scratch_.row(y * scale_), pitch, scale_);

    CWntOut& out = scratch_.out();
    out.xmax = width * scale_ - 1;
    out.ymax = band.top * scale_ - 1; // the band's upper edge is the picture's first row
    ::IntersectClipRect(out.dc, 0, 0, width * scale_, height * scale_);
    for (const auto& figure : picture.figures())
        if (figure.kind != Picture::Kind::text && overlap(pixels_of(figure.bounds), band))
            draw_shape(out, picture, figure, band.left * scale_);
    ::SelectClipRgn(out.dc, nullptr);
    ::GdiFlush();

    for (int y = 0; y < height; ++y)
        average_row(scratch_.row(y * scale_), pitch, target.row(first_row + y) + band.left, width, scale_);
}

void PictureScreen::draw_shape(CWntOut& out, const Picture& picture, const Picture::Figure& figure, int left_subpixel) {
    const auto k = static_cast<float>(scale_);
    out.linecolour(COLORREF{figure.colour}, 0);
    out.fillcolour(COLORREF{figure.colour}, 0);
    if (figure.kind == Picture::Kind::box) {
        const BoxF& b = figure.bounds;
        const int left = nearest(b.left * k);
        const int bottom = nearest(b.bottom * k);
        const int right = std::max(nearest(b.right * k), left + 1);
        const int top = std::max(nearest(b.top * k), bottom + 1);
        out.boxa2(left - left_subpixel, bottom, right - 1 - left_subpixel, top - 1);
        return;
    }
    const PointF* points = picture.points(figure);
    corners_.clear();
    for (std::uint32_t i = 0; i < figure.count; ++i)
        corners_.push_back({nearest(points[i].x * k) - left_subpixel, nearest(points[i].y * k)});
    out.solidpoly(corners_.data(), static_cast<int>(corners_.size()));
}

void PictureScreen::render_texts(MemorySurface& target, const Picture& picture, const Area& area) {
    static_assert(static_cast<int>(HAlign::left) == 0 && static_cast<int>(HAlign::right) == 1 &&
                  static_cast<int>(HAlign::centre) == 2); // as the surface counts them
    CWntOut& out = target.out();
    for (const auto& figure : picture.figures()) {
        if (figure.kind != Picture::Kind::text)
            continue;
        Area clip = pixels_of(figure.bounds);
        if (!overlap(clip, area))
            continue;
        clip = {std::max(clip.left, area.left), std::max(clip.bottom, area.bottom), std::min(clip.right, area.right),
                std::min(clip.top, area.top)};
        out.setclip(clip.left, clip.bottom, clip.right - 1, clip.top - 1);
        out.linecolour(COLORREF{figure.colour}, 0);
        out.fontsize = figure.tenths;
        const std::string_view text = picture.characters(figure);
        // The surface's lower edge of a text is the first row below it.
        out.chars_len(nearest(figure.at.x), nearest(figure.at.y) - 1, static_cast<int>(text.size()),
                      const_cast<char*>(text.data()), static_cast<int>(figure.align));
    }
    ::SelectClipRgn(target.dc(), nullptr);
    ::GdiFlush();
}

} // namespace wnt

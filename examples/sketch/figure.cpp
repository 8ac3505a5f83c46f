#include "figure.h"

#include <algorithm>
#include <cmath>

// A change of what is stored wants another number: files of other numbers are refused.
constexpr int figure_schema = 1;

IMPLEMENT_SERIAL(CFigure, CObject, figure_schema)
IMPLEMENT_SERIAL(CLineFigure, CFigure, figure_schema)
IMPLEMENT_SERIAL(CRectangleFigure, CFigure, figure_schema)
IMPLEMENT_SERIAL(CEllipseFigure, CFigure, figure_schema)
IMPLEMENT_SERIAL(CFreeHandFigure, CFigure, figure_schema)
IMPLEMENT_SERIAL(CTextFigure, CFigure, figure_schema)

namespace {

double distance(CPoint point, CPoint from, CPoint to) {
    const double dx = to.x - from.x, dy = to.y - from.y, square = dx * dx + dy * dy;
    const double along = square == 0 ? 0 : ((point.x - from.x) * dx + (point.y - from.y) * dy) / square;
    const double at = std::clamp(along, 0.0, 1.0);
    return std::hypot(point.x - from.x - at * dx, point.y - from.y - at * dy);
}

// How often a ray to the right crosses the outline.
bool is_inside(CPoint point, const std::vector<CPoint>& closed) {
    bool inside = false;
    for (std::size_t i = 1; i < closed.size(); ++i) {
        const CPoint a = closed[i - 1], b = closed[i];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + static_cast<double>(b.x - a.x) * (point.y - a.y) / (b.y - a.y))
            inside = !inside;
    }
    return inside;
}

[[noreturn]] void refuse() {
    AfxThrowArchiveException(CArchiveException::genericException);
}

// The size of a text whose letters are a thousand high, which all its sizes follow.
CSize thousand_high(const CString& text) {
    CWindowDC screen(nullptr);
    CFont font;
    font.CreateFont(-1000, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    CFont* before = screen.SelectObject(&font);
    const CSize size = screen.GetTextExtent(text);
    screen.SelectObject(before);
    return size;
}

} // namespace

void CFigure::Set(std::vector<CPoint> points, const FigureStyle& style) {
    points_ = std::move(points);
    style_ = style;
}

bool CFigure::IsValid() const {
    const auto in = [](LONG place) { return place >= -farthest && place <= farthest; };
    const auto near_enough = [in](CPoint p) { return in(p.x) && in(p.y); };
    return points_.size() >= 2 && points_.size() <= MostPoints() && style_.IsValid() &&
           std::all_of(points_.begin(), points_.end(), near_enough);
}

void CFigure::Draw(Canvas& canvas) const {
    const std::vector<CPoint> outline = Outline();
    if (outline.size() > 2 && outline.front() == outline.back())
        canvas.Fill(outline, style_.fill_colour);
    canvas.Stroke(outline, style_);
}

bool CFigure::IsHit(CPoint point, int reach) const {
    const std::vector<CPoint> outline = Outline();
    const double near_enough = reach + style_.width / 2.0;
    for (std::size_t i = 1; i < outline.size(); ++i)
        if (distance(point, outline[i - 1], outline[i]) <= near_enough)
            return true;
    return style_.fill_colour != FigureStyle::no_fill && outline.front() == outline.back() && is_inside(point, outline);
}

CRect CFigure::Bounds() const {
    CRect bounds(points_.front(), points_.front());
    for (const CPoint& p : points_) {
        bounds.left = std::min(bounds.left, p.x);
        bounds.right = std::max(bounds.right, p.x);
        bounds.top = std::min(bounds.top, p.y);
        bounds.bottom = std::max(bounds.bottom, p.y);
    }
    return bounds;
}

std::unique_ptr<CFigure> CFigure::Copy() const {
    std::unique_ptr<CFigure> copy(static_cast<CFigure*>(GetRuntimeClass()->CreateObject()));
    if (!copy)
        AfxThrowMemoryException();
    copy->Set(points_, style_);
    copy->CopyRest(*this);
    return copy;
}

// The whole figure stops where one of its points would leave the bounds.
std::unique_ptr<CFigure> CFigure::Moved(CSize by) const {
    const CRect bounds = Bounds();
    by.cx = std::clamp<LONG>(by.cx, -farthest - bounds.left, farthest - bounds.right);
    by.cy = std::clamp<LONG>(by.cy, -farthest - bounds.top, farthest - bounds.bottom);
    auto moved = Copy();
    for (CPoint& p : moved->points_)
        p += by;
    return moved;
}

std::unique_ptr<CFigure> CFigure::WithStyle(const FigureStyle& style) const {
    auto styled = Copy();
    styled->style_ = style;
    return styled;
}

void CFigure::Serialize(CArchive& archive) {
    if (archive.IsStoring()) {
        archive << style_.line_colour << style_.fill_colour << style_.pattern << style_.width;
        archive.WriteCount(points_.size());
        for (const CPoint& p : points_)
            archive << p;
        return;
    }
    archive >> style_.line_colour >> style_.fill_colour >> style_.pattern >> style_.width;
    const DWORD_PTR count = archive.ReadCount();
    if (count > MostPoints())
        refuse();
    points_.resize(count);
    for (CPoint& p : points_)
        archive >> p;
    if (!IsValid())
        refuse();
}

std::vector<CPoint> CRectangleFigure::Outline() const {
    const CPoint a = points_[0], b = points_[1];
    return {a, CPoint(b.x, a.y), b, CPoint(a.x, b.y), a};
}

std::vector<CPoint> CEllipseFigure::Outline() const {
    constexpr int corners = 120;
    constexpr double turn = 6.283185307179586;
    const CPoint a = points_[0], b = points_[1];
    std::vector<CPoint> outline;
    for (int i = 0; i < corners; ++i) {
        const double angle = turn * i / corners;
        outline.emplace_back(std::lround((a.x + b.x) / 2.0 + (b.x - a.x) / 2.0 * std::cos(angle)),
                             std::lround((a.y + b.y) / 2.0 + (b.y - a.y) / 2.0 * std::sin(angle)));
    }
    outline.push_back(outline.front());
    return outline;
}

CTextFigure::CTextFigure(CPoint at, int height, const CString& text, const FigureStyle& style)
    : text_(text), height_(height) {
    const CSize size = thousand_high(text);
    const LONG right = at.x + ::MulDiv(size.cx, height, 1000), top = at.y + ::MulDiv(size.cy, height, 1000);
    // What is written beyond the bounds is not hit there, but the figure stays one that can be read back.
    Set({at, CPoint(std::min<LONG>(right, farthest), std::min<LONG>(top, farthest))}, style);
}

void CTextFigure::Draw(Canvas& canvas) const {
    canvas.Text(points_[0], height_, text_, style_.line_colour);
}

bool CTextFigure::IsHit(CPoint point, int reach) const {
    CRect bounds = Bounds();
    bounds.InflateRect(reach, reach);
    return bounds.PtInRect(point);
}

void CTextFigure::CopyRest(const CFigure& from) {
    const auto& text = static_cast<const CTextFigure&>(from);
    text_ = text.text_;
    height_ = text.height_;
}

void CTextFigure::Serialize(CArchive& archive) {
    CFigure::Serialize(archive);
    if (archive.IsStoring()) {
        archive << height_ << text_;
        return;
    }
    archive >> height_ >> text_;
    if (height_ < lowest || height_ > highest || text_.IsEmpty() || text_.GetLength() > longest)
        refuse();
}

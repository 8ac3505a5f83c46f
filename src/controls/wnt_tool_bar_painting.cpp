#include <algorithm>
#include <cstdlib>

#include "controls/control_font.h"
#include "controls/tool_bar_drag.h"
#include "controls/tool_bar_model.h"
#include "controls/tool_bar_parts.h"
#include "controls/tool_pictures.h"
#include "controls/wnt_tool_bar.h"
#include "widgets/painting/paint_pass.h"

namespace {

// A little of a colour over another.
COLORREF tinted(HDC dc, COLORREF ground, COLORREF tint) {
    if (::GetDeviceCaps(dc, BITSPIXEL) <= 8)
        return ground; // few colours would dither it
    const auto mixed = [](int under, int over) { return (7 * under + over) / 8; };
    return RGB(mixed(GetRValue(ground), GetRValue(tint)), mixed(GetGValue(ground), GetGValue(tint)),
               mixed(GetBValue(ground), GetBValue(tint)));
}

// Row by row, so that it is the same at every place.
void paint_arrow(wnt::PaintPass& pass, CPoint middle, int reach, bool to_right, COLORREF colour) {
    for (int i = 0; i < reach; ++i) {
        const int half = reach - 1 - i;
        const int at = i - reach / 2;
        if (to_right)
            pass.fill(CRect(middle.x + at, middle.y - half, middle.x + at + 1, middle.y + half + 1), colour);
        else
            pass.fill(CRect(middle.x - half, middle.y + at, middle.x + half + 1, middle.y + at + 1), colour);
    }
}

} // namespace

/// What all items of one painting share: asking the system for each would take as long as to draw some.
struct CWntToolBar::Painting {
    wnt::PaintPass& pass;
    const wnt::ToolLook look;
    const bool enabled;
    const bool focused;
    const COLORREF ink = ::GetSysColor(COLOR_BTNTEXT);
    const COLORREF grey = ::GetSysColor(COLOR_GRAYTEXT);
};

BOOL CWntToolBar::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CWntToolBar::OnSysColorChange() {
    wnt::PaneWindow::OnSysColorChange();
    Invalidate(FALSE);
}

void CWntToolBar::OnEnable(BOOL enabled) {
    wnt::PaneWindow::OnEnable(enabled);
    Invalidate(FALSE);
}

void CWntToolBar::OnPaint() {
    wnt::PaintPass pass(*this);
    pass.fill(pass.area(), ::GetSysColor(COLOR_BTNFACE));
    const Painting all = {pass, look(), !(GetStyle() & WS_DISABLED), ::GetFocus() == m_hWnd};
    for (int i = 0; i < model_->count(); ++i)
        if (const CRect place = place_of(i); !place.IsRectEmpty() && pass.touches(place))
            paint_item(all, i, place);
    if (const CRect place = place_of(wnt::tool_chevron); !place.IsRectEmpty() && pass.touches(place))
        paint_chevron(pass, place);
    if (drag_)
        pass.fill(mark_at(drag_->to), ::GetSysColor(COLOR_BTNTEXT));
}

void CWntToolBar::paint_separator(wnt::PaintPass& pass, CRect place) const {
    const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW), light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const CPoint middle = place.CenterPoint();
    const int inset = ::MulDiv(3, scale_, 100);
    if (model_->upright) {
        place.DeflateRect(inset, 0);
        pass.fill(CRect(place.left, middle.y - 1, place.right, middle.y), dark);
        pass.fill(CRect(place.left, middle.y, place.right, middle.y + 1), light);
    } else {
        place.DeflateRect(0, inset);
        pass.fill(CRect(middle.x - 1, place.top, middle.x, place.bottom), dark);
        pass.fill(CRect(middle.x, place.top, middle.x + 1, place.bottom), light);
    }
}

// The item's ground, by its state; a split one has two parts.
void CWntToolBar::paint_ground(wnt::PaintPass& pass, int index, const CRect& place, const CRect& arrow) const {
    const wnt::ToolItem& item = model_->item(index);
    const bool sunk = pressed_ == index && pressed_inside_ && !drag_;
    if (item.check != wnt::unchecked)
        pass.fill(place, tinted(pass.out().dc, ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNSHADOW)));
    if (sunk || item.check == wnt::checked)
        pass.edge(place, false);
    else if (hot_ == index && item.enabled)
        pass.edge(place, true);
    if (item.kind == wnt::ToolKind::split && (sunk || hot_ == index) && item.enabled) {
        CRect line = arrow;
        line.DeflateRect(0, 1);
        pass.fill(CRect(line.left, line.top, line.left + 1, line.bottom), ::GetSysColor(COLOR_BTNSHADOW));
    }
}

void CWntToolBar::paint_item(const Painting& all, int index, const CRect& place) {
    wnt::PaintPass& pass = all.pass;
    const wnt::ToolItem& item = model_->item(index);
    if (item.kind == wnt::ToolKind::separator)
        return paint_separator(pass, place);
    if (item.kind == wnt::ToolKind::stretch || item.kind == wnt::ToolKind::window)
        return;
    const wnt::ToolParts parts =
        wnt::tool_parts(content_of(index), all.look, {place.left, place.top, place.right, place.bottom});
    const bool usable = (item.enabled || item.kind == wnt::ToolKind::label) && all.enabled;
    const COLORREF ink = usable ? all.ink : all.grey;
    CPoint shift;
    if (wnt::is_button(item.kind)) {
        paint_ground(pass, index, place, wnt::rect_of(parts.arrow));
        if (pressed_ == index && pressed_inside_ && !drag_)
            shift = CPoint(1, 1);
    }
    if (parts.picture.width() > 0)
        pictures_->draw(pass.out().dc, *model_, scale_, index, parts.picture.left + shift.x,
                        parts.picture.top + shift.y, !usable);
    if (CRect text = wnt::rect_of(parts.text); text.IntersectRect(&text, &place))
        pass.text(text + shift, item.text.c_str(), DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS,
                  ink, &font_->font());
    if (const CRect arrow = wnt::rect_of(parts.arrow); !arrow.IsRectEmpty())
        paint_arrow(pass, arrow.CenterPoint() + shift, std::max(all.look.arrow / 4, 2), model_->upright, ink);
    if (focused_ == index && all.focused) {
        CRect inside = place;
        inside.DeflateRect(1, 1);
        pass.focus(inside);
    }
}

void CWntToolBar::paint_chevron(wnt::PaintPass& pass, const CRect& place) const {
    if (pressed_ == wnt::tool_chevron)
        pass.edge(place, false);
    else if (hot_ == wnt::tool_chevron)
        pass.edge(place, true);
    const COLORREF ink = ::GetSysColor(COLOR_BTNTEXT);
    const int reach = std::max(::MulDiv(3, scale_, 100), 2), thick = std::max(::MulDiv(1, scale_, 100), 1);
    const CPoint middle = place.CenterPoint();
    for (const int start : {-reach - thick / 2, thick})
        for (int i = 1 - reach; i < reach; ++i) {
            const int out = start + reach - 1 - std::abs(i);
            const CPoint at = middle + (model_->upright ? CPoint(i, out) : CPoint(out, i));
            pass.fill(CRect(at, CSize(model_->upright ? 1 : thick, model_->upright ? thick : 1)), ink);
        }
    if (focused_ == wnt::tool_chevron && ::GetFocus() == m_hWnd) {
        CRect inside = place;
        inside.DeflateRect(1, 1);
        pass.focus(inside);
    }
}

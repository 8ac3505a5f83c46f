#include "controls/tabs_painter.h"

#include <algorithm>

#include "controls/control_font.h"
#include "script/colours.h"
#include "widgets/painting/memory_bitmap.h"
#include "widgets/painting/paint_pass.h"

namespace wnt {

namespace {

constexpr int unselected_percent = 92; // of the ground's brightness
constexpr BYTE disabled_veil = 150;    // of the ground over an icon

COLORREF colour_of(int index, int system) {
    return index == system_colour ? ::GetSysColor(system) : colour_values[index];
}

COLORREF darker(COLORREF colour, int percent) {
    return RGB(GetRValue(colour) * percent / 100, GetGValue(colour) * percent / 100, GetBValue(colour) * percent / 100);
}

struct Colours {
    COLORREF ground, behind, text, sun, shadow;

    Colours(const TabsModel& model, HDC dc)
        : ground(colour_of(model.background, COLOR_BTNFACE)), behind(ground),
          text(colour_of(model.text_colour, COLOR_BTNTEXT)), sun(colour_of(model.sun, COLOR_BTNHIGHLIGHT)),
          shadow(colour_of(model.shadow, COLOR_3DDKSHADOW)) {
        if (::GetDeviceCaps(dc, BITSPIXEL) > 8) // few colours would dither it
            behind = darker(ground, unselected_percent);
    }
    /// Of an edge: light comes from the upper left.
    COLORREF outer(TabsSide side) const { return side == TabsSide::top || side == TabsSide::left ? sun : shadow; }
};

// Not longer than the room, with dots where it was.
void fit(const ControlFont& font, std::string& text, int room) {
    if (font.width(text) <= room)
        return;
    const int dots = font.width("...");
    while (!text.empty() && font.width(text) + dots > room)
        text.pop_back();
    text += "...";
}

/// A text that runs upwards or downwards in the middle of its box. The system's text layout does not turn.
class TurnedText {
public:
    TurnedText(PaintPass& pass, const CRect& box, TabsSide side, ControlFont& font)
        : pass_(pass), box_(box), up_(side == TabsSide::left), lying_(font) {
        LOGFONT turned = {};
        font.font().GetLogFont(&turned);
        turned.lfEscapement = turned.lfOrientation = up_ ? 900 : 2700;
        font_.CreateFontIndirect(&turned);
    }

    void write(const std::string& marked, COLORREF ink) {
        int mark = -1;
        std::string text = plain_text(marked, mark);
        fit(lying_, text, box_.Height());
        start_ = (box_.Height() - lying_.width(text)) / 2;
        above_ = (box_.Width() - lying_.row()) / 2;
        const HDC dc = pass_.out().dc;
        const HGDIOBJ before = ::SelectObject(dc, font_.GetSafeHandle());
        const UINT alignment = ::SetTextAlign(dc, TA_LEFT | TA_TOP);
        ::SetBkMode(dc, TRANSPARENT);
        ::SetTextColor(dc, ink);
        const CRect start = place(0, 0, 0, 0);
        ::ExtTextOutA(dc, start.left, start.top, ETO_CLIPPED, &box_, text.c_str(), static_cast<UINT>(text.size()),
                      nullptr);
        TEXTMETRIC metric = {};
        ::GetTextMetrics(dc, &metric);
        ::SetTextAlign(dc, alignment);
        ::SelectObject(dc, before);
        if (const auto at = static_cast<std::size_t>(mark); mark >= 0 && at < text.size())
            pass_.fill(place(lying_.width(text.substr(0, at)), metric.tmAscent + 1,
                             lying_.width(text.substr(0, at + 1)), metric.tmAscent + 2),
                       ink);
    }

private:
    // Of a box that counts along the text, and down from its upper edge.
    CRect place(int from, int top, int to, int bottom) const {
        if (up_)
            return CRect(box_.left + above_ + top, box_.bottom - start_ - to, box_.left + above_ + bottom,
                         box_.bottom - start_ - from);
        return CRect(box_.right - above_ - bottom, box_.top + start_ + from, box_.right - above_ - top,
                     box_.top + start_ + to);
    }

    PaintPass& pass_;
    CRect box_;
    bool up_;
    ControlFont& lying_;
    CFont font_;
    int start_ = 0, above_ = 0;
};

class StripPainter {
public:
    StripPainter(PaintPass& pass, const TabsLook& look)
        : pass_(pass), look_(look), layout_(look.layout), colours_(look.model, pass.out().dc) {}

    void paint() {
        pass_.fill(pass_.area(), colours_.ground);
        const PixelRect strip = layout_.along(layout_.strip);
        fill({strip.left, strip.bottom - 1, strip.right, strip.bottom}, colours_.outer(layout_.side));
        const int selected = look_.model.selected();
        for (int tab = layout_.first; tab < layout_.first + layout_.shown; ++tab)
            if (tab != selected)
                paint_tab(tab, layout_.tabs[static_cast<std::size_t>(tab)], false);
        if (layout_.shows(selected))
            paint_tab(selected, layout_.lifted(selected, look_.sizes), true);
        paint_button(layout_.back, TabsPoint::back, layout_.first > 0);
        paint_button(layout_.on, TabsPoint::on, layout_.first + layout_.shown < look_.model.count());
        paint_button(layout_.menu, TabsPoint::menu, true);
        if (look_.gap >= 0)
            pass_.fill(here(layout_.gap_mark(look_.gap, std::max(look_.sizes.lift, 2))),
                       ::GetSysColor(COLOR_HIGHLIGHT));
    }

private:
    CRect here(const PixelRect& r) const {
        return CRect(r.left, r.top, r.right, r.bottom) - CPoint(layout_.strip.left, layout_.strip.top);
    }
    // Seen as a strip at the top.
    void fill(const PixelRect& along, COLORREF colour) { pass_.fill(here(layout_.in_client(along)), colour); }

    void paint_shape(const PixelRect& b, COLORREF ground, bool selected) {
        fill({b.left, b.top + 2, b.right, b.bottom}, ground);
        fill({b.left + 1, b.top + 1, b.right - 1, b.top + 2}, ground);
        fill({b.left + 2, b.top, b.right - 2, b.top + 1}, colours_.outer(layout_.side));
        fill({b.left + 1, b.top + 1, b.left + 2, b.top + 2}, colours_.sun);
        fill({b.left, b.top + 2, b.left + 1, b.bottom}, colours_.sun);
        fill({b.right - 2, b.top + 1, b.right - 1, b.top + 2}, colours_.shadow);
        fill({b.right - 1, b.top + 2, b.right, b.bottom - (selected ? 1 : 0)}, colours_.shadow);
        if (selected)
            fill({b.left + 2, b.top + 1, b.right - 2, b.top + 1 + look_.sizes.lift}, ::GetSysColor(COLOR_HIGHLIGHT));
    }

    void paint_tab(int tab, const PixelRect& place, bool selected) {
        if (!pass_.touches(here(place)))
            return;
        const Tab& shown = look_.model.at(tab);
        const bool hot = look_.hot.index == tab && shown.enabled;
        const COLORREF ground = selected || hot ? colours_.ground : colours_.behind;
        paint_shape(layout_.along(place), ground, selected);
        const TabParts parts = layout_.parts(tab, look_.sizes, shown.icon != nullptr, shown.closable);
        paint_icon(here(parts.icon), static_cast<HICON>(shown.icon), shown.enabled, ground);
        paint_text(here(parts.text), shown);
        paint_close(here(parts.close), look_.hot.part == TabsPoint::close && look_.hot.index == tab);
        if (selected && look_.focused) {
            PixelRect inside = layout_.along(place);
            const int margin = look_.sizes.lift + 2;
            inside = {inside.left + margin, inside.top + margin, inside.right - margin, inside.bottom - margin};
            pass_.focus(here(layout_.in_client(inside)));
        }
    }

    void paint_text(const CRect& box, const Tab& tab) {
        const COLORREF ink = tab.enabled ? colours_.text : ::GetSysColor(COLOR_GRAYTEXT);
        const UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
        if (layout_.side == TabsSide::top || layout_.side == TabsSide::bottom)
            return pass_.text(box, tab.text.c_str(), format, ink, &look_.font.font());
        if (box.IsRectEmpty() || !pass_.out().dc)
            return;
        TurnedText(pass_, box, layout_.side, look_.font).write(tab.text, ink);
    }

    // In a tab that is cut there may be no room for it.
    void paint_icon(const CRect& box, HICON icon, bool enabled, COLORREF ground) {
        const HDC dc = pass_.out().dc;
        const int size = look_.sizes.icon;
        if (!icon || !dc || box.Size() != CSize(size, size))
            return;
        ::DrawIconEx(dc, box.left, box.top, icon, size, size, 0, nullptr, DI_NORMAL);
        MemoryBitmap veil;
        if (enabled || !veil.create(dc, size, size))
            return;
        const HBRUSH brush = ::CreateSolidBrush(ground);
        const RECT all = {0, 0, size, size};
        ::FillRect(veil.dc(), &all, brush);
        ::DeleteObject(brush);
        ::GdiAlphaBlend(dc, box.left, box.top, size, size, veil.dc(), 0, 0, size, size,
                        {AC_SRC_OVER, 0, disabled_veil, 0});
    }

    void paint_close(const CRect& box, bool hot) {
        if (box.Width() < look_.sizes.close || box.Height() < look_.sizes.close)
            return;
        if (hot)
            pass_.edge(box, !look_.pressed);
        const int reach = box.Width() / 4;
        const int thick = std::max(box.Width() / 14, 1) + 1;
        const CPoint middle = box.CenterPoint();
        for (int i = -reach; i <= reach; ++i)
            for (const int x : {middle.x + i, middle.x - i})
                pass_.fill(CRect(x - thick / 2, middle.y + i, x - thick / 2 + thick, middle.y + i + 1), colours_.text);
    }

    // A triangle: against the tabs' order, along it, or towards the page.
    void paint_button(const PixelRect& place, TabsPoint::Part part, bool enabled) {
        const PixelRect b = layout_.along(place);
        if (b.width() <= 0 || b.height() <= 0)
            return;
        const bool hot = look_.hot.part == part && enabled;
        pass_.edge(here(place), !(hot && look_.pressed));
        const COLORREF ink = enabled ? colours_.text : ::GetSysColor(COLOR_GRAYTEXT);
        const int reach = std::max(std::min(b.width(), b.height()) / 4, 1);
        const int u = (b.left + b.right) / 2, v = (b.top + b.bottom) / 2;
        for (int i = 0; i < reach; ++i) { // rows from the point to the base
            if (part == TabsPoint::menu)
                fill({u - i, v + reach / 2 - i, u + i + 1, v + reach / 2 - i + 1}, ink);
            else if (part == TabsPoint::back)
                fill({u - reach / 2 + i, v - i, u - reach / 2 + i + 1, v + i + 1}, ink);
            else
                fill({u + reach / 2 - i, v - i, u + reach / 2 - i + 1, v + i + 1}, ink);
        }
    }

    PaintPass& pass_;
    const TabsLook& look_;
    const TabsLayout& layout_;
    Colours colours_;
};

} // namespace

void paint_tabs(PaintPass& pass, const TabsLook& look) {
    StripPainter(pass, look).paint();
}

void paint_page_border(PaintPass& pass, const TabsModel& model, const TabsLayout& layout) {
    const Colours colours(model, pass.out().dc);
    pass.fill(pass.area(), colours.ground);
    CRect box = pass.area();
    const PixelRect& strip = layout.strip; // covers the border at its side, and the corners
    if (layout.side != TabsSide::right)
        pass.fill(CRect(box.right - 1, box.top, box.right, box.bottom), colours.shadow);
    if (layout.side != TabsSide::bottom)
        pass.fill(CRect(box.left, box.bottom - 1, box.right, box.bottom), colours.shadow);
    if (layout.side != TabsSide::left)
        pass.fill(CRect(box.left, strip.bottom < box.bottom ? strip.bottom : box.top, box.left + 1, box.bottom - 1),
                  colours.sun);
    if (layout.side != TabsSide::top)
        pass.fill(CRect(box.left, box.top, box.right - 1, box.top + 1), colours.sun);
}

} // namespace wnt

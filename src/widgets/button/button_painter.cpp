#include "widgets/button/button_painter.h"

#include <algorithm>
#include <string>

#include "script/keywords.h"
#include "script/values.h"

namespace wnt {

namespace {

constexpr int underline_length = 200; // intended: whatever the title's length

enum TitleStyle { title_plain, title_inset, title_outset, title_bold };

struct EdgeColours {
    int upper_left;
    int lower_right;
};

EdgeColours edge_colours(const Tcbtn_properties& p) {
    switch (p.bordertype) {
    case border_raised:
        return {p.clrsun, p.clrshadow};
    case border_sunk:
        return {p.clrshadow, p.clrsun};
    case border_flat:
        return {p.clrborder, p.clrborder};
    default:
        return {p.clrback, p.clrback}; // takes its room all the same
    }
}

// The border's lines from the outside in; each starts and ends where its neighbours meet it.
class BorderLines {
public:
    BorderLines(CWntOut& out, const Tcbtn_properties& p, const ButtonBox& box)
        : out_(out), box_(box), sides_(p.borderstyle), frame_(p.frame ? 1 : 0) {
        // Lines further in than the button is wide or high show nowhere.
        const int most = std::max(box.width, box.height);
        last_ = frame_ + std::clamp(p.borderheight, 0, most);
    }

    void upper_left() {
        for (int i = frame_ + 1; i <= last_; ++i) {
            if (sides_ & side_top)
                horizontal(box_.y + box_.height - i, i);
            if (sides_ & side_left)
                vertical(box_.x + i - 1, i);
        }
    }

    void lower_right() {
        for (int i = frame_ + 1; i <= last_; ++i) {
            if (sides_ & side_bottom)
                horizontal(box_.y + i - 1, i);
            if (sides_ & side_right)
                vertical(box_.x + box_.width - i, i);
        }
    }

private:
    void horizontal(int y, int i) {
        const int from = box_.x + (sides_ & side_left ? i - 1 : frame_);
        out_.line(from, y, box_.x + box_.width - 1 - (sides_ & side_right ? i : frame_), y);
    }

    void vertical(int x, int i) {
        const int from = box_.y + (sides_ & side_bottom ? i - 1 : frame_);
        out_.line(x, from, x, box_.y + box_.height - 1 - (sides_ & side_top ? i : frame_));
    }

    CWntOut& out_;
    const ButtonBox& box_;
    int sides_;
    int frame_;
    int last_;
};

// One pass of the title, shifted by (dx, dy).
struct TitlePass {
    CWntOut& out;
    const Tcbtn_properties& p;
    TitleAnchor at;
    std::string title;

    void draw(int colour, int dx, int dy, int underline_extra = 0) {
        out.linecolour(colour, 0);
        if (p.underline)
            out.hline(at.underline_x + dx, at.underline_y + 1 + dy, underline_length + underline_extra);
        out.chars(at.x + dx, at.y + dy, title.data(), p.align);
    }
};

} // namespace

void paint_button_background(CWntOut& out, const Tcbtn_properties& p, const ButtonBox& box, int mask) {
    if (mask & button_background) {
        out.fillcolour(p.clrback, 0);
        out.boxr2(box.x, box.y, box.width, box.height);
    }
    if (p.frame) {
        out.linecolour(p.clrborder, 0);
        out.boxr0(box.x, box.y, box.width - 1, box.height - 1);
    }
    const EdgeColours edges = edge_colours(p);
    BorderLines lines(out, p, box);
    out.linecolour(edges.upper_left, 0);
    lines.upper_left();
    out.linecolour(edges.lower_right, 0);
    lines.lower_right();
}

void paint_button_title(CWntOut& out, const Tcbtn_properties& p, const ButtonInside& inside) {
    if (inside.height() <= 0)
        return;
    out.linecolour(p.clrtext, 0);
    out.settext(inside.left, inside.bottom, inside.width(), inside.height() - 4, 0, 0);
    TitlePass pass = {out, p, title_anchor(p.align, inside), std::string(field_text(p.title))};
    switch (p.titlestyle) {
    case title_bold:
        pass.draw(p.clrtext, 0, 0, 1); // intended: its underline is one pixel longer
        out.chars(pass.at.x + 1, pass.at.y, pass.title.data(), p.align);
        break;
    case title_outset:
    case title_inset: {
        const bool raised = p.titlestyle == title_outset;
        pass.draw(raised ? p.clrsun : p.clrshadow, -1, 1);
        pass.draw(raised ? p.clrshadow : p.clrsun, 1, -1);
        pass.draw(p.clrtext, 0, 0);
        break;
    }
    default:
        pass.draw(p.clrtext, 0, 0);
        break;
    }
}

void move_button_picture(CWntOut& out, const Tcbtn_properties& p, const ButtonInside& inside, bool pressed) {
    const int w = inside.width();
    const int h = inside.height();
    if (w <= 0 || h <= 0)
        return;
    const bool movable = w > 2 && h > 2; // the surface would take a size of 0 for its own
    out.fillcolour(p.clrback, 0);
    if (pressed) {
        if (movable)
            out.scroll(inside.left, inside.bottom + 2, w - 2, h, 2, -2, 0);
        out.boxr2(inside.left, inside.top - 2, w, 2);
        out.boxr2(inside.left, inside.bottom, 2, h);
    } else {
        if (movable)
            out.scroll(inside.left + 2, inside.bottom, w - 2, h - 2, -2, 2, 0);
        out.boxr2(inside.left, inside.bottom, w, 2);
        out.boxr2(inside.left + w - 2, inside.bottom, 2, h);
    }
}

} // namespace wnt

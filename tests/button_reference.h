// A button's picture drawn by its rules with boxes and texts of a surface, which tests of their own judge.
#pragma once

#include "pixels.h"

#include <zopwnt.h>

#include <string>

struct ButtonReference {
    ButtonReference(int width, int height, const Tcbtn_properties& properties)
        : picture_(width, height), width_(width), height_(height), p_(properties) {
        surface_.targetmode = 1;
        surface_.reset(picture_.dc());
        surface_.xmax = width_ - 1;
        surface_.ymax = height_ - 1;
        surface_.fillcolour(2, 0); // at first black counts as in force
        if (!p_.visible)
            return;
        fill(0, 0, width_, height_, p_.clrback);
        border();
        if (top() > bottom())
            title();
    }

    /// What a press or a release makes of it: the border anew, the inside moved by two pixels.
    void move(bool pressed) {
        p_.bordertype = pressed ? 3 : 2;
        border();
        const int left = inset(), w = inner_width(), h = top() - bottom();
        if (pressed) {
            scroll(left, bottom() + 2, w - 2, h, 2, -2);
            fill(left, top() - 2, w, 2, p_.clrback), fill(left, bottom(), 2, h, p_.clrback);
        } else {
            scroll(left + 2, bottom(), w - 2, h - 2, -2, 2);
            fill(left, bottom(), w, 2, p_.clrback), fill(left + w - 2, bottom(), 2, h, p_.clrback);
        }
    }

    std::vector<COLORREF> pixels() const { return picture_.values(); }

private:
    enum Side { left_side = 1, right_side = 2, top_side = 4, bottom_side = 8 };

    int inset() const { return 1 + p_.borderheight + frame(); }
    int frame() const { return p_.frame != 0; }
    int bottom() const { return inset(); }
    int top() const { return height_ - 1 - inset(); }
    int inner_width() const { return width_ - 1 - 2 * inset(); }
    bool has(Side side) const { return (p_.borderstyle & side) != 0; }

    // x and y of the lower left pixel; width and height beyond it.
    void fill(int x, int y, int w, int h, int index) { box(x, y, x + w, y + h, index); }
    void box(int x1, int y1, int x2, int y2, int index) {
        surface_.fillcolour(index, 0);
        surface_.boxa2(x1, y1, x2, y2);
    }
    void scroll(int x, int y, int w, int h, int dx, int dy) {
        const int from = height_ - y - h;
        ::BitBlt(picture_.dc(), x + dx, from - dy, w, h, picture_.dc(), x, from, SRCCOPY);
    }
    void row(int from, int to, int y, int index) { box(from, y, to, y, index); }
    void column(int x, int from, int to, int index) { box(x, from, x, to, index); }

    void border() {
        const int f = frame(), w = width_, h = height_;
        if (f) {
            row(0, w - 1, 0, p_.clrborder), row(0, w - 1, h - 1, p_.clrborder);
            column(0, 0, h - 1, p_.clrborder), column(w - 1, 0, h - 1, p_.clrborder);
        }
        const int by_type[][2] = {{p_.clrback, p_.clrback},
                                  {p_.clrborder, p_.clrborder},
                                  {p_.clrsun, p_.clrshadow},
                                  {p_.clrshadow, p_.clrsun}};
        const auto& [lit, dark] = by_type[p_.bordertype];
        for (const bool upper : {true, false})
            for (int i = f + 1; i <= f + p_.borderheight; ++i) {
                const int x1 = has(left_side) ? i - 1 : f, x2 = w - 1 - (has(right_side) ? i : f);
                const int y1 = has(bottom_side) ? i - 1 : f, y2 = h - 1 - (has(top_side) ? i : f);
                if (has(upper ? top_side : bottom_side))
                    row(x1, x2, upper ? h - i : i - 1, upper ? lit : dark);
                if (has(upper ? left_side : right_side))
                    column(upper ? i - 1 : w - i, y1, y2, upper ? lit : dark);
            }
    }

    void title() {
        constexpr int underline[3][2] = {{0, 0}, {-200, -15}, {-100, -7}};
        const bool known = p_.align <= 10 && p_.align % 4 != 3;
        const int across = p_.align % 4, up = p_.align / 4;
        const int xs[] = {inset(), width_ - 1 - inset(), inset() + inner_width() / 2};
        const int ys[] = {bottom(), top(), bottom() + (top() - bottom()) / 2};
        const POINT at = known ? POINT{xs[across], ys[up]} : POINT{0, 0};
        const POINT line = known ? POINT{at.x + underline[across][0], at.y + underline[up][1]} : at;
        const auto pass = [&](int index, int dx, int dy, int longer = 0) {
            if (p_.underline)
                row(line.x + dx, line.x + dx + 200 + longer, line.y + 1 + dy, index);
            text(at.x + dx, at.y + dy, index);
        };
        enum { plain, inset_style, outset, bold };
        if (p_.titlestyle == inset_style || p_.titlestyle == outset) {
            pass(p_.titlestyle == outset ? p_.clrsun : p_.clrshadow, -1, 1);
            pass(p_.titlestyle == outset ? p_.clrshadow : p_.clrsun, 1, -1);
        }
        pass(p_.clrtext, 0, 0, p_.titlestyle == bold);
        if (p_.titlestyle == bold)
            text(at.x + 1, at.y, p_.clrtext);
    }

    void text(int x, int y, int index) {
        std::string shown(p_.title, strnlen(p_.title, sizeof p_.title));
        surface_.linecolour(index, 0);
        surface_.settext(0, 0, 0, top() - bottom() - 4, 0, 0);
        surface_.chars(x, y, shown.data(), p_.align);
    }

    Picture picture_;
    int width_, height_;
    Tcbtn_properties p_;
    CWntOut surface_;
};

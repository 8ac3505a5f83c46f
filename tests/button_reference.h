// A button's picture drawn by its rules with plain GDI calls.
#pragma once

#include "pixels.h"

#include <zopwnt.h>

#include <string>

class ButtonReference {
public:
    ButtonReference(int width, int height, const Tcbtn_properties& properties)
        : picture_(width, height), width_(width), height_(height), p_(properties) {
        picture_.clear(0);
        ::SetBkMode(picture_.dc(), TRANSPARENT);
        if (!p_.visible)
            return;
        fill(0, 0, width_, height_, p_.clrback);
        border();
        if (top() > bottom())
            title();
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
    COLORREF colour(int index) { return surface_.rgbcolor(index); }

    // x and y of the lower left pixel; width and height beyond it.
    void fill(int x, int y, int w, int h, int index) {
        const RECT device = {x, height_ - 1 - y - h, x + w + 1, height_ - y};
        const HBRUSH brush = ::CreateSolidBrush(colour(index));
        ::FillRect(picture_.dc(), &device, brush);
        ::DeleteObject(brush);
    }
    void row(int from, int to, int y, int index) { fill(std::min(from, to), y, std::abs(to - from), 0, index); }
    void column(int x, int from, int to, int index) { fill(x, std::min(from, to), 0, std::abs(to - from), index); }

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
        constexpr UINT across[] = {TA_LEFT, TA_RIGHT, TA_CENTER, TA_LEFT};
        const int tenths = 6 * (top() - bottom() - 4);
        LOGFONTA face = {};
        face.lfHeight = -std::abs(::MulDiv(96, tenths, 720));
        face.lfCharSet = DEFAULT_CHARSET;
        ::lstrcpyA(face.lfFaceName, "Arial");
        const HFONT font = ::CreateFontIndirectA(&face);
        const HGDIOBJ before = ::SelectObject(picture_.dc(), font);
        ::SetTextColor(picture_.dc(), colour(index));
        const bool known = p_.align <= 10 && p_.align % 4 != 3;
        ::SetTextAlign(picture_.dc(), known ? across[p_.align % 4] | (p_.align < 4 ? TA_BOTTOM : TA_TOP) : TA_BOTTOM);
        const int points = tenths / 10;
        const int drop = p_.align & 8 ? points >> 1 : p_.align & 4 ? points : 0;
        const std::string shown(p_.title, strnlen(p_.title, sizeof p_.title));
        ::TextOutA(picture_.dc(), x, height_ - 1 - (y + drop), shown.data(), static_cast<int>(shown.size()));
        ::SelectObject(picture_.dc(), before);
        ::DeleteObject(font);
    }

    Picture picture_;
    int width_, height_;
    Tcbtn_properties p_;
    CWntOut surface_;
};

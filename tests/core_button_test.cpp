#include "widgets/button/button_model.h"

#include <gtest/gtest.h>

#include <climits>

using namespace wnt;

TEST(ButtonModel, StoresWhatScriptsAndBlocksSay) {
    ButtonModel model;
    const auto load = [&](const auto& lines) {
        for (const char* line : lines)
            model.load_line(line);
        model.end_script();
    };
    load(button_built_in_script);
    const Tcbtn_properties& p = model.properties();
    EXPECT_EQ(std::string(p.id, 10), "WntButton1");
    EXPECT_TRUE(p.titlestyle == 2 && p.borderstyle == 15 && p.clrtext == 3 && !p.fixed);
    model.painted();
    load(std::array{":MSG=x", ":DEPTH=5", ":ID=other", ":UNITTITLE=x", ":NOTITLE=x"});
    EXPECT_EQ(model.repaint_mask(), 0);
    load(std::array{":WORDWRAP=x"});
    EXPECT_EQ(model.repaint_mask(), button_background);

    load(std::array{":TYPE=x", ":TITLESTYLE=x", ":ALIGN=MIDDLE", ":BORDERTYPE=3DUP ", ":CLRSUN=Blue"}); // no such words
    EXPECT_TRUE(p.type == -1 && p.titlestyle == 255 && p.align == 255 && p.bordertype == -1 && p.clrsun == 255);
    EXPECT_TRUE(model.can_press() && model.can_release()); // neither raised nor sunk

    load(std::array{":BORDERSTYLE=LEFT TOP", ":FIXED=0"});
    EXPECT_FALSE(model.can_press() || model.can_release()); // an open border fixes until a block says otherwise
    Tcbtn_properties block = p;
    block.fixed = 0;
    for (int mask : {button_background | button_foreground, 0}) { // the second time nothing differs
        model.painted();
        model.assign(block);
        EXPECT_TRUE(model.can_press());
        EXPECT_EQ(model.repaint_mask(), mask);
    }
}

TEST(ButtonModel, InsideAndAnchors) {
    Tcbtn_properties p = {};
    p.borderheight = 3;
    const ButtonBox box = {0, 0, 100, 40};
    ButtonInside inside = button_inside(p, box);
    EXPECT_TRUE(inside.left == 4 && inside.right == 95 && inside.top == 35);
    p.frame = 1;
    inside = button_inside(p, box);
    EXPECT_TRUE(inside.bottom == 5 && inside.right == 94);

    const int rows[][5] = {{0, 5, 5, 5, 5},       {1, 94, 5, -106, 5},  {2, 49, 5, -51, 5}, {3, 0, 0, 0, 0},
                           {4, 5, 34, 5, 19},     {6, 49, 34, -51, 19}, {7, 0, 0, 0, 0},    {8, 5, 19, 5, 12},
                           {10, 49, 19, -51, 12}, {11, 0, 0, 0, 0},     {255, 0, 0, 0, 0}};
    for (const auto& [align, x, y, underline_x, underline_y] : rows) {
        const TitleAnchor a = title_anchor(align, inside);
        EXPECT_TRUE(a.x == x && a.y == y && a.underline_x == underline_x && a.underline_y == underline_y) << align;
    }
    for (int height : {INT_MAX, INT_MAX - 1, 1000000, INT_MIN}) { // from a block, nothing is checked
        p.borderheight = height;
        inside = button_inside(p, box);
        EXPECT_EQ(inside.height() <= 0, height > 0) << height;
        title_anchor(10, inside);
    }
    EXPECT_TRUE(box.holds(1, 39));
    EXPECT_FALSE(box.holds(0, 5) || box.holds(100, 5) || box.holds(5, 40));
}

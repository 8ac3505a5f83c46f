#include "widgets/button_model.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>

using namespace wnt;

namespace {

ButtonModel built_in() {
    ButtonModel model;
    for (const char* line : button_built_in_script)
        model.load_line(line);
    model.end_script();
    model.painted();
    return model;
}

} // namespace

TEST(ButtonModel, BuiltInScriptAndKeysThatMarkNothing) {
    ButtonModel model = built_in();
    const Tcbtn_properties& p = model.properties();
    EXPECT_EQ(std::string(p.id, 10), "WntButton1");
    EXPECT_TRUE(p.titlestyle == 2 && p.borderstyle == 15 && p.clrtext == 3 && !p.fixed);
    for (const char* line : {":MSG=x", ":DEPTH=5", ":ID=other", ":UNITTITLE=x", ":NOTITLE=x"})
        model.load_line(line);
    EXPECT_EQ(model.repaint_mask(), 0);
    model.load_line(":WORDWRAP=x");
    EXPECT_EQ(model.repaint_mask(), button_background);
}

TEST(ButtonModel, UnknownWordsAreStoredAsSuch) {
    ButtonModel model = built_in();
    for (const char* line : {":TYPE=x", ":TITLESTYLE=x", ":ALIGN=MIDDLE", ":BORDERTYPE=3DUP ", ":CLRSUN=Blue"})
        model.load_line(line);
    const Tcbtn_properties& p = model.properties();
    EXPECT_TRUE(p.type == -1 && p.titlestyle == 255 && p.align == 255 && p.bordertype == -1 && p.clrsun == 255);
    EXPECT_TRUE(model.can_press() && model.can_release()); // neither raised nor sunk
}

TEST(ButtonModel, OpenBorderFixesUntilABlockSaysOtherwise) {
    ButtonModel model = built_in();
    model.load_line(":BORDERSTYLE=LEFT TOP");
    model.load_line(":FIXED=0");
    model.end_script();
    EXPECT_FALSE(model.can_press());
    Tcbtn_properties block = model.properties();
    block.fixed = 0;
    model.painted();
    model.assign(block);
    EXPECT_TRUE(model.can_press());
    EXPECT_EQ(model.repaint_mask(), button_background | button_foreground);
    model.painted();
    model.assign(block);
    EXPECT_EQ(model.repaint_mask(), 0);
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

    const struct {
        int align, x, y, ux, uy;
    } rows[] = {{0, 5, 5, 5, 5},       {1, 94, 5, -106, 5},  {2, 49, 5, -51, 5}, {3, 0, 0, 0, 0},
                {4, 5, 34, 5, 19},     {6, 49, 34, -51, 19}, {7, 0, 0, 0, 0},    {8, 5, 19, 5, 12},
                {10, 49, 19, -51, 12}, {11, 0, 0, 0, 0},     {255, 0, 0, 0, 0}};
    for (const auto& row : rows) {
        const TitleAnchor a = title_anchor(row.align, inside);
        EXPECT_TRUE(a.x == row.x && a.y == row.y && a.underline_x == row.ux && a.underline_y == row.uy) << row.align;
    }
    for (const int height : {INT_MAX, INT_MAX - 1, 1000000}) { // from a block, nothing is checked
        p.borderheight = height;
        EXPECT_LE(button_inside(p, box).height(), 0) << height;
    }
    p.borderheight = INT_MIN;
    title_anchor(10, button_inside(p, box));
    EXPECT_TRUE(box.holds(1, 39));
    EXPECT_FALSE(box.holds(0, 5) || box.holds(100, 5) || box.holds(5, 40));
}

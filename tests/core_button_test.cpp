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
    for (const char* line : {":WORDWRAP=x", ":TITLE=x", ":ALIGN=LEFT", ":VISIBLE=1", ":FRAME=1", ":CLRTEXT=RED"}) {
        model.painted();
        load(std::array{line});
        EXPECT_EQ(model.repaint_mask(), button_background) << line;
    }

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

// Where border and title stand the window's pictures tell.
TEST(ButtonModel, InsideHoldsAtAnyBorderHeight) {
    Tcbtn_properties p = {};
    p.frame = 1;
    const ButtonBox box = {0, 0, 100, 40};
    for (int height : {INT_MAX, INT_MAX - 1, 1000000, INT_MIN}) { // from a block, nothing is checked
        p.borderheight = height;
        const ButtonInside inside = button_inside(p, box);
        EXPECT_EQ(inside.height() <= 0, height > 0) << height;
        title_anchor(10, inside);
    }
    EXPECT_TRUE(box.holds(1, 39));
    EXPECT_FALSE(box.holds(0, 5) || box.holds(100, 5) || box.holds(5, 40));
}

#include "widgets/button/button_model.h"

#include <gmock/gmock.h>

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
    const auto values = [&p] {
        return std::vector<int>{p.type,     p.titlestyle, p.fixed,      p.underline,   p.frame,        p.visible,
                                p.wordwrap, p.align,      p.bordertype, p.borderstyle, p.borderheight, p.clrback,
                                p.clrtext,  p.clrsun,     p.clrshadow,  p.clrborder};
    };
    EXPECT_EQ(std::string(p.id, 11) + p.title, std::string("WntButton1\0WntButton Test", 25));
    EXPECT_THAT(values(), testing::ElementsAre(0, 2, 0, 0, 0, 1, 0, 0, 2, 15, 3, 10, 3, 2, 0, 0));
    load(std::array{":TYPE=MAC", ":ALIGN=TOPCENTER", ":FIXED=1", ":FRAME=X", ":WORDWRAP=0", ":TITLESTYLE=BOLD",
                    ":VISIBLE=0", ":BORDERTYPE=FLAT", ":BORDERHEIGHT=4", ":CLRTEXT=RED", ":CLRBACK=WHITE",
                    ":CLRBORDER=BLUE", ":CLRSUN=GREEN", ":CLRSHADOW=CYAN"});
    EXPECT_THAT(values(), testing::ElementsAre(2, 3, 1, 0, 1, 0, 0, 6, 1, 15, 4, 1, 6, 4, 7, 2));
    load(std::array{":WORDWRAP=1", ":FIXED=0", ":FRAME=0", ":VISIBLE=1"});
    EXPECT_THAT(values(), testing::ElementsAre(2, 3, 0, 0, 0, 1, 1, 6, 1, 15, 4, 1, 6, 4, 7, 2));
    model.painted();
    load(std::array{":MSG=x", ":DEPTH=5", ":ID=other", ":UNITTITLE=x", ":NOTITLE=x"});
    EXPECT_EQ(model.repaint_mask(), 0);
    for (const char* line :
         {":WORDWRAP=x", ":TITLE=x", ":ALIGN=LEFT", ":VISIBLE=1", ":FRAME=1", ":CLRTEXT=RED", ":TYPE=MAC", ":FIXED=0",
          ":BORDERTYPE=3DUP", ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM", ":BORDERHEIGHT=1", ":CLRBACK=RED", ":CLRBORDER=RED",
          ":CLRSUN=RED", ":CLRSHADOW=RED", ":TITLESTYLE=BOLD"}) {
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
    std::string anchors;
    for (int align = -1; align <= 11; ++align) {
        const auto [x, y, underline_x, underline_y] = title_anchor(align, {10, 20, 410, 120});
        for (const int each : {x, y, underline_x, underline_y})
            anchors += std::to_string(each) + " ";
        anchors += "| ";
    }
    EXPECT_EQ(anchors, "0 0 0 0 | 10 20 10 20 | 410 20 210 20 | 210 20 110 20 | 0 0 0 0 | 10 120 10 105 | "
                       "410 120 210 105 | 210 120 110 105 | 0 0 0 0 | 10 70 10 63 | 410 70 210 63 | "
                       "210 70 110 63 | 0 0 0 0 | ");
}

#include "controls/frame_model.h"
#include "controls/sash_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>

using namespace wnt;
using Keeps = SashModel::Keeps;

namespace {

TEST(SashModel, KeepsWhatThePresentLengthHasNoRoomFor) {
    for (const Keeps keeps : {Keeps::share, Keeps::first, Keeps::second}) {
        SashModel sash;
        sash.set_keeps(keeps);
        sash.resize(105);
        sash.set_position(200);
        EXPECT_EQ(sash.position(), 100);
        EXPECT_EQ(sash.wished_position(), 200);
        sash.resize(805);
        EXPECT_EQ(sash.position(), 200);
        sash.resize(0);
        sash.set_keeps(Keeps::second);
        sash.resize(805);
        EXPECT_EQ(sash.position(), 200);
        sash.resize(105);
        sash.set_second(300);
        sash.resize(805);
        EXPECT_EQ(sash.second().length, 300);
    }
}

TEST(SashModel, IsNeverLargerThanItsLength) {
    SashModel sash;
    sash.set_bar(5);
    for (const int length : {3, 0, -1}) {
        sash.resize(length);
        EXPECT_TRUE(sash.first().length == 0 && sash.second().length == 0) << length;
        EXPECT_EQ(sash.bar().length, std::max(length, 0));
    }
    sash.resize(INT_MAX);
    sash.set_least(INT_MAX, INT_MAX);
    sash.set_position(INT_MAX);
    EXPECT_EQ(sash.first().length + sash.bar().length + sash.second().length, sash.length());
    EXPECT_FALSE(sash.can_move());
    sash.set_share(NAN);
    EXPECT_EQ(sash.share(), 0);
}

TEST(SashModel, KeepsWhatItIsToldThroughSizes) {
    const std::tuple<Keeps, int, int, int> cases[] = {
        {Keeps::share, 60, 120, 24}, {Keeps::first, 60, 60, 40}, {Keeps::second, 60, 160, 0}};
    for (const auto& [keeps, at_105, at_205, at_45] : cases) {
        SashModel sash;
        sash.set_keeps(keeps);
        sash.set_position(60); // before there is any length
        sash.resize(105);
        EXPECT_EQ(sash.position(), at_105);
        sash.resize(205);
        EXPECT_EQ(sash.position(), at_205);
        sash.resize(45);
        EXPECT_EQ(sash.position(), at_45);
        sash.resize(105);
        EXPECT_EQ(sash.position(), at_105) << "it grows again";
        sash.fold(2);
        EXPECT_EQ(sash.position(), 100);
        sash.resize(205);
        sash.fold(0);
        EXPECT_EQ(sash.position(), at_205) << "it unfolds";
    }
    SashModel sash;
    sash.set_least(30, 90);
    sash.resize(65);
    EXPECT_EQ(sash.position(), 15); // in proportion
    EXPECT_FALSE(sash.can_move());
    sash.resize(205);
    EXPECT_EQ(sash.clamped(-5), 30);
    EXPECT_EQ(sash.clamped(500), 110);
    sash.set_keeps(Keeps::second);
    sash.set_second(95);
    EXPECT_EQ(sash.position(), 105);
    void (*const sets[])(SashModel&) = {[](SashModel& s) { s.set_position(50); },
                                        [](SashModel& s) { s.set_second(100); },
                                        [](SashModel& s) { s.set_share(0.25); }};
    for (const auto set : sets) {
        sash.fold(1);
        set(sash);
        EXPECT_TRUE(sash.folded() == 0 && sash.position() > 0);
    }
    sash.resize(405);
    EXPECT_NEAR(sash.position(), 250, 1) << "the second's length stays as it was when the share was asked for";
}

TEST(FrameModel, LaysOutBorderTitleAndContentAtAnySize) {
    FrameModel m;
    m.load_line(":BORDERHEIGHT=2");
    EXPECT_EQ(frame_layout(m, 100, 60, 150, 20).content, (PixelRect{3, 3, 97, 57}));
    m.load_line(":BORDERHEIGHT=1");
    EXPECT_EQ(frame_layout(m, 100, 60, 150, 20).border, 2); // rounded
    m.load_line(":BORDERHEIGHT=2");
    m.load_line(":BORDERSTYLE=LEFT BOTTOM");
    EXPECT_EQ(frame_layout(m, 100, 60, 100, 20).content, (PixelRect{2, 0, 100, 58}));
    m.load_line(":TITLE=Boiler");
    EXPECT_EQ(frame_layout(m, 100, 60, 100, 20).title, (PixelRect{2, 0, 100, 20}));
    EXPECT_EQ(frame_layout(m, 100, 60, 100, 20).content, (PixelRect{2, 20, 100, 58}));
    m.load_line(":ALIGN=BOTTOMRIGHT");
    EXPECT_EQ(frame_layout(m, 100, 60, 100, 20).content, (PixelRect{2, 0, 100, 38}));
    m.load_line(":ALIGN=CENTERLEFT"); // behind the children
    EXPECT_EQ(frame_layout(m, 100, 60, 100, 20).content, frame_layout(m, 100, 60, 100, 20).title);
    m.load_line(":BORDERTYPE=NOBORDER");
    EXPECT_EQ(frame_layout(m, 100, 60, 100, 20).content, (PixelRect{0, 0, 100, 60}));
    for (const std::string_view align : alignment_words)
        for (const int scale : {-5, 100, 1 << 30})
            for (const auto& [w, h] : {std::pair{0, 0}, {1, 1}, {3, 900}, {-7, 5}, {2000, 2}}) {
                m.load_line(":BORDERTYPE=FLAT");
                m.load_line(":BORDERSTYLE=LEFT RIGHT TOP BOTTOM");
                m.load_line(std::string(":ALIGN=").append(align));
                const FrameLayout l = frame_layout(m, w, h, scale, 17);
                EXPECT_TRUE(l.content.width() >= 0 && l.content.height() >= 0 && l.title.height() >= 0) << w << align;
            }
}

TEST(FrameModel, ScriptLinesTellWhetherTheyAreSeen) {
    FrameModel m;
    EXPECT_TRUE(m.load_line(":CLRBACK=DARKBLUE") && m.background == colour_lookup("DARKBLUE") &&
                m.load_line(":TITLE=x"));
    for (const char* line : {":CLRBACK=DARKBLUE", ":CLRBACK=NOCOLOUR", ":TITLE=x", ":ALIGN=SIDEWAYS",
                             ":ALIGN=", ":BORDERTYPE=ROUND", ":FONT=Arial", "no key", ""})
        EXPECT_FALSE(m.load_line(line)) << line;
    m.load_line(":TITLE=" + std::string(80, 't'));
    EXPECT_EQ(m.title.size(), 49u);
}

TEST(Anchor, KeepsEdgesAtTheirShares) {
    const PixelRect content = {4, 20, 204, 120};
    const PixelRect wider = {4, 20, 304, 220};
    const PixelRect place = {14, 30, 104, 110};
    const auto moved = [&](const double(&shares)[4], const PixelRect& to) {
        return Anchor::at(place, content, shares).place(to);
    };
    EXPECT_EQ(moved({0, 0, 0, 0}, wider), place);
    EXPECT_EQ(moved({0, 0, 1, 1}, wider), (PixelRect{14, 30, 204, 210}));
    EXPECT_EQ(moved({1, 1, 1, 1}, wider), (PixelRect{114, 130, 204, 210}));
    EXPECT_EQ(moved({0.5, 0, 0.5, 2}, wider), (PixelRect{64, 30, 154, 210}));
    EXPECT_EQ(moved({NAN, -1, 1, 1}, {0, 0, 0, 0}), (PixelRect{10, 10, 10, 10})) << "never turned round";
    EXPECT_EQ(moved({0, 0, 1, 1}, content), place);
    const Anchor far = Anchor::at({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, content, {0, 0, 1, 1});
    EXPECT_LE(far.place(wider).right, 1 << 21);
}

} // namespace

#include "controls/tabs_layout.h"
#include "test_random.h"

#include <gtest/gtest.h>

#include <array>

using namespace wnt;

namespace {

Tab named(std::string_view text, bool enabled = true) {
    Tab tab;
    tab.text = text;
    tab.enabled = enabled;
    return tab;
}

std::string texts(const TabsModel& model) {
    std::string all;
    for (int i = 0; i < model.count(); ++i)
        all += (i == model.selected() ? "*" : "") + model.at(i).text + (model.at(i).enabled ? " " : "- ");
    return all;
}

// a b c- d, b selected
TabsModel four() {
    TabsModel m;
    for (const char* text : {"a", "b", "c", "d"})
        m.insert(m.count(), named(text, *text != 'c'));
    m.select(1);
    return m;
}

void disable_all(TabsModel& m) {
    for (int i = 0; i < m.count(); ++i)
        m.enable(i, false);
}

TEST(TabsModel, SelectionStaysWithItsTabAndGoesToTheNearestEnabledOne) {
    const struct {
        const char* what;
        void (*change)(TabsModel&);
        const char* result;
    } cases[] = {
        {"nothing", [](TabsModel&) {}, "a *b c- d "},
        {"before it", [](TabsModel& m) { m.insert(0, named("n")); }, "n a *b c- d "},
        {"behind it", [](TabsModel& m) { m.insert(99, named("n")); }, "a *b c- d n "},
        {"one before goes", [](TabsModel& m) { m.remove(0); }, "*b c- d "},
        {"it goes", [](TabsModel& m) { m.remove(1); }, "a c- *d "},
        {"the last goes", [](TabsModel& m) { m.select(3), m.remove(3); }, "a *b c- "},
        {"it moves", [](TabsModel& m) { m.move(1, 3); }, "a c- d *b "},
        {"one passes it", [](TabsModel& m) { m.move(0, 2); }, "*b c- a d "},
        {"and back", [](TabsModel& m) { m.move(3, 0); }, "d a *b c- "},
        {"one takes its place", [](TabsModel& m) { m.move(0, 1); }, "*b a c- d "},
        {"from behind, too", [](TabsModel& m) { m.move(3, 1); }, "a d *b c- "},
        {"it is disabled", [](TabsModel& m) { m.enable(1, false); }, "a b- c- *d "},
        {"all are", [](TabsModel& m) { disable_all(m); }, "a- b- c- d- "},
        {"one is again", [](TabsModel& m) { disable_all(m), m.enable(2, true); }, "a- b- *c d- "},
    };
    for (const auto& c : cases) {
        TabsModel m = four();
        c.change(m);
        EXPECT_EQ(texts(m), c.result) << c.what;
    }
    TabsModel m = four();
    EXPECT_TRUE(m.move(0, 3) && m.move(3, 0) && m.enable(0, false) && m.enable(0, true) && m.set_text(0, "a") &&
                m.set_tip(0, std::string(5000, 'x')) && m.at(0).tip.size() == TabsModel::longest_tip);
    EXPECT_LT(m.at(0).id, m.at(1).id);
    EXPECT_FALSE(m.select(2) || m.select(-1) || m.select(4) || m.move(0, 4) || m.move(1, 1) || m.remove(4) ||
                 m.insert(-1, named("x")) || m.enable(9, true) || m.set_text(-1, "") || m.set_tip(4, ""));
    EXPECT_EQ(m.enabled_from(2, true), 3);
    EXPECT_EQ(m.enabled_from(2, false), 1);
    EXPECT_EQ(m.enabled_from(4, true), -1);
    EXPECT_EQ(m.enabled_from(4, true, true), 0);
    EXPECT_EQ(m.enabled_from(-1, false, true), 3);
    EXPECT_EQ(TabsModel().enabled_from(0, true, true), -1);
    while (m.insert(0, named(std::string(200, 'x'))))
        ;
    EXPECT_EQ(m.count(), TabsModel::most_tabs);
    EXPECT_EQ(m.at(0).text.size(), TabsModel::longest_text);
}

TEST(TabsModel, AccessKeysGoRoundThoseThatAreEnabled) {
    const std::tuple<const char*, const char*, char> cases[] = {{"&File", "File", 'f'},
                                                                {"Save && &Quit", "Save & Quit", 'q'},
                                                                {"R&&D", "R&D", 0},
                                                                {"end&", "end", 0},
                                                                {"", "", 0},
                                                                {"&1 &2", "1 2", '1'}};
    for (const auto& [text, plain, key] : cases) {
        int mark = 7;
        EXPECT_EQ(plain_text(text, mark), plain);
        EXPECT_EQ(access_key(text), key) << text;
    }
    TabsModel m;
    for (const char* text : {"&One", "&other", "&Off", "&Two"})
        m.insert(m.count(), named(text, std::string_view(text) != "&Off"));
    EXPECT_EQ(m.with_access_key('O'), 1);
    m.select(1);
    EXPECT_EQ(m.with_access_key('o'), 0);
    EXPECT_EQ(m.with_access_key('t'), 3);
    EXPECT_EQ(m.with_access_key('x'), -1);
    EXPECT_EQ(m.with_access_key(0), -1);
}

TEST(TabsModel, AScriptNamesTheTabsAndKeepsTheirPages) {
    TabsModel m;
    int page = 0;
    EXPECT_FALSE(m.load_line(":TIP=of none") || m.load_line(":CLOSE=YES"));
    EXPECT_TRUE(m.load_line(":TAB=one") && m.load_line(":TAB=two") && m.load_line(":DISABLED=YES") &&
                m.load_line(":TAB=three"));
    EXPECT_EQ(texts(m), "*one two- three ");
    m.at(1).page = &page;
    m.begin_script();
    for (const char* line : {":SIDE=LEFT", ":TAB=eins", ":CLOSE=1", ":TAB=zwei", ":TIP=the second"})
        EXPECT_TRUE(m.load_line(line)) << line;
    EXPECT_EQ(m.count(), 3);
    m.end_script();
    EXPECT_EQ(texts(m), "*eins zwei ");
    EXPECT_TRUE(m.at(1).page == &page && m.at(1).tip == "the second" && m.at(0).closable && m.side == TabsSide::left);
    m.begin_script();
    EXPECT_TRUE(m.load_line(":CLRBACK=RED") && m.load_line(":OVERFLOW=MENU") && m.load_line(":MOVABLE=YES"));
    m.end_script(); // names none
    EXPECT_EQ(m.count(), 2);
    for (const char* line : {":CLRBACK=RED", ":CLRBACK=NOCOLOUR", ":SIDE=ABOVE", ":SIDE=", ":OVERFLOW=MENU",
                             ":MOVABLE=YES", ":FONT=Arial", ":ID=4", "TAB=x", ""})
        EXPECT_FALSE(m.load_line(line)) << line;
}

// Of 100 x 60 pixels, tabs of 20 and 30 in a strip of 12.
TEST(TabsLayout, StandsAtEverySide) {
    constexpr TabsSizes sizes = {2, 12, 8, 3, 2, 6, 5, 10};
    const int lengths[] = {20, 30};
    enum Part { strip, page, first, second, lifted, icon, text, close };
    constexpr TabsSide sides[] = {TabsSide::top, TabsSide::bottom, TabsSide::left, TabsSide::right};
    const PixelRect parts[][4] = {{{0, 0, 100, 12}, {0, 48, 100, 60}, {0, 0, 12, 60}, {88, 0, 100, 60}},   // strip
                                  {{1, 12, 99, 59}, {1, 1, 99, 48}, {12, 1, 99, 59}, {1, 1, 88, 59}},      // page
                                  {{2, 2, 22, 11}, {2, 49, 22, 58}, {2, 2, 11, 22}, {89, 2, 98, 22}},      // first
                                  {{22, 2, 52, 11}, {22, 49, 52, 58}, {2, 22, 11, 52}, {89, 22, 98, 52}},  // second
                                  {{20, 0, 54, 12}, {20, 48, 54, 60}, {0, 20, 12, 54}, {88, 20, 100, 54}}, // lifted
                                  {{25, 3, 31, 9}, {25, 51, 31, 57}, {3, 43, 9, 49}, {91, 25, 97, 31}},    // icon
                                  {{33, 2, 42, 11}, {33, 49, 42, 58}, {2, 32, 11, 41}, {89, 33, 98, 42}},  // text
                                  {{44, 4, 49, 9}, {44, 51, 49, 56}, {4, 25, 9, 30}, {91, 44, 96, 49}}};   // close
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        TabsModel m;
        m.side = sides[i];
        const TabsLayout l = lay_out_tabs(m, sizes, lengths, 100, 60, 0, -1);
        const PixelRect &one = parts[first][i], &two = parts[second][i];
        EXPECT_EQ(l.strip, parts[strip][i]);
        EXPECT_EQ(l.page, parts[page][i]);
        EXPECT_EQ(l.tabs[0], one);
        EXPECT_EQ(l.tabs[1], two);
        EXPECT_EQ(l.lifted(1, sizes), parts[lifted][i]);
        EXPECT_EQ(l.parts(1, sizes, true, true).icon, parts[icon][i]);
        EXPECT_EQ(l.parts(1, sizes, true, true).close, parts[close][i]);
        EXPECT_EQ(l.parts(1, sizes, true, true).text, parts[text][i]);
        EXPECT_FALSE(l.overflows());
        EXPECT_EQ(l.tab_at(two.left, two.top), 1);
        EXPECT_EQ(l.tab_at(50, 30), -1);
        EXPECT_EQ(l.gap_at(one.left, one.top), 0);
        EXPECT_EQ(l.gap_at(two.left, two.top), 1);
        EXPECT_EQ(l.gap_at(two.right, two.bottom), 2);
    }
}

TEST(TabsLayout, ShowsWholeTabsAndTheOneThatIsWanted) {
    constexpr TabsSizes sizes = {2, 12, 8, 3, 2, 6, 5, 10};
    const int lengths[] = {30, 30, 30, 30, 30};
    TabsModel m;
    const auto shown = [&](int width, int first, int wanted) {
        const TabsLayout l = lay_out_tabs(m, sizes, lengths, width, 60, first, wanted);
        return std::pair(l.first, l.shown);
    };
    EXPECT_EQ(shown(154, 3, -1), std::pair(0, 5)) << "they fit";
    EXPECT_EQ(shown(153, 0, -1), std::pair(0, 4));
    EXPECT_EQ(shown(110, 0, 4), std::pair(2, 3));
    EXPECT_EQ(shown(110, 3, 1), std::pair(1, 3));
    EXPECT_EQ(shown(110, 4, -1), std::pair(2, 3)) << "nothing stays empty behind the last";
    EXPECT_EQ(shown(109, 0, -1), std::pair(0, 2));
    m.overflow = TabsOverflow::menu; // one button less
    EXPECT_EQ(shown(109, 0, -1), std::pair(0, 3));
    EXPECT_EQ(shown(30, 0, 2), std::pair(2, 1)) << "cut to the room";
    EXPECT_EQ(shown(12, 0, 2), std::pair(0, 0));
    EXPECT_EQ(lay_out_tabs(m, sizes, lengths, 109, 60, 0, -1).menu, (PixelRect{101, 2, 109, 10}));
    m.overflow = TabsOverflow::scroll;
    const TabsLayout l = lay_out_tabs(m, sizes, lengths, 110, 60, 0, -1);
    EXPECT_TRUE(l.back == (PixelRect{94, 2, 102, 10}) && l.on == (PixelRect{102, 2, 110, 10}));
}

TEST(TabsLayout, SizesGrowWithTheScreen) {
    const TabsSizes s = TabsSizes::at(150, 20);
    EXPECT_EQ((std::array{s.lift, s.depth, s.button, s.pad, s.gap, s.icon, s.close, s.least}),
              (std::array{3, 42, 27, 14, 9, 24, 21, 54}));
    EXPECT_EQ(TabsSizes::at(100, 30).depth, 42);
    EXPECT_TRUE(s.length(100, true, true) == 191 && s.length(100, false, true) == 158 &&
                s.length(0, false, false) == 54);
}

// At any size, order of sizes and first tab: all within the strip, none over another, nothing turned round.
TEST(TabsLayout, HoldsAtAnySize) {
    Random random(3);
    const auto some = [&](int most) { return random.upto(most); };
    for (int run = 0; run < 3000; ++run) {
        const TabsSizes sizes = TabsSizes::at(some(400), some(60));
        TabsModel m;
        m.side = static_cast<TabsSide>(some(3));
        m.overflow = static_cast<TabsOverflow>(some(1));
        std::vector<int> lengths(static_cast<std::size_t>(some(40)));
        for (int& length : lengths)
            length = sizes.length(some(8) == 0 ? some(1 << 30) : some(200), some(1) == 1, some(1) == 1);
        const int count = static_cast<int>(lengths.size());
        const int width = some(4) == 0 ? some(5) - 2 : some(2000), height = some(4) == 0 ? some(5) - 2 : some(2000);
        const int wanted = some(count) - 1;
        const TabsLayout l = lay_out_tabs(m, sizes, lengths, width, height, some(60) - 10, wanted);
        ASSERT_TRUE(l.page.width() >= 0 && l.page.height() >= 0 && l.strip.width() >= 0 && l.strip.height() >= 0);
        ASSERT_TRUE(l.first >= 0 && l.first + l.shown <= count);
        ASSERT_TRUE(wanted < 0 || l.shown == 0 || l.shows(wanted));
        const PixelRect strip = l.along(l.strip);
        int end = 0;
        for (int tab = 0; tab < count; ++tab) {
            const PixelRect box = l.along(l.tabs[static_cast<std::size_t>(tab)]);
            if (!l.shows(tab)) {
                ASSERT_EQ(box.width(), 0);
                continue;
            }
            ASSERT_TRUE(box.left >= end && box.width() > 0 && box.height() >= 0 && box.bottom <= strip.bottom);
            end = box.right;
            const TabParts parts = l.parts(tab, sizes, some(1) == 1, some(1) == 1);
            for (const PixelRect& part : {parts.icon, parts.text, parts.close})
                ASSERT_TRUE(part == PixelRect() ||
                            (l.along(part).left >= box.left && l.along(part).right <= box.right));
        }
        for (const PixelRect& button : {l.back, l.on, l.menu})
            if (button != PixelRect()) {
                ASSERT_TRUE(l.along(button).left >= end && l.along(button).right <= strip.right);
                end = l.along(button).right;
            }
        ASSERT_TRUE(l.shown == 0 || end <= strip.right);
        ASSERT_TRUE(l.overflows() || (l.back == PixelRect() && l.menu == PixelRect()));
    }
}

} // namespace

#include "controls/tabs_layout.h"

#include <gtest/gtest.h>

#include <climits>
#include <sstream>

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

std::string written(const std::initializer_list<PixelRect>& boxes) {
    std::ostringstream text;
    for (const PixelRect& r : boxes)
        text << r.left << ',' << r.top << '-' << r.right << ',' << r.bottom << ' ';
    return text.str();
}

// Of 100 x 60 pixels, tabs of 20 and 30 in a strip of 12.
TEST(TabsLayout, StandsAtEverySide) {
    constexpr TabsSizes sizes = {2, 12, 8, 3, 2, 6, 5, 10};
    const int lengths[] = {20, 30};
    // Strip and page; the first tab, the second one, the same lifted; its icon, text and mark to close it.
    const std::pair<TabsSide, const char*> cases[] = {
        {TabsSide::top, "0,0-100,12 1,12-99,59 2,2-22,11 22,2-52,11 20,0-54,12 25,3-31,9 33,2-42,11 44,4-49,9 "},
        {TabsSide::bottom,
         "0,48-100,60 1,1-99,48 2,49-22,58 22,49-52,58 20,48-54,60 25,51-31,57 33,49-42,58 44,51-49,56 "},
        {TabsSide::left, "0,0-12,60 12,1-99,59 2,2-11,22 2,22-11,52 0,20-12,54 3,43-9,49 2,32-11,41 4,25-9,30 "},
        {TabsSide::right,
         "88,0-100,60 1,1-88,59 89,2-98,22 89,22-98,52 88,20-100,54 91,25-97,31 89,33-98,42 91,44-96,49 "}};
    for (const auto& [side, places] : cases) {
        SCOPED_TRACE(places);
        TabsModel m;
        m.side = side;
        const TabsLayout l = lay_out_tabs(m, sizes, lengths, 100, 60, 0, -1);
        const TabParts p = l.parts(1, sizes, true, true);
        EXPECT_EQ(written({l.strip, l.page, l.tabs[0], l.tabs[1], l.lifted(1, sizes), p.icon, p.text, p.close}),
                  places);
        const PixelRect &one = l.tabs[0], &two = l.tabs[1];
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
    const TabParts cut = lay_out_tabs(m, sizes, lengths, 18, 60, 0, 2).parts(2, sizes, true, true);
    EXPECT_EQ(written({cut.icon, cut.text, cut.close}), "5,3-8,9 0,0-0,0 2,4-5,9 ");
    EXPECT_EQ(lay_out_tabs(m, sizes, lengths, 109, 60, 0, -1).menu, (PixelRect{101, 2, 109, 10}));
    m.overflow = TabsOverflow::scroll;
    const TabsLayout l = lay_out_tabs(m, sizes, lengths, 110, 60, 0, -1);
    EXPECT_TRUE(l.back == (PixelRect{94, 2, 102, 10}) && l.on == (PixelRect{102, 2, 110, 10}));
}

TEST(TabsLayout, SizesGrowWithTheScreen) {
    const TabsSizes sizes = TabsSizes::at(150, 20);
    EXPECT_EQ(sizes.depth, 42);
    EXPECT_EQ(sizes.length(100, true, true), 191);
}

TEST(TabsLayout, HoldsAtOddSizes) {
    const TabsSizes sizes = TabsSizes::at(INT_MAX, INT_MAX);
    const std::vector<int> lengths(200, sizes.length(INT_MAX, true, true)); // whose sum stays in range
    for (const int size : {-1, 0, 1, 3, INT_MAX})
        for (const TabsSide side : {TabsSide::top, TabsSide::bottom, TabsSide::left, TabsSide::right}) {
            TabsModel m;
            m.side = side;
            const TabsLayout l = lay_out_tabs(m, sizes, lengths, size, size, INT_MAX, 7);
            EXPECT_TRUE(l.page.width() >= 0 && l.page.height() >= 0) << size;
            EXPECT_TRUE(l.strip.width() >= 0 && l.strip.height() >= 0) << size;
            EXPECT_TRUE(l.shown == 0 || l.shows(7)) << size;
        }
}

} // namespace

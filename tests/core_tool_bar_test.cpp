#include "controls/shortcut_text.h"
#include "controls/tool_bar_model.h"
#include "controls/tool_picture.h"

#include <gtest/gtest.h>

using namespace wnt;
using enum ToolKind;

namespace {

// -- Layout -----------------------------------------------------------------------------------------------------------

constexpr ToolFlow plain = {false, false, 2, 10};

std::vector<ToolSpace> spaces(std::initializer_list<std::pair<ToolKind, int>> items) {
    std::vector<ToolSpace> all;
    for (const auto& [kind, width] : items)
        all.push_back({kind, {width, kind == window ? 10 : 20}});
    return all;
}

TEST(ToolLayout, StandsInALineThatStretchesOrGivesItsEndToAChevron) {
    const auto items =
        spaces({{push, 30}, {separator, 8}, {push, 30}, {stretch, 0}, {window, 40}, {stretch, 0}, {push, 30}});
    const ToolPlaces roomy = place_tools(items, plain, 4 + 138 + 21, 24);
    EXPECT_EQ(roomy.thickness, 24);
    EXPECT_EQ(roomy.chevron, PixelRect());
    EXPECT_EQ(roomy.items[0], (PixelRect{2, 2, 32, 22}));
    EXPECT_EQ(roomy.items[1], (PixelRect{32, 2, 40, 22}));
    EXPECT_EQ(roomy.items[4], (PixelRect{80, 7, 120, 17})); // in the middle, and 10 of 21 before it
    EXPECT_EQ(roomy.items[6], (PixelRect{131, 2, 161, 22}));
    const ToolPlaces narrow = place_tools(items, plain, 4 + 137, 40);
    EXPECT_EQ(narrow.chevron, (PixelRect{129, 10, 139, 30})); // the line stands in the middle
    EXPECT_EQ(narrow.items[4], (PixelRect{70 + 19, 15, 110 + 19, 25}));
    EXPECT_EQ(narrow.items[6], PixelRect());
    const ToolPlaces few = place_tools(items, plain, 4 + 10 + 38, 24);
    EXPECT_EQ(few.items[0].right, 32);
    EXPECT_EQ(few.items[1], PixelRect()); // a line before the chevron says nothing
    const ToolPlaces none = place_tools(items, plain, 7, 24);
    EXPECT_EQ(none.chevron, (PixelRect{2, 2, 5, 22}));
    EXPECT_EQ(none.items[0], PixelRect());
    EXPECT_EQ(place_tools({}, plain, 100, 24).thickness, 4);
}

TEST(ToolLayout, WrapsWithoutSeparatorsAtTheEnds) {
    const auto items =
        spaces({{push, 30}, {push, 30}, {separator, 8}, {push, 30}, {separator, 8}, {stretch, 0}, {push, 200}});
    ToolFlow flow = plain;
    flow.wraps = true;
    const ToolPlaces places = place_tools(items, flow, 4 + 68, 0);
    EXPECT_EQ(places.thickness, 4 + 3 * 20);
    EXPECT_EQ(places.items[1], (PixelRect{32, 2, 62, 22}));
    EXPECT_EQ(places.items[2], PixelRect());
    EXPECT_EQ(places.items[3], (PixelRect{2, 22, 32, 42}));
    EXPECT_EQ(places.items[5], (PixelRect{40, 22, 70, 42})); // what its line leaves
    EXPECT_EQ(places.items[6], (PixelRect{2, 42, 70, 62}));  // no wider than the bar
    flow.upright = true;
    const ToolPlaces upright = place_tools(items, flow, 0, 4 + 68);
    EXPECT_EQ(upright.items[1], (PixelRect{2, 22, 32, 42}));
    EXPECT_EQ(upright.items[0].width(), 30); // as wide as the widest of its column
}

TEST(ToolLayout, FindsItemsAndTheGapsBetweenThem) {
    const auto items = spaces({{push, 30}, {push, 30}, {push, 30}});
    const ToolPlaces line = place_tools(items, plain, 100, 24);
    EXPECT_TRUE(line.at(2, 2) == 0 && line.at(31, 21) == 0 && line.at(32, 10) == 1 && line.at(1, 10) == -1);
    ToolFlow flow = plain;
    flow.wraps = true;
    const ToolPlaces lines = place_tools(items, flow, 64, 64);
    ToolFlow upright = plain;
    upright.upright = true;
    const ToolPlaces column = place_tools(items, upright, 34, 100);
    const struct {
        const ToolPlaces& places;
        int x, y, before;
        bool upright = false;
    } cases[] = {{line, 10, 10, 0},         {line, 20, 10, 1},         {line, 61, 10, 2},         {line, 500, 10, 3},
                 {lines, 63, 10, 2},        {lines, 10, 30, 2},        {lines, 30, 30, 3},        {line, -5, -5, 0},
                 {column, 10, 11, 0, true}, {column, 10, 30, 1, true}, {column, 10, 300, 3, true}};
    for (const auto& c : cases)
        EXPECT_EQ(c.places.insertion(c.x, c.y, c.upright), c.before) << c.x << ' ' << c.y;
}

TEST(ToolLayout, PartsAreAsLargeAsTheyNeed) {
    ToolLook look; // pictures of 16, rows of 16, padding 4, gap 4, arrow 12
    const ToolContent pictured = {push, true, 30}, text_only = {push, false, 30}, bare = {push, true, 0};
    ToolContent split_one = pictured, label_one = text_only;
    split_one.kind = split;
    label_one.kind = label;
    const std::tuple<ToolText, ToolContent, int, int> sizes[] = {{ToolText::none, pictured, 24, 24},
                                                                 {ToolText::none, text_only, 38, 24},
                                                                 {ToolText::none, split_one, 36, 24},
                                                                 {ToolText::beside, pictured, 58, 24},
                                                                 {ToolText::beside, bare, 24, 24},
                                                                 {ToolText::beside, split_one, 70, 24},
                                                                 {ToolText::below, pictured, 38, 42},
                                                                 {ToolText::below, text_only, 38, 42},
                                                                 {ToolText::below, bare, 24, 24},
                                                                 {ToolText::none, label_one, 38, 24},
                                                                 {ToolText::none, {window, false, 0, 50, 9}, 50, 9}};
    for (const auto& [text, content, width, height] : sizes) {
        look.text = text;
        EXPECT_EQ(tool_size(content, look), (ToolSize{width, height})) << int(text) << width;
    }
    look.text = ToolText::below; // all texts stand on one line
    const PixelRect place = {100, 0, 150, 42};
    EXPECT_EQ(tool_parts(pictured, look, place).text.top, 22);
    EXPECT_EQ(tool_parts(text_only, look, place).text, (PixelRect{110, 22, 140, 38}));
    EXPECT_EQ(tool_parts(pictured, look, place).picture, (PixelRect{117, 4, 133, 20}));
    look.text = ToolText::beside;
    const ToolParts parts = tool_parts(split_one, look, {100, 0, 170, 30});
    EXPECT_EQ(parts.picture, (PixelRect{104, 7, 120, 23}));
    EXPECT_EQ(parts.text, (PixelRect{124, 7, 154, 23}));
    EXPECT_EQ(parts.arrow, (PixelRect{158, 0, 170, 30}));
    look.upright = true; // all pictures below each other
    EXPECT_EQ(tool_parts(pictured, look, {0, 0, 200, 24}).picture.left, 4);
    EXPECT_EQ(tool_parts(text_only, look, {0, 0, 200, 24}).text.left, 4);
}

// -- Items and scripts ------------------------------------------------------------------------------------------------

std::string described(const ToolBarModel& bar) {
    std::string all;
    for (const ToolItem& item : bar.items()) {
        all += "ucrdsp_ltw"[static_cast<int>(item.kind) + (item.kind >= separator ? 1 : 0)];
        if (item.id)
            all += std::to_string(item.id);
        all += item.check ? "+" : "";
        all += item.enabled ? " " : "- ";
    }
    return all;
}

TEST(ToolBarModel, IsDescribedByScripts) {
    ToolBarModel bar;
    bar.load_line(":ITEM=100,2, Save as ,Writes, and closes");
    for (const char* line :
         {":SEPARATOR",    ":CHECK=101",  ":RADIO=1",   ":RADIO=2",           ":LABEL= Zoom, in percent ",
          ":RADIO=3",      ":STRETCH",    ":WINDOW=7",  ":DROPDOWN=5,0,View", ":MENU=105,Chart",
          ":MENU",         ":SPLIT=6",    ":CHECKED=1", ":CHECKED=2",         ":CHECKED=3",
          ":DISABLED=100", ":TEXT=BELOW", ":WRAP=1",    ":UPRIGHT=Y",         ":DRAG=1"})
        bar.load_line(line);
    EXPECT_EQ(described(bar), "u100- _ c101 r1 r2+ l r3+ t w7 d5 s6 ");
    EXPECT_TRUE(bar.item(0).picture == 2 && bar.item(0).text == "Save as" && bar.item(0).tip == "Writes, and closes");
    EXPECT_EQ(bar.item(5).text, "Zoom, in percent");
    ASSERT_EQ(bar.item(9).menu.size(), 2u);
    EXPECT_TRUE(bar.item(9).menu[0].id == 105 && bar.item(9).menu[0].text == "Chart" && bar.item(9).menu[1].id == 0);
    EXPECT_TRUE(bar.text == ToolText::below && bar.wraps && bar.upright && bar.movable);
    EXPECT_NE(bar.item(4).group, bar.item(6).group);
    EXPECT_TRUE(bar.load_line(":TEXT=NONE") && bar.text == ToolText::none);
}

TEST(ToolBarModel, IgnoresWhatIsWrong) {
    ToolBarModel bar;
    for (const char* line : {":ITEM", ":ITEM=", ":ITEM=0,1,Zero", ":ITEM=-5", ":ITEM=65535", ":ITEM=12x",
                             ":ITEM=99999999999999999999", ":MENU=5,nowhere", "ITEM=5", ":item=5", ":ITEMS=5",
                             ":TEXT=ABOVE", ":CHECKED=9", ":DISABLED=", ":WINDOW=0", ""})
        EXPECT_FALSE(bar.load_line(line)) << line;
    EXPECT_EQ(bar.count(), 0);
    bar.load_line(":ITEM=65534,99999,x");
    bar.load_line(":ITEM=1,-7," + std::string(5000, 'x'));
    EXPECT_TRUE(bar.item(0).picture == -1 && bar.item(1).picture == -1);
    EXPECT_EQ(bar.item(1).text.size(), std::size_t(longest_tool_text));
    bar.load_line(":MENU=5,on a push item");
    EXPECT_TRUE(bar.item(1).menu.empty());
    for (int i = 0; i < most_tools + 5; ++i)
        bar.load_line(":SEPARATOR");
    EXPECT_EQ(bar.count(), most_tools);
    EXPECT_FALSE(bar.move(0, most_tools + 1) || bar.move(-1, 0) || bar.move(3, 3) || bar.move(3, 4) || bar.remove(-1));
}

TEST(ToolBarModel, PressesCheckAndPick) {
    ToolBarModel bar;
    for (const char* line : {":ITEM=1", ":CHECK=2", ":RADIO=3", ":RADIO=4", ":SEPARATOR", ":RADIO=5"})
        bar.load_line(line);
    const auto pressed = [&](std::initializer_list<int> indices) {
        for (const int index : indices)
            bar.press(index);
        return described(bar);
    };
    EXPECT_EQ(pressed({0, 1, 2, 5}), "u1 c2+ r3+ r4 _ r5+ ");
    EXPECT_EQ(pressed({1, 3, 3, 99}), "u1 c2 r3 r4+ _ r5+ ");
    bar.set_check(1, undecided);
    EXPECT_EQ(bar.item(1).check, undecided);
    EXPECT_EQ(pressed({1}), "u1 c2+ r3 r4+ _ r5+ ");
}

TEST(ToolBarModel, ItsOrderIsKeptAsAText) {
    const auto made = [](int count) {
        ToolBarModel bar;
        const char* lines[] = {":ITEM=10", ":SEPARATOR", ":ITEM=20", ":LABEL=a", ":ITEM=30", ":ITEM=40"};
        for (int i = 0; i < count; ++i)
            bar.load_line(lines[i]);
        return bar;
    };
    ToolBarModel bar = made(5);
    EXPECT_TRUE(bar.move(4, 0) && bar.move(1, 5));
    EXPECT_EQ(described(bar), "u30 _ u20 l u10 ");
    EXPECT_EQ(bar.order(), "30,-1,20,-2,10");
    ToolBarModel again = made(5);
    EXPECT_TRUE(again.set_order(bar.order()));
    EXPECT_EQ(described(again), described(bar));
    ToolBarModel longer = made(6); // of a later version: the new one stays behind its neighbour
    EXPECT_TRUE(longer.set_order(bar.order()));
    EXPECT_EQ(described(longer), "u30 u40 _ u20 l u10 ");
    ToolBarModel shorter = made(3);
    EXPECT_TRUE(shorter.set_order("30,20,20,junk,,-1,99"));
    EXPECT_EQ(described(shorter), "u10 u20 _ ");
    EXPECT_FALSE(shorter.set_order("") || shorter.set_order("junk"));
}

// -- Pictures and keys ------------------------------------------------------------------------------------------------

TEST(ToolPicture, StripsAreTakenApartAndGreyed) {
    const Argb keyed[] = {0x00FF00FF, 0x00102030, 0x00FF00FF, 0x00000000, 0x00FF00FF, //
                          0x00FFFFFF, 0x00FF00FF, 0x00FF0000, 0x00FF00FF, 0x00FF00FF};
    const PictureStrip strip = make_strip(keyed, 5, 2, 0xFF00FF);
    EXPECT_TRUE(strip.count == 2 && strip.size == 2); // half a picture is none
    EXPECT_TRUE(strip.at(0, 0, 0) == 0 && strip.at(0, 1, 0) == 0xFF102030 && strip.at(1, 1, 0) == 0xFF000000 &&
                strip.at(0, 0, 1) == 0xFFFFFFFF && strip.at(1, 0, 1) == 0xFFFF0000);
    const Argb smooth[] = {0x80FF00FF, 0x00123456, 0xFF00FF00, 0x01FFFFFF};
    const PictureStrip opacity = make_strip(smooth, 2, 2, 0x00FF00);
    EXPECT_TRUE(opacity.at(0, 0, 0) == 0x80800080 && opacity.at(0, 1, 0) == 0 && opacity.at(0, 0, 1) == 0xFF00FF00);
    EXPECT_EQ(make_strip(smooth, 1, 4, 0).count, 0);
    EXPECT_EQ(make_strip(smooth, 4, 4, 0).count, 0); // fewer pixels than that
    EXPECT_EQ(greyed(0xFFFFFFFF), 0x7F7F7F7Fu);
    EXPECT_EQ(greyed(0), 0u);
    for (const Argb pixel : {0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu, 0x80800000u}) {
        const Argb grey = greyed(pixel);
        EXPECT_TRUE((grey & 0xFF) == (grey >> 8 & 0xFF) && (grey & 0xFF) == (grey >> 16 & 0xFF));
        EXPECT_LE(grey & 0xFF, grey >> 24); // still multiplied by its opacity
    }
}

TEST(ToolPicture, TheNearestSizeIsShown) {
    const int cases[][5] = {{16, 32, 16, 0, 1}, {16, 32, 20, 0, 1}, {16, 32, 24, 1, 1}, {16, 32, 32, 1, 1},
                            {16, 24, 32, 0, 2}, {16, 0, 48, 0, 3},  {0, 24, 16, 1, 1},  {32, 16, 16, 1, 1},
                            {16, 32, 64, 1, 2}, {16, 0, 8, 0, 1}};
    for (const auto& [small_size, large_size, wanted, which, factor] : cases) {
        const PictureChoice choice = choose_picture(small_size, large_size, wanted);
        EXPECT_TRUE(choice.which == which && choice.factor == factor) << small_size << ' ' << wanted;
        EXPECT_EQ(choice.size, (which ? large_size : small_size) * factor);
    }
    EXPECT_EQ(choose_picture(0, 0, 16).size, 0);
}

TEST(ShortcutText, NamesKeys) {
    EXPECT_EQ(shortcut_text(true, false, false, true, 'S'), "Ctrl+S");
    EXPECT_EQ(shortcut_text(true, true, true, true, 0x70), "Ctrl+Alt+Shift+F1");
    std::string names;
    for (int key = 0; key < 0x100; ++key)
        if (const std::string name = shortcut_text(false, false, false, true, key); !name.empty())
            names.append(name).append(" ");
    EXPECT_EQ(names,
              "Backspace Tab Enter Pause Esc Space PgUp PgDn End Home Left Up Right Down Ins Del 0 1 2 3 4 5 6 7 8 9 "
              "A B C D E F G H I J K L M N O P Q R S T U V W X Y Z Num 0 Num 1 Num 2 Num 3 Num 4 Num 5 Num 6 Num 7 "
              "Num 8 Num 9 Num * Num + Num - Num / F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 F13 F14 F15 F16 F17 F18 F19 "
              "F20 F21 F22 F23 F24 + , - . ");
    EXPECT_EQ(shortcut_text(false, true, false, false, 'x'), "Alt+x");
    EXPECT_EQ(shortcut_text(false, false, false, false, 19), "Ctrl+S");
}

} // namespace

#include "widget_window.h"

#include <vector>

namespace {

constexpr int surface_id = 100;
constexpr int list_id = 101;

struct ColorSelTest : WidgetTest {
    void SetUp() override {
        WidgetTest::SetUp();
        open(selector_, 160, 90);
    }

    // The pointer at a position of the surface, counted from its upper left, and a click there.
    void point_at(int x, int y) { ::point_at(*selector_.GetDlgItem(surface_id), CPoint(x, y)); }
    int pick(int x, int y) {
        point_at(x, y);
        selector_.GetDlgItem(surface_id)->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
        return selector_.GetSelectedColorID();
    }

    CWntColorSel selector_;
};

TEST_F(ColorSelTest, OddPalettesAndPanelsAreHarmless) {
    DWORD few[7] = {1, 2, 3, 4, 5, 6, 7};
    std::vector<DWORD> many(256, RGB(10, 20, 30));
    char name[] = "x";
    char* names[] = {name};
    int colours[] = {INT_MAX};
    selector_.SetColorItems(names, colours, 1);
    selector_.Set3DCells(1), selector_.SetHoverSample(1), selector_.ShowSliders(1);
    const std::pair<DWORD*, int> palettes[] = {{few, 7}, {few, 1}, {many.data(), 256}, {few, -3}, {nullptr, 4}};
    for (const auto& [table, count] : palettes) {
        selector_.SetColorPalette(table, count);
        for (const CSize size : {CSize(160, 90), CSize(7, 7), CSize(0, 0), CSize(70, 3), CSize(390, 290)}) {
            selector_.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            for (const int id : {INT_MIN, -1, 300, INT_MAX}) {
                selector_.SetSelectedColorID(id);
                selector_.GetSelectedColor();
                full_repaint(selector_);
            }
            pick(1, 1), pick(-5, 400);
        }
    }
}

} // namespace

TEST_F(ColorSelTest, ShowsThePaletteAndTellsPicks) {
    EXPECT_EQ(pixels_of(selector_).at(130, 45), RGB(255, 0, 0)); // 6, of the named colours
    EXPECT_EQ(pick(50, 45), 2);                                  // cells are 20 x 30, two rows under the strip
    EXPECT_EQ(pick(50, 29), 2);                                  // intended: a pixel above the cell as it is drawn
    EXPECT_EQ(pick(50, 28), -1);
    EXPECT_EQ(pick(50, 59), 10);
    EXPECT_EQ(pick(155, 85), 15);
    EXPECT_EQ(pick(50, 10), -1); // the strip
    EXPECT_THAT(host_.notified, testing::Each(testing::FieldsAre(selector_.m_hWnd, 1u, 1u)));
    selector_.UpdateWindow();
    DWORD greys[16];
    for (DWORD i = 0; i < 16; ++i)
        greys[i] = RGB(16 * i, 16 * i, 16 * i);
    selector_.SetColorPalette(greys, 16);
    selector_.UpdateWindow();
    EXPECT_EQ(pixels_of(selector_).at(130, 45), greys[6]); // shown at once
    DWORD table[] = {0};
    selector_.SetColorPalette(nullptr, 16), selector_.SetColorPalette(table, 0);
    selector_.SetColorPalette(table, -1); // none of these takes the palette away
    full_repaint(selector_);
    EXPECT_EQ(pick(130, 45), 6);
    EXPECT_EQ(pixels_of(selector_).at(80, 15), greys[6]); // the sample
}

TEST_F(ColorSelTest, LooksLikeItsSketches) {
    // Three colours are not shown. H highlight, D deep shadow, dot button face.
    std::vector<DWORD> colours;
    std::vector<std::pair<COLORREF, char>> names = {{::GetSysColor(COLOR_3DHIGHLIGHT), 'H'},
                                                    {::GetSysColor(COLOR_3DDKSHADOW), 'D'},
                                                    {::GetSysColor(COLOR_BTNFACE), '.'}};
    for (int i = 0; i < 11; ++i) {
        colours.push_back(RGB(6 * i + 1, 205 - 5 * i, 90 * i % 256));
        names.emplace_back(colours[i], "0123456789?"[i]);
    }
    selector_.SetColorPalette(colours.data(), 11);
    selector_.SetSelectedColorID(5);
    const auto sketch = [&](int width, int height) {
        selector_.MoveWindow(0, 0, width, height);
        selector_.UpdateWindow();
        return "\n" + letters(pixels_of(selector_).values, width, names);
    };
    EXPECT_EQ(sketch(34, 8), R"(
HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHD
H55555555555555555555555555555555D
H55555555555555555555555555555555D
DDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDD
D00001110222033304440555066607770H
D00001110222033304440555066607770H
D00001110222033304440555066607770H
HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH
)");
    selector_.SetHoverSample(1);
    point_at(8 * 3 + 5, 7);
    sketch(66, 11);
    selector_.Set3DCells(1); // is shown at once
    EXPECT_EQ(sketch(66, 11), R"(
DDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDH
DHHHHHHD.HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHDH
DH33333D.H555555555555555555555555555555555555555555555555555555DH
DDDDDDDD.DDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDDH
D................................................................H
DHHHHHHD.HHHHHHD.HHHHHHD.HHHHHHD.HHHHHHD.HHHHHHD.HHHHHHD.HHHHHHD.H
DH00000D.H11111D.H22222D.H33333D.H44444D.H55555D.H66666D.H77777D.H
DH00000D.H11111D.H22222D.H33333D.H44444D.H55555D.H66666D.H77777D.H
DDDDDDDD.DDDDDDD.DDDDDDD.DDDDDDD.DDDDDDD.DDDDDDD.DDDDDDD.DDDDDDD.H
D................................................................H
HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH
)");
    cover(selector_, surface_id, poison); // part by part, as an owner paints it
    EXPECT_EQ(selector_.ComputeSelectedColor(), 3);
    const long hovered = pixels_of(selector_).count(poison);
    selector_.SetSelectedColorPanel(2);
    const Pixels panel = pixels_of(selector_);
    EXPECT_THAT((std::vector{66 * 11 - hovered, hovered - panel.count(poison)}), testing::ElementsAre(7 * 3, 56 * 3));
    EXPECT_EQ(panel.at(40, 2), colours[2]);
    selector_.PaintPanel(0);
    EXPECT_EQ(pixels_of(selector_).count(poison), 0);
    point_at(8 * 3 + 5, 2); // the strip
    EXPECT_EQ(repainted(selector_).at(4, 2), ::GetSysColor(COLOR_BTNFACE));
    selector_.SetHoverSample(0);
    selector_.UpdateWindow();
    EXPECT_EQ(pixels_of(selector_).at(4, 2), colours[5]);
}

TEST_F(ColorSelTest, ItemsTakeThePickedColour) {
    char cherry[] = "cherry", apple[] = "apple";
    char* names[] = {cherry, apple};
    int colours[] = {3, 4};
    CWnd& names_list = *selector_.GetDlgItem(list_id);
    selector_.SetColorItems(names, nullptr, 2);
    EXPECT_FALSE(names_list.IsWindowVisible());
    EXPECT_EQ(names_list.SendMessage(LB_GETCOUNT), 0);
    selector_.SetColorItems(names, colours, 2);
    EXPECT_TRUE(names_list.IsWindowVisible() && place_in(selector_, names_list) == CRect(80, 0, 160, 90));

    LOGFONT font = {};
    ASSERT_TRUE(names_list.GetFont() && names_list.GetFont()->GetLogFont(&font));
    EXPECT_STREQ(font.lfFaceName, "MS Sans Serif");
    EXPECT_EQ(names_list.GetStyle() & 0xFFFF, LBS_SORT | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT);
    full_repaint(selector_);
    char first[20] = "";
    names_list.SendMessage(LB_GETTEXT, 0, reinterpret_cast<LPARAM>(first));
    EXPECT_STREQ(first, "apple");
    const auto choose = [&](WPARAM item, WORD code = LBN_SELCHANGE) {
        names_list.SendMessage(LB_SETCURSEL, item);
        selector_.SendMessage(WM_COMMAND, MAKEWPARAM(list_id, code), 0);
    };
    choose(1, LBN_DBLCLK);    // "cherry" after sorting, but the second item
    EXPECT_EQ(colours[1], 4); // the sample shows the item's own
    full_repaint(selector_);
    EXPECT_EQ(colours[1], 0);                     // it is the selected one that the paint wrote into
    EXPECT_EQ(selector_.GetSelectedColorID(), 0); // unchanged by the list
    EXPECT_EQ(pick(25, 45), 2);
    EXPECT_THAT(colours, testing::ElementsAre(0, 2)); // the first paint gave the first item the selected colour
    EXPECT_EQ(selector_.GetSelectedColor(), 0u);      // two items: no colour with the number 2
    selector_.SetSelectedColorID(1);
    EXPECT_TRUE(selector_.GetSelectedColor() == 1 && colours[1] == 1);
    names_list.SendMessage(WM_KEYDOWN, VK_HOME); // the list tells what is chosen in it
    selector_.SetSelectedColorID(3);
    EXPECT_THAT(colours, testing::ElementsAre(3, 1));
    colours[1] = 77;
    selector_.SetSelectedColorID(1);
    EXPECT_EQ(selector_.GetSelectedColor(), 77u) << "found by the colour, not by the item";
    selector_.ShowSliders(1);
    EXPECT_EQ(place_in(selector_, names_list), CRect(110, 0, 160, 90)); // its half of what they leave
    selector_.ShowSliders(0);
    selector_.MoveWindow(0, 0, 161, 90); // of whose halves a column is left over
    EXPECT_EQ(repainted(selector_).at(160, 45), ::GetSysColor(COLOR_BTNFACE));
    selector_.SetColorItems(nullptr, nullptr, 0);
    full_repaint(selector_);
    pick(50, 45);
    EXPECT_EQ(colours[1], 77); // the host has its array back
}

TEST_F(ColorSelTest, SlidersFollowTheMouse) {
    EXPECT_FALSE(selector_.GetDlgItem(102)->IsWindowVisible());
    DWORD table[16] = {};
    table[3] = RGB(10, 20, 200);
    selector_.SetColorPalette(table, 16);
    selector_.SetWindowPos(nullptr, 0, 0, 220, 90, SWP_NOMOVE | SWP_NOZORDER);
    const Pixels fresh = repainted(selector_);
    selector_.ShowSliders(1);
    EXPECT_EQ(place_in(selector_, *selector_.GetDlgItem(104)), CRect(40, 0, 60, 90));
    EXPECT_EQ(place_in(selector_, *selector_.GetDlgItem(surface_id)), CRect(60, 0, 220, 90));
    full_repaint(selector_);
    point_at(3 * 27 + 5, 45); // the panel is as wide as the window, 27 a cell
    selector_.GetDlgItem(surface_id)->SendMessage(WM_MOUSEMOVE, 0, 0);
    std::vector<LRESULT> sliders;
    for (const int id : {102, 103, 104}) {
        CWnd* slider = selector_.GetDlgItem(id);
        EXPECT_TRUE(slider->IsWindowVisible());
        EXPECT_EQ(slider->GetStyle() & 0x1FFFF, WS_TABSTOP | TBS_VERT | TBS_BOTH);
        sliders.push_back(slider->SendMessage(TBM_GETPOS));
        sliders.push_back(slider->SendMessage(TBM_GETRANGEMAX));
    }
    EXPECT_THAT(sliders, testing::ElementsAre(10, 255, 20, 255, 200, 255));
    selector_.Set3DCells(1);
    selector_.SetHoverSample(1);
    selector_.DestroyWindow(); // a new one begins without all that, but for its palette
    open(selector_, 220, 90);
    EXPECT_EQ(pixels_of(selector_), fresh);
}

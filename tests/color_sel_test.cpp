#include "temporary_file.h"
#include "widget_window.h"

#include <climits>
#include <vector>

namespace {

constexpr int surface_id = 100;
constexpr int list_id = 101;

/// The surface of a selector drawn by its rules with plain GDI calls.
struct SelectorReference {
    SelectorReference(CSize surface, CSize panel, const std::vector<DWORD>& palette, bool edged)
        : picture_(surface.cx, surface.cy), panel_(panel), palette_(palette),
          cell_(panel.cx / 8, panel.cy / (static_cast<int>(palette.size()) / 8 + 1)), m_(edged ? cell_.cx / 8 : 0) {
        const int w = panel.cx - 1, h = panel.cy - 1;
        box(0, 0, w, h, ::GetSysColor(COLOR_BTNFACE));
        for (int i = 0; i < static_cast<int>(palette.size()) / 8 * 8; ++i) {
            const int x = i % 8 * cell_.cx + m_, y = panel.cy - (i / 8 + 2) * cell_.cy + m_;
            box(x, y, cell_.cx - 2 * m_, cell_.cy - 2 * m_, palette[i]);
            if (m_ > 0)
                edge(x, y, cell_.cx - 2 * m_, cell_.cy - 2 * m_, true);
        }
        edge(0, 0, w, h, false);
    }

    void sample(int left, int right, int colour) {
        const int x = left + m_, y = panel_.cy - cell_.cy + m_, w = right - m_ - x, h = cell_.cy - 1 - 2 * m_;
        box(x, y, w, h, palette_[colour]);
        edge(x, y, w, h, true);
    }
    void hovered(int colour) { sample(0, cell_.cx, colour); }
    void selected(int colour, bool hover) { sample(hover ? cell_.cx : 0, panel_.cx - 1, colour); }

    std::vector<COLORREF> pixels() const { return picture_.values(); }

private:
    // Positions count upwards; both corners belong to a box.
    void fill(int x, int y, int w, int h, COLORREF colour) {
        const int height = picture_.height();
        const RECT device = {x, height - 1 - y - h, x + w + 1, height - y};
        const HBRUSH brush = ::CreateSolidBrush(colour);
        ::FillRect(picture_.dc(), &device, brush);
        ::DeleteObject(brush);
    }
    void box(int x, int y, int w, int h, COLORREF colour) {
        fill(x, y, w, h, palette_[0]);
        fill(x + 1, y + 1, w - 2, h - 2, colour);
    }
    void edge(int x, int y, int w, int h, bool raised) {
        const COLORREF light = ::GetSysColor(raised ? COLOR_3DHIGHLIGHT : COLOR_3DDKSHADOW);
        const COLORREF dark = ::GetSysColor(raised ? COLOR_3DDKSHADOW : COLOR_3DHIGHLIGHT);
        fill(x, y, 0, h, light), fill(x, y + h, w, 0, light);
        fill(x + w, y, 0, h, dark), fill(x, y, w, 0, dark);
    }

    Picture picture_;
    CSize panel_;
    std::vector<DWORD> palette_;
    CSize cell_;
    int m_;
};

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
    const Pixels flat = pixels_of(selector_);
    selector_.Set3DCells(1);
    selector_.UpdateWindow();
    EXPECT_NE(pixels_of(selector_), flat);
    DWORD table[] = {0};
    selector_.SetColorPalette(nullptr, 16), selector_.SetColorPalette(table, 0);
    selector_.SetColorPalette(table, -1); // none of these takes the palette away
    full_repaint(selector_);
    EXPECT_EQ(pick(130, 45), 6);
    EXPECT_EQ(pixels_of(selector_).at(80, 15), greys[6]); // the sample
    selector_.SetSelectedColor(5);
    EXPECT_EQ(selector_.GetSelectedColorID(), 6);
}

TEST_F(ColorSelTest, EveryPixelFollowsItsSettings) {
    std::vector<DWORD> colours;
    for (int i = 0; i < 43; ++i) // three of them are not shown
        colours.push_back(RGB(6 * i, 255 - 5 * i, 90 * i % 256));
    selector_.SetColorPalette(colours.data(), 43);
    char name[] = "item";
    char* names[] = {name};
    int item = 0;
    const CSize whole(335, 205);
    for (int mode = 0; mode < 32; ++mode) {
        const bool edged = mode & 1, hover = mode & 2, sliders = mode & 4, items = mode & 8, in_strip = mode & 16;
        selector_.Set3DCells(edged), selector_.SetHoverSample(hover), selector_.ShowSliders(sliders);
        selector_.SetColorItems(items ? names : nullptr, &item, 1);
        selector_.MoveWindow(0, 0, whole.cx, whole.cy);
        const int left = sliders ? 60 : 0;
        const CSize surface(items ? (whole.cx - left) / 2 : whole.cx - left, whole.cy);
        const CSize panel(items ? whole.cx / 2 : whole.cx, whole.cy);
        point_at(panel.cx / 8 * 3 + 5, in_strip ? 3 : panel.cy / 6 * 2 + 5); // the fourth of the second row
        selector_.SetSelectedColorID(17);
        full_repaint(selector_);
        CWnd* shown = selector_.GetDlgItem(surface_id);
        EXPECT_EQ(place_in(selector_, *shown), CRect(CPoint(left, 0), surface)) << mode;
        SelectorReference expected(surface, panel, colours, edged);
        if (hover && !in_strip)
            expected.hovered(8 + 3);
        expected.selected(17, hover);
        EXPECT_EQ(pixels_of(*shown).values, expected.pixels()) << mode;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(selector_.GetDlgItem(102 + i)->IsWindowVisible() != 0, sliders) << mode;
    }
}

TEST_F(ColorSelTest, ItemsTakeThePickedColour) {
    char cherry[] = "cherry", apple[] = "apple";
    char* names[] = {cherry, apple};
    int colours[] = {3, 4};
    CWnd& names_list = *selector_.GetDlgItem(list_id);
    selector_.SetColorItems(names, nullptr, 2);
    EXPECT_FALSE(names_list.IsWindowVisible());
    selector_.SetColorItems(names, colours, 2);
    EXPECT_TRUE(names_list.IsWindowVisible() && place_in(selector_, names_list) == CRect(80, 0, 160, 90));

    LOGFONT font = {};
    ::GetObject(reinterpret_cast<HFONT>(names_list.SendMessage(WM_GETFONT)), sizeof font, &font);
    EXPECT_EQ(font.lfHeight, -11); // 8 points at 96 dots an inch, as a surface shows them

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
    EXPECT_EQ(colours[1], 0); // it is the selected one that the paint wrote into
    colours[1] = 4;
    choose(0);
    full_repaint(selector_);
    EXPECT_EQ(colours[1], 4);
    choose(1);
    EXPECT_EQ(selector_.GetSelectedColorID(), 0); // unchanged by the list
    EXPECT_EQ(pick(25, 45), 2);
    EXPECT_THAT(colours, testing::ElementsAre(0, 2)); // the first paint gave the first item the selected colour
    EXPECT_EQ(selector_.GetSelectedColor(), 0u);      // two items: no colour with the number 2
    selector_.SetSelectedColorID(1);
    EXPECT_TRUE(selector_.GetSelectedColor() == 1 && colours[1] == 1);
    selector_.SetColorItems(nullptr, nullptr, 0);
    full_repaint(selector_);
    pick(50, 45);
    EXPECT_EQ(colours[1], 1); // the host has its array back
}

TEST_F(ColorSelTest, EveryPaintIsTraced) {
    struct Tracer : CWntTrace {
        using CWntTrace::setstream;
    } trace;
    const TemporaryFile file;
    trace.setstream(std::fopen(file.name(), "wt"));
    trace.SetFlags(1);
    full_repaint(selector_);
    trace.setstream(nullptr);
    trace.SetFlags(0);
    EXPECT_EQ(file.text(), "WntColorSel::OnPaint()");
}

TEST_F(ColorSelTest, SlidersFollowTheMouse) {
    selector_.ShowSliders(1);
    selector_.SetWindowPos(nullptr, 0, 0, 220, 90, SWP_NOMOVE | SWP_NOZORDER);
    full_repaint(selector_);
    point_at(3 * 27 + 5, 45); // yellow: the panel is as wide as the window, 27 a cell
    selector_.GetDlgItem(surface_id)->SendMessage(WM_MOUSEMOVE, 0, 0);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(selector_.GetDlgItem(102 + i)->SendMessage(TBM_GETPOS), i == 2 ? 0 : 255) << i;
}

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

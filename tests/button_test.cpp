#include "widget_window.h"

#include <climits>
#include <cstring>

namespace {

constexpr int surface_id = 101;

class ButtonTest : public WidgetTest {
protected:
    void script(std::initializer_list<const char*> lines) {
        for (const char* line : lines)
            button_.load(line, 0);
        button_.load("", 2);
    }

    Tcbtn_properties properties() {
        Tcbtn_properties p;
        EXPECT_EQ(button_.getproperties(&p), 1);
        return p;
    }

    // Through the surface, as a pointer would; tells the border type then.
    int mouse(UINT message, int x, int y) {
        button_.GetDlgItem(surface_id)->SendMessage(message, 0, MAKELPARAM(x, y));
        return properties().bordertype;
    }

    CWntButton button_;
};

constexpr COLORREF dark_blue = RGB(0, 0, 128);
constexpr COLORREF yellow = RGB(255, 255, 0);

} // namespace

TEST_F(ButtonTest, BorderIsMitredAndLitFromTheTopLeft) {
    open(button_, 10, 8);
    script({":TITLE="});
    const Pixels up = pixels_of(button_);
    EXPECT_EQ(letters(up.values, up.width, {{RGB(0, 0, 255), 'l'}, {0, 'd'}, {dark_blue, '.'}}),
              "lllllllll.\nllllllll.d\nlllllll.dd\nlll....ddd\nlll....ddd\nlldddddddd\nlddddddddd\ndddddddddd\n");

    button_.MoveWindow(0, 0, 60, 30);
    script({":BORDERTYPE=FLAT", ":CLRBORDER=RED", ":FRAME=X", ":CLRBACK=BLACK", ":CLRTEXT=WHITE", ":BORDERHEIGHT=1",
            ":TITLE=.", ":TITLESTYLE=PLAIN"});
    full_repaint(button_);
    const Pixels flat = pixels_of(button_);
    // Frame, border less its upper right corner, and the title.
    EXPECT_EQ(flat.count(RGB(255, 0, 0)), 2 * (60 + 28) + 2 * (58 + 26) - 1);
    EXPECT_GT(flat.count(RGB(255, 255, 255)), 0);
}

TEST_F(ButtonTest, TitleStylesShiftTheirUnderlines) {
    open(button_, 320, 60);
    const COLORREF sun = RGB(0, 255, 0);
    const COLORREF shadow = RGB(255, 0, 255);
    // Only the underline is left of a title without a text.
    const struct {
        const char* style;
        COLORREF colour;
        int row, first, last; // the row above the inner lower edge, the columns from the inner left one
    } rows[] = {{":TITLESTYLE=PLAIN", yellow, 1, 0, 200},  {":TITLESTYLE=BOLD", yellow, 1, 0, 201},
                {":TITLESTYLE=OUTSET", sun, 2, -1, 199},   {":TITLESTYLE=OUTSET", shadow, 0, 1, 201},
                {":TITLESTYLE=OUTSET", yellow, 1, 0, 200}, {":TITLESTYLE=INSET", shadow, 2, -1, 199},
                {":TITLESTYLE=INSET", sun, 0, 1, 201},     {":TITLESTYLE=INSET", yellow, 1, 0, 200}};
    for (const auto& row : rows) {
        script({":TITLE=", ":CLRSUN=GREEN", ":CLRSHADOW=MAGENTA", ":BORDERHEIGHT=0", row.style});
        Tcbtn_properties p = properties();
        p.underline = 1;
        button_.setproperties(&p);
        const Pixels shown = pixels_of(button_);
        const int x = 1, y = 59 - (1 + row.row); // the inner rectangle begins at 1, 1
        EXPECT_EQ(shown.at(x + row.first, y), row.colour) << row.style;
        EXPECT_EQ(shown.at(x + row.last, y), row.colour) << row.style;
        EXPECT_EQ(shown.at(x + row.last + 1, y), dark_blue) << row.style;
    }
}

TEST_F(ButtonTest, PressMovesThePictureAndReleaseBringsItBack) {
    open(button_, 120, 40);
    script({":TITLESTYLE=PLAIN", ":TITLE=o", ":ALIGN=CENTERCENTER"});
    const Pixels up = pixels_of(button_);
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 50, 20), 3);
    const Pixels down = pixels_of(button_);
    EXPECT_EQ(down.count(yellow), up.count(yellow));
    for (int y = 6; y < 30; ++y)
        for (int x = 6; x < 110; ++x)
            ASSERT_EQ(up.at(x, y) == yellow, down.at(x + 2, y + 2) == yellow) << x << "," << y;
    mouse(WM_LBUTTONDOWN, 50, 20); // a second press finds it sunk
    EXPECT_EQ(pixels_of(button_), down);
    mouse(WM_LBUTTONUP, 50, 20);
    EXPECT_EQ(pixels_of(button_), up);
    button_.draw_button(0); // as an owner presses it
    EXPECT_EQ(pixels_of(button_), down);
}

TEST_F(ButtonTest, EdgesOutsideAndHiddenDoNothing) {
    open(button_, 50, 30);
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 0, 10), 2);
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 10, 0), 2);
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 10, 10), 3);
    EXPECT_EQ(mouse(WM_LBUTTONUP, 60, 10), 3); // released outside: stays sunk
    EXPECT_EQ(mouse(WM_LBUTTONUP, 10, 10), 2);
    script({":VISIBLE=0"});
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 10, 10), 2); // nothing is drawn, so nothing sinks
}

TEST_F(ButtonTest, AnyBlockAndSizeIsHarmless) {
    open(button_, 80, 30);
    Tcbtn_properties p;
    const int odd[] = {INT_MIN, INT_MIN + 1, -7, 0, 3, 255, INT_MAX - 1, INT_MAX};
    for (const int value : odd) {
        std::memset(&p, 'x', sizeof p); // titles and identifiers without an end
        p.visible = 1;
        p.titlestyle = static_cast<std::uint8_t>(value & 3);
        p.align = static_cast<std::uint8_t>(value & 15);
        p.bordertype = value & 3;
        p.borderstyle = 15;
        p.borderheight = value;
        p.clrback = p.clrtext = p.clrsun = p.clrshadow = p.clrborder = value;
        p.fixed = 0;
        for (const CSize size : {CSize(80, 30), CSize(4, 4), CSize(0, 0), CSize(1, 300)}) {
            button_.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            button_.setproperties(&p);
            mouse(WM_LBUTTONDOWN, 2, 2);
            mouse(WM_LBUTTONUP, 2, 2);
            full_repaint(button_);
        }
    }
    CWntButton* volatile none = nullptr;
    EXPECT_EQ(none->getproperties(&p) + none->load(":TITLE=x", 0) + button_.getproperties(nullptr), 0);
}

TEST_F(ButtonTest, ScrollBarMovesItsOwnThumb) {
    CWntScrollBar bar;
    CScrollBar other;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 20, 200), &host_, 5));
    ASSERT_TRUE(other.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 200, 20), &host_, 6));
    SCROLLINFO info = {sizeof info, SIF_ALL, 0, 100, 0, 10, 0};
    bar.SetScrollInfo(&info);
    other.SetScrollInfo(&info);
    const struct {
        UINT code, pos;
        int expected;
    } rows[] = {{SB_LINEDOWN, 0, 11},  {SB_LINEUP, 0, 10},           {SB_TOP, 0, 9},
                {SB_BOTTOM, 0, 10},    {SB_PAGEDOWN, 0, 10},         {SB_THUMBTRACK, 57, 57},
                {SB_ENDSCROLL, 3, 57}, {SB_THUMBPOSITION, 900, 100}, {SB_LINEDOWN, 0, 100},
                {99, 4, 100}};
    for (const auto& row : rows) {
        bar.SendMessage(WM_VSCROLL, MAKEWPARAM(row.code, row.pos), reinterpret_cast<LPARAM>(bar.m_hWnd));
        EXPECT_EQ(bar.GetScrollPos(), row.expected) << row.code;
        bar.SetThumb(row.code, row.pos, &other); // any bar, by whichever object
        EXPECT_EQ(other.GetScrollPos(), row.expected) << row.code;
    }
    info.nPage = 20;
    bar.SetScrollInfo(&info);
    bar.SetThumb(SB_PAGEDOWN, 0, &bar);
    EXPECT_EQ(bar.GetScrollPos(), 30);
    bar.SetThumb(SB_PAGEUP, 0, nullptr);
}

#include "widget_window.h"

#include <climits>
#include <cstring>
#include <string>

namespace {

constexpr int surface_id = 101;

// Tells when a message went on to the base class, which offers it to the bar itself.
class HeardScrollBar : public CWntScrollBar {
public:
    int passed_on = 0;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        passed_on += message == WM_VSCROLL;
        return CWntScrollBar::OnChildNotify(message, wParam, lParam, result);
    }
};

class ButtonTest : public WidgetTest {
protected:
    static void script(CWntButton& button, std::initializer_list<const char*> lines) {
        for (const char* line : lines)
            button.load(line, 0);
        button.load("", 2);
    }

    static int border_of(CWntButton& button) {
        Tcbtn_properties p;
        EXPECT_EQ(button.getproperties(&p), 1);
        return p.bordertype;
    }

    // Through the surface, as a pointer would.
    static void mouse(CWntButton& button, UINT message, int x, int y) {
        button.GetDlgItem(surface_id)->SendMessage(message, 0, MAKELPARAM(x, y));
    }
};

constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF dark_blue = RGB(0, 0, 128);
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF yellow = RGB(255, 255, 0);

} // namespace

TEST_F(ButtonTest, BorderIsMitredAndLitFromTheTopLeft) {
    CWntButton button;
    open(button, 60, 30);
    script(button, {":TITLE="});
    const Pixels up = pixels_of(button);
    for (int i = 0; i < 3; ++i) {
        for (const CPoint lit : {CPoint(30, i), CPoint(i, 15), CPoint(i, i)})
            EXPECT_EQ(up.at(lit.x, lit.y), blue) << i;
        for (const CPoint dark : {CPoint(30, 29 - i), CPoint(59 - i, 15), CPoint(59 - i, 29 - i)})
            EXPECT_EQ(up.at(dark.x, dark.y), black) << i;
    }
    EXPECT_EQ(up.at(55, 5), dark_blue);

    script(button, {":BORDERTYPE=FLAT", ":CLRBORDER=RED", ":FRAME=X", ":CLRBACK=BLACK", ":CLRTEXT=WHITE",
                    ":BORDERHEIGHT=1", ":TITLE=.", ":TITLESTYLE=PLAIN"});
    full_repaint(button);
    const Pixels flat = pixels_of(button);
    EXPECT_EQ(flat.count(red), 2 * (60 + 28) + 2 * (58 + 26) - 1); // frame, border less its upper right corner
    EXPECT_GT(flat.count(white), 0);                               // the title
}

TEST_F(ButtonTest, TitleStylesShiftTheirUnderlines) {
    CWntButton button;
    open(button, 320, 60);
    // Only the underline is left of a title without a text: colour, row above the inner lower edge, first column,
    // length.
    struct Line {
        COLORREF colour;
        int row, from, length;
    };
    const COLORREF sun = RGB(0, 255, 0);
    const COLORREF shadow = RGB(255, 0, 255);
    const struct {
        const char* style;
        std::vector<Line> lines;
    } rows[] = {{":TITLESTYLE=PLAIN", {{yellow, 1, 0, 201}}},
                {":TITLESTYLE=BOLD", {{yellow, 1, 0, 202}}},
                {":TITLESTYLE=OUTSET", {{sun, 2, -1, 201}, {shadow, 0, 1, 201}, {yellow, 1, 0, 201}}},
                {":TITLESTYLE=INSET", {{shadow, 2, -1, 201}, {sun, 0, 1, 201}, {yellow, 1, 0, 201}}}};
    for (const auto& row : rows) {
        script(button, {":TITLE=", ":CLRSUN=GREEN", ":CLRSHADOW=MAGENTA", ":BORDERHEIGHT=0", row.style});
        Tcbtn_properties p;
        button.getproperties(&p);
        p.underline = 1;
        button.setproperties(&p);
        const Pixels shown = pixels_of(button);
        for (const Line& line : row.lines) {
            const int y = 59 - (1 + line.row); // the inner rectangle begins at 1, 1
            EXPECT_EQ(shown.at(1 + line.from, y), line.colour) << row.style;
            EXPECT_EQ(shown.at(line.from + line.length, y), line.colour) << row.style;
            EXPECT_EQ(shown.at(1 + line.from + line.length, y), dark_blue) << row.style;
        }
    }
}

TEST_F(ButtonTest, PressMovesThePictureAndReleaseBringsItBack) {
    CWntButton button;
    open(button, 120, 40);
    script(button, {":TITLESTYLE=PLAIN", ":TITLE=o", ":ALIGN=CENTERCENTER"});
    const Pixels up = pixels_of(button);
    mouse(button, WM_LBUTTONDOWN, 50, 20);
    const Pixels down = pixels_of(button);
    EXPECT_EQ(border_of(button), 3);
    EXPECT_EQ(down.count(yellow), up.count(yellow));
    for (int y = 6; y < 30; ++y)
        for (int x = 6; x < 110; ++x)
            ASSERT_EQ(up.at(x, y) == yellow, down.at(x + 2, y + 2) == yellow) << x << "," << y;
    mouse(button, WM_LBUTTONDOWN, 50, 20); // a second press finds it sunk
    EXPECT_EQ(pixels_of(button), down);
    mouse(button, WM_LBUTTONUP, 50, 20);
    EXPECT_EQ(pixels_of(button), up);
}

TEST_F(ButtonTest, EdgesOutsideAndFixedDoNothing) {
    CWntButton button;
    open(button, 50, 30);
    mouse(button, WM_LBUTTONDOWN, 0, 10);
    mouse(button, WM_LBUTTONDOWN, 10, 0);
    EXPECT_EQ(border_of(button), 2);
    mouse(button, WM_LBUTTONDOWN, 10, 10);
    mouse(button, WM_LBUTTONUP, 60, 10); // released outside: stays sunk
    EXPECT_EQ(border_of(button), 3);
    mouse(button, WM_LBUTTONUP, 10, 10);
    script(button, {":BORDERSTYLE=LEFT TOP", ":FIXED=0"});
    mouse(button, WM_LBUTTONDOWN, 10, 10);
    EXPECT_EQ(border_of(button), 2);
    script(button, {":BORDERSTYLE=LEFT RIGHT TOP BOTTOM", ":FIXED=0", ":VISIBLE=0"});
    mouse(button, WM_LBUTTONDOWN, 10, 10);
    EXPECT_EQ(border_of(button), 2); // nothing is drawn, so nothing sinks
}

TEST_F(ButtonTest, PropertiesRepaintOnlyWhenTheyDiffer) {
    CWntButton button;
    open(button, 80, 30);
    Tcbtn_properties p;
    button.getproperties(&p);
    cover(button, surface_id, poison);
    for (const std::uint8_t underline : {std::uint8_t{0}, std::uint8_t{1}}) {
        p.underline = underline;
        button.setproperties(&p);
        EXPECT_EQ(pixels_of(button).count(poison), underline ? 0 : 80 * 30);
    }
}

TEST_F(ButtonTest, AnyBlockAndSizeIsHarmless) {
    CWntButton button;
    open(button, 80, 30);
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
            button.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            button.setproperties(&p);
            mouse(button, WM_LBUTTONDOWN, 2, 2);
            mouse(button, WM_LBUTTONUP, 2, 2);
            full_repaint(button);
        }
    }
    CWntButton* volatile none = nullptr;
    EXPECT_EQ(none->getproperties(&p) + button.getproperties(nullptr), 0);
    EXPECT_EQ(none->load(":TITLE=x", 0), 0);
}

TEST_F(ButtonTest, ScrollBarMovesItsOwnThumb) {
    HeardScrollBar bar;
    CScrollBar other;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 20, 200), &host_, 5));
    ASSERT_TRUE(other.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 200, 20), &host_, 6));
    SCROLLINFO info = {sizeof info, SIF_ALL, 0, 100, 0, 10, 0};
    bar.SetScrollInfo(&info);
    other.SetScrollInfo(&info);
    const struct {
        UINT code, pos;
        int expected, passed_on;
    } rows[] = {{SB_LINEDOWN, 0, 11, 1},    {SB_LINEUP, 0, 10, 2},    {SB_TOP, 0, 9, 3},
                {SB_BOTTOM, 0, 10, 4},      {SB_PAGEDOWN, 0, 10, 4},  {SB_THUMBTRACK, 57, 57, 5},
                {SB_THUMBTRACK, 57, 57, 5}, {SB_ENDSCROLL, 3, 57, 5}, {SB_THUMBPOSITION, 900, 100, 6},
                {SB_LINEDOWN, 0, 100, 7},   {99, 4, 100, 7}};
    for (const auto& row : rows) {
        bar.SendMessage(WM_VSCROLL, MAKEWPARAM(row.code, row.pos), reinterpret_cast<LPARAM>(bar.m_hWnd));
        EXPECT_EQ(bar.GetScrollPos(), row.expected) << row.code;
        EXPECT_EQ(bar.passed_on, row.passed_on) << row.code;
        bar.SetThumb(row.code, row.pos, &other); // any bar, by whichever object
        EXPECT_EQ(other.GetScrollPos(), row.expected) << row.code;
    }
    info.nPage = 20;
    bar.SetScrollInfo(&info);
    bar.SetThumb(SB_PAGEDOWN, 0, &bar);
    EXPECT_EQ(bar.GetScrollPos(), 30);
    bar.SetThumb(SB_PAGEUP, 0, nullptr);
}

#include "button_reference.h"
#include "widget_window.h"

#include <climits>
#include <cstring>

namespace {

constexpr int surface_id = 101;

struct ButtonTest : WidgetTest {
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

} // namespace

// Every part of a button in turn, each on a small one, on a large one, and after a press.
TEST_F(ButtonTest, ShowsEveryProperty) {
    open(button_, 0, 0);
    const Tcbtn_properties made = properties();
    int shown = 0;
    const auto check = [&](const Tcbtn_properties& p, const char* what, int value) {
        const CSize sizes[] = {{64, 36}, {240, 50}, {9, 7}, {1, 1}};
        button_.MoveWindow(0, 0, sizes[shown % 4].cx, sizes[shown % 4].cy);
        ++shown;
        button_.setproperties(&p);
        const Pixels shown_now = repainted(button_);
        const ButtonReference expected(shown_now.width, shown_now.height, p);
        EXPECT_TRUE(!p.visible || shown_now.values == expected.pixels()) << what << ' ' << value;
    };
    const auto vary = [&](const char* what, auto field, std::initializer_list<int> values) {
        for (const int value : values)
            for (int size = 0; size < 4; ++size) {
                Tcbtn_properties p = made;
                p.clrborder = 6, p.clrsun = 4, p.clrshadow = 5, p.underline = shown % 3 == 0, p.frame = shown % 2;
                p.*field = static_cast<std::remove_reference_t<decltype(p.*field)>>(value);
                check(p, what, value);
            }
    };
    using P = Tcbtn_properties;
    vary("type", &P::bordertype, {0, 1, 2, 3});
    vary("sides", &P::borderstyle, {0, 1, 2, 4, 8, 3, 12, 7, 14, 15});
    vary("height", &P::borderheight, {0, 1, 5});
    vary("style", &P::titlestyle, {0, 1, 2, 3, 4, 255});
    vary("align", &P::align, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 255});
    vary("back", &P::clrback, {0, 1, 9});
    vary("text", &P::clrtext, {0, 1, 15});
    vary("frame", &P::frame, {0, 1});
    vary("visible", &P::visible, {0, 1});
    button_.setproperties(&made);
    button_.MoveWindow(0, 0, 90, 60);
    full_repaint(button_);
    button_.MoveWindow(0, 0, 50, 30); // smaller is another picture
    button_.UpdateWindow();
    button_.GetDlgItem(surface_id)->UpdateWindow();
    EXPECT_EQ(pixels_of(button_).values, ButtonReference(50, 30, made).pixels());
}

TEST_F(ButtonTest, PressMovesThePictureAndReleaseBringsItBack) {
    open(button_, 120, 40);
    script({":TITLESTYLE=PLAIN", ":TITLE=reaches from edge to edge", ":ALIGN=CENTERCENTER", ":FRAME=X"});
    ButtonReference expected(120, 40, properties());
    const auto expect_shown = [&](const char* when) {
        EXPECT_EQ(pixels_of(button_).values, expected.pixels()) << when;
    };
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 50, 20), 3);
    expected.move(true);
    expect_shown("pressed");
    mouse(WM_LBUTTONDOWN, 50, 20); // finds it sunk
    expect_shown("pressed again");
    mouse(WM_LBUTTONUP, 50, 20);
    expected.move(false);
    expect_shown("released");
    mouse(WM_LBUTTONUP, 50, 20); // finds it raised
    expect_shown("released again");
    button_.draw_button(0); // as an owner presses it
    expected.move(true);
    expect_shown("pressed by its owner");
}

TEST_F(ButtonTest, TheSameBlockIsNotPaintedAgain) {
    open(button_, 60, 30);
    Tcbtn_properties p = properties();
    cover(button_, surface_id, poison);
    button_.setproperties(&p);
    EXPECT_EQ(pixels_of(button_).count(poison), 60 * 30);
    p.wordwrap = !p.wordwrap; // any byte counts
    button_.setproperties(&p);
    EXPECT_EQ(pixels_of(button_).count(poison), 0);
}

TEST_F(ButtonTest, EdgesOutsideAndHiddenDoNothing) {
    open(button_, 50, 30);
    EXPECT_TRUE(mouse(WM_LBUTTONDOWN, 0, 10) == 2 && mouse(WM_LBUTTONDOWN, 10, 0) == 2);
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
        p.titlestyle = static_cast<std::uint8_t>(value & 3), p.align = static_cast<std::uint8_t>(value & 15);
        p.visible = 1, p.fixed = 0, p.bordertype = value & 3, p.borderstyle = 15, p.borderheight = value;
        p.clrback = p.clrtext = p.clrsun = p.clrshadow = p.clrborder = value;
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
    const std::tuple<UINT, UINT, int> rows[] = {{SB_LINEDOWN, 0, 11},  {SB_LINEUP, 0, 10},
                                                {SB_TOP, 0, 9},        {SB_BOTTOM, 0, 10},
                                                {SB_PAGEDOWN, 0, 10},  {SB_THUMBTRACK, 57, 57},
                                                {SB_ENDSCROLL, 3, 57}, {SB_THUMBPOSITION, 900, 100},
                                                {SB_LINEDOWN, 0, 100}, {99, 4, 100}};
    for (const auto& [code, pos, expected] : rows) {
        bar.SendMessage(WM_VSCROLL, MAKEWPARAM(code, pos), reinterpret_cast<LPARAM>(bar.m_hWnd));
        EXPECT_EQ(bar.GetScrollPos(), expected) << code;
        bar.SetThumb(code, pos, &other); // any bar, by whichever object
        EXPECT_EQ(other.GetScrollPos(), expected) << code;
    }
    info.nPage = 20;
    bar.SetScrollInfo(&info);
    bar.SetThumb(SB_PAGEDOWN, 0, &bar);
    EXPECT_EQ(bar.GetScrollPos(), 30);
    for (CScrollBar* each : {static_cast<CScrollBar*>(nullptr), static_cast<CScrollBar*>(&bar)})
        bar.SetThumb(SB_PAGEUP, 0, each);
    EXPECT_EQ(bar.GetScrollPos(), 10);
}

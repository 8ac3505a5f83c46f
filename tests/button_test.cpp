#include "widget_window.h"

#include <cstring>
#include <numeric>
#include <string>

namespace {

constexpr int surface_id = 101;
constexpr COLORREF white = RGB(255, 255, 255), blue = RGB(0, 0, 255), yellow = RGB(255, 255, 0), green = RGB(0, 255, 0),
                   red = RGB(255, 0, 0);

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

    // A look whose colours tell its parts apart.
    Tcbtn_properties plain() {
        script({":TITLE=", ":TITLESTYLE=PLAIN", ":ALIGN=BOTTOMLEFT", ":BORDERHEIGHT=2", ":CLRBACK=WHITE",
                ":CLRBORDER=BLUE", ":CLRSUN=YELLOW", ":CLRSHADOW=GREEN", ":CLRTEXT=RED"});
        return properties();
    }

    Pixels shown(const Tcbtn_properties& p) {
        button_.setproperties(&p);
        return repainted(button_);
    }

    // In letters: dot ground, B border, S sun, D shadow, T text.
    std::string side_by_side(const std::vector<Pixels>& pictures) {
        std::vector<std::string> rows(pictures[0].height, "\n");
        for (const Pixels& picture : pictures) {
            const std::string all = letters(picture.values, picture.width,
                                            {{white, '.'}, {blue, 'B'}, {yellow, 'S'}, {green, 'D'}, {red, 'T'}});
            for (int y = 0; y < picture.height; ++y)
                rows[y] += " " + all.substr(y * (picture.width + 1), picture.width);
        }
        return std::accumulate(rows.begin(), rows.end(), std::string());
    }

    CWntButton button_;
};

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

} // namespace

TEST_F(ButtonTest, BordersLookLikeTheirSketches) {
    open(button_, 9, 7);
    const auto varied = [&](Tcbtn_properties p, auto field, std::initializer_list<int> values) {
        std::vector<Pixels> pictures;
        for (const int value : values) {
            p.*field = value;
            pictures.push_back(shown(p));
        }
        return side_by_side(pictures);
    };
    using P = Tcbtn_properties;
    const Tcbtn_properties made = plain();
    Tcbtn_properties framed = made, sunk = made;
    framed.frame = 1;
    sunk.bordertype = 3;
    EXPECT_EQ(varied(made, &P::bordertype, {0, 1, 2}) + varied(framed, &P::borderheight, {0, 1, 2, 3}), R"(
 ......... BBBBBBBB. SSSSSSSS.
 ......... BBBBBBB.B SSSSSSS.D
 ......... BB.....BB SS.....DD
 ......... BB.....BB SS.....DD
 ......... BB.....BB SS.....DD
 ......... BBBBBBBBB SDDDDDDDD
 ......... BBBBBBBBB DDDDDDDDD
 BBBBBBBBB BBBBBBBBB BBBBBBBBB BBBBBBBBB
 B.......B BSSSSSS.B BSSSSSS.B BSSSSSS.B
 B.......B BS.....DB BSSSSS.DB BSSSSS.DB
 B.......B BS.....DB BSS...DDB BSSDDDDDB
 B.......B BS.....DB BSDDDDDDB BSDDDDDDB
 B.......B BDDDDDDDB BDDDDDDDB BDDDDDDDB
 BBBBBBBBB BBBBBBBBB BBBBBBBBB BBBBBBBBB)");
    EXPECT_EQ(varied(sunk, &P::borderstyle, {1, 2, 4, 8, 3, 12, 15}), R"(
 DD....... .......SS DDDDDDDDD ......... DD.....SS DDDDDDDDD DDDDDDDD.
 DD....... .......SS DDDDDDDDD ......... DD.....SS DDDDDDDDD DDDDDDD.S
 DD....... .......SS ......... ......... DD.....SS ......... DD.....SS
 DD....... .......SS ......... ......... DD.....SS ......... DD.....SS
 DD....... .......SS ......... ......... DD.....SS ......... DD.....SS
 DD....... .......SS ......... SSSSSSSSS DD.....SS SSSSSSSSS DSSSSSSSS
 DD....... .......SS ......... SSSSSSSSS DD.....SS SSSSSSSSS SSSSSSSSS)");
}

TEST_F(ButtonTest, TitlesStandByTheirAlignmentInTheirStyle) {
    constexpr int width = 250, height = 26; // of small texts no pixel is mixed
    char text[] = "Hi";
    open(button_, width, height);
    Tcbtn_properties p = plain();
    p.bordertype = 0;
    p.underline = 1;
    std::strcpy(p.title, text);
    struct Pass {
        COLORREF colour;
        int dx, dy;
    };
    const std::vector<Pass> plain_text = {{red, 0, 0}}, inset = {{green, -1, 1}, {yellow, 1, -1}, {red, 0, 0}},
                            outset = {{yellow, -1, 1}, {green, 1, -1}, {red, 0, 0}}, bold = {{red, 0, 0}, {red, 1, 0}};
    const std::tuple<int, int, CPoint, CPoint, std::vector<Pass>> titles[] = {
        {0, 0, {3, 3}, {3, 4}, plain_text},      {5, 0, {246, 22}, {46, 8}, plain_text},
        {10, 0, {124, 12}, {24, 6}, plain_text}, {255, 0, {0, 0}, {0, 1}, plain_text},
        {10, 1, {124, 12}, {24, 6}, inset},      {10, 2, {124, 12}, {24, 6}, outset},
        {10, 3, {124, 12}, {24, 6}, bold}};
    for (const auto& [align, style, at, line, passes] : titles) {
        Picture expected(width, height);
        expected.clear(white);
        CWntOut surface;
        surface.targetmode = 1;
        surface.reset(expected.dc());
        surface.xmax = width - 1;
        surface.ymax = height - 1;
        surface.settext(0, 0, 0, 15, 0, 0);
        for (const Pass& pass : passes) {
            surface.linecolour(pass.colour, 0);
            surface.hline(line.x + pass.dx, line.y + pass.dy, 200);
            surface.chars(at.x + pass.dx, at.y + pass.dy, text, align);
        }
        p.align = static_cast<std::uint8_t>(align);
        p.titlestyle = static_cast<std::uint8_t>(style);
        EXPECT_EQ(shown(p).values, expected.values()) << align << ' ' << style;
    }
}

TEST_F(ButtonTest, PressMovesThePictureAndReleaseBringsItBack) {
    open(button_, 16, 11);
    Tcbtn_properties p = plain();
    p.borderheight = 1;
    shown(p);
    CClientDC content(button_.GetDlgItem(surface_id)); // what is moved, from edge to edge
    content.FillSolidRect(2, 2, 12, 7, red);
    content.FillSolidRect(5, 3, 9, 4, blue);
    std::vector<Pixels> pictures = {pixels_of(button_)};
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 7, 5), 3);
    pictures.push_back(pixels_of(button_));
    mouse(WM_LBUTTONDOWN, 7, 5); // finds it sunk
    EXPECT_EQ(pixels_of(button_), pictures.back());
    mouse(WM_LBUTTONUP, 7, 5);
    pictures.push_back(pixels_of(button_));
    mouse(WM_LBUTTONUP, 7, 5); // finds it raised
    EXPECT_EQ(pixels_of(button_), pictures.back());
    for (const unsigned char up : {0, 1}) { // as an owner presses it and lets it go
        button_.draw_button(up);
        pictures.push_back(pixels_of(button_));
    }
    EXPECT_EQ(side_by_side(pictures), R"(
 SSSSSSSSSSSSSSS. DDDDDDDDDDDDDDD. SSSSSSSSSSSSSSS. DDDDDDDDDDDDDDD. SSSSSSSSSSSSSSS.
 S..............D D..............S S..............D D..............S S..............D
 S.TTTTTTTTTTTT.D D..............S S..............D D..............S S..............D
 S.TTTBBBBBBBBB.D D..............S S..TTBBBBBB....D D..............S S..TTBBBBBB....D
 S.TTTBBBBBBBBB.D D..............S S..TTBBBBBB....D D..............S S..TTBBBBBB....D
 S.TTTBBBBBBBBB.D D....TTBBBBBBB.S S..TTBBBBBB....D D....TTBBBBBB..S S..TTBBBBBB....D
 S.TTTBBBBBBBBB.D D....TTBBBBBBB.S S..............D D....TTBBBBBB..S S..............D
 S.TTTTTTTTTTTT.D D....TTBBBBBBT.S S..............D D....TTBBBBBB..S S..............D
 S.TTTTTTTTTTTT.D D....TTBBBBBBT.S S..............D D..............S S..............D
 S..............D D..............S S..............D D..............S S..............D
 DDDDDDDDDDDDDDDD SSSSSSSSSSSSSSSS DDDDDDDDDDDDDDDD SSSSSSSSSSSSSSSS DDDDDDDDDDDDDDDD)");
}

TEST_F(ButtonTest, IsPaintedAgainWhereItDiffers) {
    open(button_, 60, 30);
    Tcbtn_properties p = properties();
    cover(button_, surface_id, poison);
    button_.setproperties(&p);
    EXPECT_EQ(pixels_of(button_).count(poison), 60 * 30);
    p.wordwrap = !p.wordwrap; // any byte counts
    button_.setproperties(&p);
    EXPECT_EQ(pixels_of(button_).count(poison), 0);

    cover(button_, surface_id, poison);
    button_.draw_background(); // without a change no ground
    const long inside = pixels_of(button_).count(poison);
    button_.draw_foreground();
    const long beside_title = pixels_of(button_).count(poison);
    EXPECT_THAT((std::vector{inside, beside_title}), testing::ElementsAre(1299, 929));
    script({":CLRBACK=RED"});
    EXPECT_EQ(pixels_of(button_).count(poison), 0);

    cover(button_, surface_id, poison);
    button_.MoveWindow(0, 0, 50, 20); // narrower: its right and lower edges move
    button_.UpdateWindow();
    EXPECT_EQ(pixels_of(button_).count(poison), 0);
    button_.MoveWindow(0, 0, 60, 30);
    p.visible = 0;
    cover(button_, surface_id, poison);
    EXPECT_EQ(shown(p).count(poison), 60 * 30);
}

TEST_F(ButtonTest, EdgesOutsideAndHiddenDoNothing) {
    open(button_, 50, 30);
    const Tcbtn_properties first = properties();
    EXPECT_FALSE(button_.GetStyle() & WS_CLIPCHILDREN); // though asked for
    std::string inside;
    for (const CPoint at : {CPoint(0, 10), CPoint(10, 0), CPoint(1, 29), CPoint(49, 1), CPoint(50, 9), CPoint(9, 30)})
        inside += button_.mouse_in_button(at) ? '1' : '0';
    EXPECT_EQ(inside, "001100");
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 0, 10), 2);
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 10, 10), 3);
    EXPECT_EQ(mouse(WM_LBUTTONUP, 60, 10), 3); // released outside: stays sunk
    EXPECT_EQ(mouse(WM_LBUTTONUP, 10, 10), 2);
    script({":VISIBLE=0"});
    EXPECT_EQ(mouse(WM_LBUTTONDOWN, 10, 10), 2); // nothing is drawn, so nothing sinks
    script({":TITLE=x", ":CLRTEXT=RED", ":FRAME=1", ":WORDWRAP=1", ":FIXED=1", ":TYPE=MAC"});
    button_.DestroyWindow();
    open(button_, 50, 30);
    const Tcbtn_properties again = properties();
    EXPECT_EQ(std::memcmp(&again, &first, sizeof first), 0);
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

#include "control_host.h"
#include "modal.h"
#include "temporary_file.h"

namespace {

using testing::ElementsAre;

constexpr COLORREF red = RGB(255, 0, 0), blue = RGB(0, 0, 255), white = RGB(255, 255, 255);

struct Tabs : ControlTest<AnsweringHost<WntTabsNotify, &WntTabsNotify::tab, &WntTabsNotify::other>> {
    void SetUp() override {
        ControlTest::SetUp();
        open(tabs_, pages_, 300);
    }
    void open(CWntTabs& tabs, CButton (&pages)[3], int width) {
        ASSERT_TRUE(tabs.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, width, 200), &host_, 9));
        const char* texts[] = {"&One", "&Two", "T&hree"};
        for (int i = 0; i < 3; ++i) {
            ASSERT_TRUE(pages[i].Create("page", WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), &tabs, 11u + i));
            ASSERT_EQ(tabs.AddTab(texts[i], &pages[i]), 1);
        }
        full_repaint(tabs);
    }
    CWnd& strip() { return *tabs_.GetWindow(GW_CHILD); }
    CPoint in_strip(CPoint at) {
        tabs_.ClientToScreen(&at);
        strip().ScreenToClient(&at);
        return at;
    }
    void mouse(UINT message, CPoint at) {
        at = in_strip(at);
        const HeldKeys button({message == WM_LBUTTONDOWN ? VK_LBUTTON : 0});
        strip().SendMessage(message, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    }
    CPoint middle(int tab) { return tabs_.GetTabRect(tab).CenterPoint(); }
    void click(CPoint at) {
        mouse(WM_LBUTTONDOWN, at);
        mouse(WM_LBUTTONUP, at);
    }
    void key(UINT k) { strip().SendMessage(WM_KEYDOWN, k, 0); }
    std::string shown() {
        std::string all;
        for (int i = 0; i < 3; ++i)
            all += pages_[i].m_hWnd && pages_[i].IsWindowVisible() ? static_cast<char>('1' + i) : '-';
        return all;
    }
    CRect place(CWnd& window) { return place_in(tabs_, window); }
    Pixels strip_now() { return strip().UpdateWindow(), pixels_of(strip()); }

    CWntTabs tabs_;
    CButton pages_[3];
};

TEST_F(Tabs, OnlyTheSelectedPageIsShownWhereTheStripLeavesRoom) {
    EXPECT_EQ(shown(), "1--");
    EXPECT_EQ(place(pages_[0]), tabs_.GetPageRect());
    for (const int side : {CWntTabs::at_bottom, CWntTabs::at_left, CWntTabs::at_right, CWntTabs::at_top}) {
        EXPECT_EQ(tabs_.SetSide(side), 1);
        EXPECT_TRUE((place(strip()) & tabs_.GetPageRect()).IsRectEmpty()) << side;
        EXPECT_EQ(place(pages_[0]), tabs_.GetPageRect());
    }
    EXPECT_EQ(tabs_.Select(2), 1);
    tabs_.MoveWindow(0, 0, 250, 150);
    EXPECT_EQ(shown(), "--3");
    EXPECT_EQ(place(pages_[2]), CRect(1, tabs_.GetPageRect().top, 249, 149));
    EXPECT_EQ(tabs_.RemoveTab(2), 1);
    EXPECT_EQ(shown(), "-2-");
    tabs_.SetPage(1, &pages_[2]);
    EXPECT_EQ(shown(), "--3");
    pages_[2].DestroyWindow(); // its tab shows the ground
    tabs_.SetSide(CWntTabs::at_left);
    EXPECT_TRUE(tabs_.GetTabCount() == 2 && !tabs_.GetPage(1) && shown() == "---");
    tabs_.EnableTab(1, 0);
    EXPECT_TRUE(tabs_.GetSelected() == 0 && shown() == "1--");
    EXPECT_TRUE(host_.told.empty()) << "calls tell nothing";
    CWntTabs inner;
    ASSERT_TRUE(inner.Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), &tabs_, 30));
    EXPECT_EQ(tabs_.InsertTab(1, "Inner", &inner) + tabs_.InsertTab(9, "Far", nullptr), 2);
    EXPECT_EQ(tabs_.GetTabText(1) + tabs_.GetTabText(2) + tabs_.GetTabText(3), "Inner&TwoFar");
    EXPECT_TRUE(tabs_.FindPage(&inner) == 1 && tabs_.FindPage(&host_) == -1 && tabs_.GetPage(1) == &inner);
    CWntTabs* volatile none = nullptr;
    EXPECT_EQ(tabs_.AddTab("again", &pages_[0]) + tabs_.AddTab("host", &host_) + tabs_.AddTab("self", &tabs_) +
                  inner.AddTab("outer", &tabs_) + tabs_.SetSide(4) + none->GetTabCount() + none->LoadLine("", 2),
              0);
}

TEST_F(Tabs, AClickSelectsAsTheHostAllows) {
    click(middle(1));
    EXPECT_EQ(shown(), "-2-");
    EXPECT_THAT(host_.told, ElementsAre(std::tuple(WNT_TABS_SELECTING, 1, 0), std::tuple(WNT_TABS_SELECTED, 1, 0)));
    EXPECT_EQ(::GetFocus(), strip().m_hWnd);
    host_.told.clear();
    click(middle(1)); // is selected
    tabs_.EnableTab(2, 0);
    click(middle(2));
    EXPECT_TRUE(host_.told.empty());
    host_.answer = [](WntTabsNotify&) { return 1; };
    click(middle(0));
    EXPECT_EQ(shown(), "-2-");
    host_.told.clear();
    host_.answer = [&](WntTabsNotify&) -> LRESULT { return tabs_.RemoveTab(0) == 0; };
    click(middle(0)); // which the host takes away when it is asked
    EXPECT_THAT(host_.told, ElementsAre(std::tuple(WNT_TABS_SELECTING, 0, 1)));
    EXPECT_EQ(shown(), "-2-");
    EXPECT_NE(::GetCapture(), strip().m_hWnd);
    host_.answer = [](WntTabsNotify&) { return 0; };
    const CPoint at = in_strip(middle(0)); // by a click that ended meanwhile, in a message box
    strip().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_NE(::GetCapture(), strip().m_hWnd);
}

TEST_F(Tabs, KeysSelectOnTheStripAndFromWithinAPage) {
    strip().SetFocus();
    tabs_.EnableTab(1, 0);
    for (const auto& [k, to] :
         {std::pair{VK_RIGHT, 2}, {VK_RIGHT, 2}, {VK_DOWN, 2}, {VK_HOME, 0}, {VK_END, 2}, {VK_LEFT, 0}}) {
        key(static_cast<UINT>(k));
        EXPECT_EQ(tabs_.GetSelected(), to) << k;
    }
    tabs_.EnableTab(1, 1);
    tabs_.SetSide(CWntTabs::at_left);
    key(VK_DOWN);
    EXPECT_TRUE(tabs_.GetSelected() == 1 && ::GetFocus() == strip().m_hWnd);

    pages_[1].SetFocus();
    EXPECT_FALSE(translated(pages_[1], WM_KEYDOWN, VK_TAB));
    const auto selects = [&](std::initializer_list<int> held, CWnd& within, UINT message, WPARAM k) {
        const HeldKeys keys(held);
        return translated(within, message, k) ? tabs_.GetSelected() : -1;
    };
    EXPECT_EQ(selects({VK_CONTROL}, pages_[1], WM_KEYDOWN, VK_TAB), 2);
    EXPECT_EQ(selects({VK_CONTROL}, strip(), WM_KEYDOWN, VK_NEXT), 0); // round the end
    EXPECT_EQ(selects({VK_CONTROL}, pages_[0], WM_KEYDOWN, VK_PRIOR), 2);
    EXPECT_EQ(selects({VK_CONTROL, VK_SHIFT}, pages_[2], WM_KEYDOWN, VK_TAB), 1);
    EXPECT_EQ(selects({}, pages_[1], WM_SYSCHAR, 'H'), 2);
    EXPECT_EQ(selects({}, pages_[2], WM_SYSCHAR, 'x'), -1);
}

TEST_F(Tabs, AreClosedByMarkAndKey) {
    const CRect plain = tabs_.GetTabRect(1);
    tabs_.SetClosable(1, 1);
    const CRect tab = tabs_.GetTabRect(1);
    EXPECT_GT(tab.Width(), plain.Width());
    const CPoint mark(tab.right - 14, tab.CenterPoint().y);
    tabs_.LoadLine(":CLRTEXT=RED", 0);
    EXPECT_EQ(sketch(repainted(strip()), CRect(in_strip(mark) - CSize(7, 4), CSize(11, 9)), {{red, '#'}}),
              "???????????\n"
              "?##????##??\n"
              "??##??##???\n"
              "???####????\n"
              "????##?????\n"
              "???####????\n"
              "??##??##???\n"
              "?##????##??\n"
              "???????????\n");
    mouse(WM_LBUTTONDOWN, mark);
    mouse(WM_LBUTTONUP, middle(0)); // not on it
    EXPECT_TRUE(host_.told.empty());
    host_.answer = [](WntTabsNotify& n) { return n.hdr.code == WNT_TABS_CLOSING; };
    click(mark);
    EXPECT_EQ(tabs_.GetTabCount(), 3);
    host_.answer = [&](WntTabsNotify& n) -> LRESULT { return n.page != pages_[1].m_hWnd; };
    host_.told.clear();
    click(mark);
    EXPECT_THAT(host_.told, ElementsAre(std::tuple(WNT_TABS_CLOSING, 1, 0), std::tuple(WNT_TABS_CLOSED, 1, 0)));
    EXPECT_EQ(tabs_.GetTabCount(), 2);
    key(VK_DELETE); // has no mark
    EXPECT_EQ(tabs_.GetTabCount(), 2);
    tabs_.SetClosable(0, 1);
    host_.answer = [](WntTabsNotify&) { return 0; };
    key(VK_DELETE);
    EXPECT_EQ(shown(), "--3");
    EXPECT_EQ(pages_[0].GetParent(), &tabs_) << "it stays a window of the host's";
}

TEST_F(Tabs, AreOrderedByDragging) {
    const auto drag = [&](int from, CPoint to) {
        mouse(WM_LBUTTONDOWN, middle(from));
        mouse(WM_MOUSEMOVE, middle(from) + CPoint(2, 0));
        mouse(WM_MOUSEMOVE, to);
    };
    const auto drop = [&](int from, CPoint to) { drag(from, to), mouse(WM_LBUTTONUP, to); };
    const CPoint end(tabs_.GetTabRect(2).right, 5);
    drop(0, end);
    EXPECT_EQ(tabs_.GetTabText(0), "&One") << "not allowed";
    tabs_.SetMovable(1);
    const Pixels still = strip_now();
    drag(0, end);
    EXPECT_NE(strip_now(), still);
    key(VK_ESCAPE);
    mouse(WM_LBUTTONUP, end);
    mouse(WM_MOUSEMOVE, CPoint(200, 100));
    EXPECT_EQ(strip_now(), still);
    EXPECT_EQ(tabs_.GetTabText(0), "&One");
    drop(0, end);
    EXPECT_EQ(tabs_.GetTabText(2), "&One");
    EXPECT_EQ(shown(), "1--") << "the selected page goes along";
    EXPECT_THAT(host_.told, ElementsAre(std::tuple(WNT_TABS_ORDERING, 0, 2), std::tuple(WNT_TABS_ORDERED, 2, 0)));
    host_.answer = [](WntTabsNotify&) { return 1; };
    drop(2, CPoint(0, 5));
    EXPECT_EQ(tabs_.GetTabText(2), "&One");
    host_.answer = [](WntTabsNotify&) { return 0; };
    HeldKeys({VK_CONTROL}), key(VK_LEFT);
    EXPECT_EQ(tabs_.GetTabText(1), "&One");
}

TEST_F(Tabs, WhatDoesNotFitScrollsOrIsInTheMenu) {
    CButton more[9];
    for (CButton& each : more) {
        ASSERT_TRUE(each.Create("more", WS_CHILD, CRect(0, 0, 5, 5), &tabs_, 40));
        tabs_.AddTab("another", &each);
    }
    const auto seen = [&](int tab) { return !tabs_.GetTabRect(tab).IsRectEmpty(); };
    EXPECT_TRUE(seen(0) && !seen(11));
    tabs_.LoadLine(":CLRTEXT=RED", 0);
    const auto buttons = [&] {
        const Pixels seen = repainted(strip());
        return sketch(seen, CRect(seen.width - 30, 11, seen.width - 4, 18),
                      {{red, '#'}, {::GetSysColor(COLOR_GRAYTEXT), 'g'}});
    };
    EXPECT_EQ(buttons(), R"(????g???????????????#?????
???gg???????????????##????
??ggg???????????????###???
?gggg???????????????####??
??ggg???????????????###???
???gg???????????????##????
????g???????????????#?????
)");
    const CPoint on(295, 12);
    click(on);
    EXPECT_TRUE(!seen(0) && seen(1) && tabs_.GetSelected() == 0);
    mouse(WM_LBUTTONDOWN, on);
    strip().SendMessage(WM_TIMER, 1); // goes on while it is held
    EXPECT_FALSE(seen(2));
    mouse(WM_MOUSEMOVE, middle(4));
    strip().SendMessage(WM_TIMER, 1);
    EXPECT_TRUE(seen(3));
    mouse(WM_LBUTTONUP, middle(4));
    for (int i = 0; i < 5; ++i)
        click(on - CPoint(18, 0));
    EXPECT_TRUE(seen(0));
    tabs_.Select(11);
    EXPECT_TRUE(seen(11));
    EXPECT_TRUE(tabs_.ShowTab(0) == 1 && seen(0) && tabs_.GetSelected() == 11);

    tabs_.SetOverflow(CWntTabs::by_menu);
    tabs_.ShowTab(0);
    EXPECT_EQ(buttons(), R"(??????????????????????????
??????????????????????????
??????????????????#######?
???????????????????#####??
????????????????????###???
?????????????????????#????
??????????????????????????
)");
    const WhileModal menu([&] {
        const HWND shown = shown_popup();
        if (!shown)
            return false;
        for (const WPARAM k : {VK_UP, VK_UP, VK_RETURN}) // the last but one
            ::PostMessageA(shown, WM_KEYDOWN, k, 0);
        return true;
    });
    strip().SetFocus();
    strip().SendMessage(WM_SYSKEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(tabs_.GetSelected(), 10);
}

TEST_F(Tabs, TheSelectedTabIsJoinedToItsPageAtEverySide) {
    tabs_.LoadLine(":CLRSUN=RED", 0);
    tabs_.LoadLine(":CLRSHADOW=BLUE", 0);
    tabs_.LoadLine(":CLRBACK=WHITE", 0);
    tabs_.Select(1);
    for (const int side : {CWntTabs::at_top, CWntTabs::at_bottom, CWntTabs::at_left, CWntTabs::at_right}) {
        tabs_.SetSide(side);
        const Pixels seen = repainted(tabs_);
        const CRect page = tabs_.GetPageRect();
        std::string line; // between tabs and page, at each tab
        for (int tab = 0; tab < 3; ++tab) {
            CPoint at = middle(tab);
            if (side == CWntTabs::at_top || side == CWntTabs::at_bottom)
                at.y = side == CWntTabs::at_top ? page.top - 1 : page.bottom;
            else
                at.x = side == CWntTabs::at_left ? page.left - 1 : page.right;
            line += letters({seen.at(at.x, at.y)}, 9, {{red, 'r'}, {blue, 'b'}, {white, ' '}});
        }
        EXPECT_EQ(line, side == CWntTabs::at_top || side == CWntTabs::at_left ? "r r" : "b b") << side;
        EXPECT_TRUE(seen.at(page.right, page.bottom - 3) == blue || side == CWntTabs::at_right) << side;
        EXPECT_TRUE(seen.at(page.left - 1, page.bottom - 3) == red || side == CWntTabs::at_left) << side;
    }
    tabs_.SetSide(CWntTabs::at_top);
    const auto corner = [&](LONG at) {
        return sketch(repainted(tabs_), CRect(at - 6, 0, at + 6, 4),
                      {{red, 'r'}, {blue, 'b'}, {white, '.'}, {::GetSysColor(COLOR_HIGHLIGHT), '='}});
    };
    EXPECT_EQ(corner(tabs_.GetTabRect(1).left) + corner(tabs_.GetTabRect(1).right), R"(......rrrrrr
.....r======
rrrrr.======
????r.......
rrrrrr......
======b.....
======.brrrr
.......b????
)");
}

TEST_F(Tabs, TextsAreWholeAndTurnedWithTheSide) {
    tabs_.LoadLine(":CLRTEXT=RED", 0);
    tabs_.SetTabText(1, "LLLLLLi"); // heavy at the beginning's foot, with a thin end
    CSize size;
    for (const int side : {CWntTabs::at_top, CWntTabs::at_bottom, CWntTabs::at_left, CWntTabs::at_right}) {
        tabs_.SetSide(side);
        const Pixels seen = repainted(tabs_);
        const CRect tab = tabs_.GetTabRect(1);
        const CRect ink = extent(seen, red, tab);
        const bool turned = side >= CWntTabs::at_left;
        const CSize now = turned ? CSize(ink.Height(), ink.Width()) : ink.Size();
        if (side == CWntTabs::at_top)
            size = now;
        EXPECT_NEAR(now.cx, size.cx, 2) << side;
        EXPECT_NEAR(now.cy, size.cy, 1) << side;
        const CPoint off = ink.CenterPoint() - tab.CenterPoint();
        EXPECT_TRUE(std::abs(off.x) <= 2 && std::abs(off.y) <= 2) << side << ": " << off.x << ", " << off.y;
        if (turned) { // the foot of the letters lies at the right when it runs upwards
            const int centre = ink.CenterPoint().x;
            int more_at_right = 0;
            for (int y = ink.top; y < ink.bottom; ++y)
                for (int x = ink.left; x < ink.right; ++x)
                    more_at_right += seen.at(x, y) != red || x == centre ? 0 : x > centre ? 1 : -1;
            EXPECT_EQ(more_at_right > 0, side == CWntTabs::at_left) << side;
        }
    }
    tabs_.MoveWindow(0, 0, 300, 60); // one tab has room, and not for all of its text
    tabs_.SetTabText(1, "a text that is much longer than there is room for it");
    tabs_.Select(1);
    const Pixels seen = repainted(tabs_);
    const CRect tab = tabs_.GetTabRect(1), inside(tab.TopLeft() + CSize(3, 3), tab.Size() - CSize(6, 6));
    EXPECT_EQ(extent(seen, red, tab), extent(seen, red, inside)) << "cut with dots, not written over";
}

TEST_F(Tabs, ASelectionPaintsNoPixelTwice) {
    full_repaint(tabs_);
    CClientDC(&tabs_).FillSolidRect(CRect(250, 2, 290, tabs_.GetPageRect().top - 2), poison);
    EXPECT_EQ(pixels_of(tabs_).count(poison), 0) << "no ground of the strip's: clipped by the strip";
    int grounds = 0;
    host_.on_message = [&](UINT message) { grounds += message == WM_ERASEBKGND || message == WM_PAINT; };
    click(middle(1));
    tabs_.UpdateWindow();
    EXPECT_EQ(grounds, 0) << "nothing of the host's is uncovered";
    EXPECT_FALSE(::GetUpdateRect(pages_[0].m_hWnd, nullptr, FALSE)) << "what is hidden is not painted";
}

TEST_F(Tabs, HoverAndFocusAreSeenAndGo) {
    const Pixels still = pixels_of(strip());
    mouse(WM_MOUSEMOVE, middle(1));
    EXPECT_NE(strip_now(), still);
    strip().SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(strip_now(), still);
    tabs_.SetFocus();
    EXPECT_NE(strip_now(), still);
    host_.SetFocus();
    EXPECT_EQ(strip_now(), still);
    tabs_.EnableTab(1, 0);
    const Pixels grey = strip_now();
    EXPECT_NE(grey, still);
    mouse(WM_MOUSEMOVE, middle(1)); // a disabled one is not lit
    EXPECT_EQ(strip_now(), grey);
    const CRect plain = tabs_.GetTabRect(0);
    tabs_.SetTabIcon(0, ::LoadIconA(nullptr, IDI_WARNING));
    EXPECT_GT(tabs_.GetTabRect(0).Width(), plain.Width() + 15);
    const Pixels bright = strip_now();
    tabs_.EnableTab(0, 0); // pales
    EXPECT_NE(strip_now(), bright);
}

TEST_F(Tabs, TipsBelongToTheirTabs) {
    tabs_.SetTabTip(1, "the second");
    tabs_.SetTabTip(2, "the third");
    const HWND tips = thread_window(TOOLTIPS_CLASSA);
    auto* control = dynamic_cast<CToolTipCtrlEx*>(CWnd::FromHandlePermanent(tips));
    ASSERT_TRUE(control);
    tabs_.MoveTab(2, 0);
    EXPECT_EQ(control->GetToolCount(), 2);
    const auto found = [&](int tab) {
        TOOLINFO tool = {};
        return control->HitTest(&strip(), in_strip(middle(tab)), &tool) != FALSE;
    };
    EXPECT_TRUE(found(0) && !found(1) && found(2));
    WntTip tip;
    EXPECT_TRUE(control->ShowTip(&strip(), 1) && control->GetShownTip(&tip) && tip.text == "the third");
    const HWND window = strip().m_hWnd;
    tabs_.DestroyWindow();
    EXPECT_FALSE(::IsWindow(window) || ::IsWindow(tips));
}

TEST_F(Tabs, TheTabKeyGoesFromTheStripIntoThePage) {
    for (CButton& page : pages_)
        page.ModifyStyle(0, WS_TABSTOP);
    CButton behind;
    ASSERT_TRUE(behind.Create("", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(300, 0, 310, 10), &host_, 50));
    tabs_.Select(1);
    const HWND order[] = {strip().m_hWnd, pages_[1].m_hWnd, behind.m_hWnd, strip().m_hWnd};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(::GetNextDlgTabItem(host_.m_hWnd, order[i], FALSE), order[i + 1]) << i;
}

TEST_F(Tabs, FollowTheMainFramesScaling) {
    const int rows = place(strip()).Height();
    MainFrameScale scale;
    scale.tell(tabs_, 200);
    EXPECT_EQ(tabs_.GetScale(), 200);
    EXPECT_NEAR(place(strip()).Height(), 2 * rows, 4);
    EXPECT_EQ(place(pages_[0]), tabs_.GetPageRect());
}

TEST_F(Tabs, MayBeDestroyedOnAnyNotification) {
    for (const UINT code : {WNT_TABS_SELECTING, WNT_TABS_SELECTED, WNT_TABS_CLOSING, WNT_TABS_CLOSED, WNT_TABS_ORDERING,
                            WNT_TABS_ORDERED}) {
        auto* tabs = new Trapping<CWntTabs>;
        CButton pages[3];
        open(*tabs, pages, 280);
        tabs->SetMovable(1);
        tabs->SetClosable(1, 1);
        const HWND window = ::GetWindow(tabs->m_hWnd, GW_CHILD);
        const CRect second = tabs->GetTabRect(1);
        host_.answer = [&](WntTabsNotify& n) -> LRESULT {
            if (n.hdr.code == code)
                delete std::exchange(tabs, nullptr);
            return 0;
        };
        const HeldKeys button({VK_LBUTTON});
        ::SendMessageA(window, WM_LBUTTONDOWN, 0, MAKELPARAM(second.left + 5, 12));
        ::SendMessageA(window, WM_MOUSEMOVE, 0, MAKELPARAM(270, 12));
        ::SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(270, 12));
        ::SendMessageA(window, WM_KEYDOWN, VK_DELETE, 0);
        EXPECT_FALSE(tabs || ::IsWindow(window)) << code;
    }
}

TEST_F(Tabs, TheFocusGoesIntoTheNextPage) {
    CEdit input;
    ASSERT_TRUE(input.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 5, 5), &pages_[1], 20));
    pages_[0].SetFocus();
    tabs_.RemoveTab(0);
    EXPECT_EQ(::GetFocus(), input.m_hWnd);
}

TEST_F(Tabs, FollowScripts) {
    const TemporaryFile file(":SIDE=RIGHT\r\n:TAB=Kettle\r\n:TAB=Pump\r\n:DISABLED=YES\r\n");
    tabs_.Select(2);
    EXPECT_TRUE(tabs_.LoadFromFile(file.name()) == 1 && tabs_.GetTabCount() == 2);
    EXPECT_EQ(shown(), "1--") << "pages keep their places, the one that has none is hidden";
    EXPECT_EQ(tabs_.Select(1), 0);
    EXPECT_EQ(place(strip()).right, 300);
    EXPECT_EQ(tabs_.LoadFromFile("no such file"), 0);
}

TEST_F(Tabs, MayBeDestroyedWhenAPageLosesTheFocus) {
    CWntTabs* tabs = nullptr;
    const std::function<void()> ways[] = {
        [&] { tabs->GetWindow(GW_CHILD)->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(20, 12)); },
        [&] { tabs->Select(2); }, [&] { tabs->RemoveTab(0); }, [&] { tabs->SetPage(0, nullptr); },
        [&] {
            for (const auto& [line, mode] : {std::pair{"", 1}, {":TAB=a", 0}, {":DISABLED=YES", 0}, {"", 2}})
                tabs->LoadLine(line, mode);
        }};
    for (const auto& leave : ways) {
        tabs = new Trapping<CWntTabs>;
        CButton pages[3];
        open(*tabs, pages, 280);
        pages[0].ModifyStyle(0, BS_NOTIFY);
        pages[0].SetFocus();
        host_.on_message = [&](UINT message) {
            if (message == WM_COMMAND)
                delete std::exchange(tabs, nullptr);
        };
        leave();
        EXPECT_FALSE(tabs || pages[0].m_hWnd) << &leave - ways;
    }
}

} // namespace

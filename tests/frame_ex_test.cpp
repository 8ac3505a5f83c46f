#include "control_host.h"

namespace {

struct FrameExTest : ControlTest<AnsweringHost<WntFrameNotify, &WntFrameNotify::folded, &WntFrameNotify::height>> {
    void SetUp() override {
        ControlTest::SetUp();
        ASSERT_TRUE(frame_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 200, 150), &host_, 1));
        frame_.SetTitle("Limits");
        ASSERT_TRUE(child_.Create("child", WS_CHILD | WS_VISIBLE, CRect(10, 300, 110, 320), frame_.GetContent(), 2));
        full_repaint(frame_);
    }
    CRect on_screen(CWnd& window) { return place_in(host_, window); }
    int bars() { return frame_.GetDlgItem(2)->IsWindowVisible() + frame_.GetDlgItem(3)->IsWindowVisible(); }

    CWntFrameEx frame_;
    CButton child_;
};

TEST_F(FrameExTest, ScrollsWhatDoesNotFit) {
    EXPECT_EQ(bars(), 0);
    EXPECT_EQ(on_screen(*frame_.GetContent()).top, 1 + frame_.GetHeaderHeight());
    for (const auto& [width, shown] : {std::pair{150, 1}, {190, 2}}) // one bar leaves no room for the second width
        EXPECT_TRUE(frame_.SetContentSize(width, 400) == 1 && bars() == shown) << width;
    frame_.SetContentSize(300, on_screen(*frame_.GetContent()).Height() + ::GetSystemMetrics(SM_CYHSCROLL));
    EXPECT_EQ(bars(), 2); // the bar below takes room that the height would just have had
    frame_.SetContentSize(150, 400);
    const int top = on_screen(child_).top;
    frame_.ShowContent(CRect(10, 300, 110, 320));
    EXPECT_EQ(on_screen(child_).bottom, on_screen(*frame_.GetContent()).bottom);
    frame_.ShowContent(CRect(0, 100, 1, 390)); // more than there is room for: its beginning
    EXPECT_EQ(on_screen(child_).top, top - 100);
    frame_.ShowContent(CRect(0, 0, 1, 1));
    EXPECT_EQ(on_screen(child_).top, top);
    frame_.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_EQ(on_screen(child_).top, top - 48);
    child_.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0); // over a child, too
    EXPECT_EQ(on_screen(child_).top, top);
    CWnd* bar = frame_.GetDlgItem(3);
    for (const auto& [code, steps] : {std::pair{SB_LINEDOWN, 1}, {SB_PAGEDOWN, 8}, {SB_LINEUP, 7}}) {
        frame_.SendMessage(WM_VSCROLL, static_cast<WPARAM>(code), reinterpret_cast<LPARAM>(bar->m_hWnd));
        EXPECT_EQ(on_screen(child_).top, top - 16 * steps) << code;
    }
    frame_.SetContentSize(300, 400);
    const CRect before = on_screen(child_);
    bar = frame_.GetDlgItem(2);
    frame_.SendMessage(WM_HSCROLL, SB_PAGERIGHT, reinterpret_cast<LPARAM>(bar->m_hWnd));
    frame_.ShowWindow(SW_HIDE);
    frame_.ShowContent(CRect(0, 0, 300, 400)); // moves what cannot be seen as well
    EXPECT_EQ(on_screen(child_).TopLeft(), CPoint(before.left, top));
    frame_.SendMessage(WM_HSCROLL, SB_LINERIGHT, reinterpret_cast<LPARAM>(bar->m_hWnd));
    EXPECT_EQ(on_screen(child_).TopLeft(), CPoint(before.left - 16, top));
    frame_.ShowWindow(SW_SHOW);
    frame_.MoveWindow(0, 0, 200, 600); // there is room now: nothing stays scrolled away
    EXPECT_EQ(on_screen(child_).top, top);
    EXPECT_EQ(bars(), 1);
    EXPECT_EQ(frame_.SetContentSize(-1, 5), 0);
}

TEST_F(FrameExTest, ScrollingShowsWhatAFullRepaintShows) {
    frame_.SetContentSize(150, 400);
    frame_.ShowContent(CRect(0, 290, 1, 330));
    const Pixels scrolled = pixels_of(frame_);
    EXPECT_EQ(repainted(frame_), scrolled);
    EXPECT_TRUE(child_.IsWindowVisible());
}

TEST_F(FrameExTest, FoldsByItsHeaderAndByKeys) {
    const int folded = frame_.GetHeaderHeight() + 2; // and the border
    frame_.LoadLine(":CLRTEXT=RED", 0);
    const auto mark = [&] { return sketch(repainted(frame_), CRect(5, 10, 18, 16), {{RGB(255, 0, 0), '#'}}); };
    EXPECT_EQ(mark(), R"(?###########?
??#########??
???#######???
????#####????
?????###?????
??????#??????
)");
    frame_.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(50, 10));
    EXPECT_EQ(mark(), R"(????####?????
????#####????
????######???
????#####????
????####?????
????###??????
)");
    EXPECT_TRUE(on_screen(frame_).Height() == folded && !child_.IsWindowVisible());
    frame_.SendMessage(WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_TRUE(on_screen(frame_).Height() == 150 && child_.IsWindowVisible());
    for (const UINT key : {VK_LEFT, VK_RIGHT, VK_RIGHT})
        frame_.SendMessage(WM_KEYDOWN, key, 0);
    frame_.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(50, 100)); // not the header
    const std::tuple closed(WNT_FRAME_FOLDED, 1, folded), open(WNT_FRAME_FOLDED, 0, 150);
    EXPECT_THAT(host_.told, testing::ElementsAre(closed, open, closed, open));
    EXPECT_EQ(frame_.Fold(0) + frame_.IsFolded(), 0);
    EXPECT_TRUE(frame_.Fold(1) == 1 && host_.told.size() == 4); // calls tell nothing

    frame_.SetFocus();
    const Pixels focused = repainted(frame_);
    host_.SetFocus();
    frame_.UpdateWindow();
    EXPECT_NE(pixels_of(frame_), focused);
}

TEST_F(FrameExTest, HoldsAToolAndAnchors) {
    CButton tool;
    ASSERT_TRUE(tool.Create("x", WS_CHILD | WS_VISIBLE, CRect(0, 0, 30, 90), &frame_, 7));
    EXPECT_EQ(frame_.SetTool(&tool), 1);
    EXPECT_TRUE(on_screen(tool).right == 200 - 1 - 2 && on_screen(tool).Height() == frame_.GetHeaderHeight() - 2);
    frame_.MoveWindow(0, 0, 300, 150);
    EXPECT_EQ(on_screen(tool).right, 300 - 1 - 2);
    frame_.SetContentSize(200, 400);
    ASSERT_EQ(frame_.SetAnchor(&child_, 0, 0, 1, 0), 1);
    const CRect before = on_screen(child_);
    frame_.MoveWindow(0, 0, 350, 150);
    EXPECT_EQ(on_screen(child_).right, before.right + 50);
    frame_.ShowContent(CRect(0, 380, 1, 400));
    frame_.MoveWindow(0, 0, 360, 150);
    EXPECT_EQ(on_screen(child_).right, before.right + 60);
    EXPECT_LT(on_screen(child_).top, before.top);
    tool.SendMessage(BM_CLICK);
    child_.SendMessage(BM_CLICK);
    EXPECT_THAT(host_.commands, testing::ElementsAre(7u, 2u));
    EXPECT_TRUE(frame_.SetTool(nullptr) == 1 && !tool.IsWindowVisible());
}

TEST_F(FrameExTest, KeepsItsContentWhileFolded) {
    frame_.SetContentSize(150, 400);
    ASSERT_EQ(frame_.SetAnchor(&child_, 0, 0, 1, 0), 1);
    const CRect before = on_screen(child_);
    frame_.Fold(1);
    CButton late;
    ASSERT_TRUE(late.Create("late", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 30), frame_.GetContent(), 3));
    ASSERT_EQ(frame_.SetAnchor(&late, 0, 0, 1, 1), 1);
    frame_.Fold(0);
    EXPECT_EQ(on_screen(child_), before);
    EXPECT_EQ(on_screen(late).Size(), CSize(50, 20));
}

TEST_F(FrameExTest, ScrollsByKeys) {
    frame_.SetContentSize(150, 400);
    const int top = on_screen(child_).top;
    const int page = 150 - 2 - frame_.GetHeaderHeight();
    for (const auto& [key, down] : {std::pair{VK_HOME, 0},
                                    {VK_DOWN, 16},
                                    {VK_UP, 0},
                                    {VK_NEXT, page},
                                    {VK_END, 400 - page},
                                    {VK_PRIOR, 400 - 2 * page}}) {
        frame_.SendMessage(WM_KEYDOWN, key, 0);
        EXPECT_EQ(on_screen(child_).top, top - down) << key;
    }
    EXPECT_EQ(frame_.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
}

TEST_F(FrameExTest, MayBeDestroyedWhenItTells) {
    auto* doomed = new CWntFrameEx;
    ASSERT_TRUE(doomed->Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &host_, 9));
    host_.answer = [&](WntFrameNotify&) { return delete std::exchange(doomed, nullptr), 0; };
    doomed->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(20, 10));
    EXPECT_FALSE(doomed);
}

} // namespace

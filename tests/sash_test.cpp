#include "control_host.h"

namespace {

struct Sash : ControlTest<AnsweringHost<WntSashNotify, &WntSashNotify::position>> {
    static constexpr int bar = 5;

    void SetUp() override {
        ControlTest::SetUp();
        ASSERT_TRUE(sash_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 205, 100), &host_, 9));
        ASSERT_TRUE(first_.Create("one", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), &sash_, 11));
        ASSERT_TRUE(second_.Create("two", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), &sash_, 12));
        ASSERT_TRUE(sash_.SetPanes(&first_, &second_));
        sash_.SetPosition(100);
        full_repaint(sash_);
    }
    CRect place(CWnd& pane) { return place_in(sash_, pane); }
    void mouse(UINT message, int x, int y = 50) { sash_.SendMessage(message, MK_LBUTTON, MAKELPARAM(x, y)); }
    void drag(int from, int to) { mouse(WM_LBUTTONDOWN, from), mouse(WM_MOUSEMOVE, to); }
    void key(UINT k) { sash_.SendMessage(WM_KEYDOWN, k, 0); }

    CWntSash sash_;
    CButton first_, second_;
};

TEST_F(Sash, PlacesItsPanesEitherWay) {
    EXPECT_TRUE(place(first_) == CRect(0, 0, 100, 100) && place(second_) == CRect(105, 0, 205, 100));
    sash_.SetUpright(0); // shares are kept: 100 of 200
    EXPECT_TRUE(place(first_) == CRect(0, 0, 205, 48) && place(second_) == CRect(0, 53, 205, 100));
    EXPECT_EQ(sketch(repainted(sash_), CRect(88, 48, 118, 53),
                     {{::GetSysColor(COLOR_BTNHIGHLIGHT), '-'},
                      {::GetSysColor(COLOR_3DDKSHADOW), '#'},
                      {::GetSysColor(COLOR_BTNFACE), '.'}}),
              "------------------------------\n"
              "...##...##...##...##...##.....\n"
              "...##...##...##...##...##.....\n"
              "..............................\n"
              "##############################\n");
    EXPECT_EQ(sash_.SetShare(0.25) + sash_.SetBarSize(15), 2);
    EXPECT_EQ(place(first_), CRect(0, 0, 205, 21));
    EXPECT_EQ(place(second_), CRect(0, 36, 205, 100));
    EXPECT_EQ(sash_.GetShare(), 0.25);
    sash_.SetUpright(1);
    sash_.SetBarSize(bar);
    sash_.SetLeastSizes(80, 90);
    sash_.SetPosition(0);
    EXPECT_EQ(place(first_).Width(), 80);
    sash_.SetPosition(999);
    EXPECT_EQ(place(second_).Width(), 90);
    sash_.SetPosition(0);
    sash_.SetKeptPane(2);
    sash_.MoveWindow(0, 0, 305, 100);
    EXPECT_EQ(place(second_).Width(), 120);
    EXPECT_FALSE(sash_.SetPanes(&first_, &first_) || sash_.SetPanes(&host_, nullptr) || sash_.SetShare(2) ||
                 sash_.SetBarSize(0) || sash_.SetKeptPane(3) || sash_.SetLeastSizes(-1, 0) || sash_.Fold(1));
    CWntSash* volatile none = nullptr;
    EXPECT_EQ(none->SetPosition(1) + none->GetPosition() + none->Fold(1) + none->SetPanes(nullptr, nullptr), 0);
    CWntSash thick;
    thick.SetBarSize(9); // before there is a window
    ASSERT_TRUE(thick.Create(nullptr, "", WS_CHILD, CRect(0, 0, 109, 50), &host_, 10));
    EXPECT_TRUE(thick.SetPanes(nullptr, &second_) && place_in(thick, second_) == CRect(59, 0, 109, 50));
    ASSERT_TRUE(sash_.SetPanes(&first_, &second_));
    first_.DestroyWindow(); // its place stays blank
    sash_.SetPosition(150);
    EXPECT_EQ(place(second_), CRect(155, 0, 305, 100));
    sash_.SetPanes(nullptr, nullptr);
    EXPECT_FALSE(second_.IsWindowVisible());
}

TEST_F(Sash, IsDraggedAsTheHostAllows) {
    drag(102, 62);
    EXPECT_EQ(place(first_).Width(), 60);
    mouse(WM_LBUTTONUP, 62);
    EXPECT_THAT(host_.told, testing::ElementsAre(std::tuple(WNT_SASH_MOVING, 60), std::tuple(WNT_SASH_MOVED, 60)));
    EXPECT_NE(::GetCapture(), sash_.m_hWnd);

    host_.answer = [](WntSashNotify& n) -> LRESULT {
        n.position = n.position / 50 * 50;
        return n.position == 150;
    };
    drag(62, 120);
    EXPECT_EQ(sash_.GetPosition(), 100);
    mouse(WM_MOUSEMOVE, 160); // refused
    EXPECT_EQ(sash_.GetPosition(), 100);
    key(VK_ESCAPE);
    EXPECT_EQ(sash_.GetPosition(), 60);
    drag(62, 120);
    ::ReleaseCapture();
    EXPECT_EQ(sash_.GetPosition(), 60);
    sash_.SetLeastSizes(150, 150);
    host_.told.clear();
    const int still = sash_.GetPosition();
    drag(still + 2, still + 40);
    EXPECT_TRUE(host_.told.empty() && ::GetCapture() != sash_.m_hWnd);
}

TEST_F(Sash, GivesTheFocusBackUnlessItIsAStop) {
    for (const bool stop : {false, true}) {
        sash_.ModifyStyle(WS_TABSTOP, stop ? WS_TABSTOP : 0);
        first_.SetFocus();
        drag(sash_.GetPosition() + 2, 120);
        EXPECT_EQ(::GetFocus(), sash_.m_hWnd); // for Escape
        mouse(WM_LBUTTONUP, 120);
        EXPECT_EQ(::GetFocus(), stop ? sash_.m_hWnd : first_.m_hWnd);
    }
}

TEST_F(Sash, ATrackLineLeavesNothingBehind) {
    sash_.SetLiveDrag(0);
    const Pixels before = pixels_of(sash_);
    drag(102, 62);
    EXPECT_EQ(place(first_).Width(), 100);
    EXPECT_NE(pixels_of(sash_), before);
    mouse(WM_MOUSEMOVE, 30);
    key(VK_ESCAPE);
    sash_.SetFocus();
    host_.SetFocus();
    sash_.UpdateWindow();
    EXPECT_EQ(pixels_of(sash_), before);
    drag(102, 62);
    mouse(WM_LBUTTONUP, 62);
    EXPECT_EQ(place(first_).Width(), 60);
}

TEST_F(Sash, FoldsAndMovesByKeys) {
    sash_.SetFoldPane(1);
    mouse(WM_LBUTTONDBLCLK, 102);
    EXPECT_TRUE(sash_.GetFolded() == 1 && !first_.IsWindowVisible());
    EXPECT_EQ(place(second_).left, bar);
    mouse(WM_LBUTTONDBLCLK, 2);
    EXPECT_TRUE(first_.IsWindowVisible() && place(first_).Width() == 100);
    sash_.SetFocus();
    const Pixels focused = repainted(sash_);
    host_.SetFocus();
    sash_.UpdateWindow();
    EXPECT_NE(pixels_of(sash_), focused);
    for (const auto& [k, at] : {std::pair{VK_LEFT, 92}, {VK_RIGHT, 100}, {VK_UP, 100}, {VK_HOME, 0}, {VK_END, 200}}) {
        key(static_cast<UINT>(k));
        EXPECT_EQ(sash_.GetPosition(), at) << k;
    }
    HeldKeys({VK_CONTROL}), key(VK_LEFT);
    EXPECT_EQ(sash_.GetPosition(), 199);
    key(VK_SPACE);
    EXPECT_EQ(host_.told.back(), std::tuple(WNT_SASH_FOLDED, 0));
}

TEST_F(Sash, ItsPointerTellsWhereItMoves) {
    const HINSTANCE library = ::GetModuleHandleA("ZOPWNT.dll");
    EXPECT_EQ(pointer_at(sash_, {102, 50}), ::LoadCursorA(library, "V_SASH"));
    sash_.SetUpright(0);
    EXPECT_EQ(pointer_at(sash_, {100, sash_.GetPosition() + 2}), ::LoadCursorA(library, "H_SASH"));
    sash_.SetLeastSizes(500, 500);
    EXPECT_EQ(pointer_at(sash_, {100, sash_.GetPosition() + 2}), ::LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(Sash, PassesOnWhatItsPanesTell) {
    first_.SendMessage(BM_CLICK);
    EXPECT_THAT(host_.commands, testing::ElementsAre(11u));
    DRAWITEMSTRUCT list = {}; // is asked of its host
    for (const UINT message :
         {WM_MEASUREITEM, WM_COMPAREITEM, WM_DRAWITEM, WM_VKEYTOITEM, WM_CHARTOITEM, WM_DELETEITEM}) {
        sash_.SendMessage(message, 0, reinterpret_cast<LPARAM>(&list));
        EXPECT_EQ(std::get<0>(host_.seen.back()), message);
    }
    CWntSash inner;
    ASSERT_TRUE(inner.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), &sash_, 13));
    ASSERT_TRUE(sash_.SetPanes(&inner, nullptr) && inner.SetPanes(&second_, nullptr)); // from another parent
    EXPECT_EQ(second_.GetParent(), &inner);
    second_.SendMessage(BM_CLICK);
    EXPECT_EQ(host_.commands.back(), 12u);
    EXPECT_FALSE(inner.SetPanes(&sash_, nullptr)); // it holds the sash
}

TEST_F(Sash, AFoldedBarStaysUntilItIsReallyMoved) {
    sash_.SetLeastSizes(80, 0);
    sash_.SetFoldPane(1);
    sash_.Fold(1);
    sash_.SetFocus();
    key(VK_LEFT), key(VK_HOME);
    drag(2, 3), mouse(WM_LBUTTONUP, 3);
    EXPECT_EQ(sash_.GetFolded(), 1);
    drag(2, 90), mouse(WM_MOUSEMOVE, 2);
    key(VK_ESCAPE);
    EXPECT_EQ(sash_.GetFolded(), 1);
    host_.told.clear();
    key(VK_RIGHT);
    EXPECT_EQ(sash_.GetPosition(), 80);
    EXPECT_THAT(host_.told, testing::ElementsAre(std::tuple(WNT_SASH_MOVING, 80), std::tuple(WNT_SASH_MOVED, 80),
                                                 std::tuple(WNT_SASH_FOLDED, 80)));
    sash_.Fold(1);
    sash_.SetFoldPane(2); // the first one would never come back
    EXPECT_EQ(sash_.GetFolded(), 0);
    first_.SetFocus();
    sash_.SetFoldPane(1);
    sash_.Fold(1);
    EXPECT_EQ(::GetFocus(), sash_.m_hWnd);
}

TEST_F(Sash, StoresItselfInAProfile) {
    const TemporaryProfile file;
    EXPECT_EQ(sash_.RestoreState(file, "main"), 0);
    const auto restored = [&] { return sash_.RestoreState(file, "main") ? sash_.GetPosition() : -1; };
    sash_.SetPosition(60);
    sash_.SetFoldPane(2);
    sash_.Fold(1);
    EXPECT_EQ(sash_.StoreState(file, "main"), 1);
    sash_.Fold(0);
    sash_.SetPosition(10);
    EXPECT_TRUE(sash_.RestoreState(file, "main") == 1 && sash_.GetFolded() == 2);
    sash_.SetFoldPane(1); // no longer the one that was folded
    EXPECT_TRUE(restored() == 60 && sash_.GetFolded() == 0);
    ::WritePrivateProfileStringA("main", "Share", "999999999", file);
    EXPECT_EQ(sash_.RestoreState(file, "main"), 1);
    sash_.Fold(0);
    EXPECT_EQ(sash_.GetPosition(), 200);
    sash_.SetKeptPane(1);
    sash_.SetPosition(150);
    sash_.MoveWindow(0, 0, 0, 0); // minimised
    EXPECT_EQ(sash_.StoreState(file, "main"), 1);
    sash_.MoveWindow(0, 0, 205, 100);
    sash_.SetPosition(20);
    EXPECT_EQ(restored(), 150);
    sash_.SetKeptPane(2);
    sash_.SetPosition(150); // 50 behind it
    EXPECT_EQ(sash_.StoreState(file, "main"), 1);
    sash_.SetPosition(20);
    sash_.MoveWindow(0, 0, 305, 100);
    EXPECT_EQ(restored(), 250);
    ::WritePrivateProfileStringA("main", "Share", "half", file);
    EXPECT_EQ(sash_.RestoreState(file, "main"), 0);
    EXPECT_EQ(sash_.StoreState(nullptr, "main") + sash_.StoreState(file, ""), 0);
}

TEST_F(Sash, MayBeDestroyedOnAnyNotification) {
    for (const UINT code : {WNT_SASH_MOVING, WNT_SASH_MOVED, WNT_SASH_FOLDED})
        for (const bool live : {true, false}) {
            auto* sash = new CWntSash;
            ASSERT_TRUE(sash->Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 205, 100), &host_, 20));
            sash->SetLiveDrag(live);
            sash->SetFoldPane(1);
            const HWND window = sash->m_hWnd;
            host_.answer = [&](WntSashNotify& n) -> LRESULT {
                if (n.hdr.code == code)
                    delete std::exchange(sash, nullptr);
                return 0;
            };
            for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_LBUTTONDBLCLK})
                ::SendMessage(window, message, 0, MAKELPARAM(message == WM_LBUTTONDOWN ? 102 : 52, 10));
            EXPECT_FALSE(sash || ::IsWindow(window)) << code;
        }
}

// Whatever hosts do while panes follow.
TEST_F(Sash, MayLoseItsDragOrItselfWhilePanesAreResized) {
    struct Pane : CWnd {
        std::function<void()> resized = [] {};
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
            if (message == WM_SIZE)
                resized();
            return result;
        }
    } pane;
    ASSERT_TRUE(pane.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), &sash_, 14));
    ASSERT_TRUE(sash_.SetPanes(&pane, nullptr));
    mouse(WM_LBUTTONDOWN, 102);
    pane.resized = [] { ::ReleaseCapture(); };
    mouse(WM_MOUSEMOVE, 62);
    EXPECT_EQ(sash_.GetPosition(), 100);
    pane.resized = [&] { sash_.DestroyWindow(); };
    mouse(WM_LBUTTONDOWN, 102);
    mouse(WM_MOUSEMOVE, 62);
    EXPECT_FALSE(sash_.m_hWnd);
}

} // namespace

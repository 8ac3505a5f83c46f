#include "control_host.h"
#include "temporary_file.h"

namespace {

constexpr COLORREF dark_blue = RGB(0, 0, 128), yellow = RGB(255, 255, 0), black = 0, white = RGB(255, 255, 255);

struct FrameTest : WidgetTest {
    void SetUp() override {
        WidgetTest::SetUp();
        open(frame_, 200, 100);
        script({":CLRBACK=DARKBLUE", ":CLRTEXT=YELLOW", ":CLRSUN=WHITE", ":CLRSHADOW=BLACK"});
    }
    void script(std::initializer_list<const char*> lines) {
        frame_.LoadLine("", 1);
        for (const char* line : lines)
            frame_.LoadLine(line, 0);
        frame_.LoadLine("", 2);
        full_repaint(frame_);
    }
    CRect extent(COLORREF colour) { return ::extent(pixels_of(frame_), colour, CRect(CPoint(0, 0), size_of(frame_))); }
    CRect place(CWnd& child) { return place_in(frame_, child); }

    CWntFrame frame_;
};

TEST_F(FrameTest, BorderAndTitleStandWhereTheScriptSays) {
    script({":BORDERHEIGHT=3", ":BORDERTYPE=3DDOWN", ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM"});
    const Pixels sunk = pixels_of(frame_);
    EXPECT_TRUE(sunk.at(1, 50) == black && sunk.at(100, 2) == black && sunk.at(197, 50) == white &&
                sunk.at(100, 98) == white && sunk.at(3, 50) == dark_blue && sunk.at(196, 50) == dark_blue);
    script({":BORDERTYPE=3DUP", ":BORDERSTYLE=LEFT BOTTOM"});
    const Pixels raised = pixels_of(frame_);
    EXPECT_TRUE(raised.at(1, 50) == white && raised.at(100, 98) == black && raised.at(198, 50) == dark_blue &&
                raised.at(100, 1) == dark_blue);
    script({":BORDERTYPE=FLAT", ":BORDERSTYLE=TOP RIGHT"});
    EXPECT_TRUE(pixels_of(frame_).at(100, 1) == black && pixels_of(frame_).at(198, 50) == black);

    EXPECT_TRUE(extent(yellow).IsRectEmpty());
    script({":BORDERTYPE=NOBORDER", ":TITLE=III"});
    for (const CString down : {"TOP", "CENTER", "BOTTOM"})
        for (const CString across : {"LEFT", "CENTER", "RIGHT"}) {
            script({":ALIGN=" + down + across});
            const CPoint at = extent(yellow).CenterPoint();
            EXPECT_EQ(at.x < 60 ? "LEFT" : at.x > 140 ? "RIGHT" : "CENTER", across);
            EXPECT_EQ(at.y < 33 ? "TOP" : at.y > 66 ? "BOTTOM" : "CENTER", down);
        }
    script({":TITLE=a title that is much too long for a panel of two hundred"}); // cut, not written over the edge
    EXPECT_TRUE(extent(yellow).left >= 2 && extent(yellow).right <= 198);
    const TemporaryFile file(":TITLE=\r\n:BORDERTYPE=FLAT\r\n");
    EXPECT_EQ(frame_.LoadFromFile(file.name()), 1);
    EXPECT_TRUE(extent(yellow).IsRectEmpty());
    EXPECT_EQ(frame_.LoadFromFile("no such file") + frame_.LoadFromFile(nullptr), 0);
}

TEST_F(FrameTest, ChildrenStayAtTheirAnchors) {
    CWntGauge gauge;
    CButton button;
    ASSERT_TRUE(gauge.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 90), &frame_, 2));
    ASSERT_TRUE(button.Create("ok", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &host_, 3)); // of another parent
    button.MoveWindow(150, 70, 40, 20);
    EXPECT_EQ(frame_.SetAnchor(&gauge, 0, 0, 1, 1) + frame_.SetAnchor(&button, 1, 1, 1, 1), 2);
    frame_.MoveWindow(0, 0, 300, 150);
    EXPECT_EQ(place(gauge), CRect(10, 10, 210, 140));
    EXPECT_EQ(place(button), CRect(250, 120, 290, 140));
    frame_.SetTitle("Tank"); // moves what keeps to the upper edge
    const int strip = frame_.GetContentRect().top - 1;
    EXPECT_GT(strip, 8);
    EXPECT_EQ(place(gauge), CRect(10, 10 + strip, 210, 140));
    EXPECT_TRUE(frame_.RemoveAnchor(&gauge) == 1 && frame_.RemoveAnchor(&gauge) == 0);
    frame_.MoveWindow(0, 0, 5, 5);
    frame_.MoveWindow(0, 0, 300, 150);
    EXPECT_EQ(place(gauge), CRect(10, 10 + strip, 210, 140));
    EXPECT_EQ(place(button), CRect(250, 120, 290, 140));
    button.DestroyWindow();
    frame_.MoveWindow(0, 0, 200, 100);
    CWntFrame* volatile none = nullptr;
    EXPECT_EQ(frame_.SetAnchor(nullptr, 0, 0, 0, 0) + none->GetScale() + none->LoadLine("", 1), 0);
}

TEST_F(FrameTest, PaintsOnlyWhatIsUncovered) {
    CButton child;
    ASSERT_TRUE(child.Create("child", WS_CHILD | WS_VISIBLE, CRect(20, 20, 100, 60), &frame_, 2));
    full_repaint(frame_);
    CClientDC(&child).FillSolidRect(CRect(0, 0, 80, 40), poison);
    CClientDC(&frame_).FillSolidRect(CRect(150, 50, 160, 60), poison);
    frame_.InvalidateRect(CRect(0, 0, 120, 100), FALSE);
    frame_.UpdateWindow();
    EXPECT_EQ(pixels_of(frame_).count(poison), 80 * 40 + 10 * 10); // neither the child nor what was valid
}

TEST_F(FrameTest, FollowsTheMainFramesScaling) {
    script({":BORDERHEIGHT=2", ":TITLE=T"});
    EXPECT_EQ(frame_.GetScale(), 100);
    const CRect plain = frame_.GetContentRect();
    MainFrameScale main;
    for (const auto& [answer, scale] : {std::pair{200, 200}, {0, 100}, {-7, 100}, {INT_MAX, 1000}, {150, 150}}) {
        main.tell(frame_, answer);
        EXPECT_EQ(frame_.GetScale(), scale) << answer;
    }
    EXPECT_EQ(frame_.GetContentRect().left, 3);
    EXPECT_NEAR(frame_.GetContentRect().top, plain.top * 3 / 2, 2);
    CWntToolBar bar;
    CWntTipPage page;
    CWntToolItem item(5, "text");
    main.tell(frame_, 100);
    ASSERT_TRUE(bar.Create(nullptr, "", WS_CHILD, CRect(0, 0, 99, 9), &host_, 6) && bar.AddItem(item) == 1 &&
                page.Create(nullptr, "", WS_CHILD, CRect(0, 0, 400, 240), &host_, 7));
    const int thick = bar.GetThickness(400), button = on_screen(*page.GetDlgItem(4)).Height();
    main.tell(bar, 200);
    main.tell(page, 200);
    EXPECT_NEAR(bar.GetThickness(400), 2 * thick, thick / 3);
    EXPECT_NEAR(on_screen(*page.GetDlgItem(4)).Height(), 2 * button, button / 3);
}

} // namespace

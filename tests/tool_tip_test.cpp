#include "control_host.h"

namespace {

constexpr COLORREF odd_colour = RGB(12, 200, 34);

// Has the tools, and answers what it is asked.
struct TipHost : AttentiveHost {
    CString need_text;
    std::function<void(WntTip&)> fill = [](WntTip&) {};
    std::vector<UINT> asked;

    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT*) override {
        auto* told = reinterpret_cast<NMHDR*>(lParam);
        if (told->code == TTN_NEEDTEXTA || told->code == WNT_TIP_NEEDED)
            asked.push_back(told->code);
        if (told->code == TTN_NEEDTEXTA)
            lstrcpynA(reinterpret_cast<NMTTDISPINFOA*>(told)->szText, need_text, 80);
        else if (told->code == WNT_TIP_NEEDED)
            fill(reinterpret_cast<WntTipNotify*>(told)->tip);
        return TRUE;
    }
};

struct ToolTip : ControlTest<TipHost> {
    void SetUp() override {
        ControlTest::SetUp();
        host_.SetActiveWindow();
        ASSERT_TRUE(button_.Create("b", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 40), &host_, 5));
        tips_ = std::make_unique<CToolTipCtrlEx>();
        ASSERT_TRUE(tips_->Create(&host_, TTS_ALWAYSTIP | TTS_BALLOON));
        tips_->SetDelayTime(TTDT_INITIAL, 1);
        tips_->SetDelayTime(TTDT_RESHOW, 1);
    }
    void TearDown() override {
        tips_.reset();
        ControlTest::TearDown();
    }
    void relay(UINT message, CPoint at) {
        CPoint screen = at;
        host_.ClientToScreen(&screen);
        MSG event = {host_.m_hWnd, message, 0, MAKELPARAM(at.x, at.y), 0, screen};
        if (const HWND child = ::ChildWindowFromPoint(host_.m_hWnd, at); child && child != host_.m_hWnd)
            event.hwnd = child;
        tips_->RelayEvent(&event);
    }
    void point_at(CPoint at) {
        ::point_at(host_, at);
        relay(WM_MOUSEMOVE, at);
    }
    // What shows after the pointer came to a point; empty where nothing does.
    std::string shown_at(CPoint at, DWORD limit = 3000) {
        point_at(at);
        pumped_until([&] { return tips_->IsWindowVisible(); }, limit);
        return shown();
    }
    std::string shown() {
        CString text;
        if (tips_->IsWindowVisible())
            tips_->GetWindowText(text);
        return text.GetString();
    }
    CRect place() { return on_screen(*tips_); }

    CButton button_;
    std::unique_ptr<CToolTipCtrlEx> tips_;
};

TEST_F(ToolTip, ShowsBelowThePointerWhatItIs) {
    const WntTip tip = {"Save", "Writes the document\nto its file", nullptr, CLR_NONE};
    EXPECT_EQ(tips_->AddTip(&button_, tip), 1);
    EXPECT_EQ(tips_->AddTip(&host_, {"", "part"}, CRect(100, 100, 150, 150), 7), 1);
    EXPECT_EQ(shown_at({20, 20}), "Save\nWrites the document\nto its file");
    CPoint pointer(20, 20);
    host_.ClientToScreen(&pointer);
    EXPECT_TRUE(place().left == pointer.x && place().top > pointer.y && place().top < pointer.y + 40);
    WntTip now;
    EXPECT_TRUE(tips_->GetShownTip(&now) && now.title == "Save");
    EXPECT_EQ(tips_->SetTip(&button_, {"Changed", ""}), 1); // while it shows
    EXPECT_TRUE(pumped_until([&] { return shown() == "Changed"; }));
    host_.MoveWindow(150, 50, 300, 200); // its rectangles go with it
    point_at({20, 150});
    EXPECT_TRUE(pumped_until([&] { return shown().empty(); }));
    EXPECT_EQ(tips_->GetShownTip(nullptr), 0);
    EXPECT_EQ(shown_at({120, 120}), "part");
    tips_->DelTool(&host_, 7);
    EXPECT_EQ(tips_->ShowTip(&host_, 7), 0);
    EXPECT_EQ(tips_->SetTip(&host_, tip, 7), 0);
}

TEST_F(ToolTip, AsksWhenItShows) {
    tips_->AddTool(&host_, LPSTR_TEXTCALLBACK, CRect(100, 100, 150, 150), 7);
    host_.need_text = "from the framework";
    EXPECT_TRUE(host_.asked.empty());
    EXPECT_EQ(shown_at({120, 120}), "from the framework");
    EXPECT_THAT(host_.asked, testing::ElementsAre(UINT(TTN_NEEDTEXTA), WNT_TIP_NEEDED));
    host_.fill = [](WntTip& tip) {
        tip.title = "Level";
        tip.text += ", 12 cm";
    };
    EXPECT_EQ(tips_->ShowTip(&host_, 7), 1);
    EXPECT_EQ(shown(), "Level\nfrom the framework, 12 cm");
    EXPECT_EQ(place().TopLeft(), on_screen(host_).TopLeft() + CSize(100, 150)) << "below its tool";
    tips_->HideTip();
    EXPECT_EQ(tips_->SetTip(&host_, {"", "told"}, 7), 1); // asked no longer
    EXPECT_EQ(tips_->ShowTip(&host_, 7), 1);
    EXPECT_EQ(shown(), "told");
    tips_->UpdateTipText(LPSTR_TEXTCALLBACK, &host_, 7);
    tips_->HideTip();
    host_.need_text = "";
    host_.fill = [](WntTip&) {};
    EXPECT_EQ(tips_->ShowTip(&host_, 7), 0); // nothing to show
}

TEST_F(ToolTip, TheKeyboardShowsItUntilTheNextKey) {
    tips_->AddTip(&button_, {"", "Save"});
    EXPECT_EQ(tips_->ShowTip(&button_), 1);
    const CRect tool = on_screen(button_);
    EXPECT_TRUE(shown() == "Save" && place().left == tool.left && place().top == tool.bottom);
    relay(WM_KEYUP, {0, 0});
    EXPECT_EQ(shown(), "Save");
    tips_->SetTip(&button_, {"", "Save all"});
    EXPECT_EQ(shown(), "Save all");
    const std::function<void()> ends[] = {[&] { tips_->SetTip(&button_, {}); },
                                          [&] {
                                              relay(WM_KEYDOWN, {0, 0});
                                          },
                                          [&] { tips_->Pop(); }, [&] { tips_->DelTool(&button_); }};
    for (const auto& end : ends) {
        tips_->SetTip(&button_, {"", "Save"});
        EXPECT_EQ(tips_->ShowTip(&button_), 1);
        end();
        EXPECT_EQ(shown(), "") << &end - ends;
    }
    tips_->AddTip(&button_, {"", "Save"});
    tips_->SetDelayTime(TTDT_AUTOPOP, 1);
    EXPECT_EQ(tips_->ShowTip(&button_), 1);
    EXPECT_TRUE(pumped_until([&] { return shown().empty(); })); // its time is over
    EXPECT_EQ(tips_->ShowTip(nullptr) + tips_->ShowTip(&host_), 0);
}

TEST_F(ToolTip, PaintsItsParts) {
    const HICON icon = ::LoadIconA(nullptr, IDI_WARNING);
    tips_->AddTip(&button_, {"Title", "text", icon, odd_colour});
    const COLORREF ground = tips_->GetTipBkColor(), ink = tips_->GetTipTextColor();
    ASSERT_TRUE(tips_->ShowTip(&button_));
    const Pixels all = pixels_of(*tips_);
    EXPECT_TRUE(all.at(0, 5) == ink && all.at(5, 0) == ink); // framed
    EXPECT_TRUE(all.at(all.width - 1, 5) == ink && all.at(5, all.height - 1) == ink && all.at(2, 2) == ground);
    EXPECT_GT(all.count(odd_colour), 80);
    EXPECT_GT(all.height, 32);
    tips_->SetTip(&button_, {"Title", "text", icon, RGB(34, 12, 200)});
    EXPECT_EQ(pixels_of(*tips_).count(odd_colour), 0);
    const auto ink_of = [&](const char* title, const char* text) {
        tips_->SetTip(&button_, {title, text});
        tips_->ShowTip(&button_);
        const Pixels p = pixels_of(*tips_);
        return p.width * p.height - p.count(ground) - 2 * (p.width + p.height - 2);
    };
    EXPECT_GT(ink_of("Title", ""), ink_of("", "Title") * 5 / 4); // bold
    tips_->SetMaxTipWidth(100);
    EXPECT_GT(ink_of("", "several words that need some lines here"), 100);
    EXPECT_LE(place().Width(), 100);
    EXPECT_GT(place().Height(), 40);
}

TEST_F(ToolTip, FollowsThePointerWithoutFlicker) {
    EXPECT_EQ(tips_->TrackTip({"", "x = 10.00"}, CPoint(200, 200)), 1);
    const CRect before = place();
    CClientDC(tips_.get()).FillSolidRect(CRect(0, 0, 5, 5), poison);
    tips_->TrackTip({"", "x = 10.00"}, CPoint(230, 220)); // moved alone: painted nowhere
    EXPECT_EQ(place(), before + CPoint(30, 20));
    EXPECT_EQ(pixels_of(*tips_).count(poison), 25);
    tips_->TrackTip({"", "x = 1"}, CPoint(230, 220));
    EXPECT_EQ(place().Size(), before.Size());
    EXPECT_EQ(pixels_of(*tips_).count(poison), 0);
    EXPECT_EQ(shown(), "x = 1");
    tips_->AddTip(&button_, {"", "other"});
    point_at({20, 20});
    EXPECT_FALSE(pumped_until([&] { return shown() != "x = 1"; }, 200));
    point_at({20, 150}); // off that tool again
    EXPECT_FALSE(pumped_until([&] { return shown() != "x = 1"; }, 300));
    const CRect screen(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    tips_->TrackTip({"", "x = 1"}, CPoint(screen.right - 5, screen.bottom - 5));
    EXPECT_TRUE(place().right <= screen.right && place().bottom <= screen.bottom - 5); // above the pointer
    tips_->HideTip();
    EXPECT_EQ(shown(), "");
    tips_->TrackTip({"", "x"}, CPoint(200, 200));
    EXPECT_LT(place().Width(), before.Width());
    EXPECT_EQ(tips_->TrackTip({}, CPoint(200, 200)), 0);
}

TEST_F(ToolTip, KeepsToTheFrameworksWays) {
    CString text;
    const CString longer('m', 300);
    EXPECT_TRUE(tips_->AddTool(&button_, longer));
    tips_->GetText(text, &button_);
    EXPECT_TRUE(text == longer && tips_->GetToolCount() == 1);
    tips_->UpdateTipText("shorter", &button_);
    EXPECT_TRUE(tips_->ShowTip(&button_) == 1 && shown() == "shorter");
    TOOLINFO tool;
    tips_->FillInToolInfo(tool, &button_, 0);
    char room[80] = "";
    tool.lpszText = room;
    EXPECT_TRUE(tips_->SendMessage(TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&tool)));
    EXPECT_STREQ(room, "shorter");
    lstrcpyA(room, "set");
    tips_->SendMessage(TTM_SETTOOLINFO, 0, reinterpret_cast<LPARAM>(&tool));
    EXPECT_EQ(shown(), "set");
    tips_->UpdateTipText("shorter", &button_);
    tips_->SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(300, 200));
    tips_->SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
    EXPECT_TRUE(shown() == "shorter" && place().TopLeft() == CPoint(300, 200));
    tips_->SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(310, 210));
    tips_->UpdateTipText("tracked", &button_);
    EXPECT_TRUE(shown() == "tracked" && place().TopLeft() == CPoint(310, 210));
    tips_->SetTip(&button_, {});
    EXPECT_EQ(shown(), "") << "until there is something to show again";
    tips_->SetTip(&button_, {"", "set"});
    EXPECT_EQ(shown(), "set");
    tips_->SendMessage(TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
    EXPECT_EQ(shown(), "");
    tips_->DelTool(&button_);
    EXPECT_EQ(tips_->GetToolCount(), 0);
    tool.uFlags |= TTF_CENTERTIP;
    tool.lpszText = const_cast<char*>("centred");
    EXPECT_TRUE(tips_->SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool)));
    EXPECT_EQ(shown_at({12, 12}), "centred");
    const CRect button = on_screen(button_);
    EXPECT_TRUE(place().top == button.bottom && std::abs(place().CenterPoint().x - button.CenterPoint().x) <= 1);
    CToolTipCtrlEx* volatile none = nullptr;
    CToolTipCtrlEx bare;
    EXPECT_EQ(none->ShowTip(&button_) + bare.AddTip(&button_, {"a", ""}) + tips_->AddTip(nullptr, {"a", ""}), 0);
}

TEST_F(ToolTip, MayBeDestroyedWhenItAsks) {
    for (const bool by_pointer : {true, false}) {
        tips_ = std::make_unique<CToolTipCtrlEx>();
        ASSERT_TRUE(tips_->Create(&host_, TTS_ALWAYSTIP));
        tips_->SetDelayTime(TTDT_INITIAL, 1);
        tips_->AddTool(&host_, LPSTR_TEXTCALLBACK, CRect(100, 100, 150, 150), 7);
        host_.fill = [&](WntTip& tip) {
            tip.text = "gone";
            tips_.reset();
        };
        point_at({5, 150});
        if (by_pointer)
            point_at({120, 120});
        else
            EXPECT_EQ(tips_->ShowTip(&host_, 7), 0);
        EXPECT_TRUE(pumped_until([&] { return !tips_; })) << by_pointer;
    }
}

} // namespace

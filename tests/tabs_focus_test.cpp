#include "control_host.h"

namespace {

// Tabs whose pages hold inputs, which tell the host when they lose the focus.
struct TabsFocus : ControlTest<AnsweringHost<WntTabsNotify>> {
    void TearDown() override {
        delete tabs_;
        ControlTest::TearDown();
    }
    void open() {
        lost_focus_ = [] {};
        host_.told.clear();
        host_.on_message = [&](UINT message) {
            if (message == WM_COMMAND && HIWORD(std::get<1>(host_.seen.back())) == EN_KILLFOCUS)
                lost_focus_();
        };
        delete tabs_;
        tabs_ = new Trapping<CWntTabs>;
        ASSERT_TRUE(tabs_->Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host_, 9));
        for (int i = 0; i < 3; ++i) {
            pages_[i] = std::make_unique<CWntFrame>();
            inputs_[i] = std::make_unique<CEdit>();
            const CRect place(0, 0, 9, 9);
            ASSERT_TRUE(pages_[i]->Create(nullptr, "", WS_CHILD, place, tabs_, 20u + i) &&
                        inputs_[i]->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, place, pages_[i].get(), 30u + i));
            ASSERT_EQ(tabs_->AddTab("page", pages_[i].get()), 1);
        }
        inputs_[0]->SetFocus();
        ASSERT_EQ(::GetFocus(), inputs_[0]->m_hWnd);
    }
    void next_by_key() {
        const HeldKeys control({VK_CONTROL});
        MSG m = {inputs_[0]->m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
        tabs_->PreTranslateMessage(&m);
    }

    std::function<void()> lost_focus_;
    CWntTabs* tabs_ = nullptr;
    std::unique_ptr<CWntFrame> pages_[3];
    std::unique_ptr<CEdit> inputs_[3];
};

TEST_F(TabsFocus, APageThatLosesItMayEndTheTabs) {
    const std::function<void()> ways[] = {
        [&] { next_by_key(); },
        [&] { tabs_->Select(2); },
        [&] { tabs_->RemoveTab(0); },
        [&] { tabs_->SetPage(0, nullptr); },
        [&] { tabs_->EnableTab(0, 0); },
        [&] {
            for (const auto& [line, mode] : {std::pair{"", 1}, {":TAB=a", 0}, {":DISABLED=YES", 0}, {"", 2}})
                tabs_->LoadLine(line, mode);
        },
    };
    for (const auto& leave : ways) {
        open();
        lost_focus_ = [&] { delete std::exchange(tabs_, nullptr); };
        leave();
        EXPECT_FALSE(tabs_ || pages_[0]->m_hWnd || pages_[1]->m_hWnd) << &leave - ways;
    }
}

TEST_F(TabsFocus, GoesIntoTheNextPage) {
    const std::function<void()> ways[] = {[&] { tabs_->Select(1); }, [&] { tabs_->RemoveTab(0); },
                                          [&] { tabs_->EnableTab(0, 0); }};
    for (const auto& leave : ways) {
        open();
        leave();
        EXPECT_EQ(::GetFocus(), inputs_[1]->m_hWnd);
    }
}

TEST_F(TabsFocus, APageThatLosesItMaySelectAnother) {
    for (const int chosen : {0, 2}) {
        open();
        bool told = false;
        lost_focus_ = [&] {
            if (!std::exchange(told, true))
                tabs_->Select(chosen);
        };
        next_by_key();
        EXPECT_EQ(tabs_->GetSelected(), chosen);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(pages_[i]->IsWindowVisible() != FALSE, i == chosen) << i << " of " << chosen;
        EXPECT_THAT(host_.told, testing::ElementsAre(std::tuple(WNT_TABS_SELECTING))) << "another one is selected";
    }
}

} // namespace

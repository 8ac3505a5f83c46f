#include "control_host.h"
#include "temporary_file.h"

namespace {

constexpr UINT text_id = 1, start_id = 2, previous_id = 3, next_id = 4;

struct TipPage : WidgetTest {
    void load(const std::string& text) {
        if (!page_->m_hWnd)
            open(*page_, 400, 240);
        const TemporaryFile file(text);
        page_->LoadTips(file.name());
    }
    void press(UINT id) { page_->GetDlgItem(static_cast<int>(id))->SendMessage(BM_CLICK); }
    bool enabled(UINT id) { return page_->GetDlgItem(static_cast<int>(id))->IsWindowEnabled(); }
    std::wstring shown() {
        wchar_t text[200] = L"";
        ::GetWindowTextW(::GetDlgItem(page_->m_hWnd, text_id), text, 200);
        return text;
    }
    CRect place(UINT id) { return place_in(*page_, *page_->GetDlgItem(static_cast<int>(id))); }
    bool translated(CWnd& window, WPARAM character) {
        MSG m = {window.m_hWnd, WM_SYSCHAR, character, 0, 0, {}};
        return CWnd::WalkPreTranslateTree(host_.m_hWnd, &m);
    }

    TemporaryProfile profile_;
    std::unique_ptr<CWntTipPage> page_ = std::make_unique<CWntTipPage>();
};

TEST_F(TipPage, TurnsThroughTheTipsOfItsFile) {
    load("one\n\n20 \xC2\xB0\x43 \xCE\xA9\n\nfirst\n second");
    EXPECT_EQ(shown(), L"one");
    press(next_id);
    EXPECT_EQ(shown(), L"20 \u00B0C \u03A9") << "whatever the code page";
    EXPECT_TRUE(host_.notified.back().code == WNT_TIP_TURNED && host_.notified.back().hwndFrom == page_->m_hWnd);
    press(next_id);
    EXPECT_EQ(page_->GetTipText(), "first\r\nsecond");
    for (const UINT id : {next_id, previous_id}) { // round the end and back
        press(id);
        EXPECT_EQ(page_->GetTip(), id == next_id ? 0 : 2);
    }
    EXPECT_TRUE(translated(*page_->GetDlgItem(start_id), 'P') && page_->GetTip() == 1);
    EXPECT_TRUE(translated(*page_, 'n') && page_->GetTip() == 2);
    EXPECT_FALSE(translated(*page_, 'x'));
    EXPECT_EQ(page_->ShowTip(3) + page_->ShowTip(-1), 0);
    for (const bool on : {false, true}) {
        page_->EnableWindow(on);
        EXPECT_TRUE(enabled(start_id) == on && enabled(next_id) == on);
    }
    load("\xB0");
    EXPECT_EQ(shown(), L"\u00B0") << "of the code page";
    EXPECT_FALSE(enabled(previous_id) || enabled(next_id) || translated(*page_, 'n'));
}

TEST_F(TipPage, SaysSoWhereThereIsNone) {
    load("; only a comment\n");
    const std::wstring empty = shown();
    EXPECT_TRUE(empty.size() > 10 && page_->GetTip() == -1 && page_->GetTipCount() == 0);
    EXPECT_FALSE(enabled(previous_id) || enabled(next_id));
    EXPECT_EQ(page_->LoadTips("no such file") + page_->LoadTips(nullptr) + page_->LoadTips("C:\\"), 0);
    EXPECT_TRUE(shown().size() > 10 && shown() != empty);
    CWntTipPage* volatile none = nullptr;
    EXPECT_EQ(none->LoadTips("") + none->GetTipCount() + page_->SetProfile(profile_, ""), 0);
    CWntTipPage unopened;
    EXPECT_TRUE(unopened.GetTip() == -1 && unopened.ShowTip(0) == 0 && unopened.SetProfile(profile_, "tips") == 1);
}

TEST_F(TipPage, RemembersTheLastTipAndTheChoice) {
    const auto next_start = [&](const char* tips, bool profile_first = false) {
        page_ = std::make_unique<CWntTipPage>();
        const int before = profile_first && page_->SetProfile(profile_, "tips");
        load(tips);
        EXPECT_TRUE(before || page_->SetProfile(profile_, "tips"));
        return page_->GetTip();
    };
    EXPECT_EQ(CWntTipPage::IsShownAtStart(profile_, "tips"), 1);
    EXPECT_EQ(next_start("a\n\nb\n\nc"), 0);
    EXPECT_EQ(next_start("a\n\nb\n\nc", true), 1);
    press(next_id);
    EXPECT_EQ(next_start("a\n\nb\n\nc"), 0);
    EXPECT_EQ(next_start("a"), 0) << "fewer than there were";
    for (const char* stored : {"2147483647", "-5", "x"}) {
        ::WritePrivateProfileStringA("tips", "Tip", stored, profile_);
        const int tip = next_start("a\n\nb\n\nc");
        EXPECT_TRUE(tip >= 0 && tip < 3) << stored;
    }
    press(start_id);
    EXPECT_EQ(host_.notified.back().code, WNT_TIP_START);
    EXPECT_EQ(CWntTipPage::IsShownAtStart(profile_, "tips"), 0);
    for (const bool profile_first : {false, true}) {
        next_start("a", profile_first);
        EXPECT_EQ(static_cast<CButton*>(page_->GetDlgItem(start_id))->GetCheck(), BST_UNCHECKED) << profile_first;
    }
    EXPECT_TRUE(translated(*page_, 's'));
    EXPECT_EQ(CWntTipPage::IsShownAtStart(profile_, "tips"), 1);
}

TEST_F(TipPage, ItsPartsKeepApartAndABarShowsWhereItIsNeeded) {
    std::string lines;
    for (int i = 0; i < 60; ++i)
        lines += " a line\n";
    load("short\n\n" + lines);
    const HWND text = ::GetDlgItem(page_->m_hWnd, text_id);
    const auto has_bar = [&] { return (::GetWindowLongPtr(text, GWL_STYLE) & WS_VSCROLL) != 0; };
    EXPECT_FALSE(has_bar());
    press(next_id);
    EXPECT_TRUE(has_bar());
    EXPECT_EQ(::SendMessage(text, EM_GETLINECOUNT, 0, 0), 60);
    page_->MoveWindow(0, 0, 400, 1200);
    EXPECT_FALSE(has_bar());
    load(std::string(70'000, 't')); // broken, since it has no blanks
    EXPECT_GT(::SendMessage(text, EM_GETLINECOUNT, 0, 0), 500);
    load("short");
    page_->MoveWindow(0, 0, 300, 100);
    const Pixels seen = repainted(*page_);
    EXPECT_EQ(sketch(seen, CRect(31, 16, 44, 30),
                     {{::GetSysColor(COLOR_BTNSHADOW), '.'},
                      {RGB(128, 96, 0), 'o'},
                      {RGB(255, 208, 64), 'y'},
                      {RGB(112, 112, 112), '='}}),
              R"(.....ooooo...
...ooyyyyyoo.
..oyyyyyyyyyo
..oyoooyyyyyo
.oyyoooyyyyyy
.oyyyyyyyyyyy
.oyyyyyyyyyyy
.oyyyyyyyyyyy
..oyyyyyyyyyo
..oyyyyyyyyyo
...ooyyyyyoo.
....=======..
.............
....=======..
)");
    EXPECT_EQ(sketch(seen, CRect(8, 20, 13, 21),
                     {{::GetSysColor(COLOR_BTNSHADOW), '.'}, {::GetSysColor(COLOR_BTNFACE), ','}}),
              ",,?..\n");
    CWnd& paper = *CWnd::FromHandle(text);
    EXPECT_EQ(pixels_of(paper).at(2, size_of(paper).cy - 2), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(pixels_of(*page_->GetDlgItem(start_id)).at(size_of(*page_->GetDlgItem(start_id)).cx - 2, 2),
              ::GetSysColor(COLOR_BTNFACE));
    for (const CSize size : {CSize(400, 240), CSize(320, 180), CSize(700, 90), CSize(190, 300)}) {
        page_->MoveWindow(0, 0, size.cx, size.cy);
        CRect all(CPoint(0, 0), size), both;
        const UINT ids[] = {text_id, start_id, previous_id, next_id};
        for (const UINT one : ids) {
            EXPECT_TRUE(both.UnionRect(all, place(one)) && both == all) << one << " of " << size.cx;
            for (const UINT other : ids)
                EXPECT_TRUE(one == other || !both.IntersectRect(place(one), place(other))) << one << other;
        }
        EXPECT_EQ(place(previous_id).top, place(next_id).top);
        EXPECT_GE(place(start_id).Width(), 120) << "its text is not cut";
    }
}

TEST_F(TipPage, IsAPageOfTabsWithItsOwnKeys) {
    CWntTabs tabs;
    CButton other;
    open(tabs, 420, 260);
    load("one\n\ntwo"); // first with a window of its own
    ASSERT_TRUE(other.Create("other", WS_CHILD, CRect(0, 0, 9, 9), &tabs, 5));
    ASSERT_EQ(tabs.AddTab("&News", page_.get()) + tabs.AddTab("&Other", &other), 2);
    host_.SetFocus();
    page_->SetFocus();
    EXPECT_EQ(::GetFocus(), page_->GetDlgItem(next_id)->m_hWnd);
    EXPECT_TRUE(translated(*CWnd::GetFocus(), 'n') && page_->GetTip() == 1 && tabs.GetSelected() == 0);
    EXPECT_EQ(host_.notified.back().code, WNT_TIP_TURNED) << "reaches the parent of the tabs";
    EXPECT_TRUE(translated(*CWnd::GetFocus(), 'o') && tabs.GetSelected() == 1);
    EXPECT_FALSE(page_->IsWindowVisible());
    other.SetFocus();
    EXPECT_TRUE(translated(other, 'n') && tabs.GetSelected() == 0);
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(page_->m_hWnd, text_id)) << "from page to page";
}

struct Form : CDialog {
    int cancelled = 0;

    void OnCancel() override { ++cancelled; }
};

TEST_F(TipPage, EscapeAndTabInItsTextAreTheDialogs) {
    const struct {
        DLGTEMPLATE head;
        WORD menu, name, title;
    } form = {{WS_POPUP | WS_VISIBLE, 0, 0, 0, 0, 300, 200}, 0, 0, 0};
    Form dialog;
    ASSERT_TRUE(dialog.CreateIndirect(&form.head, &host_));
    CWntTabs tabs;
    ASSERT_TRUE(tabs.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 400, 240), &dialog, 9));
    ASSERT_TRUE(page_->Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 240), &dialog, 5));
    const auto press_in_text = [&](WPARAM key) {
        const HWND text = ::GetDlgItem(page_->m_hWnd, text_id);
        ::SetFocus(text);
        MSG m = {text, WM_KEYDOWN, key, 1, 0, {}};
        EXPECT_TRUE(::IsDialogMessageA(dialog.m_hWnd, &m));
        while (::PeekMessageA(&m, page_->m_hWnd, WM_CLOSE, WM_CLOSE, PM_REMOVE))
            ::DispatchMessageA(&m);
    };
    for (const bool in_tabs : {false, true}) {
        ASSERT_TRUE(!in_tabs || tabs.AddTab("News", page_.get()));
        press_in_text(VK_TAB);
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(page_->m_hWnd, start_id)) << in_tabs;
        dialog.cancelled = 0;
        press_in_text(VK_ESCAPE);
        ASSERT_TRUE(page_->m_hWnd) << in_tabs;
        EXPECT_EQ(dialog.cancelled, 1) << in_tabs;
    }
    page_->DestroyWindow();
    dialog.DestroyWindow();
}

TEST_F(TipPage, MayBeDestroyedWhenItTells) {
    for (const UINT id : {next_id, start_id}) {
        auto* doomed = new CWntTipPage;
        open(*doomed, 300, 200);
        const TemporaryFile file({'a', '\n', '\n', 'b'});
        doomed->LoadTips(file.name());
        const HWND button = doomed->GetDlgItem(static_cast<int>(id))->m_hWnd;
        host_.on_message = [&](UINT message) {
            if (message == WM_NOTIFY)
                delete std::exchange(doomed, nullptr);
        };
        ::SendMessageA(button, BM_CLICK, 0, 0);
        EXPECT_FALSE(doomed || ::IsWindow(button)) << id;
        host_.on_message = [](UINT) {};
    }
}

} // namespace

// Controls under a thousand operations each, of any order and size.
#include <zopwnt.h>

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "widget_window.h"

namespace {

class ControlsAtRandom : public WidgetTest {
protected:
    int some(int most) { return static_cast<int>(random_() % static_cast<unsigned>(most + 1)); }
    int any_size() { return some(3) == 0 ? some(3) : some(2000); }
    double any_share() { return some(4) == 0 ? -1.0 : some(100) / 100.0; }
    LPARAM any_point() { return MAKELPARAM(some(2100) - 50, some(2100) - 50); }

    void input(CWnd& control) {
        static constexpr UINT mouse[] = {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN};
        static constexpr UINT keys[] = {VK_LEFT, VK_RIGHT, VK_UP,     VK_DOWN,  VK_HOME,
                                        VK_END,  VK_SPACE, VK_ESCAPE, VK_RETURN};
        if (some(1))
            control.SendMessage(mouse[some(4)], MK_LBUTTON, any_point());
        else
            control.SendMessage(WM_KEYDOWN, keys[some(8)], 1);
    }
    void resize_or_paint(CWnd& control) {
        if (some(2))
            control.MoveWindow(some(20), some(20), any_size(), any_size());
        else
            full_repaint(control);
    }
    std::mt19937 random_{11};
};

TEST_F(ControlsAtRandom, Sash) {
    CWntSash outer, inner;
    CWntGauge gauge;
    std::unique_ptr<CButton> button;
    open(outer, 300, 200);
    ASSERT_TRUE(inner.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 5, 5), &outer, 2));
    ASSERT_TRUE(gauge.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), &inner, 3));
    for (int i = 0; i < 1000; ++i) {
        CWntSash& sash = some(1) ? outer : inner;
        switch (some(9)) {
        case 0:
            if (button && some(1))
                button.reset();
            else if (!button) {
                button = std::make_unique<CButton>();
                button->Create("b", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &outer, 4);
            }
            break;
        case 1:
            outer.SetPanes(some(3) ? &inner : nullptr, button.get());
            inner.SetPanes(some(3) ? &gauge : nullptr, some(1) ? static_cast<CWnd*>(&outer) : button.get());
            break;
        case 2:
            sash.SetUpright(some(1));
            sash.SetLiveDrag(some(1));
            break;
        case 3:
            sash.SetPosition(any_size() - 100);
            break;
        case 4:
            sash.SetShare(any_share());
            sash.SetKeptPane(some(3));
            break;
        case 5:
            sash.SetLeastSizes(some(400) - 20, some(400));
            sash.SetBarSize(some(70));
            break;
        case 6:
            sash.SetFoldPane(some(3));
            sash.Fold(some(1));
            break;
        case 7:
            resize_or_paint(outer);
            break;
        default:
            input(sash);
        }
        CRect client;
        outer.GetClientRect(&client);
        ASSERT_GE(outer.GetPosition(), 0);
        ASSERT_LE(outer.GetPosition(), std::max(client.Width(), client.Height()));
    }
}

TEST_F(ControlsAtRandom, Frame) {
    CWntFrame frame;
    open(frame, 300, 200);
    std::vector<std::unique_ptr<CButton>> children(8);
    const char* lines[] = {":TITLE=a longer title than usual",
                           ":TITLE=",
                           ":ALIGN=TOPLEFT",
                           ":ALIGN=BOTTOMRIGHT",
                           ":ALIGN=CENTERCENTER",
                           ":BORDERHEIGHT=5",
                           ":BORDERHEIGHT=0",
                           ":BORDERTYPE=3DDOWN",
                           ":BORDERSTYLE=LEFT",
                           ":BORDERTYPE=FLAT",
                           ":CLRBACK=RED",
                           ":ALIGN=---"};
    for (int i = 0; i < 1000; ++i) {
        auto& child = children[static_cast<std::size_t>(some(7))];
        switch (some(6)) {
        case 0:
            child = std::make_unique<CButton>();
            child->Create("b", WS_CHILD | WS_VISIBLE, CRect(some(300), some(200), some(400), some(300)), &frame, 4);
            break;
        case 1:
            child.reset();
            break;
        case 2:
            if (child)
                frame.SetAnchor(child.get(), any_share(), any_share(), any_share(), any_share());
            break;
        case 3:
            if (child)
                frame.RemoveAnchor(child.get());
            break;
        case 4:
            frame.LoadLine(lines[some(11)], 0);
            frame.LoadLine("", 2);
            break;
        default:
            resize_or_paint(frame);
        }
        const CRect content = frame.GetContentRect();
        ASSERT_TRUE(content.Width() >= 0 && content.Height() >= 0);
    }
}

TEST_F(ControlsAtRandom, FoldingFrame) {
    CWntFrameEx frame;
    open(frame, 300, 200);
    CButton child, tool;
    ASSERT_TRUE(child.Create("b", WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 40), frame.GetContent(), 4));
    ASSERT_TRUE(tool.Create("t", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &frame, 5));
    for (int i = 0; i < 1000; ++i) {
        switch (some(7)) {
        case 0:
            frame.SetContentSize(any_size() - 5, any_size());
            break;
        case 1:
            frame.ShowContent(CRect(any_size(), any_size(), any_size() - 400, any_size()));
            break;
        case 2:
            frame.SetTool(some(1) ? &tool : nullptr);
            break;
        case 3:
            frame.Fold(some(1));
            break;
        case 4:
            frame.SendMessage(WM_VSCROLL, MAKEWPARAM(some(9), some(2000)),
                              reinterpret_cast<LPARAM>(frame.GetDlgItem(2 + some(1))->m_hWnd));
            break;
        case 5:
            frame.SetAnchor(&child, any_share(), any_share(), any_share(), any_share());
            break;
        case 6:
            input(frame);
            break;
        default:
            resize_or_paint(frame);
        }
        const CRect content = frame.GetContentRect();
        ASSERT_TRUE(content.Width() >= 0 && content.Height() >= 0);
    }
}

TEST_F(ControlsAtRandom, Tabs) {
    CWntTabs tabs;
    open(tabs, 300, 200);
    std::vector<std::unique_ptr<CButton>> pages(12);
    const char* lines[] = {":TAB=one more", ":TIP=a tip",       ":CLOSE=1",    ":DISABLED=1",    ":SIDE=LEFT",
                           ":SIDE=TOP",     ":OVERFLOW=SCROLL", ":SIDE=RIGHT", ":OVERFLOW=MENU", ":CLRBACK=RED"};
    const char* texts[] = {"", "&One", "a much longer text than that", "T&&o", nullptr};
    host_.on_message = [&](UINT message) {
        if (message == WM_NOTIFY && some(3) == 0)
            tabs.RemoveTab(some(20));
    };
    for (int i = 0; i < 1000; ++i) {
        auto& page = pages[static_cast<std::size_t>(some(11))];
        const int tab = some(25) - 1;
        switch (some(13)) {
        case 0:
            page = std::make_unique<CButton>();
            page->Create("p", WS_CHILD | (some(1) ? WS_VISIBLE : 0), CRect(0, 0, 9, 9), &tabs, 4);
            break;
        case 1:
            page.reset();
            break;
        case 2:
        case 3:
            tabs.InsertTab(tab, texts[some(4)], some(1) ? page.get() : nullptr);
            break;
        case 4:
            tabs.RemoveTab(tab);
            break;
        case 5:
            tabs.SetPage(tab, page.get());
            break;
        case 6:
            tabs.Select(tab);
            tabs.ShowTab(some(20));
            break;
        case 7:
            tabs.MoveTab(tab, some(20));
            tabs.SetMovable(some(1));
            break;
        case 8:
            tabs.LoadLine("", some(2) ? 0 : 1);
            tabs.LoadLine(lines[some(9)], 0);
            tabs.LoadLine("", 2);
            break;
        case 9:
            tabs.EnableTab(tab, some(1));
            tabs.SetClosable(some(20), some(1));
            tabs.SetTabIcon(some(20), some(1) ? ::LoadIconA(nullptr, IDI_WARNING) : nullptr);
            break;
        case 10:
            while (some(20) && tabs.GetTabCount() < 200)
                tabs.AddTab("many", nullptr);
            break;
        case 11:
            resize_or_paint(tabs);
            break;
        default:
            input(*tabs.GetWindow(GW_CHILD));
        }
        ASSERT_LT(tabs.GetSelected(), tabs.GetTabCount());
        for (const auto& each : pages) {
            const int at = tabs.FindPage(each.get());
            ASSERT_TRUE(at < 0 || ((each->GetStyle() & WS_VISIBLE) != 0) == (at == tabs.GetSelected()));
        }
    }
}

TEST_F(ControlsAtRandom, TipPage) {
    CWntTipPage page;
    open(page, 300, 200);
    std::ofstream("random_tips.txt") << "one\n\n" << std::string(8'000, 't') << "\n\nthree\n four\n";
    for (int i = 0; i < 1000; ++i) {
        switch (some(4)) {
        case 0:
            page.LoadTips(some(3) ? "random_tips.txt" : "no file");
            break;
        case 1:
            page.ShowTip(some(6) - 2);
            break;
        case 2:
            page.GetDlgItem(2 + some(2))->SendMessage(BM_CLICK);
            break;
        case 3:
            page.EnableWindow(some(1));
            break;
        default:
            resize_or_paint(page);
        }
        ASSERT_LT(page.GetTip(), std::max(page.GetTipCount(), 1));
    }
    std::remove("random_tips.txt");
}

TEST_F(ControlsAtRandom, ToolBar) {
    CWntToolBar bar;
    open(bar, 300, 40);
    CButton embedded;
    ASSERT_TRUE(embedded.Create("b", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 50, 20), &bar, 60));
    const char* lines[] = {":TEXT=BELOW",   ":TEXT=BESIDE", ":TEXT=NONE", ":WRAP=1",    ":WRAP=0",         ":UPRIGHT=1",
                           ":UPRIGHT=0",    ":DRAG=1",      ":DRAG=0",    ":WINDOW=60", ":ITEM=100,,text", ":STRETCH",
                           ":CHECKED=100",  ":RADIO=101",   ":SPLIT=102", ":MENU=103",  ":DROPDOWN=104,1", ":SEPARATOR",
                           ":DISABLED=104", ":LABEL=a",     ":CHECK=105"};
    for (int i = 0; i < 1000; ++i) {
        switch (some(9)) {
        case 0:
            for (int lines_left = some(60); lines_left > 0; --lines_left)
                bar.LoadLine(lines[some(20)], 0);
            bar.LoadLine("", some(3));
            break;
        case 1: {
            CWntToolItem item(static_cast<UINT>(some(120)), some(1) ? "some text" : "",
                              static_cast<WntToolKind>(some(9)));
            item.icon = some(1) ? ::LoadIconA(nullptr, IDI_WARNING) : nullptr;
            item.window = some(1) ? &embedded : nullptr;
            bar.InsertItem(some(bar.GetItemCount() + 1), item);
            bar.SetItem(some(20), item);
            break;
        }
        case 2:
            bar.RemoveItem(some(bar.GetItemCount()));
            break;
        case 3:
            bar.EnableItem(static_cast<UINT>(some(120)), some(1));
            bar.CheckItem(static_cast<UINT>(some(120)), some(3));
            break;
        case 4:
            bar.PressItem(static_cast<UINT>(100 + some(6)));
            bar.UpdateItems();
            break;
        case 5:
        case 6:
            resize_or_paint(bar);
            break;
        default: // menus that this opens are closed at once
            for (int k = 0; k < 3; ++k)
                host_.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1);
            input(bar);
            MSG rest;
            while (::PeekMessageA(&rest, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
            }
        }
        CRect client, place;
        bar.GetClientRect(&client);
        for (int k = 0; k < bar.GetItemCount(); ++k) {
            const bool shown = bar.GetItemRect(k, &place);
            ASSERT_EQ(shown, place.Width() > 0 && place.Height() > 0 && place.left >= 0 && place.top >= 0);
        }
        ASSERT_GE(bar.GetThickness(some(2000)), 0);
    }
    bar.SetFocus();
    bar.DestroyWindow();
}

TEST_F(ControlsAtRandom, ToolTip) {
    CToolTipCtrlEx tips;
    ASSERT_TRUE(tips.Create(&host_, TTS_ALWAYSTIP));
    for (int i = 0; i < 1000; ++i) {
        WntTip tip;
        for (int words = some(3) == 0 ? some(2000) : some(9); words > 0; --words)
            tip.text += words % 7 ? "word " : "word\n";
        tip.title = some(1) ? tip.text.Left(some(60)) : CString();
        tip.icon = some(1) ? ::LoadIconA(nullptr, IDI_WARNING) : nullptr;
        tip.colour = some(1) ? RGB(some(255), some(255), some(255)) : CLR_NONE;
        const auto tool = static_cast<UINT_PTR>(1 + some(5));
        switch (some(7)) {
        case 0:
            tips.AddTip(&host_, tip, CRect(some(2000), some(2000), some(2000), some(2000)), tool);
            break;
        case 1:
            tips.DelTool(&host_, tool);
            break;
        case 2:
            tips.ShowTip(&host_, tool);
            break;
        case 3:
            tips.SetTip(&host_, tip, tool);
            tips.SetMaxTipWidth(some(600) - 100);
            break;
        case 4:
            tips.HideTip();
            break;
        default:
            tips.TrackTip(tip, CPoint(some(3000) - 500, some(3000) - 500));
        }
        ASSERT_LE(tips.GetToolCount(), 1000);
        if (!tips.GetShownTip(nullptr))
            continue;
        CRect place;
        tips.GetWindowRect(&place);
        ASSERT_TRUE(place.left >= 0 && place.top >= 0 && place.Width() > 0 && place.Height() > 0);
    }
}

} // namespace

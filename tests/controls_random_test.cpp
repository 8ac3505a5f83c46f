// Controls under a thousand operations each, of any order and size.
#include <zopwnt.h>

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

#include "widget_window.h"

namespace {

struct ControlsAtRandom : WidgetTest {
    int some(int most) { return static_cast<int>(random_() % static_cast<unsigned>(most + 1)); }
    int any_size() { return some(3) == 0 ? some(3) : some(2000); }
    double any_share() { return some(4) == 0 ? -1.0 : some(100) / 100.0; }
    void one_of(const std::vector<std::function<void()>>& steps) { steps[some(static_cast<int>(steps.size()) - 1)](); }
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

TEST_F(ControlsAtRandom, Frames) {
    const char* lines[] = {":TITLE=a longer one", ":TITLE=",          ":ALIGN=TOPLEFT",  ":ALIGN=BOTTOMRIGHT",
                           ":ALIGN=CENTERCENTER", ":BORDERHEIGHT=5",  ":BORDERHEIGHT=0", ":BORDERTYPE=3DDOWN",
                           ":BORDERSTYLE=LEFT",   ":BORDERTYPE=FLAT", ":CLRBACK=RED",    ":ALIGN=---"};
    CWntFrame plain;
    CWntFrameEx folding;
    open(plain, 300, 200);
    open(folding, 300, 200);
    std::vector<std::unique_ptr<CButton>> children(8);
    CButton tool;
    ASSERT_TRUE(tool.Create("t", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &folding, 5));
    for (int i = 0; i < 3000; ++i) {
        auto& child = children[some(7)];
        CWntFrame& frame = some(2) ? folding : plain;
        CWnd& content = &frame == &plain ? plain : *folding.GetContent();
        one_of({
            [&] {
                child = std::make_unique<CButton>();
                child->Create("b", WS_CHILD | WS_VISIBLE, CRect(some(300), some(200), some(400), some(300)), &content,
                              4);
            },
            [&] { child.reset(); },
            [&] { frame.SetAnchor(child.get(), any_share(), any_share(), any_share(), any_share()); },
            [&] { frame.RemoveAnchor(child.get()); },
            [&] { frame.LoadLine(lines[some(11)], 0), frame.LoadLine("", 2); },
            [&] { resize_or_paint(frame); },
            [&] { input(frame); },
            [&] { folding.SetContentSize(any_size() - 5, any_size()); },
            [&] { folding.ShowContent(CRect(any_size(), any_size(), any_size() - 400, any_size())); },
            [&] { folding.SetTool(some(1) ? &tool : nullptr); },
            [&] { folding.Fold(some(1)); },
            [&] {
                folding.SendMessage(WM_VSCROLL, MAKEWPARAM(some(9), some(2000)),
                                    reinterpret_cast<LPARAM>(folding.GetDlgItem(2 + some(1))->m_hWnd));
            },
        });
        const CRect room = frame.GetContentRect();
        ASSERT_TRUE(room.Width() >= 0 && room.Height() >= 0);
    }
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
    const auto any_id = [&] { return static_cast<UINT>(some(120)); };
    const auto any_input = [&] { // menus that this opens are closed at once
        for (int k = 0; k < 3; ++k)
            host_.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1);
        input(bar);
        MSG rest;
        while (::PeekMessageA(&rest, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        }
    };
    for (int i = 0; i < 1000; ++i) {
        one_of({
            [&] {
                for (int lines_left = some(60); lines_left > 0; --lines_left)
                    bar.LoadLine(lines[some(20)], 0);
                bar.LoadLine("", some(3));
            },
            [&] {
                CWntToolItem item(any_id(), some(1) ? "some text" : "", static_cast<WntToolKind>(some(9)));
                item.icon = some(1) ? ::LoadIconA(nullptr, IDI_WARNING) : nullptr;
                item.window = some(1) ? &embedded : nullptr;
                bar.InsertItem(some(bar.GetItemCount() + 1), item);
                bar.SetItem(some(20), item);
            },
            [&] { bar.RemoveItem(some(bar.GetItemCount())); },
            [&] { bar.EnableItem(any_id(), some(1)), bar.CheckItem(any_id(), some(3)); },
            [&] { bar.PressItem(static_cast<UINT>(100 + some(6))), bar.UpdateItems(); },
            [&] { resize_or_paint(bar); },
            any_input,
            any_input,
        });
        CRect place;
        for (int k = 0; k < bar.GetItemCount(); ++k) {
            const bool shown = bar.GetItemRect(k, &place);
            ASSERT_EQ(shown, place.Width() > 0 && place.Height() > 0 && place.left >= 0 && place.top >= 0);
        }
        ASSERT_GE(bar.GetThickness(some(2000)), 0);
    }
    bar.SetFocus();
    bar.DestroyWindow();
}

} // namespace

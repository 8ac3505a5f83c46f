// Widgets give back what they take: drawing objects and windows are counted over many lives and repaints.
#include "widget_window.h"

#include <functional>
#include <memory>
#include <string>

namespace {

struct Kind {
    const char* name;
    std::function<std::unique_ptr<CWnd>()> make;
    int looks = 1; // of the widget, which share its lives and repaints
    std::function<void(CWnd&)> prepare = [](CWnd&) {};
};

Kind gauge(const char* type) {
    return {type, [] { return std::make_unique<CWntGauge>(); }, 6,
            [type](CWnd& widget) {
                auto& shown = static_cast<CWntGauge&>(widget);
                shown.LoadLine((std::string(":TYPE=") + type).c_str(), 0);
                shown.LoadLine("", 2);
                for (int value = 0; value < 3; ++value)
                    shown.SetCurVal(value);
            }};
}

Kind axis(const char* name, int type) {
    return {name, [] { return std::make_unique<CWntAxis>(); }, 3,
            [type](CWnd& widget) {
                static CString texts[2] = {"one", "two"};
                auto& shown = static_cast<CWntAxis&>(widget);
                shown.SetFlags(2, 100, type);
                if (type == 1)
                    shown.SetTexts(2, texts);
                if (type == 2)
                    shown.SetRange(1'000'000'000LL, 1'010'000'000LL);
            }};
}

template <class Widget> Kind kind(const char* name) {
    return {name, [] { return std::make_unique<Widget>(); }};
}

CWnd* plain_child(CWnd& parent) {
    return CWnd::FromHandle(::CreateWindowA("STATIC", "child", WS_CHILD | WS_VISIBLE, 2, 2, 20, 20, parent.m_hWnd,
                                            nullptr, nullptr, nullptr));
}

Kind sash() {
    Kind made = kind<CWntSash>("sash");
    made.prepare = [](CWnd& widget) {
        auto& shown = static_cast<CWntSash&>(widget);
        CWnd* first = plain_child(widget);
        shown.SetPanes(first, plain_child(widget));
        shown.SetLiveDrag(0);
        for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP})
            widget.SendMessage(message, 0, message == WM_LBUTTONDOWN ? MAKELPARAM(30, 5) : MAKELPARAM(20, 5));
    };
    return made;
}

Kind frame() {
    Kind made = kind<CWntFrame>("frame");
    made.prepare = [](CWnd& widget) {
        auto& shown = static_cast<CWntFrame&>(widget);
        shown.SetTitle("Boiler");
        shown.SetAnchor(plain_child(widget), 0, 0, 1, 1);
    };
    return made;
}

Kind tabs() {
    Kind made = kind<CWntTabs>("tabs");
    made.prepare = [](CWnd& widget) {
        auto& shown = static_cast<CWntTabs&>(widget);
        for (const int side : {CWntTabs::at_left, CWntTabs::at_top}) {
            shown.AddTab("&one", plain_child(widget));
            shown.SetTabIcon(shown.GetTabCount() - 1, ::LoadIconA(nullptr, IDI_WARNING));
            shown.SetTabTip(shown.GetTabCount() - 1, "a tip");
            shown.SetSide(side);
            full_repaint(widget);
        }
        shown.EnableTab(1, 0);
    };
    return made;
}

Kind tool_bar() {
    Kind made = kind<CWntToolBar>("toolbar");
    made.looks = 2;
    made.prepare = [](CWnd& widget) {
        auto& shown = static_cast<CWntToolBar&>(widget);
        CWntToolItem item(100, "Save");
        item.icon = ::LoadIconA(nullptr, IDI_WARNING);
        shown.AddItem(item);
        item = CWntToolItem(101, "In", WNT_TOOL_WINDOW);
        item.window = plain_child(widget);
        shown.AddItem(item);
        shown.EnableItem(100, 0);
        full_repaint(widget);
        shown.SetTextPlace(WNT_TOOL_TEXT_BESIDE);
    };
    return made;
}

Kind with_tip() {
    Kind made = kind<CWntToolBar>("tip");
    made.looks = 2;
    made.prepare = [](CWnd& widget) {
        CToolTipCtrlEx* tips = static_cast<CWntToolBar&>(widget).GetTips();
        tips->AddTip(&widget, {"Title", "text", ::LoadIconA(nullptr, IDI_WARNING), RGB(1, 2, 3)});
        tips->ShowTip(&widget);
        tips->TrackTip({"", "tracked"}, CPoint(10, 10));
    };
    return made;
}

Kind chart() {
    Kind made = kind<CWntPulse>("strip chart");
    made.prepare = [](CWnd& widget) {
        auto& shown = static_cast<CWntPulse&>(widget);
        shown.SetTitle("Boiler");
        const int curve = shown.AddCurve("Flow", RGB(200, 0, 0), 0, 10);
        for (int i = 0; i < 100; ++i)
            shown.AddSample(curve, i % 10, i * 10);
        shown.SetCursor(0, 500);
        shown.SendMessage(WM_TIMER, 1, 0);
    };
    return made;
}

std::vector<Kind> all_kinds() {
    return {kind<CWntOut>("surface"),
            kind<CWntButton>("button"),
            gauge("PERCENTBAR"),
            gauge("THERMOMETER"),
            gauge("ANALOG"),
            gauge("DIGITAL"),
            gauge("PEAKLINE"),
            gauge("TURNKNOB"),
            axis("numeric axis", 0),
            axis("text axis", 1),
            axis("time axis", 2),
            kind<CWntCalendar>("calendar"),
            kind<CWntColorSel>("colour selector"),
            kind<CWntTrace>("trace"),
            sash(),
            frame(),
            chart(),
            kind<CWntFrameEx>("folding frame"),
            tabs(),
            kind<CWntTipPage>("tip page"),
            tool_bar(),
            with_tip()};
}

class HandlesTest : public WidgetTest {
protected:
    std::unique_ptr<CWnd> opened(const Kind& kind) {
        auto widget = kind.make();
        EXPECT_TRUE(widget->Create(nullptr, "Widget", WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 60), &host_, 1));
        kind.prepare(*widget);
        full_repaint(*widget);
        return widget;
    }

    // Far below one object for each of thousands of rounds; caches of the system may fill.
    static constexpr int tolerance = 20;
};

TEST_F(HandlesTest, TheCountsSeeALeak) {
    const Counts before;
    std::vector<HGDIOBJ> pens;
    std::vector<std::unique_ptr<CWnd>> windows;
    for (int i = 0; i < 100; ++i) {
        pens.push_back(::CreatePen(PS_SOLID, 1, RGB(i, 0, 0)));
        windows.push_back(std::make_unique<CWnd>());
        ASSERT_TRUE(windows.back()->Create(nullptr, "", WS_CHILD, CRect(0, 0, 1, 1), &host_, 1));
    }
    const Counts leaked;
    EXPECT_GE(leaked.gdi - before.gdi, 100);
    EXPECT_GE(leaked.user - before.user, 100 - 64);
    for (HGDIOBJ pen : pens)
        ::DeleteObject(pen);
    for (auto& window : windows)
        window->DestroyWindow();
}

TEST_F(HandlesTest, LivesGiveEverythingBack) {
    for (const Kind& kind : all_kinds()) {
        opened(kind); // what is made once
        const Counts before;
        for (int i = 0; i < 300 / kind.looks + 1; ++i)
            opened(kind);
        EXPECT_LT(before.grown(), tolerance) << kind.name;
    }
}

TEST_F(HandlesTest, RepaintsGiveEverythingBack) {
    for (const Kind& kind : all_kinds()) {
        const auto widget = opened(kind);
        const Counts before;
        for (int i = 0; i < 1000 / kind.looks + 1; ++i)
            full_repaint(*widget);
        EXPECT_LT(before.grown(), tolerance) << kind.name;
    }
}

} // namespace

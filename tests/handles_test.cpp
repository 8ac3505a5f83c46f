// Widgets give back what they take: drawing objects and windows are counted over many lives and repaints.
#include "widget_window.h"

#include <functional>
#include <memory>
#include <string>

namespace {

struct Kind {
    const char* name;
    std::function<std::unique_ptr<CWnd>()> make;
    std::function<void(CWnd&)> prepare;
    int looks; // of the widget, which share its lives and repaints
};

template <class Widget>
Kind kind(
    const char* name, std::function<void(Widget&)> prepare = [](Widget&) {}, int looks = 1) {
    return {name, [] { return std::make_unique<Widget>(); },
            [prepare](CWnd& widget) { prepare(static_cast<Widget&>(widget)); }, looks};
}

void prepare_gauge(CWntGauge& gauge, const char* type) {
    gauge.LoadLine((std::string(":TYPE=") + type).c_str(), 0);
    gauge.LoadLine("", 2);
    for (int value = 0; value < 3; ++value)
        gauge.SetCurVal(value);
}

void prepare_axis(CWntAxis& axis, int type) {
    static CString texts[2] = {"one", "two"};
    axis.SetFlags(2, 100, type);
    if (type == 1)
        axis.SetTexts(2, texts);
    if (type == 2)
        axis.SetRange(1'000'000'000LL, 1'010'000'000LL);
}

CWnd* plain_child(CWnd& parent) {
    return CWnd::FromHandle(::CreateWindowA("STATIC", "child", WS_CHILD | WS_VISIBLE, 2, 2, 20, 20, parent.m_hWnd,
                                            nullptr, nullptr, nullptr));
}

void prepare_sash(CWntSash& sash) {
    CWnd* first = plain_child(sash);
    sash.SetPanes(first, plain_child(sash));
    sash.SetLiveDrag(0);
    for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP})
        sash.SendMessage(message, 0, message == WM_LBUTTONDOWN ? MAKELPARAM(30, 5) : MAKELPARAM(20, 5));
}

void prepare_frame(CWntFrame& frame) {
    frame.SetTitle("Boiler");
    frame.SetAnchor(plain_child(frame), 0, 0, 1, 1);
}

void prepare_tabs(CWntTabs& tabs) {
    for (const int side : {CWntTabs::at_left, CWntTabs::at_top}) {
        tabs.AddTab("&one", plain_child(tabs));
        tabs.SetTabIcon(tabs.GetTabCount() - 1, ::LoadIconA(nullptr, IDI_WARNING));
        tabs.SetTabTip(tabs.GetTabCount() - 1, "a tip");
        tabs.SetSide(side);
        full_repaint(tabs);
    }
    tabs.EnableTab(1, 0);
}

void prepare_tool_bar(CWntToolBar& bar) {
    CWntToolItem item(100, "Save");
    item.icon = ::LoadIconA(nullptr, IDI_WARNING);
    bar.AddItem(item);
    item = CWntToolItem(101, "In", WNT_TOOL_WINDOW);
    item.window = plain_child(bar);
    bar.AddItem(item);
    bar.EnableItem(100, 0);
    full_repaint(bar);
    bar.SetTextPlace(WNT_TOOL_TEXT_BESIDE);
}

void show_tip(CWntToolBar& bar) {
    CToolTipCtrlEx* tips = bar.GetTips();
    tips->AddTip(&bar, {"Title", "text", ::LoadIconA(nullptr, IDI_WARNING), RGB(1, 2, 3)});
    tips->ShowTip(&bar);
    tips->TrackTip({"", "tracked"}, CPoint(10, 10));
}

void prepare_chart(CWntPulse& chart) {
    chart.SetTitle("Boiler");
    const int curve = chart.AddCurve("Flow", RGB(200, 0, 0), 0, 10);
    for (int i = 0; i < 100; ++i)
        chart.AddSample(curve, i % 10, i * 10);
    chart.SetCursor(0, 500);
    chart.SendMessage(WM_TIMER, 1, 0);
}

std::vector<Kind> all_kinds() {
    std::vector<Kind> kinds = {kind<CWntOut>("surface"),
                               kind<CWntButton>("button"),
                               kind<CWntCalendar>("calendar"),
                               kind<CWntColorSel>("colour selector"),
                               kind<CWntTrace>("trace"),
                               kind<CWntFrameEx>("folding frame"),
                               kind<CWntTipPage>("tip page"),
                               kind<CWntSash>("sash", prepare_sash),
                               kind<CWntFrame>("frame", prepare_frame),
                               kind<CWntPulse>("strip chart", prepare_chart),
                               kind<CWntTabs>("tabs", prepare_tabs),
                               kind<CWntToolBar>("toolbar", prepare_tool_bar, 2),
                               kind<CWntToolBar>("tip", show_tip, 2)};
    for (const char* type : {"PERCENTBAR", "THERMOMETER", "ANALOG", "DIGITAL", "PEAKLINE", "TURNKNOB"})
        kinds.push_back(kind<CWntGauge>(
            type, [type](CWntGauge& gauge) { prepare_gauge(gauge, type); }, 6));
    const char* const axes[] = {"numeric axis", "text axis", "time axis"};
    for (int type = 0; type < 3; ++type)
        kinds.push_back(kind<CWntAxis>(
            axes[type], [type](CWntAxis& axis) { prepare_axis(axis, type); }, 3));
    return kinds;
}

struct HandlesTest : WidgetTest {
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
    std::vector<CPen> pens(100);
    for (CPen& pen : pens)
        ASSERT_TRUE(pen.CreatePen(PS_SOLID, 1, RGB(1, 0, 0)));
    EXPECT_GE(live_gdi_objects() - before.gdi, 100);
    std::vector<CMenu> menus(100);
    for (CMenu& menu : menus)
        ASSERT_TRUE(menu.CreateMenu());
    EXPECT_GE(user_objects() - before.user, 100 - 64);
}

TEST_F(HandlesTest, LivesAndRepaintsGiveEverythingBack) {
    for (const Kind& kind : all_kinds()) {
        const auto widget = opened(kind); // with what is made once
        const Counts before;
        for (int i = 0; i < 300 / kind.looks + 1; ++i)
            opened(kind);
        EXPECT_LT(before.grown(), tolerance) << "lives of " << kind.name;
        const Counts between;
        for (int i = 0; i < 1000 / kind.looks + 1; ++i)
            full_repaint(*widget);
        EXPECT_LT(between.grown(), tolerance) << "repaints of " << kind.name;
    }
}

} // namespace

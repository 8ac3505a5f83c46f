// Widgets that a dialog's template places, and those that take over other windows.
#include "modal.h"
#include "template_ids.h"
#include "temporary_file.h"
#include "widget_window.h"

namespace {

struct WidgetsDialog : CDialog {
    explicit WidgetsDialog(CWnd* parent) : CDialog(IDD_WIDGETS, parent) {}
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        if (!joined)
            return;
        DDX_GaugeValue(exchange, IDC_GAUGE, value);
        DDX_Color(exchange, IDC_COLOURS, colour);
    }
    BOOL OnInitDialog() override {
        joined = FALSE;
        CDialog::OnInitDialog();
        joined = gauge.SubclassDlgItem(IDC_GAUGE, this) && scripted.SubclassDlgItem(IDC_SCRIPTED, this) &&
                 button.SubclassDlgItem(IDC_BUTTON, this) && axis.SubclassDlgItem(IDC_AXIS, this) &&
                 calendar.SubclassDlgItem(IDC_CALENDAR, this) && colours.SubclassDlgItem(IDC_COLOURS, this) &&
                 placed.SubclassDlgItem(IDC_PLACE, this);
        return TRUE;
    }

    CWntGauge gauge, scripted, placed;
    CWntButton button;
    CWntAxis axis;
    CWntCalendar calendar;
    CWntColorSel colours;
    BOOL joined = FALSE;
    int value = 0, colour = 0;
};

// The same widget, created by its object.
template <class Widget> Pixels created(CWnd& parent, CWnd& like, std::function<void(Widget&)> prepare) {
    Widget widget;
    EXPECT_TRUE(
        widget.Create(nullptr, "Created", WS_CHILD | WS_VISIBLE, CRect(CPoint(0, 0), size_of(like)), &parent, 1));
    prepare(widget);
    const Pixels shown = repainted(widget);
    widget.DestroyWindow();
    return shown;
}

struct TemplateTest : WidgetTest {
    HWND plain_window(int width, int height) {
        return ::CreateWindowA("STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, width, height, host_.m_hWnd, nullptr, nullptr,
                               nullptr);
    }
};

TEST_F(TemplateTest, WidgetsLookAsIfTheirObjectsHadCreatedThem) {
    std::ofstream("template.dat") << ":TYPE=ANALOG\n:MAXVAL=50\n:TITLE=From a script\n";
    WidgetsDialog dialog(&host_);
    for (int round = 0; round < 2; ++round) { // an object serves its dialog again
        WhileModal modal([&] {
            if (!dialog.m_hWnd || !dialog.joined)
                return false;
            const auto expect_as = [&](CWnd& widget, const Pixels& expected) {
                EXPECT_TRUE(repainted(widget) == expected) << widget.GetDlgCtrlID();
            };
            expect_as(dialog.gauge,
                      created<CWntGauge>(host_, dialog.gauge, [](CWntGauge& g) { g.SetTitles("Pressure", ""); }));
            expect_as(dialog.scripted,
                      created<CWntGauge>(host_, dialog.scripted, [](CWntGauge& g) { g.LoadFromFile("template.dat"); }));
            expect_as(dialog.placed, created<CWntGauge>(host_, dialog.placed, [](CWntGauge&) {}));
            expect_as(dialog.button, created<CWntButton>(host_, dialog.button,
                                                         [](CWntButton& b) { b.load(":TITLE=Go", 0), b.load("", 2); }));
            expect_as(dialog.axis, created<CWntAxis>(host_, dialog.axis, [](CWntAxis&) {}));
            expect_as(dialog.calendar, created<CWntCalendar>(host_, dialog.calendar, [](CWntCalendar&) {}));
            expect_as(dialog.colours, created<CWntColorSel>(host_, dialog.colours, [](CWntColorSel&) {}));
            dialog.value = 71, dialog.colour = 6;
            EXPECT_TRUE(dialog.UpdateData(FALSE));
            EXPECT_TRUE(dialog.gauge.GetCurVal() == 71 && dialog.colours.GetSelectedColorID() == 6);
            dialog.gauge.SetCurVal(18), dialog.colours.SetSelectedColorID(2);
            EXPECT_TRUE(dialog.UpdateData() && dialog.value == 18 && dialog.colour == 2);
            CDataExchange exchange(&dialog, FALSE);
            EXPECT_THROW(DDX_Color(&exchange, IDC_GAUGE, dialog.colour), CNotSupportedException*);
            EXPECT_THROW(DDX_GaugeValue(&exchange, 999, dialog.value), CNotSupportedException*);
            dialog.gauge.MoveWindow(0, 0, 90, 40); // sizes come as messages from now on
            EXPECT_EQ(size_of(*dialog.gauge.GetDlgItem(100)), CSize(90, 40));
            dialog.colours.SetSelectedColorID(0); // stays with the object
            dialog.EndDialog(IDOK);
            return true;
        });
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_TRUE(!dialog.gauge.m_hWnd && !dialog.placed.m_hWnd);
    }
    std::remove("template.dat");
}

struct ControlsDialog : CDialog {
    explicit ControlsDialog(CWnd* parent) : CDialog(IDD_CONTROLS, parent) {}
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        for (const auto& [name, id, control] : places)
            DDX_Control(exchange, id, *control);
    }

    CWntPulse pulse;
    CWntTabs tabs;
    CWntSash sash;
    CWntToolBar bar;
    CWntTipPage tip;
    CWntFrame frame;
    CWntFrameEx folded;
    const struct {
        const char* name;
        int id;
        CWnd* control;
    } places[7] = {{"WntPulse", IDC_PULSE, &pulse},    {"WntTabs", IDC_TABS, &tabs},  {"WntSash", IDC_SASH, &sash},
                   {"WntToolBar", IDC_BAR, &bar},      {"WntTipPage", IDC_TIP, &tip}, {"WntFrame", IDC_FRAME, &frame},
                   {"WntFrameEx", IDC_FOLDED, &folded}};
};

TEST_F(TemplateTest, ControlsAreBuiltInTheirPlacesAndGoWithTheDialog) {
    std::ofstream("template.dat") << ":TAB=One\n:TAB=Two\n:ITEM=7,-1,Go\n:CLEARCURVES=\n:CURVE=Level,RED\n";
    ControlsDialog dialog(&host_);
    for (int round = 0; round < 2; ++round) { // the objects serve it again
        ASSERT_TRUE(dialog.Create(IDD_CONTROLS, &host_));
        for (const auto& [name, id, control] : dialog.places) {
            char kind[32] = "";
            ::GetClassName(control->m_hWnd, kind, sizeof(kind));
            EXPECT_STREQ(kind, name);
            const Pixels built = repainted(*control);
            EXPECT_GT(built.width, 100) << name;
            const std::set<COLORREF> colours(built.values.begin(), built.values.end());
            EXPECT_TRUE(colours.size() > 1 || control == &dialog.sash) << name << " is blank";
        }
        CRect tab = dialog.tabs.GetTabRect(1), item, content = dialog.frame.GetContentRect();
        const CRect client(CPoint(0, 0), size_of(dialog.tabs));
        EXPECT_EQ(dialog.tabs.GetTabCount(), 2); // of the script that the text names
        EXPECT_TRUE(!tab.IsRectEmpty() && client.PtInRect(tab.CenterPoint()) && tab.Height() * 4 < client.Height());
        EXPECT_TRUE(dialog.bar.GetItemCount() == 1 && dialog.bar.GetItemRect(0, &item) && !item.IsRectEmpty());
        EXPECT_EQ(dialog.pulse.GetCurveCount(), 1);
        EXPECT_EQ(dialog.tip.GetTipCount(), 1); // the file's only paragraph
        EXPECT_TRUE(content.top > 5 && content.Height() > size_of(dialog.frame).cy / 2) << "the title takes a line";
        CButton inside;
        inside.Create("", WS_CHILD | WS_VISIBLE | WS_TABSTOP, content, &dialog.frame, 1);
        EXPECT_EQ(dialog.GetNextDlgTabItem(&dialog.folded, TRUE), &inside) << "what a panel holds is in the tab order";
        CStatic left, right; // panes that the program makes
        for (CStatic* pane : {&left, &right})
            pane->Create("", WS_CHILD, CRect(0, 0, 9, 9), &dialog);
        EXPECT_TRUE(dialog.sash.SetPanes(&left, &right) && left.IsWindowVisible());
        EXPECT_NEAR(dialog.sash.GetPosition(), size_of(dialog.sash).cx / 2, 5);
        dialog.DestroyWindow();
        for (const auto& place : dialog.places)
            EXPECT_EQ(place.control->m_hWnd, nullptr) << place.name;
    }
    std::remove("template.dat");
}

TEST_F(TemplateTest, ByItsClassNameAWidgetIsMadeOnce) {
    CWntCalendar calendar;
    ASSERT_TRUE(calendar.Create("WntCalendar", "Calendar", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host_, 1));
    const HWND child = ::GetWindow(calendar, GW_CHILD);
    EXPECT_TRUE(child && !::GetWindow(child, GW_HWNDNEXT));
    CWntGauge refused; // and takes over a window after that
    EXPECT_FALSE(refused.Create("no such class", "", WS_CHILD, CRect(0, 0, 9, 9), &host_, 2));
    ASSERT_TRUE(refused.SubclassWindow(plain_window(0, 0)));
    refused.MoveWindow(0, 0, 90, 60);
    EXPECT_NE(refused.GetDlgItem(100), nullptr);
}

} // namespace

#include "overview_page.h"

#include "resource.h"

#include <cmath>

namespace {

// Where a gauge lies in its panel: shares of the content.
struct GaugePlace {
    int panel;
    const char* script;
    double left, top, right, bottom;
};

constexpr GaugePlace places[plant_channels] = {
    {0, "boiler_pressure.dat", 0, 0, 1, 0.56},    {0, "boiler_temperature.dat", 0, 0.56, 0.5, 1},
    {0, "boiler_level.dat", 0.5, 0.56, 1, 1},     {1, "tank_level.dat", 0, 0, 0.3, 1},
    {1, "feed_flow.dat", 0.3, 0, 0.68, 1},        {1, "pump_speed.dat", 0.68, 0, 1, 1},
    {2, "furnace_temperature.dat", 0, 0, 0.5, 1},
};
constexpr GaugePlace knob_place = {2, "furnace_target.dat", 0.5, 0, 1, 1};
constexpr const char* panel_scripts[] = {"panel_boiler.dat", "panel_feed.dat", "panel_furnace.dat",
                                         "panel_operation.dat"};

bool PutGauge(CWntGauge& gauge, CWntFrame* panels, const GaugePlace& place, const CString& script, UINT id) {
    CWntFrame& panel = panels[place.panel];
    const CRect content = panel.GetContentRect();
    const auto at = [](int start, int length, double share) { return start + static_cast<int>(length * share); };
    const int gap = Scaled(3);
    const CRect room(
        at(content.left, content.Width(), place.left) + gap, at(content.top, content.Height(), place.top) + gap,
        at(content.left, content.Width(), place.right) - gap, at(content.top, content.Height(), place.bottom) - gap);
    if (!gauge.Create(nullptr, "", WS_CHILD | WS_VISIBLE, room, &panel, id))
        return false;
    gauge.LoadFromFile(script);
    return panel.SetAnchor(&gauge, place.left, place.top, place.right, place.bottom) != 0;
}

// The greatest position counts as a page's beginning, so the range is as much longer.
void SetRange(CScrollBar& bar, int least, int greatest, int page) {
    SCROLLINFO range = {};
    range.cbSize = sizeof range;
    range.fMask = SIF_RANGE | SIF_PAGE;
    range.nMin = least;
    range.nMax = greatest + page - 1;
    range.nPage = static_cast<UINT>(page);
    bar.SetScrollInfo(&range);
}

} // namespace

BEGIN_MESSAGE_MAP(COverviewPage, CFrontPage)
ON_WM_HSCROLL()
END_MESSAGE_MAP()

bool COverviewPage::CreateContents() {
    font_.CreatePointFont(100, "Arial");
    small_font_.CreatePointFont(85, "Arial");
    if (!CreateSashes() || !CreatePanels() || !CreateGauges() || !CreateOperation())
        return false;
    across_.SetPanes(&panels_[boiler], &right_);
    right_.SetPanes(&panels_[feed], &lower_);
    lower_.SetPanes(&panels_[furnace], &panels_[operation]);
    ShowReadings();
    return true;
}

bool COverviewPage::CreateSashes() {
    const CRect room(0, 0, Scaled(1000), Scaled(600));
    const DWORD style = WS_CHILD | WS_VISIBLE;
    if (!across_.Create(nullptr, "", style, room, this, 1) || !right_.Create(nullptr, "", style, room, &across_, 2) ||
        !lower_.Create(nullptr, "", style, room, &right_, 3))
        return false;
    right_.SetUpright(0);
    for (CWntSash* sash : {&across_, &right_, &lower_})
        sash->SetLeastSizes(Scaled(120), Scaled(120));
    across_.SetShare(0.38);
    right_.SetShare(0.47);
    lower_.SetShare(0.6);
    return true;
}

// As large as they will be, more or less: their gauges are anchored to what they measure now.
bool COverviewPage::CreatePanels() {
    for (int i = 0; i < panels; ++i) {
        if (!panels_[i].Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, Scaled(500), Scaled(300)), &across_,
                               static_cast<UINT>(10 + i)))
            return false;
        panels_[i].LoadFromFile(front_end_.Script(panel_scripts[i]));
    }
    return true;
}

bool COverviewPage::CreateGauges() {
    for (std::size_t i = 0; i < plant_channels; ++i) {
        if (!PutGauge(gauges_[i], panels_, places[i], front_end_.Script(places[i].script),
                      static_cast<UINT>(IDC_GAUGE_FIRST + i)))
            return false;
        gauges_[i].SetRange(plant_ranges[i].least, plant_ranges[i].greatest);
        gauges_[i].SetTitles(plant_ranges[i].name, plant_ranges[i].unit);
    }
    return PutGauge(knob_, panels_, knob_place, front_end_.Script(knob_place.script), IDC_KNOB);
}

bool COverviewPage::CreateOperation() {
    CWntFrame& panel = panels_[operation];
    const CRect nowhere(0, 0, 0, 0);
    const DWORD style = WS_CHILD | WS_VISIBLE;
    if (!furnace_text_.Create("", style, nowhere, &panel, IDC_FURNACE_TEXT) ||
        !furnace_target_.Create(style | WS_TABSTOP | SBS_HORZ, nowhere, &panel, IDC_FURNACE_TARGET) ||
        !steam_text_.Create("", style, nowhere, &panel, IDC_STEAM_TEXT) ||
        !steam_valve_.Create(style | WS_TABSTOP | SBS_HORZ, nowhere, &panel, IDC_STEAM_VALVE) ||
        !in_force_.Create("", style, nowhere, &panel, IDC_IN_FORCE) || !pump_.Open("Pump", &panel, ID_PUMP) ||
        !burner_.Open("Burner", &panel, ID_BURNER) ||
        !events_.Create(style | WS_VSCROLL | WS_BORDER | LBS_NOINTEGRALHEIGHT | LBS_NOSEL, nowhere, &panel, IDC_EVENTS))
        return false;
    for (CStatic* text : {&furnace_text_, &steam_text_, &in_force_})
        text->SetFont(&font_);
    events_.SetFont(&small_font_);
    SetRange(furnace_target_, least_furnace_target, greatest_furnace_target, 25);
    SetRange(steam_valve_, 0, 100, 5);
    PlaceOperation();
    return true;
}

void COverviewPage::PlaceOperation() {
    AddRow(furnace_text_, 0, 1, 4, 18);
    AddRow(furnace_target_, 0, 1, 22, 18);
    AddRow(steam_text_, 0, 1, 46, 18);
    AddRow(steam_valve_, 0, 1, 64, 18);
    AddRow(pump_, 0, 0.5, 90, 28);
    AddRow(burner_, 0.5, 1, 90, 28);
    AddRow(in_force_, 0, 1, 124, 18);
    CWntFrame& panel = panels_[operation];
    const int events_top = 146, room = ::MulDiv(panel.GetContentRect().Height(), 96, Scaled(96));
    AddRow(events_, 0, 1, events_top, room - events_top - 6);
    panel.SetAnchor(&events_, 0, 0, 1, 1); // down to the panel's lower edge
}

// Between two shares of the panel's width; in pixels at 96 dots an inch from its top.
void COverviewPage::AddRow(CWnd& child, double left, double right, int top, int height) {
    const CRect content = panels_[operation].GetContentRect();
    const int margin = Scaled(6), width = content.Width();
    child.MoveWindow(CRect(content.left + static_cast<int>(left * width) + margin, content.top + Scaled(top),
                           content.left + static_cast<int>(right * width) - margin,
                           content.top + Scaled(top + height)));
    panels_[operation].SetAnchor(&child, left, 0, right, 0);
}

void COverviewPage::Arrange(int width, int height) {
    const int margin = Scaled(4);
    across_.MoveWindow(margin, margin, width - 2 * margin, height - 2 * margin);
}

// -- What is shown ----------------------------------------------------------------------------------------------------

void COverviewPage::ShowReadings() {
    const PlantLink& link = front_end_.station.Link();
    for (std::size_t i = 0; i < plant_channels; ++i) {
        const int value = static_cast<int>(std::lround(link.Readings().values[i]));
        if (value != gauges_[i].GetCurVal()) // each call would be a line in the trace
            gauges_[i].SetCurVal(value);
        const bool refused = link.Refused() >> i & 1;
        if (refused != static_cast<bool>(refused_ >> i & 1))
            gauges_[i].SetTitles(CString(plant_ranges[i].name) + (refused ? ": no signal" : ""), plant_ranges[i].unit);
    }
    refused_ = link.Refused();
    CString text = "In force: not known";
    if (link.State() != LinkState::absent)
        text.Format("In force: %.0f \260C, %.0f %%", link.Readings().furnace_target, link.Readings().steam_valve);
    CString shown;
    in_force_.GetWindowText(shown);
    if (shown != text)
        in_force_.SetWindowText(text);
    ShowSetPoints();
}

void COverviewPage::ShowSettings() {
    for (std::size_t i = 0; i < plant_channels; ++i)
        ShowZones(gauges_[i], i);
}

// A zone ends at its mark; the last limit less one, twice, colours what lies above it.
void COverviewPage::ShowZones(CWntGauge& gauge, std::size_t channel) const {
    const ChannelLimits& limits = front_end_.settings.limits[channel];
    gauge.ClearMarks();
    if (limits.low > plant_ranges[channel].least)
        gauge.AddMark(limits.low, "RED");
    gauge.AddMark(limits.high, "DARKGREEN");
    if (limits.high < plant_ranges[channel].greatest) {
        gauge.AddMark(limits.high - 1, "RED");
        gauge.AddMark(limits.high - 1, "RED");
    }
    gauge.Invalidate();
}

void COverviewPage::ShowSetPoints() {
    const PlantSetPoints& wanted = front_end_.station.SetPoints();
    const int target = static_cast<int>(wanted.furnace_target), valve = static_cast<int>(wanted.steam_valve);
    const auto show = [](CWnd& text, const char* format, int value) {
        CString wanted, shown;
        wanted.Format(format, value);
        text.GetWindowText(shown);
        if (shown != wanted)
            text.SetWindowText(wanted);
    };
    if (target != knob_.GetCurVal())
        knob_.SetCurVal(target);
    furnace_target_.SetScrollPos(target);
    steam_valve_.SetScrollPos(valve);
    show(furnace_text_, "Furnace: %d \260C", target);
    show(steam_text_, "Steam valve: %d %%", valve);
    pump_.Show(wanted.switches & pump_on ? "Pump on" : "Pump off", wanted.switches & pump_on);
    burner_.Show(wanted.switches & burner_on ? "Burner on" : "Burner off", wanted.switches & burner_on);
}

void COverviewPage::OnHScroll(UINT code, UINT position, CScrollBar* bar) {
    if (bar != &furnace_target_ && bar != &steam_valve_)
        return;
    static_cast<CWntScrollBar*>(bar)->SetThumb(code, position, bar);
    PlantSetPoints wanted = front_end_.station.SetPoints();
    wanted.furnace_target = furnace_target_.GetScrollPos();
    wanted.steam_valve = steam_valve_.GetScrollPos();
    front_end_.station.Want(wanted);
    ShowSetPoints();
}

void COverviewPage::AddEvent(const CString& text) {
    constexpr int most_events = 200;
    if (events_.GetCount() == most_events)
        events_.DeleteString(most_events - 1);
    events_.InsertString(0, CTime::GetCurrentTime().Format("%H:%M  ") + text);
}

// -- Layout -----------------------------------------------------------------------------------------------------------

void COverviewPage::RestoreLayout() {
    across_.RestoreState(front_end_.profile, "Overview");
    right_.RestoreState(front_end_.profile, "OverviewRight");
    lower_.RestoreState(front_end_.profile, "OverviewLower");
}

void COverviewPage::StoreLayout() const {
    across_.StoreState(front_end_.profile, "Overview");
    right_.StoreState(front_end_.profile, "OverviewRight");
    lower_.StoreState(front_end_.profile, "OverviewLower");
}

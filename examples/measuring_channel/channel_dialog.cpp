// The dialog's controls and the settings that they show.
#include "channel_dialog.h"

#include "resource.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CCommandButton, CWntButton)
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CChannelDialog, CDialog)
ON_BN_CLICKED(IDC_APPLY, &CChannelDialog::OnApply)
ON_BN_CLICKED(IDC_RUN, &CChannelDialog::OnRun)
ON_NOTIFY(TCN_SELCHANGE, IDC_PAGES, &CChannelDialog::OnPage)
ON_NOTIFY(DTN_DATETIMECHANGE, IDC_LAST, &CChannelDialog::OnLast)
ON_NOTIFY(WNT_TABS_SELECTED, IDC_TABS, &CChannelDialog::OnTab)
ON_NOTIFY(WNT_SASH_MOVED, IDC_SASH, &CChannelDialog::OnSash)
ON_NOTIFY(HDN_ENDTRACK, IDC_REPORT_HEADER, &CChannelDialog::OnColumn)
ON_CBN_SELENDOK(IDC_INK, &CChannelDialog::OnInk)
ON_COMMAND(ID_INSERT_READING, &CChannelDialog::OnInsertReading)
ON_COMMAND(ID_NEXT_TIP, &CChannelDialog::OnNextTip)
ON_COMMAND_RANGE(ID_EDIT_CLEAR, ID_EDIT_UNDO, &CChannelDialog::OnEdit)
ON_WM_TIMER()
ON_WM_HSCROLL()
ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

constexpr const char* views[] = {"Percent bar", "Thermometer", "Dial", "Digits", "Peak line", "Knob"};
constexpr const char* units[] = {"bar x 10", "\260C", "l/min", "rpm", "%"};
constexpr const char* places[] = {"Boiler house", "Cold store", "Pump room", "Roof"};
constexpr const char* listeners[] = {"Operator", "Maintenance", "Log book", "Horn"};

} // namespace

// The widget tells nobody; pressed (3) and up again (2) is a click.
void CCommandButton::OnLButtonUp(UINT flags, CPoint point) {
    Tcbtn_properties before = {}, after = {};
    getproperties(&before);
    CWntButton::OnLButtonUp(flags, point);
    getproperties(&after);
    if (before.bordertype == 3 && after.bordertype == 2)
        GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), BN_CLICKED), reinterpret_cast<LPARAM>(m_hWnd));
}

CChannelDialog::CChannelDialog(const ChannelSettings& settings)
    : CDialog(IDD_CHANNEL), settings_(settings), entered_(settings) {}

// The base class joins controls and objects and shows the settings; ranges and lists that they need come after that,
// and then the settings once more.
BOOL CChannelDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    HICON icon = AfxGetApp()->LoadIcon(IDI_CHANNEL);
    SetIcon(icon, TRUE);
    SetIcon(icon, FALSE);
    CollectPages();
    BuildPanes();
    BuildBars();
    FillBoxes();
    FillPages();
    PrepareRanges();
    PrepareTips();
    UpdateData(FALSE);
    ShowSettings();
    Run(true);
    return TRUE;
}

void CChannelDialog::FillBoxes() {
    const auto fill = [this](int box, UINT message, auto& entries) {
        for (const char* entry : entries)
            SendDlgItemMessage(box, message, 0, reinterpret_cast<LPARAM>(entry));
    };
    fill(IDC_UNIT, CB_ADDSTRING, units);
    fill(IDC_VIEW, CB_ADDSTRING, views);
    fill(IDC_PLACE, LB_ADDSTRING, places);
    fill(IDC_TELL, LB_ADDSTRING, listeners);
}

void CChannelDialog::FillPages() {
    pages_.InsertItem(0, "Readings");
    pages_.InsertItem(1, "Plant");
    PlacePages();
    log_.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    CRect room;
    log_.GetClientRect(room);
    const int unit = std::max((room.Width() - ::GetSystemMetrics(SM_CXVSCROLL)) / 4, 1);
    for (const char* title : {"Reading", "Time", "Value", "Zone"})
        log_.InsertColumn(log_.GetHeaderCtrl()->GetItemCount(), title, LVCFMT_LEFT, unit);
    const HTREEITEM plant = plant_.InsertItem("Plant");
    for (const char* place : places)
        plant_.InsertItem(place, plant);
    plant_.Expand(plant, TVE_EXPAND);
    ShowPage();
}

void CChannelDialog::PrepareRanges() {
    for (CSpinButtonCtrl* spin : {&lower_spin_, &upper_spin_, &low_limit_spin_, &high_limit_spin_})
        spin->SetRange32(ChannelSettings::least_value, ChannelSettings::greatest_value);
    rate_.SetRange(1, ChannelSettings::most_rate);
    rate_.SetTicFreq(1);
    damping_.SetScrollRange(0, 100);
    const CTime first = ChannelSettings::FirstDate(), final = ChannelSettings::LastDate();
    last_.SetRange(&first, &final);
    next_.SetRange(&first, &final);
    filling_.SetRange(0, 100);
    animation_.Open(IDR_RUNNING);
}

void CChannelDialog::PrepareTips() {
    tips_.Create(this);
    for (const UINT id : {IDC_FACTOR, IDC_HOT_KEY, IDC_TELL, IDC_ORDER, IDC_NEXT, IDC_RATE, IDC_DAMPING})
        tips_.AddTool(GetDlgItem(static_cast<int>(id)), id);
    tips_.Activate(TRUE);
}

BOOL CChannelDialog::PreTranslateMessage(MSG* message) {
    if (tips_.m_hWnd)
        tips_.RelayEvent(message);
    return actions_.FilterKey(message) || TurnPage(*message) || CDialog::PreTranslateMessage(message);
}

// -- Exchange of data -------------------------------------------------------------------------------------------------

namespace {

// As the framework's own checks: tells the user, goes to the field, gives up.
void refuse(CDataExchange* exchange, int id, const char* why) {
    exchange->PrepareEditCtrl(id);
    AfxMessageBox(why, MB_ICONEXCLAMATION);
    exchange->Fail();
}

void exchange_checks(CDataExchange* exchange, CCheckListBox& list, int& bits) {
    for (int i = 0; i < list.GetCount(); ++i) {
        if (!exchange->m_bSaveAndValidate)
            list.SetCheck(i, bits >> i & 1);
        else
            bits = (bits & ~(1 << i)) | (list.GetCheck(i) ? 1 << i : 0);
    }
}

void exchange_key(CDataExchange* exchange, CHotKeyCtrl& control, int& key) {
    if (exchange->m_bSaveAndValidate)
        key = static_cast<int>(control.GetHotKey());
    else
        control.SetHotKey(LOBYTE(key), HIBYTE(key));
}

} // namespace

void CChannelDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    JoinControls(exchange);
    ExchangeChannel(exchange);
    ExchangeLimits(exchange);
    ExchangeDates(exchange);
}

void CChannelDialog::JoinControls(CDataExchange* exchange) {
    const struct {
        int id;
        CWnd* control;
    } controls[] = {{IDC_ACTIONS, &actions_},
                    {IDC_TABS, &tabs_},
                    {IDC_TIPS_PAGE, &tip_page_},
                    {IDC_READING, &reading_},
                    {IDC_SIMULATION, &simulation_},
                    {IDC_SASH, &sash_},
                    {IDC_CHART, &chart_},
                    {IDC_GAUGE, &gauge_},
                    {IDC_TREND, &trend_},
                    {IDC_AXIS, &axis_},
                    {IDC_RUN, &run_},
                    {IDC_PLAN, &plan_},
                    {IDC_INSIDE, &inside_},
                    {IDC_BEYOND, &beyond_},
                    {IDC_LOWER_SPIN, &lower_spin_},
                    {IDC_UPPER_SPIN, &upper_spin_},
                    {IDC_LOW_LIMIT_SPIN, &low_limit_spin_},
                    {IDC_HIGH_LIMIT_SPIN, &high_limit_spin_},
                    {IDC_RATE, &rate_},
                    {IDC_DAMPING, &damping_},
                    {IDC_HOT_KEY, &hot_key_},
                    {IDC_TELL, &tell_},
                    {IDC_LAST, &last_},
                    {IDC_NEXT, &next_},
                    {IDC_RUNNING, &animation_},
                    {IDC_FILLING, &filling_},
                    {IDC_PAGES, &pages_},
                    {IDC_READINGS, &log_},
                    {IDC_PLANT, &plant_},
                    {IDC_STATUS, &status_}};
    for (const auto& [id, control] : controls)
        DDX_Control(exchange, id, *control);
    report_.Join(exchange);
}

void CChannelDialog::ExchangeChannel(CDataExchange* exchange) {
    ChannelSettings& s = entered_;
    DDX_Text(exchange, IDC_NAME, s.name);
    DDV_MaxChars(exchange, s.name, ChannelSettings::most_characters);
    DDX_CBString(exchange, IDC_UNIT, s.unit);
    DDV_MaxChars(exchange, s.unit, ChannelSettings::most_characters);
    DDX_CBIndex(exchange, IDC_VIEW, s.view);
    DDX_Text(exchange, IDC_LOWER, s.lower);
    DDV_MinMaxInt(exchange, s.lower, ChannelSettings::least_value, ChannelSettings::greatest_value - 1);
    DDX_Text(exchange, IDC_UPPER, s.upper);
    DDV_MinMaxInt(exchange, s.upper, s.lower + 1, ChannelSettings::greatest_value);
    auto address = static_cast<DWORD>(s.address);
    DDX_IPAddress(exchange, IDC_ADDRESS, address);
    s.address = static_cast<int>(address);
    DDX_Radio(exchange, IDC_SINE, s.shape);
    DDX_Slider(exchange, IDC_RATE, s.rate);
    DDV_MinMaxSlider(exchange, static_cast<DWORD>(s.rate), 1, ChannelSettings::most_rate);
    DDX_Scroll(exchange, IDC_DAMPING, s.damping);
    DDX_Text(exchange, IDC_FACTOR, s.factor);
    DDV_MinMaxDouble(exchange, s.factor, ChannelSettings::least_factor, ChannelSettings::greatest_factor);
    exchange_key(exchange, hot_key_, s.hot_key);
    DDX_LBString(exchange, IDC_PLACE, s.place);
    exchange_checks(exchange, tell_, s.told);
    report_.ExchangeOrder(exchange, s.order);
}

void CChannelDialog::ExchangeLimits(CDataExchange* exchange) {
    ChannelSettings& s = entered_;
    DDX_Text(exchange, IDC_LOW_LIMIT, s.low_limit);
    DDV_MinMaxInt(exchange, s.low_limit, s.lower, s.upper);
    DDX_Text(exchange, IDC_HIGH_LIMIT, s.high_limit);
    DDV_MinMaxInt(exchange, s.high_limit, s.low_limit, s.upper);
    DDX_Check(exchange, IDC_ALARMS, s.alarms);
    DDX_Color(exchange, IDC_INSIDE, s.inside_colour);
    DDX_Color(exchange, IDC_BEYOND, s.beyond_colour);
    if (exchange->m_bSaveAndValidate && s.inside_colour == s.beyond_colour)
        refuse(exchange, IDC_HIGH_LIMIT, "Choose different colours for values inside and beyond the limits.");
}

void CChannelDialog::ExchangeDates(CDataExchange* exchange) {
    ChannelSettings& s = entered_;
    const CTime first = ChannelSettings::FirstDate(), final = ChannelSettings::LastDate();
    DDX_DateTimeCtrl(exchange, IDC_LAST, s.last_calibration);
    DDV_MinMaxDateTime(exchange, s.last_calibration, &first, &final);
    DDX_MonthCalCtrl(exchange, IDC_NEXT, s.next_calibration);
    DDV_MinMaxMonth(exchange, s.next_calibration, &first, &final);
}

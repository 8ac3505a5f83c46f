// What the dialog does while it is shown.
#include "channel_dialog.h"
#include "resource.h"

#include <algorithm>
#include <utility>

namespace {

constexpr UINT_PTR reading_timer = 1;
constexpr int most_rows = 100;
// The words of scripts and marks for the sixteen colours.
constexpr const char* colour_words[ChannelSettings::colours] = {
    "BLACK",    "WHITE", "BLUE",     "YELLOW",     "GREEN",     "MAGENTA",     "RED",     "CYAN",
    "DARKGRAY", "GRAY",  "DARKBLUE", "DARKYELLOW", "DARKGREEN", "DARKMAGENTA", "DARKRED", "DARKCYAN"};

void load(CWntButton& button, std::initializer_list<const char*> lines) {
    for (const char* line : lines)
        button.load(line, 0);
    button.load("", 2);
}

} // namespace

// Measuring goes on meanwhile, with what was confirmed before.
bool CChannelDialog::TakeOver() {
    if (!UpdateData()) {
        ShowPageOf(::GetFocus()); // where the refused one has it
        return false;
    }
    settings_ = entered_;
    return true;
}

void CChannelDialog::OnApply() {
    if (!TakeOver())
        return;
    ShowSettings();
    Run(running_);
}

void CChannelDialog::OnOK() {
    if (TakeOver())
        EndDialog(IDOK);
}

// -- The gauges -------------------------------------------------------------------------------------------------------

// A zone ends at its mark; the last limit less one, twice, colours what lies above it.
void CChannelDialog::ShowZones(CWntGauge& gauge) const {
    const ChannelSettings& s = settings_;
    const char* inside = colour_words[s.inside_colour];
    const char* beyond = s.alarms ? colour_words[s.beyond_colour] : inside;
    gauge.ClearMarks();
    gauge.AddMark(s.low_limit, beyond);
    gauge.AddMark(s.high_limit, inside);
    gauge.AddMark(s.high_limit - 1, beyond);
    gauge.AddMark(s.high_limit - 1, beyond);
    gauge.Invalidate();
}

void CChannelDialog::ShowSettings() {
    const ChannelSettings& s = settings_;
    constexpr int peak_line = 4;
    for (CWntGauge* gauge : {&gauge_, &trend_}) {
        gauge->SetType(gauge == &trend_ ? peak_line : s.view);
        gauge->SetTitles(gauge == &trend_ ? "Trend" : s.name.GetString(), s.unit);
        gauge->SetRange(s.lower, s.upper);
        ShowZones(*gauge);
    }
    axis_.SetFlags(2, 100, 0);
    // A little more than the range: the last label is centred on its tick, too.
    axis_.SetRange(static_cast<float>(s.lower), s.upper + 0.06f * static_cast<float>(s.upper - s.lower));
    axis_.Invalidate();
    chart_.RemoveCurves();
    chart_.AddCurve(s.name.Left(16), RGB(0, 160, 60), s.lower, s.upper);
    plan_.SetShownDate(s.last_calibration);
    // The key that brings this window to the front from anywhere.
    SendMessage(WM_SETHOTKEY, static_cast<WPARAM>(s.hot_key));
    UpdateTexts();
    CString title;
    title.Format("%s - Measuring Channel", s.name.GetString());
    SetWindowText(title);
}

void CChannelDialog::UpdateTexts() {
    CString text;
    text.Format("%d /s", rate_.GetPos());
    SetDlgItemText(IDC_RATE_TEXT, text);
    text.Format("%d %%", damping_.GetScrollPos());
    SetDlgItemText(IDC_DAMPING_TEXT, text);
}

CString CChannelDialog::ZoneOf(int value) const {
    if (value < settings_.low_limit)
        return "too low";
    return value > settings_.high_limit ? "too high" : "inside";
}

// -- Measuring --------------------------------------------------------------------------------------------------------

void CChannelDialog::OnRun() {
    Run(!running_);
}

// The button is a lamp: its text would grow with the button and the screen's resolution.
void CChannelDialog::Run(bool running) {
    running_ = running;
    load(run_, {":TITLE=", running ? ":CLRBACK=GREEN" : ":CLRBACK=DARKGREEN", ":CLRSUN=WHITE", ":CLRSHADOW=DARKGRAY",
                ":BORDERHEIGHT=3"});
    simulation_.GetContent()->SetDlgItemText(IDC_RUN_TEXT, running ? "Stop" : "Start");
    if (running) {
        SetTimer(reading_timer, static_cast<UINT>(1000 / settings_.rate), nullptr);
        animation_.Play(0, static_cast<UINT>(-1), static_cast<UINT>(-1));
    } else {
        KillTimer(reading_timer);
        animation_.Stop();
    }
    status_.SetText(running ? "Measuring" : "Stopped", 0, 0);
    actions_.CheckItem(IDC_RUN, running);
    chart_.SetLive(running);
}

void CChannelDialog::OnTimer(UINT_PTR) {
    const int value = channel_.Next(settings_);
    gauge_.SetCurVal(value);
    trend_.SetCurVal(value);
    chart_.AddSample(0, value);
    if (readings_++ % settings_.rate == 0)
        Log(value);
}

// One row a second, the latest on top, until there are enough.
void CChannelDialog::Log(int value) {
    CString text;
    text.Format("%d", readings_);
    log_.InsertItem(0, text);
    log_.SetItemText(0, 1, CTime::GetCurrentTime().Format("%H:%M:%S"));
    text.Format("%d %s", value, settings_.unit.GetString());
    log_.SetItemText(0, 2, text);
    log_.SetItemText(0, 3, ZoneOf(value));
    report_.Tell({value, value - std::exchange(last_value_, value), ZoneOf(value), settings_.unit});
    if (log_.GetItemCount() > most_rows)
        log_.DeleteItem(most_rows);
    filling_.SetPos(log_.GetItemCount());
}

void CChannelDialog::OnDestroy() {
    KillTimer(reading_timer);
    CDialog::OnDestroy();
}

// -- Controls that have to be watched ---------------------------------------------------------------------------------

void CChannelDialog::OnHScroll(UINT request, UINT position, CScrollBar* bar) {
    if (bar && bar->m_hWnd == damping_.m_hWnd) {
        const int now = damping_.GetScrollPos();
        const int steps[] = {-1, 1, -10, 10}; // SB_LINELEFT, SB_LINERIGHT, SB_PAGELEFT, SB_PAGERIGHT
        const bool moved = request == SB_THUMBTRACK || request == SB_THUMBPOSITION;
        const int wanted = moved ? static_cast<int>(position) : request <= SB_PAGERIGHT ? now + steps[request] : now;
        damping_.SetScrollPos(std::clamp(wanted, 0, 100));
    } else {
        CDialog::OnHScroll(request, position, bar);
    }
    UpdateTexts();
}

void CChannelDialog::OnPage(NMHDR*, LRESULT* result) {
    ShowPage();
    *result = 0;
}

void CChannelDialog::ShowPage() {
    log_.ShowWindow(pages_.GetCurSel() == 0 ? SW_SHOW : SW_HIDE);
    plant_.ShowWindow(pages_.GetCurSel() == 1 ? SW_SHOW : SW_HIDE);
}

// The plan follows the date that is being chosen.
void CChannelDialog::OnLast(NMHDR*, LRESULT* result) {
    CTime date;
    if (last_.GetTime(date) == GDT_VALID)
        plan_.SetShownDate(date);
    *result = 0;
}

#include "history_page.h"

#include "resource.h"
#include "trend_page.h"

BEGIN_MESSAGE_MAP(CHistoryPage, CFrontPage)
ON_NOTIFY(DAY_PICKED, IDC_CALENDAR, &CHistoryPage::OnDayPicked)
END_MESSAGE_MAP()

bool CHistoryPage::CreateContents() {
    const DWORD style = WS_CHILD | WS_VISIBLE;
    const CRect room(0, 0, Scaled(1000), Scaled(600)), panel_room(0, 0, Scaled(300), Scaled(600));
    font_.CreatePointFont(100, "Arial");
    if (!sash_.Create(nullptr, "", style, room, this, 1) ||
        !days_panel_.Create(nullptr, "", style, panel_room, &sash_, 2) ||
        !chart_.Create(nullptr, "", style | WS_TABSTOP, room, &sash_, IDC_DAY_CHART))
        return false;
    days_panel_.LoadFromFile(front_end_.Script("panel_days.dat"));
    const CRect content = days_panel_.GetContentRect();
    const int margin = Scaled(6), text_height = Scaled(44);
    CRect upper = content, lower = content;
    upper.DeflateRect(margin, margin, margin, margin + text_height);
    lower.DeflateRect(margin, content.Height() - text_height, margin, 0);
    if (!calendar_.Create(nullptr, "", style, upper, &days_panel_, IDC_CALENDAR) ||
        !text_.Create("", style, lower, &days_panel_, IDC_DAY_TEXT))
        return false;
    days_panel_.SetAnchor(&calendar_, 0, 0, 1, 1);
    days_panel_.SetAnchor(&text_, 0, 1, 1, 1);
    text_.SetFont(&font_);
    chart_.LoadFromFile(front_end_.Script("history.dat"));
    sash_.SetKeptPane(1);
    sash_.SetLeastSizes(Scaled(160), Scaled(240));
    sash_.SetPanes(&days_panel_, &chart_);
    sash_.SetPosition(Scaled(330));
    calendar_.SetShownDate(CTime::GetCurrentTime() - CTimeSpan(28, 0, 0, 0));
    ShowPicked();
    return AddPlantCurves(chart_, front_end_.settings);
}

void CHistoryPage::Arrange(int width, int height) {
    const int margin = Scaled(4);
    sash_.MoveWindow(margin, margin, width - 2 * margin, height - 2 * margin);
}

CString CHistoryPage::PathOf(const RecordedDay& day) const {
    return front_end_.settings.folder + '\\' + recording_of(day).c_str();
}

void CHistoryPage::FindDays() {
    days_.clear();
    CFileFind find;
    for (BOOL more = find.FindFile(front_end_.settings.folder + "\\plant-*.txt"); more;) {
        more = find.FindNextFile();
        if (const auto day = day_of_recording(find.GetFileName().GetString()))
            days_.insert(*day);
    }
    calendar_.Mark(days_);
    ShowPicked();
}

void CHistoryPage::OpenDay(const RecordedDay& day) {
    calendar_.Pick(day);
    ShowPicked();
    if (!days_.count(day) || !chart_.OpenFile(PathOf(day), 1)) {
        chart_.StopReading(); // of the day before, which would go on streaming in
        chart_.RemoveSamples();
        chart_.SetTitle("No recording");
        return;
    }
    chart_.SetFit(0); // the curves' own ranges, as in the trend; a file brings none
    CString title;
    title.Format("%d-%02d-%02d", day.year, day.month, day.day);
    chart_.SetTitle(title);
}

void CHistoryPage::ShowPicked() {
    const RecordedDay& day = calendar_.Picked();
    CString text;
    if (day.year == 0)
        text.Format("Recorded days: %d\nPick one with the pointer.", static_cast<int>(days_.size()));
    else
        text.Format("Recorded days: %d\n%d-%02d-%02d %s", static_cast<int>(days_.size()), day.year, day.month, day.day,
                    days_.count(day) ? "is shown." : "was not recorded.");
    text_.SetWindowText(text);
}

void CHistoryPage::OnDayPicked(NMHDR*, LRESULT* result) {
    FindDays();
    OpenDay(calendar_.Picked());
    *result = 0;
}

BOOL CHistoryPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto& told = *reinterpret_cast<const WntPulseNotify*>(lParam);
    if (told.hdr.code == WNT_PULSE_READ && told.hdr.idFrom == IDC_DAY_CHART) {
        constexpr const char* endings[] = {"given up", "whole", "ends in what is no sample"};
        if (0 <= told.which && told.which <= 2)
            WntTrace("Recording read: %s\n", endings[told.which]);
    }
    return CFrontPage::OnNotify(wParam, lParam, result);
}

void CHistoryPage::ShowSettings() {
    ColourPlantCurves(chart_, front_end_.settings);
    FindDays();
}

void CHistoryPage::RestoreLayout() {
    sash_.RestoreState(front_end_.profile, "History");
}

void CHistoryPage::StoreLayout() const {
    sash_.StoreState(front_end_.profile, "History");
}

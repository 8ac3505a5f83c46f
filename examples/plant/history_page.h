#pragma once

#include "day_calendar.h"
#include "front_page.h"
#include "plant_chart.h"

/// The recorded days: a calendar that marks them, and a chart of the one that is picked.
class CHistoryPage : public CFrontPage {
public:
    using CFrontPage::CFrontPage;
    void ShowSettings() override;
    void RestoreLayout() override;
    void StoreLayout() const override;

    /// Looks for recordings, as there are new ones.
    void FindDays();
    void OpenDay(const RecordedDay& day);
    const std::set<RecordedDay>& Days() const { return days_; }
    CWntPulse& Chart() { return chart_; }

protected:
    bool CreateContents() override;
    void Arrange(int width, int height) override;
    afx_msg void OnDayPicked(NMHDR* told, LRESULT* result);
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    DECLARE_MESSAGE_MAP()

private:
    CString PathOf(const RecordedDay& day) const;
    void ShowPicked();

    CWntSash sash_; // before its panes, so that they go first
    CWntFrame days_panel_;
    CDayCalendar calendar_;
    CStatic text_;
    CFont font_;
    CPlantChart chart_{WNT_PULSE_CMD_RECORD};
    std::set<RecordedDay> days_;
};

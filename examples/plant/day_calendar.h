#pragma once

#include "recorded_days.h"

#include <zopwnt.h>

#include <set>

/// Told to the parent by WM_NOTIFY with an NMHDR when a day is clicked: Picked() tells which.
inline constexpr UINT DAY_PICKED = 1;

/// A calendar that marks days, and lets its user pick one. Its weekdays stand in the middle of their columns, at any
/// resolution of the screen.
class CDayCalendar : public CWntCalendar {
public:
    void Mark(std::set<RecordedDay> days);
    void Pick(const RecordedDay& day);
    const RecordedDay& Picked() const { return picked_; }

protected:
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void PaintWeekdays(CDC& dc);
    void PaintDays(CDC& dc);
    CRect Grid() const;
    CRect Cell(int row, int column) const;
    RecordedDay DayAt(int row, int column) const;
    /// False for a point outside of the grid.
    bool Hit(CPoint point, RecordedDay& day) const;

    std::set<RecordedDay> marked_;
    RecordedDay picked_{};
    RecordedDay pressed_{};
    CFont headline_font_;
};

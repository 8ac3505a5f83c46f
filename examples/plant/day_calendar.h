#pragma once

#include "recorded_days.h"

#include <zopwnt.h>

#include <set>

/// Told to the parent by WM_NOTIFY with an NMHDR when a day is clicked: Picked() tells which.
inline constexpr UINT DAY_PICKED = 1;

/// A calendar that marks days, and lets its user pick one.
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
    CRect Grid() const;
    CRect Cell(int row, int column) const;
    RecordedDay DayAt(int row, int column) const;
    /// False for a point outside of the grid.
    bool Hit(CPoint point, RecordedDay& day) const;

    std::set<RecordedDay> marked_;
    RecordedDay picked_{};
    RecordedDay pressed_{};
};

// Dates and times: a picker and a calendar.
#pragma once

#include "atlcomtime.h"
#include "afxwin.h"

class CMonthCalCtrl;

// The two ends of a range of dates as the controls take them. A date that is none, or invalid, is no bound.
struct afx_date_range {
    SYSTEMTIME ends[2]{};
    DWORD flags = 0;

    afx_date_range() = default;
    afx_date_range(const COleDateTime* least, const COleDateTime* most) {
        flags = (given(least, ends[0]) ? GDTR_MIN : 0) | (given(most, ends[1]) ? GDTR_MAX : 0);
    }
    // The bounds that there are; the others have no date.
    DWORD give(COleDateTime* least, COleDateTime* most, DWORD known) const {
        if (least != nullptr)
            give_day(*least, ends[0], known & GDTR_MIN);
        if (most != nullptr)
            give_day(*most, ends[1], known & GDTR_MAX);
        return known;
    }
    // The controls leave the time of a day as it is.
    static void give_day(COleDateTime& day, SYSTEMTIME fields, DWORD known) {
        if (fields.wHour > 23 || fields.wMinute > 59 || fields.wSecond > 59)
            fields.wHour = fields.wMinute = fields.wSecond = 0;
        if (known != 0)
            day = fields;
        else
            day.SetStatus(COleDateTime::null);
    }

private:
    static bool given(const COleDateTime* day, SYSTEMTIME& fields) {
        return day != nullptr && day->GetStatus() == COleDateTime::valid && day->GetAsSystemTime(fields);
    }
};

class ZOPAFX_API CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    COLORREF SetMonthCalColor(int iColor, COLORREF ref) {
        return COLORREF(SendMessage(DTM_SETMCCOLOR, WPARAM(iColor), LPARAM(ref)));
    }
    COLORREF GetMonthCalColor(int iColor) const { return COLORREF(SendMessage(DTM_GETMCCOLOR, WPARAM(iColor))); }
    BOOL SetFormat(LPCTSTR pstrFormat) { return afx_int(SendMessage(DTM_SETFORMAT, 0, afx_param(pstrFormat))); }
    // Null while it is not dropped down.
    CMonthCalCtrl* GetMonthCalCtrl() const;
    // GDTR_MIN and GDTR_MAX where there is a bound.
    BOOL SetRange(const CTime* pMinTime, const CTime* pMaxTime);
    DWORD GetRange(CTime* pMinTime, CTime* pMaxTime) const;
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange) {
        const afx_date_range range(pMinRange, pMaxRange);
        return afx_int(SendMessage(DTM_SETRANGE, range.flags, afx_param(range.ends)));
    }
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const {
        afx_date_range range;
        const LRESULT known = SendMessage(DTM_GETRANGE, 0, afx_param(range.ends));
        return range.give(pMinRange, pMaxRange, static_cast<DWORD>(known));
    }
    // A null time: none is chosen, in a control with DTS_SHOWNONE. GDT_VALID or GDT_NONE.
    BOOL SetTime(const CTime* pTimeNew);
    BOOL SetTime(LPSYSTEMTIME pTimeNew = nullptr);
    DWORD GetTime(CTime& timeDest) const;
    // A null date is none at all; FALSE for one that is invalid.
    BOOL SetTime(const COleDateTime& timeNew) {
        SYSTEMTIME fields{};
        if (timeNew.GetStatus() == COleDateTime::null)
            return SetTime(LPSYSTEMTIME{nullptr});
        return timeNew.GetAsSystemTime(fields) && SetTime(&fields);
    }
    BOOL GetTime(COleDateTime& timeDest) const {
        SYSTEMTIME fields{};
        const DWORD found = GetTime(&fields);
        if (found == GDT_VALID)
            timeDest = fields;
        else
            timeDest.SetStatus(found == GDT_NONE ? COleDateTime::null : COleDateTime::invalid);
        return timeDest.GetStatus() != COleDateTime::invalid;
    }
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const {
        return static_cast<DWORD>(SendMessage(DTM_GETSYSTEMTIME, 0, afx_param(pTimeDest)));
    }
    CFont* GetMonthCalFont() const { return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(DTM_GETMCFONT))); }
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE) {
        SendMessage(DTM_SETMCFONT, reinterpret_cast<WPARAM>(hFont), bRedraw);
    }
    DWORD GetMonthCalStyle() const { return static_cast<DWORD>(SendMessage(DTM_GETMCSTYLE)); }
    DWORD SetMonthCalStyle(DWORD dwStyle) {
        return static_cast<DWORD>(SendMessage(DTM_SETMCSTYLE, 0, static_cast<LPARAM>(dwStyle)));
    }
    void CloseMonthCal() const { SendMessage(DTM_CLOSEMONTHCAL); }
    BOOL GetIdealSize(LPSIZE psize) const { return afx_int(SendMessage(DTM_GETIDEALSIZE, 0, afx_param(psize))); }
    BOOL GetDateTimePickerInfo(LPDATETIMEPICKERINFO pDateTimePickerInfo) const {
        pDateTimePickerInfo->cbSize = sizeof(*pDateTimePickerInfo);
        SendMessage(DTM_GETDATETIMEPICKERINFO, 0, afx_param(pDateTimePickerInfo));
        return TRUE;
    }
};

class ZOPAFX_API CMonthCalCtrl : public CWnd {
    DECLARE_DYNAMIC(CMonthCalCtrl)

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    // As large as one month.
    virtual BOOL Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    DWORD HitTest(PMCHITTESTINFO pMCHitTest) { return DWORD(SendMessage(MCM_HITTEST, 0, afx_param(pMCHitTest))); }
    BOOL SizeMinReq(BOOL bRepaint = TRUE);
    BOOL GetMinReqRect(RECT* pRect) const { return afx_int(SendMessage(MCM_GETMINREQRECT, 0, afx_param(pRect))); }
    int SetMonthDelta(int iDelta) { return afx_int(SendMessage(MCM_SETMONTHDELTA, WPARAM(iDelta))); }
    int GetMonthDelta() const { return afx_int(SendMessage(MCM_GETMONTHDELTA)); }
    BOOL SetFirstDayOfWeek(int iDay, int* lpnOld = nullptr);
    int GetFirstDayOfWeek(BOOL* pbLocal = nullptr) const;
    COLORREF GetColor(int nRegion) const { return COLORREF(SendMessage(MCM_GETCOLOR, WPARAM(nRegion))); }
    COLORREF SetColor(int nRegion, COLORREF ref) {
        return COLORREF(SendMessage(MCM_SETCOLOR, WPARAM(nRegion), LPARAM(ref)));
    }
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates) {
        return afx_int(SendMessage(MCM_SETDAYSTATE, WPARAM(nMonths), afx_param(pStates)));
    }
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;
    int GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const;
    BOOL SetRange(const CTime* pMinTime, const CTime* pMaxTime);
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    DWORD GetRange(CTime* pMinTime, CTime* pMaxTime) const;
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    int SetMaxSelCount(int nMax) { return afx_int(SendMessage(MCM_SETMAXSELCOUNT, WPARAM(nMax))); }
    int GetMaxSelCount() const { return afx_int(SendMessage(MCM_GETMAXSELCOUNT)); }
    BOOL GetToday(CTime& refTime) const;
    BOOL GetToday(LPSYSTEMTIME pDateTime) const { return afx_int(SendMessage(MCM_GETTODAY, 0, afx_param(pDateTime))); }
    void SetToday(const CTime* pDateTime);
    void SetToday(const LPSYSTEMTIME pDateTime) { SendMessage(MCM_SETTODAY, 0, afx_param(pDateTime)); }
    BOOL GetCurSel(CTime& refDateTime) const;
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const {
        return afx_int(SendMessage(MCM_GETCURSEL, 0, afx_param(pDateTime)));
    }
    BOOL SetCurSel(const CTime& refDateTime);
    BOOL SetCurSel(const LPSYSTEMTIME pDateTime) {
        return afx_int(SendMessage(MCM_SETCURSEL, 0, afx_param(pDateTime)));
    }
    BOOL GetSelRange(CTime& refMinRange, CTime& refMaxRange) const;
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetSelRange(const CTime& pMinRange, const CTime& pMaxRange);
    BOOL SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);

    // The same with dates of automation.
    int GetMonthRange(COleDateTime& refMinRange, COleDateTime& refMaxRange, DWORD dwFlags) const {
        afx_date_range range;
        const int months = GetMonthRange(&range.ends[0], &range.ends[1], dwFlags);
        range.give(&refMinRange, &refMaxRange, GDTR_MIN | GDTR_MAX);
        return months;
    }
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange) {
        const afx_date_range range(pMinRange, pMaxRange);
        return afx_int(SendMessage(MCM_SETRANGE, range.flags, afx_param(range.ends)));
    }
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const {
        afx_date_range range;
        return range.give(pMinRange, pMaxRange, GetRange(&range.ends[0], &range.ends[1]));
    }
    BOOL GetToday(COleDateTime& refDateTime) const {
        SYSTEMTIME fields{};
        return GetToday(&fields) && Give(refDateTime, fields);
    }
    void SetToday(const COleDateTime& refDateTime) {
        const afx_date_range day(&refDateTime, nullptr);
        SendMessage(MCM_SETTODAY, 0, day.flags != 0 ? afx_param(day.ends) : 0);
    }
    BOOL GetCurSel(COleDateTime& refDateTime) const {
        SYSTEMTIME fields{};
        return GetCurSel(&fields) && Give(refDateTime, fields);
    }
    BOOL SetCurSel(const COleDateTime& refDateTime) {
        afx_date_range day(&refDateTime, nullptr);
        return day.flags != 0 && SetCurSel(day.ends);
    }
    BOOL GetSelRange(COleDateTime& refMinRange, COleDateTime& refMaxRange) const {
        SYSTEMTIME fields[2]{};
        return GetSelRange(&fields[0], &fields[1]) && Give(refMinRange, fields[0]) && Give(refMaxRange, fields[1]);
    }
    BOOL SetSelRange(const COleDateTime& pMinRange, const COleDateTime& pMaxRange) {
        afx_date_range range(&pMinRange, &pMaxRange);
        return range.flags == (GDTR_MIN | GDTR_MAX) && SetSelRange(&range.ends[0], &range.ends[1]);
    }

    // MCMV_MONTH and the longer stretches of time; calendars other than the Gregorian one; borders. These need version
    // 6 of the common controls.
    DWORD GetCurrentView() const { return static_cast<DWORD>(SendMessage(MCM_GETCURRENTVIEW)); }
    BOOL SetCurrentView(DWORD dwNewView) { return Ask(MCM_SETCURRENTVIEW, 0, static_cast<LPARAM>(dwNewView)); }
    BOOL IsMonthView() const { return GetCurrentView() == MCMV_MONTH; }
    BOOL IsYearView() const { return GetCurrentView() == MCMV_YEAR; }
    BOOL IsDecadeView() const { return GetCurrentView() == MCMV_DECADE; }
    BOOL IsCenturyView() const { return GetCurrentView() == MCMV_CENTURY; }
    BOOL SetMonthView() { return SetCurrentView(MCMV_MONTH); }
    BOOL SetYearView() { return SetCurrentView(MCMV_YEAR); }
    BOOL SetDecadeView() { return SetCurrentView(MCMV_DECADE); }
    BOOL SetCenturyView() { return SetCurrentView(MCMV_CENTURY); }
    CALID GetCalID() const { return static_cast<CALID>(SendMessage(MCM_GETCALID)); }
    BOOL SetCalID(CALID calid) { return Ask(MCM_SETCALID, calid); }
    int GetCalendarBorder() const { return Ask(MCM_GETCALENDARBORDER); }
    void SetCalendarBorder(int cxyBorder) { Ask(MCM_SETCALENDARBORDER, TRUE, cxyBorder); }
    void SetCalendarBorderDefault() { Ask(MCM_SETCALENDARBORDER, FALSE); }
    int GetCalendarCount() const { return Ask(MCM_GETCALENDARCOUNT); }
    BOOL GetCalendarGridInfo(PMCGRIDINFO pmcGridInfo) const {
        return Ask(MCM_GETCALENDARGRIDINFO, 0, afx_param(pmcGridInfo));
    }
    LPRECT SizeRectToMin(LPRECT lpRect) {
        Ask(MCM_SIZERECTTOMIN, 0, afx_param(lpRect));
        return lpRect;
    }
    DWORD GetMaxTodayWidth() const { return static_cast<DWORD>(SendMessage(MCM_GETMAXTODAYWIDTH)); }

private:
    int Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, wParam, lParam));
    }
    static BOOL Give(COleDateTime& day, const SYSTEMTIME& fields) {
        afx_date_range::give_day(day, fields, GDTR_MIN);
        return TRUE;
    }
};

// Dates and times: a picker and a calendar.
#pragma once

#include "atlcomtime.h"
#include "afxwin.h"

class CMonthCalCtrl;

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
};

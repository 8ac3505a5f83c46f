// COleDateTime and COleDateTimeSpan: a date of automation, in days since 1899-12-30, and a distance between two.
#pragma once

#include "afxstr.h"

#include <oleauto.h>

class CArchive;
class CDumpContext;

namespace ATL {

class ZOPAFX_API COleDateTimeSpan {
public:
    enum DateTimeSpanStatus { valid = 0, invalid = 1, null = 2 };

    COleDateTimeSpan() = default;
    COleDateTimeSpan(double dblSpanSrc);
    COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);

    DateTimeSpanStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeSpanStatus status) { m_status = status; }
    void SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);
    double GetTotalDays() const { return m_span; }
    double GetTotalHours() const { return m_span * 24; }
    double GetTotalMinutes() const { return m_span * 24 * 60; }
    double GetTotalSeconds() const { return m_span * 24 * 60 * 60; }
    LONG GetDays() const { return static_cast<LONG>(Seconds() / 86400); }
    LONG GetHours() const { return static_cast<LONG>(Seconds() / 3600 % 24); }
    LONG GetMinutes() const { return static_cast<LONG>(Seconds() / 60 % 60); }
    LONG GetSeconds() const { return static_cast<LONG>(Seconds() % 60); }
    // As CTimeSpan's; empty where the status is null, "Invalid DateTimeSpan" where it is invalid.
    CString Format(LPCTSTR pFormat) const;
    CString Format(UINT nID) const;

    operator double() const { return m_span; }
    bool operator==(const COleDateTimeSpan& span) const = default;
    bool operator<(const COleDateTimeSpan& span) const { return m_span < span.m_span; }
    bool operator>(const COleDateTimeSpan& span) const { return m_span > span.m_span; }
    bool operator<=(const COleDateTimeSpan& span) const { return m_span <= span.m_span; }
    bool operator>=(const COleDateTimeSpan& span) const { return m_span >= span.m_span; }
    COleDateTimeSpan operator+(const COleDateTimeSpan& span) const;
    COleDateTimeSpan operator-(const COleDateTimeSpan& span) const { return *this + -span; }
    COleDateTimeSpan operator-() const;
    COleDateTimeSpan& operator+=(const COleDateTimeSpan& span) { return *this = *this + span; }
    COleDateTimeSpan& operator-=(const COleDateTimeSpan& span) { return *this = *this - span; }

    double m_span = 0;
    DateTimeSpanStatus m_status = valid;

private:
    LONGLONG Seconds() const;
};

// Dates from the year 100 to 9999, local time. What cannot be one has the status invalid, and its parts are error.
class ZOPAFX_API COleDateTime {
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    COleDateTime() = default;
    COleDateTime(const VARIANT& varSrc) { *this = varSrc; }
    COleDateTime(DATE dtSrc) { *this = dtSrc; }
    COleDateTime(__time64_t timeSrc) { *this = timeSrc; }
    COleDateTime(const SYSTEMTIME& systimeSrc) { *this = systimeSrc; }
    COleDateTime(const FILETIME& filetimeSrc) { *this = filetimeSrc; }
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
        SetDateTime(nYear, nMonth, nDay, nHour, nMin, nSec);
    }
    COleDateTime(WORD wDosDate, WORD wDosTime);
    static COleDateTime WINAPI GetCurrentTime();
    COleDateTime& operator=(const VARIANT& varSrc);
    COleDateTime& operator=(DATE dtSrc);
    COleDateTime& operator=(const __time64_t& timeSrc);
    COleDateTime& operator=(const SYSTEMTIME& systimeSrc);
    COleDateTime& operator=(const FILETIME& filetimeSrc);

    DateTimeStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeStatus status) { m_status = status; }
    bool GetAsSystemTime(SYSTEMTIME& sysTime) const;
    int GetYear() const { return Part(&SYSTEMTIME::wYear); }
    int GetMonth() const { return Part(&SYSTEMTIME::wMonth); }
    int GetDay() const { return Part(&SYSTEMTIME::wDay); }
    int GetHour() const { return Part(&SYSTEMTIME::wHour); }
    int GetMinute() const { return Part(&SYSTEMTIME::wMinute); }
    int GetSecond() const { return Part(&SYSTEMTIME::wSecond); }
    int GetDayOfWeek() const; // 1 is Sunday
    int GetDayOfYear() const; // from 1

    // They answer the status.
    int SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    int SetDate(int nYear, int nMonth, int nDay) { return SetDateTime(nYear, nMonth, nDay, 0, 0, 0); }
    int SetTime(int nHour, int nMin, int nSec) { return SetDateTime(1899, 12, 30, nHour, nMin, nSec); }
    bool ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT);

    // As the language writes it, or as strftime; empty where the status is null, "Invalid DateTime" where invalid.
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
    CString Format(LPCTSTR lpszFormat) const;
    CString Format(UINT nFormatID) const;

    operator DATE() const { return m_dt; }
    bool operator==(const COleDateTime& date) const { return m_status == date.m_status && m_dt == date.m_dt; }
    bool operator<(const COleDateTime& date) const { return Linear() < date.Linear(); }
    bool operator>(const COleDateTime& date) const { return date < *this; }
    bool operator<=(const COleDateTime& date) const { return !(date < *this); }
    bool operator>=(const COleDateTime& date) const { return !(*this < date); }
    COleDateTime operator+(const COleDateTimeSpan& span) const;
    COleDateTime operator-(const COleDateTimeSpan& span) const { return *this + -span; }
    COleDateTime& operator+=(const COleDateTimeSpan& span) { return *this = *this + span; }
    COleDateTime& operator-=(const COleDateTimeSpan& span) { return *this = *this - span; }
    COleDateTimeSpan operator-(const COleDateTime& date) const;

    DATE m_dt = 0;
    DateTimeStatus m_status = valid;

private:
    int Part(WORD SYSTEMTIME::*part) const;
    double Linear() const;
};

} // namespace ATL

using namespace ATL;

ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, COleDateTime dateSrc);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, COleDateTime& dateSrc);
ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, COleDateTimeSpan dateSpanSrc);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, COleDateTimeSpan& dateSpanSrc);
ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, COleDateTime dateSrc);
ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, COleDateTimeSpan dateSpanSrc);

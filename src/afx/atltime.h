// CTime and CTimeSpan: a moment, in seconds since 1970, and a distance between two.
#pragma once

#include "afx_file_time.h"
#include "afxstr.h"

#include <compare>

class CArchive;
class CDumpContext;

namespace ATL {

class ZOPAFX_API CTimeSpan {
public:
    CTimeSpan() = default;
    CTimeSpan(__time64_t time) : m_timeSpan(time) {}
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
        : m_timeSpan(((lDays * 24LL + nHours) * 60 + nMins) * 60 + nSecs) {}

    LONGLONG GetDays() const { return m_timeSpan / 86400; }
    LONGLONG GetTotalHours() const { return m_timeSpan / 3600; }
    LONG GetHours() const { return static_cast<LONG>(GetTotalHours() % 24); }
    LONGLONG GetTotalMinutes() const { return m_timeSpan / 60; }
    LONG GetMinutes() const { return static_cast<LONG>(GetTotalMinutes() % 60); }
    LONGLONG GetTotalSeconds() const { return m_timeSpan; }
    LONG GetSeconds() const { return static_cast<LONG>(m_timeSpan % 60); }
    __time64_t GetTimeSpan() const { return m_timeSpan; }
    // %D days, %H hours, %M minutes, %S seconds, %% a percent sign; the hours to seconds with two digits.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const;
    CArchive& Serialize64(CArchive& ar);

    CTimeSpan operator+(CTimeSpan span) const { return m_timeSpan + span.m_timeSpan; }
    CTimeSpan operator-(CTimeSpan span) const { return m_timeSpan - span.m_timeSpan; }
    CTimeSpan& operator+=(CTimeSpan span) { return *this = *this + span; }
    CTimeSpan& operator-=(CTimeSpan span) { return *this = *this - span; }
    bool operator==(CTimeSpan span) const { return m_timeSpan == span.m_timeSpan; }
    auto operator<=>(CTimeSpan span) const { return m_timeSpan <=> span.m_timeSpan; }

private:
    __time64_t m_timeSpan = 0;
};

class ZOPAFX_API CTime {
public:
    CTime() = default;
    CTime(__time64_t time) : m_time(time) {}
    // Local time; nDST as for tm_isdst. They raise CInvalidArgException for fields out of range, years before 1970 too.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
    CTime(const SYSTEMTIME& st, int nDST = -1);
    CTime(const FILETIME& ft, int nDST = -1);
    static CTime WINAPI GetCurrentTime() { return ::_time64(nullptr); }
    static BOOL WINAPI IsValidFILETIME(const FILETIME& ft);
    CTime& operator=(__time64_t time) { return m_time = time, *this; }

    __time64_t GetTime() const { return m_time; }
    // Null, without the record filled, for a moment that has no local time. Without a record, the C library's own.
    struct tm* GetLocalTm(struct tm* ptm = nullptr) const;
    struct tm* GetGmtTm(struct tm* ptm = nullptr) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const;
    // 0 for a moment that has no local time.
    int GetYear() const;
    int GetMonth() const; // from 1
    int GetDay() const;   // from 1
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const; // 1 is Sunday
    // As strftime; an empty text where nothing can be shown.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const;
    CString FormatGmt(LPCTSTR pszFormat) const;
    CString FormatGmt(UINT nFormatID) const;
    CArchive& Serialize64(CArchive& ar);

    CTime operator+(CTimeSpan span) const { return m_time + span.GetTimeSpan(); }
    CTime operator-(CTimeSpan span) const { return m_time - span.GetTimeSpan(); }
    CTimeSpan operator-(CTime time) const { return m_time - time.m_time; }
    CTime& operator+=(CTimeSpan span) { return *this = *this + span; }
    CTime& operator-=(CTimeSpan span) { return *this = *this - span; }
    bool operator==(CTime time) const { return m_time == time.m_time; }
    auto operator<=>(CTime time) const { return m_time <=> time.m_time; }

private:
    __time64_t m_time = 0;
};

} // namespace ATL

using namespace ATL;

ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, CTime time);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, CTime& time);
ZOPAFX_API CArchive& AFXAPI operator<<(CArchive& ar, CTimeSpan span);
ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, CTimeSpan& span);
ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTime time);
ZOPAFX_API CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTimeSpan span);
// Raises CInvalidArgException for a time that a file cannot have.
ZOPAFX_API void AFXAPI AfxTimeToFileTime(const CTime& time, LPFILETIME pFileTime);

// CTime: a moment, in seconds since 1970, with its calendar fields in local time.
#pragma once

#include "afxstr.h"

class ZOPAFX_API CTime {
public:
    CTime() = default;
    explicit CTime(__time64_t time) : m_time(time) {}
    // Local time; nDST as for tm_isdst. Raises CInvalidArgException for fields out of range, years before 1970 too.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    explicit CTime(const SYSTEMTIME& time, int nDST = -1);
    static CTime WINAPI GetCurrentTime();

    __time64_t GetTime() const { return m_time; }
    // Null, without the record filled, for a moment that has no local time.
    struct tm* GetLocalTm(struct tm* ptm) const;
    int GetYear() const { return local().tm_year + 1900; }
    int GetMonth() const { return local().tm_mon + 1; } // 1 January
    int GetDay() const { return local().tm_mday; }
    int GetHour() const { return local().tm_hour; }
    int GetMinute() const { return local().tm_min; }
    int GetSecond() const { return local().tm_sec; }
    int GetDayOfWeek() const { return local().tm_wday + 1; } // 1 Sunday
    // As strftime; an empty text where nothing can be shown.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const { return Format(CString(MAKEINTRESOURCE(nFormatID))); }

    bool operator==(CTime time) const { return m_time == time.m_time; }
    bool operator!=(CTime time) const { return m_time != time.m_time; }
    bool operator<(CTime time) const { return m_time < time.m_time; }
    bool operator>(CTime time) const { return m_time > time.m_time; }
    bool operator<=(CTime time) const { return m_time <= time.m_time; }
    bool operator>=(CTime time) const { return m_time >= time.m_time; }

private:
    tm local() const;

    __time64_t m_time = 0;
};

// CTime: a moment, in seconds since 1970.
#pragma once

#include "afxstr.h"

class ZOPAFX_API CTime {
public:
    explicit CTime(__time64_t time) : m_time(time) {}
    // Local time; nDST as for tm_isdst. Raises CInvalidArgException for fields out of range, years before 1970 too.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);

    __time64_t GetTime() const { return m_time; }
    // Null, without the record filled, for a moment that has no local time.
    struct tm* GetLocalTm(struct tm* ptm) const;
    // 0 for a moment that has no local time.
    int GetYear() const;
    int GetMonth() const; // from 1
    int GetDay() const;   // from 1
    // As strftime, in local time; an empty text where nothing can be shown.
    CString Format(LPCTSTR pszFormat) const;

private:
    __time64_t m_time;
};

// CFileTime and CFileTimeSpan: a file's moment, in steps of 100 nanoseconds since 1601, and a distance between two;
// included by atltime.h.
#pragma once

#include "afx_base.h"

#include <compare>

namespace ATL {

class CFileTimeSpan {
public:
    CFileTimeSpan() = default;
    CFileTimeSpan(LONGLONG nSpan) : m_nSpan(nSpan) {}
    LONGLONG GetTimeSpan() const { return m_nSpan; }
    void SetTimeSpan(LONGLONG nSpan) { m_nSpan = nSpan; }

    CFileTimeSpan operator+(CFileTimeSpan span) const { return LONGLONG(ULONGLONG(m_nSpan) + ULONGLONG(span.m_nSpan)); }
    CFileTimeSpan operator-(CFileTimeSpan span) const { return LONGLONG(ULONGLONG(m_nSpan) - ULONGLONG(span.m_nSpan)); }
    CFileTimeSpan& operator+=(CFileTimeSpan span) { return *this = *this + span; }
    CFileTimeSpan& operator-=(CFileTimeSpan span) { return *this = *this - span; }
    bool operator==(CFileTimeSpan span) const { return m_nSpan == span.m_nSpan; }
    auto operator<=>(CFileTimeSpan span) const { return m_nSpan <=> span.m_nSpan; }

private:
    LONGLONG m_nSpan = 0;
};

// In universal or in local time: the program knows.
class CFileTime : public FILETIME {
public:
    static constexpr ULONGLONG Millisecond = 10000, Second = Millisecond * 1000, Minute = Second * 60,
                               Hour = Minute * 60, Day = Hour * 24, Week = Day * 7;

    CFileTime() : FILETIME{} {}
    CFileTime(const FILETIME& ft) : FILETIME(ft) {}
    CFileTime(ULONGLONG nTime) : FILETIME{static_cast<DWORD>(nTime), static_cast<DWORD>(nTime >> 32)} {}
    CFileTime& operator=(const FILETIME& ft) { return *this = CFileTime(ft); }

    static CFileTime GetCurrentTime() { // universal
        CFileTime now;
        ::GetSystemTimeAsFileTime(&now);
        return now;
    }
    ULONGLONG GetTime() const { return static_cast<ULONGLONG>(dwHighDateTime) << 32 | dwLowDateTime; }
    void SetTime(ULONGLONG nTime) { *this = CFileTime(nTime); }
    // 0 for a time that the platform cannot convert.
    CFileTime UTCToLocal() const {
        CFileTime local;
        return ::FileTimeToLocalFileTime(this, &local) ? local : CFileTime();
    }
    CFileTime LocalToUTC() const {
        CFileTime universal;
        return ::LocalFileTimeToFileTime(this, &universal) ? universal : CFileTime();
    }

    CFileTime operator+(CFileTimeSpan span) const { return GetTime() + static_cast<ULONGLONG>(span.GetTimeSpan()); }
    CFileTime operator-(CFileTimeSpan span) const { return GetTime() - static_cast<ULONGLONG>(span.GetTimeSpan()); }
    CFileTimeSpan operator-(CFileTime ft) const { return static_cast<LONGLONG>(GetTime() - ft.GetTime()); }
    CFileTime& operator+=(CFileTimeSpan span) { return *this = *this + span; }
    CFileTime& operator-=(CFileTimeSpan span) { return *this = *this - span; }
    bool operator==(CFileTime ft) const { return GetTime() == ft.GetTime(); }
    auto operator<=>(CFileTime ft) const { return GetTime() <=> ft.GetTime(); }
};

} // namespace ATL

#include "atlcomtime.h"
#include "afx_archive.h"
#include "afx_dump.h"
#include "afx_exception.h"
#include "atlconv.h"
#include "atltime.h"

#include <cmath>
#include <ctime>

namespace {

constexpr double first_date = -657434, end_of_dates = 2958466; // 100-01-01 to 9999-12-31
constexpr double longest_span = end_of_dates - first_date;

// Before the first day the fraction counts forward from the day: -1.25 is 6 o'clock of the day before.
double from_linear(double linear) {
    const double day = std::floor(linear);
    return linear >= 0 ? linear : day - (linear - day);
}

} // namespace

COleDateTimeSpan::COleDateTimeSpan(double dblSpanSrc)
    : m_span(dblSpanSrc), m_status(std::abs(dblSpanSrc) <= longest_span ? valid : invalid) {}

COleDateTimeSpan::COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) {
    SetDateTimeSpan(lDays, nHours, nMins, nSecs);
}

void COleDateTimeSpan::SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) {
    *this = COleDateTimeSpan(lDays + nHours / 24.0 + nMins / (24 * 60.0) + nSecs / (24 * 60 * 60.0));
}

LONGLONG COleDateTimeSpan::Seconds() const {
    return m_status == valid ? std::llround(GetTotalSeconds()) : 0;
}

CString COleDateTimeSpan::Format(LPCTSTR pFormat) const {
    if (m_status != valid)
        return m_status == null ? "" : "Invalid DateTimeSpan";
    return CTimeSpan(Seconds()).Format(pFormat);
}

CString COleDateTimeSpan::Format(UINT nID) const {
    CString format;
    if (!format.LoadString(nID))
        AfxThrowResourceException();
    return Format(format.GetString());
}

COleDateTimeSpan COleDateTimeSpan::operator+(const COleDateTimeSpan& span) const {
    COleDateTimeSpan sum(m_span + span.m_span);
    if (m_status != valid || span.m_status != valid)
        sum.m_status = m_status == null || span.m_status == null ? null : invalid;
    return sum;
}

COleDateTimeSpan COleDateTimeSpan::operator-() const {
    COleDateTimeSpan opposite = *this;
    opposite.m_span = -m_span;
    return opposite;
}

COleDateTime::COleDateTime(WORD wDosDate, WORD wDosTime)
    : m_status(::DosDateTimeToVariantTime(wDosDate, wDosTime, &m_dt) ? valid : invalid) {}

COleDateTime WINAPI COleDateTime::GetCurrentTime() {
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    return now;
}

COleDateTime& COleDateTime::operator=(const VARIANT& varSrc) {
    VARIANT date;
    ::VariantInit(&date);
    if (varSrc.vt == VT_NULL || varSrc.vt == VT_EMPTY)
        m_dt = 0, m_status = varSrc.vt == VT_NULL ? null : valid;
    else if (SUCCEEDED(::VariantChangeType(&date, const_cast<VARIANT*>(&varSrc), 0, VT_DATE)))
        *this = date.date;
    else
        m_dt = 0, m_status = invalid;
    return *this;
}

COleDateTime& COleDateTime::operator=(DATE dtSrc) {
    m_dt = dtSrc;
    m_status = dtSrc >= first_date && dtSrc < end_of_dates ? valid : invalid;
    return *this;
}

COleDateTime& COleDateTime::operator=(const __time64_t& timeSrc) {
    SYSTEMTIME fields;
    m_status = invalid;
    return CTime(timeSrc).GetAsSystemTime(fields) ? *this = fields : *this;
}

COleDateTime& COleDateTime::operator=(const SYSTEMTIME& systimeSrc) {
    SetDateTime(systimeSrc.wYear, systimeSrc.wMonth, systimeSrc.wDay, systimeSrc.wHour, systimeSrc.wMinute,
                systimeSrc.wSecond);
    return *this;
}

COleDateTime& COleDateTime::operator=(const FILETIME& filetimeSrc) {
    FILETIME local;
    SYSTEMTIME fields;
    m_status = invalid;
    const bool converted = ::FileTimeToLocalFileTime(&filetimeSrc, &local) && ::FileTimeToSystemTime(&local, &fields);
    return converted ? *this = fields : *this;
}

// The system takes days beyond the month's end and hours beyond the day's: they are none here.
int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (nYear % 4 == 0 && nYear % 100 != 0) || nYear % 400 == 0;
    const bool date = nYear >= 100 && nYear <= 9999 && nMonth >= 1 && nMonth <= 12 && nDay >= 1 &&
                      nDay <= days[nMonth - 1] + (nMonth == 2 && leap);
    const bool time = nHour >= 0 && nHour < 24 && nMin >= 0 && nMin < 60 && nSec >= 0 && nSec < 60;
    const auto word = [](int value) { return static_cast<WORD>(value); };
    SYSTEMTIME fields{word(nYear), word(nMonth), 0, word(nDay), word(nHour), word(nMin), word(nSec), 0};
    m_status = date && time && ::SystemTimeToVariantTime(&fields, &m_dt) ? valid : invalid;
    return m_status;
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& sysTime) const {
    return m_status == valid && ::VariantTimeToSystemTime(m_dt, &sysTime);
}

int COleDateTime::Part(WORD SYSTEMTIME::*part) const {
    SYSTEMTIME fields;
    return GetAsSystemTime(fields) ? fields.*part : static_cast<int>(error);
}

int COleDateTime::GetDayOfWeek() const {
    const int day = Part(&SYSTEMTIME::wDayOfWeek);
    return day != error ? day + 1 : error;
}

int COleDateTime::GetDayOfYear() const {
    UDATE fields;
    return m_status == valid && SUCCEEDED(::VarUdateFromDate(m_dt, 0, &fields)) ? fields.wDayOfYear
                                                                                : static_cast<int>(error);
}

bool COleDateTime::ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags, LCID lcid) {
    const HRESULT parsed = ::VarDateFromStr(CA2W(lpszDate != nullptr ? lpszDate : ""), lcid, dwFlags, &m_dt);
    if (SUCCEEDED(parsed)) {
        m_status = valid;
        return true;
    }
    m_dt = 0;
    m_status = invalid;
    return false;
}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const {
    if (m_status != valid)
        return m_status == null ? "" : "Invalid DateTime";
    BSTR text = nullptr;
    if (FAILED(::VarBstrFromDate(m_dt, lcid, dwFlags, &text)))
        return {};
    const CString shown(text);
    ::SysFreeString(text);
    return shown;
}

CString COleDateTime::Format(LPCTSTR lpszFormat) const {
    SYSTEMTIME fields;
    if (m_status != valid || lpszFormat == nullptr || !GetAsSystemTime(fields))
        return m_status == invalid ? "Invalid DateTime" : "";
    tm shown{};
    shown.tm_year = fields.wYear - 1900;
    shown.tm_mon = fields.wMonth - 1;
    shown.tm_mday = fields.wDay;
    shown.tm_hour = fields.wHour;
    shown.tm_min = fields.wMinute;
    shown.tm_sec = fields.wSecond;
    shown.tm_wday = fields.wDayOfWeek;
    shown.tm_yday = GetDayOfYear() - 1;
    shown.tm_isdst = -1;
    char text[256];
    return CString(text, static_cast<int>(std::strftime(text, sizeof(text), lpszFormat, &shown)));
}

CString COleDateTime::Format(UINT nFormatID) const {
    CString format;
    if (!format.LoadString(nFormatID))
        AfxThrowResourceException();
    return Format(format.GetString());
}

double COleDateTime::Linear() const {
    const double day = std::trunc(m_dt);
    return m_dt >= 0 ? m_dt : day + (day - m_dt);
}

COleDateTime COleDateTime::operator+(const COleDateTimeSpan& span) const {
    COleDateTime sum(from_linear(Linear() + span.m_span));
    if (m_status != valid || span.m_status != COleDateTimeSpan::valid)
        sum.m_status = m_status == null || span.m_status == COleDateTimeSpan::null ? null : invalid;
    return sum;
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& date) const {
    COleDateTimeSpan span(Linear() - date.Linear());
    if (m_status != valid || date.m_status != valid)
        span.m_status = m_status == null || date.m_status == null ? COleDateTimeSpan::null : COleDateTimeSpan::invalid;
    return span;
}

namespace {

template <class Value> CArchive& store(CArchive& ar, Value value, double number) {
    return ar << static_cast<LONG>(value.m_status) << number;
}

// A status that is none makes the value invalid.
template <class Status> void load(CArchive& ar, double& number, Status& status, Status last, Status broken) {
    LONG stored = 0;
    ar >> stored >> number;
    status = stored >= 0 && stored <= last ? static_cast<Status>(stored) : broken;
}

} // namespace

CArchive& AFXAPI operator<<(CArchive& ar, COleDateTime dateSrc) {
    return store(ar, dateSrc, dateSrc.m_dt);
}

CArchive& AFXAPI operator>>(CArchive& ar, COleDateTime& dateSrc) {
    load(ar, dateSrc.m_dt, dateSrc.m_status, COleDateTime::null, COleDateTime::invalid);
    return ar;
}

CArchive& AFXAPI operator<<(CArchive& ar, COleDateTimeSpan dateSpanSrc) {
    return store(ar, dateSpanSrc, dateSpanSrc.m_span);
}

CArchive& AFXAPI operator>>(CArchive& ar, COleDateTimeSpan& dateSpanSrc) {
    load(ar, dateSpanSrc.m_span, dateSpanSrc.m_status, COleDateTimeSpan::null, COleDateTimeSpan::invalid);
    return ar;
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, COleDateTime dateSrc) {
    return dc << dateSrc.Format().GetString();
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, COleDateTimeSpan dateSpanSrc) {
    return dc << dateSpanSrc.Format("%D %H:%M:%S").GetString();
}

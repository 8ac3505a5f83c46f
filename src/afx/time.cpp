#include "atltime.h"
#include "afx_archive.h"
#include "afx_dump.h"
#include "afx_exception.h"

#include <ctime>

namespace {

CString stored(UINT id) {
    CString text;
    if (!text.LoadString(id))
        AfxThrowResourceException();
    return text;
}

CString formatted(LPCTSTR format, const tm* fields) {
    char text[256];
    if (format == nullptr || fields == nullptr)
        return {};
    const std::size_t length = std::strftime(text, sizeof(text), format, fields);
    return CString(text, static_cast<int>(length));
}

CTime from_fields(const SYSTEMTIME& st, int dst) {
    return CTime(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, dst);
}

} // namespace

CString CTimeSpan::Format(LPCTSTR pszFormat) const {
    CString text;
    for (const char* at = pszFormat; at != nullptr && *at != '\0'; ++at) {
        if (*at != '%') {
            text += *at;
            continue;
        }
        switch (*++at) {
        case 'D':
            text.AppendFormat("%I64d", GetDays());
            break;
        case 'H':
            text.AppendFormat("%02ld", GetHours());
            break;
        case 'M':
            text.AppendFormat("%02ld", GetMinutes());
            break;
        case 'S':
            text.AppendFormat("%02ld", GetSeconds());
            break;
        case '%':
            text += '%';
            break;
        default:
            AfxThrowInvalidArgException();
        }
    }
    return text;
}

CString CTimeSpan::Format(UINT nFormatID) const {
    return Format(stored(nFormatID));
}

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST) : m_time(-1) {
    const bool valid = nYear >= 1970 && nYear <= 3000 && nMonth >= 1 && nMonth <= 12 && nDay >= 1 && nDay <= 31 &&
                       nHour >= 0 && nHour <= 23 && nMin >= 0 && nMin <= 59 && nSec >= 0 && nSec <= 59;
    if (valid) {
        tm fields{};
        fields.tm_year = nYear - 1900;
        fields.tm_mon = nMonth - 1;
        fields.tm_mday = nDay;
        fields.tm_hour = nHour;
        fields.tm_min = nMin;
        fields.tm_sec = nSec;
        fields.tm_isdst = nDST;
        m_time = _mktime64(&fields);
    }
    if (!valid || m_time == -1)
        AfxThrowInvalidArgException();
}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : CTime((wDosDate >> 9) + 1980, (wDosDate >> 5) & 0xF, wDosDate & 0x1F, wDosTime >> 11, (wDosTime >> 5) & 0x3F,
            (wDosTime & 0x1F) << 1, nDST) {}

CTime::CTime(const SYSTEMTIME& st, int nDST) {
    if (st.wYear >= 1900)
        *this = from_fields(st, nDST);
}

CTime::CTime(const FILETIME& ft, int nDST) {
    FILETIME local;
    SYSTEMTIME fields;
    if (!::FileTimeToLocalFileTime(&ft, &local) || !::FileTimeToSystemTime(&local, &fields))
        AfxThrowInvalidArgException();
    *this = from_fields(fields, nDST);
}

BOOL WINAPI CTime::IsValidFILETIME(const FILETIME& ft) {
    FILETIME local;
    SYSTEMTIME fields;
    return ::FileTimeToLocalFileTime(&ft, &local) && ::FileTimeToSystemTime(&local, &fields) && fields.wYear >= 1970 &&
           fields.wYear <= 3000;
}

tm* CTime::GetLocalTm(tm* ptm) const {
    if (ptm == nullptr)
        return _localtime64(&m_time);
    return _localtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

tm* CTime::GetGmtTm(tm* ptm) const {
    if (ptm == nullptr)
        return _gmtime64(&m_time);
    return _gmtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const {
    tm fields{};
    if (GetLocalTm(&fields) == nullptr)
        return false;
    const auto word = [](int value) { return static_cast<WORD>(value); };
    st = {word(fields.tm_year + 1900), word(fields.tm_mon + 1), word(fields.tm_wday), word(fields.tm_mday),
          word(fields.tm_hour),        word(fields.tm_min),     word(fields.tm_sec),  0};
    return true;
}

int CTime::GetYear() const {
    tm fields{};
    return GetLocalTm(&fields) != nullptr ? fields.tm_year + 1900 : 0;
}

int CTime::GetMonth() const {
    tm fields{};
    return GetLocalTm(&fields) != nullptr ? fields.tm_mon + 1 : 0;
}

int CTime::GetDay() const {
    tm fields{};
    return GetLocalTm(&fields) != nullptr ? fields.tm_mday : 0;
}

int CTime::GetHour() const {
    tm fields{};
    return GetLocalTm(&fields) != nullptr ? fields.tm_hour : 0;
}

int CTime::GetMinute() const {
    tm fields{};
    return GetLocalTm(&fields) != nullptr ? fields.tm_min : 0;
}

int CTime::GetSecond() const {
    tm fields{};
    return GetLocalTm(&fields) != nullptr ? fields.tm_sec : 0;
}

int CTime::GetDayOfWeek() const {
    tm fields{};
    return GetLocalTm(&fields) != nullptr ? fields.tm_wday + 1 : 0;
}

CString CTime::Format(LPCTSTR pszFormat) const {
    tm fields{};
    return formatted(pszFormat, GetLocalTm(&fields));
}

CString CTime::Format(UINT nFormatID) const {
    return Format(stored(nFormatID));
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const {
    tm fields{};
    return formatted(pszFormat, GetGmtTm(&fields));
}

CString CTime::FormatGmt(UINT nFormatID) const {
    return FormatGmt(stored(nFormatID));
}

CArchive& CTime::Serialize64(CArchive& ar) {
    return ar.IsStoring() ? ar << m_time : ar >> m_time;
}

CArchive& CTimeSpan::Serialize64(CArchive& ar) {
    return ar.IsStoring() ? ar << m_timeSpan : ar >> m_timeSpan;
}

CArchive& AFXAPI operator<<(CArchive& ar, CTime time) {
    return time.Serialize64(ar);
}

CArchive& AFXAPI operator>>(CArchive& ar, CTime& time) {
    return time.Serialize64(ar);
}

CArchive& AFXAPI operator<<(CArchive& ar, CTimeSpan span) {
    return span.Serialize64(ar);
}

CArchive& AFXAPI operator>>(CArchive& ar, CTimeSpan& span) {
    return span.Serialize64(ar);
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTime time) {
    return dc << "CTime(\"" << time.Format("%c").GetString() << "\")";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTimeSpan span) {
    return dc << "CTimeSpan(" << span.Format("%D days, %H hours, %M minutes and %S seconds").GetString() << ")";
}

void AFXAPI AfxTimeToFileTime(const CTime& time, LPFILETIME pFileTime) {
    SYSTEMTIME fields;
    FILETIME local;
    if (pFileTime == nullptr || !time.GetAsSystemTime(fields) || !::SystemTimeToFileTime(&fields, &local) ||
        !::LocalFileTimeToFileTime(&local, pFileTime))
        AfxThrowInvalidArgException();
}

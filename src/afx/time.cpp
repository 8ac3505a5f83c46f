#include "atltime.h"
#include "afx_exception.h"

#include <ctime>

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

tm* CTime::GetLocalTm(tm* ptm) const {
    return ptm != nullptr && _localtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
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

CString CTime::Format(LPCTSTR pszFormat) const {
    tm fields{};
    char text[256];
    if (pszFormat == nullptr || GetLocalTm(&fields) == nullptr)
        return {};
    const std::size_t length = std::strftime(text, sizeof(text), pszFormat, &fields);
    return CString(text, static_cast<int>(length));
}

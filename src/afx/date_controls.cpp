#include "afxdtctl.h"
#include "control_classes.h"

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)
IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)

namespace {

// The two ends of a range as the controls take them; flags tell which there are.
struct time_range {
    SYSTEMTIME ends[2]{};
    DWORD flags = 0;

    time_range() = default;
    time_range(const CTime* least, const CTime* most) {
        if (least != nullptr && least->GetAsSystemTime(ends[0]))
            flags |= GDTR_MIN;
        if (most != nullptr && most->GetAsSystemTime(ends[1]))
            flags |= GDTR_MAX;
    }
    time_range(const SYSTEMTIME* least, const SYSTEMTIME* most) {
        if (least != nullptr)
            ends[0] = *least, flags |= GDTR_MIN;
        if (most != nullptr)
            ends[1] = *most, flags |= GDTR_MAX;
    }
    static time_range asked(const CWnd& control, UINT message, WPARAM wParam = 0) {
        time_range range;
        range.flags = static_cast<DWORD>(control.SendMessage(message, wParam, afx_param(range.ends)));
        return range;
    }
    void give(SYSTEMTIME* least, SYSTEMTIME* most) const {
        if (least != nullptr)
            *least = ends[0];
        if (most != nullptr)
            *most = ends[1];
    }
    // A bound that is not there is the zero time.
    void give(CTime* least, CTime* most, DWORD given) const {
        if (least != nullptr)
            *least = (given & GDTR_MIN) != 0 ? day_of(ends[0]) : CTime();
        if (most != nullptr)
            *most = (given & GDTR_MAX) != 0 ? day_of(ends[1]) : CTime();
    }
    // The controls leave the time of a day as it is.
    static CTime day_of(SYSTEMTIME fields) {
        if (fields.wHour > 23 || fields.wMinute > 59 || fields.wSecond > 59)
            fields.wHour = fields.wMinute = fields.wSecond = 0;
        return CTime(fields);
    }
};

} // namespace

BOOL CDateTimeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    prepare_class(ICC_DATE_CLASSES);
    return CWnd::Create(DATETIMEPICK_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const {
    return static_cast<CMonthCalCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(DTM_GETMONTHCAL))));
}

BOOL CDateTimeCtrl::SetRange(const CTime* pMinTime, const CTime* pMaxTime) {
    const time_range range(pMinTime, pMaxTime);
    return afx_int(SendMessage(DTM_SETRANGE, range.flags, afx_param(range.ends)));
}

DWORD CDateTimeCtrl::GetRange(CTime* pMinTime, CTime* pMaxTime) const {
    const time_range range = time_range::asked(*this, DTM_GETRANGE);
    range.give(pMinTime, pMaxTime, range.flags);
    return range.flags;
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew) {
    SYSTEMTIME fields{};
    const bool given = pTimeNew != nullptr && pTimeNew->GetAsSystemTime(fields);
    return SetTime(given ? &fields : nullptr);
}

// Some versions of the control look for fields also where none are chosen.
BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew) {
    SYSTEMTIME none{};
    return afx_int(SendMessage(DTM_SETSYSTEMTIME, pTimeNew != nullptr ? GDT_VALID : GDT_NONE,
                               afx_param(pTimeNew != nullptr ? pTimeNew : &none)));
}

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const {
    SYSTEMTIME fields{};
    const DWORD kind = GetTime(&fields);
    if (kind == GDT_VALID)
        timeDest = time_range::day_of(fields);
    return kind;
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    prepare_class(ICC_DATE_CLASSES);
    return CWnd::Create(MONTHCAL_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID) {
    return Create(dwStyle, CRect(pt, SIZE{0, 0}), pParentWnd, nID) && SizeMinReq();
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint) {
    CRect least;
    const UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (bRepaint ? 0U : SWP_NOREDRAW);
    return GetMinReqRect(&least) && SetWindowPos(nullptr, 0, 0, least.Width(), least.Height(), flags);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int iDay, int* lpnOld) {
    const LRESULT before = SendMessage(MCM_SETFIRSTDAYOFWEEK, 0, iDay);
    if (lpnOld != nullptr)
        *lpnOld = LOWORD(before);
    return HIWORD(before);
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* pbLocal) const {
    const LRESULT answer = SendMessage(MCM_GETFIRSTDAYOFWEEK);
    if (pbLocal != nullptr)
        *pbLocal = HIWORD(answer);
    return LOWORD(answer);
}

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const {
    const time_range range = time_range::asked(*this, MCM_GETMONTHRANGE, dwFlags);
    range.give(pMinRange, pMaxRange);
    return static_cast<int>(range.flags);
}

int CMonthCalCtrl::GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const {
    const time_range range = time_range::asked(*this, MCM_GETMONTHRANGE, dwFlags);
    range.give(&refMinRange, &refMaxRange, GDTR_MIN | GDTR_MAX);
    return static_cast<int>(range.flags);
}

BOOL CMonthCalCtrl::SetRange(const CTime* pMinTime, const CTime* pMaxTime) {
    const time_range range(pMinTime, pMaxTime);
    return afx_int(SendMessage(MCM_SETRANGE, range.flags, afx_param(range.ends)));
}

BOOL CMonthCalCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange) {
    const time_range range(pMinRange, pMaxRange);
    return afx_int(SendMessage(MCM_SETRANGE, range.flags, afx_param(range.ends)));
}

DWORD CMonthCalCtrl::GetRange(CTime* pMinTime, CTime* pMaxTime) const {
    const time_range range = time_range::asked(*this, MCM_GETRANGE);
    range.give(pMinTime, pMaxTime, range.flags);
    return range.flags;
}

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    const time_range range = time_range::asked(*this, MCM_GETRANGE);
    range.give(pMinRange, pMaxRange);
    return range.flags;
}

BOOL CMonthCalCtrl::GetToday(CTime& refTime) const {
    SYSTEMTIME fields{};
    if (!GetToday(&fields))
        return FALSE;
    refTime = time_range::day_of(fields);
    return TRUE;
}

void CMonthCalCtrl::SetToday(const CTime* pDateTime) {
    SYSTEMTIME fields{};
    const bool given = pDateTime != nullptr && pDateTime->GetAsSystemTime(fields);
    SendMessage(MCM_SETTODAY, 0, given ? afx_param(&fields) : 0);
}

BOOL CMonthCalCtrl::GetCurSel(CTime& refDateTime) const {
    SYSTEMTIME fields{};
    if (!GetCurSel(&fields))
        return FALSE;
    refDateTime = time_range::day_of(fields);
    return TRUE;
}

BOOL CMonthCalCtrl::SetCurSel(const CTime& refDateTime) {
    SYSTEMTIME fields{};
    return refDateTime.GetAsSystemTime(fields) && SetCurSel(&fields);
}

BOOL CMonthCalCtrl::GetSelRange(CTime& refMinRange, CTime& refMaxRange) const {
    const time_range range = time_range::asked(*this, MCM_GETSELRANGE);
    if (range.flags != 0)
        range.give(&refMinRange, &refMaxRange, GDTR_MIN | GDTR_MAX);
    return range.flags != 0;
}

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    const time_range range = time_range::asked(*this, MCM_GETSELRANGE);
    range.give(pMinRange, pMaxRange);
    return range.flags != 0;
}

BOOL CMonthCalCtrl::SetSelRange(const CTime& pMinRange, const CTime& pMaxRange) {
    const time_range range(&pMinRange, &pMaxRange);
    return afx_int(SendMessage(MCM_SETSELRANGE, 0, afx_param(range.ends)));
}

BOOL CMonthCalCtrl::SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange) {
    const time_range range(pMinRange, pMaxRange);
    return afx_int(SendMessage(MCM_SETSELRANGE, 0, afx_param(range.ends)));
}

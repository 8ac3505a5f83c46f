// The states of buttons, lists, scroll bars and common controls.
#include "afx_app.h"
#include "afx_data_exchange.h"
#include "afxdtctl.h"

namespace {

// How a box of either kind is asked for its items and its choice.
struct box_messages {
    UINT current, set_current, text, length, select, find;
};
constexpr box_messages list_box{LB_GETCURSEL,  LB_SETCURSEL,    LB_GETTEXT,
                                LB_GETTEXTLEN, LB_SELECTSTRING, LB_FINDSTRINGEXACT};
constexpr box_messages combo_box{CB_GETCURSEL,    CB_SETCURSEL,    CB_GETLBTEXT,
                                 CB_GETLBTEXTLEN, CB_SELECTSTRING, CB_FINDSTRINGEXACT};

CString chosen_text(HWND box, const box_messages& messages) {
    CString text;
    const auto index = static_cast<WPARAM>(::SendMessage(box, messages.current, 0, 0));
    const LRESULT length = ::SendMessage(box, messages.length, index, 0);
    if (length > 0) {
        ::SendMessage(box, messages.text, index,
                      reinterpret_cast<LPARAM>(text.GetBuffer(static_cast<int>(length) + 1)));
        text.ReleaseBuffer();
    }
    return text;
}

// False where no item is chosen by the text.
bool choose(HWND box, const box_messages& messages, const CString& text, bool exact) {
    const auto name = reinterpret_cast<LPARAM>(text.GetString());
    const auto none = static_cast<WPARAM>(-1);
    if (!exact)
        return ::SendMessage(box, messages.select, none, name) >= 0;
    const LRESULT index = ::SendMessage(box, messages.find, none, name);
    ::SendMessage(box, messages.set_current, static_cast<WPARAM>(index), 0);
    return index >= 0;
}

void exchange_list_text(CDataExchange* pDX, int id, CString& value, bool exact) {
    const HWND box = pDX->PrepareCtrl(id);
    if (pDX->m_bSaveAndValidate)
        value = chosen_text(box, list_box);
    else
        choose(box, list_box, value, exact);
}

// What stands in the box's edit control need not be an item.
void exchange_combo_text(CDataExchange* pDX, int id, CString& value, bool exact) {
    const HWND box = pDX->PrepareCtrl(id);
    if (pDX->m_bSaveAndValidate) {
        const int length = ::GetWindowTextLength(box);
        if (length < 0) {
            value = chosen_text(box, combo_box);
            return;
        }
        ::GetWindowText(box, value.GetBuffer(length + 1), length + 1);
        value.ReleaseBuffer();
    } else if (!choose(box, combo_box, value, exact)) {
        ::SetWindowText(box, value);
    }
}

void exchange_index(CDataExchange* pDX, int id, int& index, const box_messages& messages) {
    const HWND box = pDX->PrepareCtrl(id);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(box, messages.current, 0, 0));
    else
        ::SendMessage(box, messages.set_current, static_cast<WPARAM>(index), 0);
}

bool is_radio_button(HWND control) {
    return (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

} // namespace

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr) // the dialog has been through here before
        return;
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(control))
        AfxThrowNotSupportedException();
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
    } else {
        if (value < 0 || value > 2)
            value = 0;
        ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
    }
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int place = 0;
    do {
        if (!is_radio_button(control))
            continue;
        if (!pDX->m_bSaveAndValidate)
            ::SendMessage(control, BM_SETCHECK, place == value, 0);
        else if (::SendMessage(control, BM_GETCHECK, 0, 0) != 0)
            value = place;
        ++place;
    } while ((control = ::GetWindow(control, GW_HWNDNEXT)) != nullptr &&
             (::GetWindowLongPtr(control, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    exchange_list_text(pDX, nIDC, value, false);
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    exchange_list_text(pDX, nIDC, value, true);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    exchange_index(pDX, nIDC, index, list_box);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    exchange_combo_text(pDX, nIDC, value, false);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    exchange_combo_text(pDX, nIDC, value, true);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    exchange_index(pDX, nIDC, index, combo_box);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, TBM_GETPOS, 0, 0));
    else
        ::SendMessage(control, TBM_SETPOS, TRUE, value);
}

void AFXAPI DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::SendMessage(control, IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&value));
    else
        ::SendMessage(control, IPM_SETADDRESS, 0, static_cast<LPARAM>(value));
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    SYSTEMTIME fields{};
    if (pDX->m_bSaveAndValidate) {
        const bool set = ::SendMessage(control, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&fields)) == GDT_VALID;
        value = set ? CTime(fields) : CTime();
    } else if (value.GetTime() != 0 && value.GetAsSystemTime(fields)) {
        ::SendMessage(control, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&fields));
    } else {
        ::SendMessage(control, DTM_SETSYSTEMTIME, GDT_NONE, reinterpret_cast<LPARAM>(&fields)); // null is refused
    }
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        ::SetWindowText(control, value);
        return;
    }
    const int length = ::GetWindowTextLength(control);
    ::GetWindowText(control, value.GetBuffer(length + 1), length + 1);
    value.ReleaseBuffer();
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    SYSTEMTIME fields{};
    if (pDX->m_bSaveAndValidate) {
        ::SendMessage(control, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&fields));
        fields.wHour = fields.wMinute = fields.wSecond = fields.wMilliseconds = 0;
        value = CTime(fields);
    } else if (value.GetAsSystemTime(fields)) {
        ::SendMessage(control, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&fields));
    }
}

void AFXAPI afx_date_of_control(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        SYSTEMTIME fields{};
        const LRESULT found = ::SendMessage(control, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&fields));
        afx_date_range::give_day(value, fields, found == GDT_VALID);
    } else {
        const afx_date_range day(&value, nullptr);
        ::SendMessage(control, DTM_SETSYSTEMTIME, day.flags != 0 ? GDT_VALID : GDT_NONE,
                      reinterpret_cast<LPARAM>(day.ends));
    }
}

void AFXAPI afx_date_of_month(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    afx_date_range day(&value, nullptr);
    if (pDX->m_bSaveAndValidate) {
        ::SendMessage(control, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(day.ends));
        value.SetDate(day.ends[0].wYear, day.ends[0].wMonth, day.ends[0].wDay);
    } else if (day.flags != 0) {
        ::SendMessage(control, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(day.ends));
    }
}

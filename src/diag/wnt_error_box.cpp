#include "diag/wnt_error_box.h"

#include "library_resources.h"
#include "res/resource.h"

namespace {

constexpr int longest_word = 1000;

// Of words of many thousand characters a control tries every place for a break: they get breaks of their own.
CString with_breaks(const CString& text) {
    CString broken;
    int word = 0;
    int start = 0;
    for (int i = 0; i < text.GetLength(); i += ::IsDBCSLeadByte(static_cast<BYTE>(text[i])) ? 2 : 1) {
        word = static_cast<unsigned char>(text[i]) <= ' ' ? 0 : word + 1;
        if (word <= longest_word)
            continue;
        broken += text.Mid(start, i - start) + "\r\n";
        start = i;
        word = 1;
    }
    return start == 0 ? text : broken + text.Mid(start);
}

} // namespace

BEGIN_MESSAGE_MAP(CWntErrorBox, CDialog)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CWntErrorBox::CWntErrorBox() : CWntErrorBox("", "", "") {}

CWntErrorBox::CWntErrorBox(const CString& title, const CString& message, const CString& details)
    : title_(title), message_(message), details_(details) {
    InitModalIndirect(wnt::library_dialog(IDD_ERROR_BOX));
}

BOOL CWntErrorBox::OnInitDialog() {
    CDialog::OnInitDialog();
    background_.DeleteObject();
    background_.CreateSolidBrush(::GetSysColor(COLOR_WINDOW));
    SetDlgItemText(IDC_ERROR_TITLE, with_breaks(title_));
    SetDlgItemText(IDC_ERROR_MESSAGE, with_breaks(message_));
    SetDlgItemText(IDC_ERROR_DETAILS, with_breaks(details_));
    return TRUE;
}

HBRUSH CWntErrorBox::OnCtlColor(CDC* dc, CWnd* control, UINT type) {
    const int id = control->GetDlgCtrlID();
    if (id < IDC_ERROR_TITLE || id > IDC_ERROR_DETAILS)
        return CDialog::OnCtlColor(dc, control, type);
    dc->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc->SetBkColor(::GetSysColor(COLOR_WINDOW));
    return background_;
}

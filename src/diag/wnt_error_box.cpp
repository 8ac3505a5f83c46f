#include "diag/wnt_error_box.h"

#include "library_resources.h"
#include "res/resource.h"

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
    SetDlgItemText(IDC_ERROR_TITLE, title_);
    SetDlgItemText(IDC_ERROR_MESSAGE, message_);
    SetDlgItemText(IDC_ERROR_DETAILS, details_);
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

#include "tip_dialog.h"

#include "resource.h"

namespace {

constexpr char section[] = "Tips";

} // namespace

CTipDialog::CTipDialog(const CString& tips, const CString& profile, CWnd* parent)
    : CDialog(IDD_TIP, parent), file_(tips), profile_(profile) {}

bool CTipDialog::IsWanted(const CString& profile) {
    return CWntTipPage::IsShownAtStart(profile, section) != 0;
}

void CTipDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TIPS, tips_);
}

BOOL CTipDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    tips_.LoadTips(file_);
    tips_.SetProfile(profile_, section); // goes on behind the last tip that was shown
    GetDlgItem(IDCANCEL)->SetFocus();    // the page's text would be selected
    return FALSE;
}

// A dialog takes keys itself that are the page's.
BOOL CTipDialog::PreTranslateMessage(MSG* message) {
    return tips_.PreTranslateMessage(message) || CDialog::PreTranslateMessage(message);
}

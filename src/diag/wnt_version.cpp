#include "diag/wnt_version.h"

IMPLEMENT_DYNAMIC(CWntVersion, CPropertySheet)

BEGIN_MESSAGE_MAP(CWntVersion, CPropertySheet)
ON_WM_CREATE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

CWntVersion::CWntVersion(UINT caption, CWnd* parent, UINT page) : CPropertySheet(caption, parent, page) {}

CWntVersion::CWntVersion(const char* caption, CWnd* parent, UINT page) : CPropertySheet(caption, parent, page) {}

INT_PTR CWntVersion::DoModal() {
    if (!pages_added_) {
        AddPage(&components_);
        AddPage(&environment_);
        pages_added_ = true;
    }
    return CPropertySheet::DoModal();
}

int CWntVersion::OnCreate(LPCREATESTRUCT create) {
    return CPropertySheet::OnCreate(create);
}

void CWntVersion::OnDestroy() {
    CPropertySheet::OnDestroy();
}

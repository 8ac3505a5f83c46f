#include "diag/wnt_version.h"

IMPLEMENT_DYNAMIC(CWntVersion, CPropertySheet)

BEGIN_MESSAGE_MAP(CWntVersion, CPropertySheet)
ON_WM_CREATE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

// There is nothing to apply.
CWntVersion::CWntVersion(UINT caption, CWnd* parent, UINT page) : CPropertySheet(caption, parent, page) {
    m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

CWntVersion::CWntVersion(const char* caption, CWnd* parent, UINT page) : CPropertySheet(caption, parent, page) {
    m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

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

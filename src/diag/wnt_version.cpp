#include "diag/wnt_version.h"

IMPLEMENT_DYNAMIC(CWntVersion, CPropertySheet)

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

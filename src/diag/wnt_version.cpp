#include "diag/wnt_version.h"

#include "library_resources.h"

IMPLEMENT_DYNAMIC(CWntVersion, CPropertySheet)

BEGIN_MESSAGE_MAP(CWntVersion, CPropertySheet)
ON_WM_CREATE()
END_MESSAGE_MAP()

CWntVersion::CWntVersion(UINT caption, CWnd* parent, UINT page) : CPropertySheet(caption, parent, page) {}

CWntVersion::CWntVersion(const char* caption, CWnd* parent, UINT page) : CPropertySheet(caption, parent, page) {}

CWntVersion::~CWntVersion() = default;

INT_PTR CWntVersion::DoModal() {
    if (GetPageCount() == 0) {
        AddPage(&components_);
        AddPage(&environment_);
    }
    resources_ = std::make_unique<wnt::LibraryResources>();
    const INT_PTR result = CPropertySheet::DoModal();
    resources_.reset();
    return result;
}

int CWntVersion::OnCreate(LPCREATESTRUCT create) {
    // The pages' templates have been found by now: the host's resources count again while the sheet is open.
    resources_.reset();
    return CPropertySheet::OnCreate(create);
}

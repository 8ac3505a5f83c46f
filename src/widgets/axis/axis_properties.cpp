#include "widgets/axis/wnt_axis_properties.h"

#include "library_resources.h"
#include "res/resource.h"
#include "widgets/axis/axis_model.h"
#include "widgets/axis/wnt_axis.h"

CWntAxisProperties::CWntAxisProperties(CWnd* parent) {
    InitModalIndirect(wnt::library_dialog(IDD_AXIS_PROPERTIES), parent);
}

int CWntAxisProperties::SetAxis(CWntAxis* axis) {
    if (!axis)
        return 0;
    axis_ = axis;
    return 1;
}

BOOL CWntAxisProperties::OnInitDialog() {
    CDialog::OnInitDialog();
    if (!axis_)
        return TRUE;
    const auto show = [this](int field, double value) {
        CString text;
        text.Format("%7.2f", value);
        SetDlgItemText(field, text);
    };
    show(IDC_AXIS_BEGIN, axis_->shown_limits_[0]);
    show(IDC_AXIS_END, axis_->shown_limits_[1]);
    show(IDC_AXIS_STEPS, 0.0); // intended: the same for every grid count
    const int position = axis_->model_->position;
    CheckDlgButton(IDC_AXIS_ORIENTATION, position == wnt::axis_bottom || position == wnt::axis_right);
    return TRUE;
}

void CWntAxisProperties::DoDataExchange(CDataExchange*) {}

#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

class CWntAxis;

/// Shows the limits and the orientation of an axis. Whatever is entered, the axis stays as it is.
class ZOPWNT_API CWntAxisProperties : public CDialog {
public:
    explicit CWntAxisProperties(CWnd* parent);

    /// The axis must outlive the dialog. 1, or 0 for null, which keeps the one before.
    int SetAxis(CWntAxis* axis);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;

private:
    CWntAxis* axis_ = nullptr;
};

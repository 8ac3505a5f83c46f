#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

class CWntAxis;

/// The dialog of an axis' command 101. Its fields show 0, 100 and 0 for every axis, its box is checked for an axis
/// below or right of the plot. Whatever is entered, the axis stays as it is.
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

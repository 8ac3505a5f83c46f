#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

/// A modal box that shows a title, a message and details of an error.
///
///     CWntErrorBox("Recording", "The file cannot be written.", path).DoModal();
class ZOPWNT_API CWntErrorBox : public CDialog {
public:
    /// With three empty texts.
    CWntErrorBox();
    /// A title, a line or two of message, and details, which may have many lines. Words of more than 1000 characters
    /// are broken.
    CWntErrorBox(const CString& title, const CString& message, const CString& details);

protected:
    BOOL OnInitDialog() override;
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()

private:
    CString title_;
    CString message_;
    CString details_;
    CBrush background_;
};

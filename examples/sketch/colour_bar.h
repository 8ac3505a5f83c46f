#pragma once

#include <zopwnt.h>

#include <afxext.h>

/// Two of the library's colour selectors in a bar. Their picks go on to the frame, and from there to the view.
class CColourBar : public CDialogBar {
public:
    BOOL Create(CWnd* parent);
    /// Shows the colours that are in force, unless they are shown.
    void Show(int line, int fill);

private:
    CWntColorSel line_, fill_; // members, so that the bar's template finds their class
};

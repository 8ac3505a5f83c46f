#include "colour_bar.h"

#include "resource.h"

BOOL CColourBar::Create(CWnd* parent) {
    return CDialogBar::Create(parent, IDD_COLOURS, CBRS_ALIGN_LEFT | CBRS_TOOLTIPS, ID_VIEW_COLOURS) &&
           line_.SubclassDlgItem(IDC_LINE_COLOUR, this) && fill_.SubclassDlgItem(IDC_FILL_COLOUR, this);
}

void CColourBar::Show(int line, int fill) {
    if (line_.GetSelectedColorID() != line) {
        line_.SetSelectedColorID(line);
        line_.Invalidate();
    }
    if (fill >= 0 && fill_.GetSelectedColorID() != fill) {
        fill_.SetSelectedColorID(fill);
        fill_.Invalidate();
    }
}

#include "diag/wnt_file_sel.h"

CWntFileSel::CWntFileSel(BOOL open, const char* extension, const char* name, DWORD flags, const char* filter,
                         CWnd* parent)
    : CFileDialog(open, extension, name, flags, filter, parent, 0, FALSE) {} // a later style has no OnInitDialog

BOOL CWntFileSel::OnInitDialog() {
    if (CWnd* dialog = GetParent()) // this window is a child of the dialog
        dialog->CenterWindow();
    CFileDialog::OnInitDialog();
    return FALSE;
}

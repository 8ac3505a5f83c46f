#include "diag/wnt_file_sel.h"

CWntFileSel::CWntFileSel(BOOL open, const char* extension, const char* name, DWORD flags, const char* filter,
                         CWnd* parent)
    : CFileDialog(open, extension, name, flags, filter, parent) {}

BOOL CWntFileSel::OnInitDialog() {
    GetParent()->CenterWindow(); // this window is a child of the dialog
    CFileDialog::OnInitDialog();
    return FALSE;
}

#include "diag/wnt_file_sel.h"

namespace {

constexpr UINT opened_message = WM_APP;

}

CWntFileSel::CWntFileSel(BOOL open, const char* extension, const char* name, DWORD flags, const char* filter,
                         CWnd* parent)
    : CFileDialog(open, extension, name, flags, filter, parent, 0, FALSE) {} // a later style has no OnInitDialog

BOOL CWntFileSel::OnInitDialog() {
    centre();
    CFileDialog::OnInitDialog();
    return FALSE;
}

// The system has taken out what the flags hide by now, but has yet to restore the size that the user gave the dialog
// when it was open last.
void CWntFileSel::OnInitDone() {
    centre();
    PostMessage(opened_message);
}

LRESULT CWntFileSel::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != opened_message)
        return CFileDialog::WindowProc(message, wParam, lParam);
    centre();
    return 0;
}

void CWntFileSel::centre() {
    if (CWnd* dialog = GetParent()) // this window is a child of the dialog
        dialog->CenterWindow();
}

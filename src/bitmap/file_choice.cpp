#include "bitmap/file_choice.h"

#include <afxdlgs.h>

CString wnt::chosen_path(LPCTSTR path, bool open, LPCTSTR filter) {
    if (path && *path)
        return path;
    const DWORD flags = OFN_HIDEREADONLY | (open ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT);
    CFileDialog dialog(open, nullptr, nullptr, flags, filter);
    return dialog.DoModal() == IDOK ? dialog.GetPathName() : CString();
}

BOOL wnt::through_chosen_file(LPCTSTR path, bool open, LPCTSTR filter,
                              const std::function<BOOL(CFile& file)>& transfer) {
    const CString name = chosen_path(path, open, filter);
    if (name.IsEmpty())
        return FALSE;
    const UINT flags = open ? CFile::modeRead | CFile::shareDenyWrite
                            : CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive;
    CFile file;
    if (!file.Open(name, flags)) {
        AfxMessageBox("Failed to open file");
        return FALSE;
    }
    if (transfer(file))
        return TRUE;
    AfxMessageBox(open ? "Failed to load file" : "Failed to save file");
    return FALSE;
}

#include "bitmap/file_choice.h"

#include <afxdlgs.h>

CString wnt::chosen_path(LPCTSTR path, bool open, LPCTSTR filter) {
    if (path && *path)
        return path;
    const DWORD flags = OFN_HIDEREADONLY | (open ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT);
    CFileDialog dialog(open, nullptr, nullptr, flags, filter);
    return dialog.DoModal() == IDOK ? dialog.GetPathName() : CString();
}

#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

/// Prints what a window shows, frame included, on the default printer: one page, as large as the page takes without a
/// change of proportions. `docname` is the document's name in the print queue. No dialog, and no word of a failure:
/// without a printer nothing is printed, of a window without area an empty page.
ZOPWNT_API void MakeHardcopy(CWnd* wnd, const char* docname);

#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

/// Prints what a window shows, frame included, on the default printer: one page, as large as the page takes without a
/// change of proportions. Printed at its own size, cut where the page ends, is a window of exactly the page's
/// proportions, one that would shrink below a hundredth, and one that would come out less than a pixel wide or high.
/// `docname` is the document's name in the print queue. No dialog, and no word of a failure: without a printer nothing
/// is printed, of a window without area an empty page.
ZOPWNT_API void MakeHardcopy(CWnd* wnd, const char* docname);

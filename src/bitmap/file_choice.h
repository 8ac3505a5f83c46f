#pragma once

#include <afxwin.h>

namespace wnt {

/// The path, or what the user chooses in its stead when it is null or empty; empty when the user cancels.
CString chosen_path(LPCTSTR path, bool open, LPCTSTR filter);

} // namespace wnt

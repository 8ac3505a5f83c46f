#pragma once

#include <afxwin.h>

#include <functional>

namespace wnt {

/// Loads from the path (open) or saves to it, or to what the user chooses in its stead when it is null or empty. What
/// fails is told in a message box; a cancelled choice is not.
BOOL through_chosen_file(LPCTSTR path, bool open, LPCTSTR filter, const std::function<BOOL(CFile& file)>& transfer);

/// The path, or what the user chooses in its stead when it is null or empty; empty when the user cancels.
CString chosen_path(LPCTSTR path, bool open, LPCTSTR filter);

} // namespace wnt

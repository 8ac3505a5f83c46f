#pragma once

#include <vector>

#include <zopwnt.h>

/// Paints every page, and every script into a gauge of its own, as PNG files in a folder. A size of 0 x 0 means each
/// picture's own. Says on the error output what could not be written; false when anything could not.
bool RenderGallery(const CString& folder, CSize size, const std::vector<CString>& scripts);

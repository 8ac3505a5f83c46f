#pragma once

#include "page.h"

/// Paints every page, with the first bitmap file on its page, and every script into a gauge of its own, as PNG files in
/// a folder. A size of 0 x 0 means each picture's own. Says on the error output what could not be written; false when
/// anything could not.
bool RenderGallery(const CString& folder, CSize size, const NamedFiles& files);

#pragma once

#include <zopwnt.h>

/// Paints every page with a plant that is played within the program, as large as that, into bitmap files of a folder:
/// empty, or why not.
CString PaintPictures(const CString& program_folder, const CString& data_folder, const CString& folder, CSize size);

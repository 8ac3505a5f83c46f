#pragma once

#include <afxwin.h>

/// Writes a bitmap that is selected nowhere as a PNG file.
bool WritePng(HBITMAP bitmap, const CString& file);

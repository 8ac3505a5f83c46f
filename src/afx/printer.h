// The printer that a program has chosen.
#pragma once

#include "afx_base.h"

// A device context for the printer that the record names; null where there is none.
HDC create_printer_context(const PRINTDLG& choice);

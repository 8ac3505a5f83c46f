#pragma once

// Identifiers of the library's resources. Cursors and icons are looked up by name and have none.
#define IDD_TRACE 205
#define IDC_TRACE_LINES 255
#define IDC_TRACE_NOTE 257

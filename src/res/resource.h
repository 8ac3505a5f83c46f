#pragma once

// Identifiers of the library's resources. Cursors and icons are looked up by name and have none.
#define IDD_AXIS_PROPERTIES 157
#define IDC_AXIS_BEGIN 1026
#define IDC_AXIS_END 1027
#define IDC_AXIS_STEPS 1028
#define IDC_AXIS_ORIENTATION 1127

#define IDD_TRACE 205
#define IDC_TRACE_LINES 255
#define IDC_TRACE_NOTE 257

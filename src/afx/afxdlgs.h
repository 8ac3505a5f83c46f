// Dialogs of the platform and property sheets.
#pragma once
#define __AFXDLGS_H__

#include "afxwin.h"
#include "afx_choice_dialogs.h"
#include "afx_file_dialog.h"
#include "afx_folder_dialog.h"
#include "afx_print_dialog.h"
#include "afx_property_sheet.h"

// The framework: the first header of a source file that uses it.
#pragma once

#include "afx.h"
#include "afx_gdi.h"
#include "afx_dc.h"
#include "afx_menu.h"
#include "afx_cmdtarget.h"
#include "afx_wnd.h"
#include "afx_controls.h"
#include "afx_data_exchange.h"
#include "afx_dialog.h"
#include "afx_frame.h"
#include "afx_app.h"
#include "afxmsg_.h"

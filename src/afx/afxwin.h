// The framework: the first header of a source file that uses it.
#pragma once
#ifndef __AFXWIN_H__
#define __AFXWIN_H__

#include "afx.h"
#include "afxres.h"
#include "afx_gdi.h"
#include "afx_dc.h"
#include "afx_menu.h"
#include "afx_cmdtarget.h"
#include "afx_cmdui.h"
#include "afx_wnd.h"
#include "afx_boxes.h"
#include "afx_data_exchange.h"
#include "afx_dialog.h"
#include "afx_frame.h"
#include "afx_mini_frame.h"
#include "afx_document.h"
#include "afx_doc_template.h"
#include "afx_view.h"
#include "afx_scroll_view.h"
#include "afx_mdi.h"
#include "afx_thread.h"
#include "afx_app.h"
#include "afx_command_line.h"
#include "afxmsg_.h"

#endif

// Bars, splitters and further views, property sheets; the windows that extension libraries name.
#pragma once
#ifndef __AFXEXT_H__
#define __AFXEXT_H__

#include "afxwin.h"
#include "afx_dialog_bar.h"
#include "afx_form_view.h"
#include "afx_edit_view.h"
#include "afx_metafile_dc.h"
#include "afx_rebar.h"
#include "afx_rect_tracker.h"
#include "afx_splitter.h"
#include "afx_status_bar.h"
#include "afx_tool_bar.h"
#include "afxdlgs.h"

#endif

// Common controls.
#pragma once
#ifndef __AFXCMN_H__
#define __AFXCMN_H__

#include "afxwin.h"
#include "afx_common_ctrls.h"
#include "afx_extended_ctrls.h"
#include "afx_image_list.h"
#include "afx_link_ctrl.h"
#include "afx_list_ctrl.h"
#include "afx_pager_ctrl.h"
#include "afx_rebar.h"
#include "afx_rich_edit.h"
#include "afx_split_button.h"
#include "afx_tool_bar_ctrl.h"

#endif

// The framework without windows: objects, strings, exceptions, files, times.
#pragma once
#ifndef __AFX_H__
#define __AFX_H__

#include "afx_base.h"
#include "afx_object.h"
#include "afx_debug.h"
#include "afx_dump.h"
#include "afxstr.h"
#include "atltypes.h"
#include "atlexcept.h"
#include "afx_module.h"
#include "afx_exception.h"
#include "afx_file.h"
#include "afx_archive.h"
#include "atltime.h"
#include "afxcoll.h"

#endif

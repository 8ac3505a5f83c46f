// Dates and conversions of texts; else for programs that include it by custom: there is no automation.
#pragma once
#ifndef __AFXDISP_H__
#define __AFXDISP_H__

#include "afxwin.h"
#include "atlcomtime.h"
#include "atlconv.h"

// Programs call it as a matter of course. There are no OLE controls: a dialog whose template has one is not created.
inline void AFX_CDECL AfxEnableControlContainer() {}

// Begins OLE in the calling thread until its end, or the program's AfxWinMain's. In a library it is the program's
// doing.
ZOPAFX_API BOOL AFXAPI AfxOleInit();

#endif

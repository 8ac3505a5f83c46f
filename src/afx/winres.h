// What resource scripts need of the platform: styles, control identifiers, virtual keys.
#ifndef __AFX_WINRES_H__
#define __AFX_WINRES_H__

#include <windows.h>
#include <winver.h>
#include <commctrl.h>

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#endif

#include <afxwin.h>

#include <afxcmn.h>
#include <afxdisp.h>
#include <afxdtctl.h>
#include <afxext.h>
#include <afxpriv.h>
#include <afxtempl.h>

static_assert(sizeof(LVGROUP) > 0 && _WIN32_WINNT >= 0x0600 && _WIN32_IE >= 0x0600);

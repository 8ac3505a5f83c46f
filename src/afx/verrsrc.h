// The words of VERSIONINFO, under the name by which resource scripts include them.
#ifndef __VERRSRC_H__
#define __VERRSRC_H__

#include <winver.h>

#endif

// The image lists of list and tree controls.
#pragma once

#include "afx_wnd.h"

// A control deletes its lists with itself; one that an object holds is taken from it before.
void release_image_list(CWnd& control, int kind, UINT get, UINT set);

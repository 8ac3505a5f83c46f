// What extension libraries need beside the windows.
#pragma once

#include "afxwin.h"

// The header that extension libraries name; the windows are all they need.
#pragma once

#include "afxwin.h"

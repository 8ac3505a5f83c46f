// OLE: the exception with a result code.
#pragma once

#include "afxwin.h"

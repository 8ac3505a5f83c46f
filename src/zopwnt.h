#pragma once

/// Everything public of the library: include this one header.

#include <afxwin.h>

#include "diag/wnt_trace.h"
#include "out/wnt_out.h"
#include "widgets/wnt_gauge.h"

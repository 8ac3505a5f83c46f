// For the main source of an extension library, which includes it by custom: all that such a library needs is in the
// framework's own.
#pragma once

#include "afxwin.h"

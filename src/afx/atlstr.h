// Only strings; for programs that include it by custom.
#pragma once

#include "afxstr.h"

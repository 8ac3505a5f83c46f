// Date and time controls are among the common controls.
#pragma once

#include "afxcmn.h"

// Automation: the exception with a result code.
#pragma once

#include "afxole.h"

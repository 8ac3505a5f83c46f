// Only included by programs that say so by custom: there is no automation.
#pragma once
#include "afxwin.h"

// Collections of fixed types.
#pragma once

#include "afxtempl.h"

class CStringArray : public CArray<CString, LPCTSTR> {};

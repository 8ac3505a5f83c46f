#pragma once

#include <memory>

#include <zopwnt.h>

/// The widget that a script is for: a strip chart, which is given samples, if it has a curve, or else a gauge. Null
/// where the window cannot be made; a script that is not there leaves a plain gauge.
std::unique_ptr<CWnd> MakeScripted(const CString& script, const CRect& place, CWnd* parent, UINT id);

#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

/// Moves a widget's state to and from a dialog's member, for DoDataExchange() behind the DDX_Control() that joins the
/// widget to its object. A control that is not joined raises the framework's exception for what is not supported.
///
///     DDX_Control(exchange, IDC_PRESSURE, pressure_);    // a CWntGauge
///     DDX_GaugeValue(exchange, IDC_PRESSURE, value_);

/// The value of a gauge; one outside its range is not shown.
ZOPWNT_API void AFXAPI DDX_GaugeValue(CDataExchange* exchange, int id, int& value);
/// The selected colour of a colour selector, by its place in the palette.
ZOPWNT_API void AFXAPI DDX_Color(CDataExchange* exchange, int id, int& colour);

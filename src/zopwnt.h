#pragma once

/// Everything public of the library: include this one header.

#include <afxwin.h>

#include "bitmap/dib_file.h"
#include "bitmap/wnt_bitmap.h"
#include "bitmap/wnt_bitmap_palette.h"
#include "controls/wnt_frame.h"
#include "controls/wnt_frame_ex.h"
#include "controls/wnt_sash.h"
#include "controls/wnt_scroll_bar.h"
#include "controls/wnt_tabs.h"
#include "controls/wnt_ulist.h"
#include "diag/wnt_error_box.h"
#include "diag/wnt_file_sel.h"
#include "diag/wnt_shmem.h"
#include "diag/wnt_sound.h"
#include "diag/wnt_splash.h"
#include "diag/wnt_trace.h"
#include "diag/wnt_version.h"
#include "out/hardcopy.h"
#include "out/wnt_objlist.h"
#include "out/wnt_out.h"
#include "pulse/wnt_pulse_file.h"
#include "time/wnt_time.h"
#include "widgets/axis/wnt_axis.h"
#include "widgets/axis/wnt_axis_properties.h"
#include "widgets/button/wnt_button.h"
#include "widgets/calendar/wnt_calendar.h"
#include "widgets/colour_selector/wnt_color_sel.h"
#include "widgets/data_exchange.h"
#include "widgets/gauge/wnt_gauge.h"

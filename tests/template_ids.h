#pragma once

#define IDD_WIDGETS 300
#define IDC_GAUGE 301
#define IDC_SCRIPTED 302
#define IDC_BUTTON 303
#define IDC_AXIS 304
#define IDC_CALENDAR 305
#define IDC_COLOURS 306
#define IDC_PLACE 307
#define IDD_CONTROLS 320
#define IDC_PULSE 321
#define IDC_TABS 322
#define IDC_SASH 323
#define IDC_BAR 324
#define IDC_TIP 325
#define IDC_FRAME 326
#define IDC_FOLDED 327

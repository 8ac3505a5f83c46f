#pragma once

#define IDD_WIDGETS 300
#define IDC_GAUGE 301
#define IDC_SCRIPTED 302
#define IDC_BUTTON 303
#define IDC_AXIS 304
#define IDC_CALENDAR 305
#define IDC_COLOURS 306
#define IDC_PLACE 307

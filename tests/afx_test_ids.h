#pragma once

#define IDD_TEST 130
#define IDS_FORMAT 131
#define IDD_PAGE 132
#define IDC_MARK 133

#define IDD_DATA 150
#define IDS_CAPTION 151
#define IDC_NAME 1101
#define IDC_COUNT 1102
#define IDC_FACTOR 1103
#define IDC_LETTERS 1104
#define IDC_BOX 1105
#define IDC_RED 1106
#define IDC_GREEN 1107
#define IDC_BLUE 1108
#define IDC_FRUITS 1109
#define IDC_TOWNS 1110
#define IDC_CHOICE 1111
#define IDC_LEVEL 1112
#define IDC_SLIDE 1113
#define IDC_DAY 1114
#define IDC_MONTH 1115
#define IDC_CHECKS 1116
#define IDC_ROWS 1117
#define IDC_TREE 1118
#define IDC_TABS 1119

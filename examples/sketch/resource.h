// Identifiers of resources and commands, for C++ and the resource script.
#pragma once

#define IDR_MAINFRAME 128
#define IDR_MAINFRAME_LARGE 129
#define IDD_ABOUT 130
#define IDD_COLOURS 131
#define IDD_TEXT 132
#define IDD_SHEET 133

#define IDC_LINE_COLOUR 1001
#define IDC_FILL_COLOUR 1002
#define IDC_TEXT 1004
#define IDC_HEIGHT 1005
#define IDC_WIDTH 1006

// Each of these groups is a range of commands: keep the numbers together and in order.
#define ID_TOOL_SELECT 40001
#define ID_TOOL_LINE 40002
#define ID_TOOL_RECTANGLE 40003
#define ID_TOOL_ELLIPSE 40004
#define ID_TOOL_FREE_HAND 40005
#define ID_TOOL_TEXT 40006

#define ID_PATTERN_SOLID 40011
#define ID_PATTERN_DOTTED 40012
#define ID_PATTERN_DASHED 40013
#define ID_PATTERN_DASH_DOT 40014
#define ID_PATTERN_DASH_DOT_DOT 40015

#define ID_WIDTH_HAIRLINE 40021
#define ID_WIDTH_FINE 40022
#define ID_WIDTH_MEDIUM 40023
#define ID_WIDTH_BROAD 40024
#define ID_WIDTH_HEAVY 40025

#define ID_FILLED 40030

#define ID_ZOOM_IN 40041
#define ID_ZOOM_OUT 40042
#define ID_ZOOM_ACTUAL 40043
#define ID_ZOOM_FIT 40044
#define ID_VIEW_COLOURS 40045

#define ID_INDICATOR_POSITION 40051
#define ID_INDICATOR_ZOOM 40052

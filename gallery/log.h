#pragma once

#include <afxwin.h>

/// The gallery's log, for programs that watch it: a line for every page, widget place and notification. Without a file
/// nothing is written.
bool OpenLog(const char* file);
void Log(const char* format, ...);

/// Where the window's visible descendants lie on the screen.
void LogPlaces(CWnd& window);

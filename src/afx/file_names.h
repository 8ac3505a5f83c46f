// Names and paths of files as documents and menus show them.
#pragma once

#include "afxstr.h"

CString full_path_of(LPCTSTR name);
// The same file by name, whatever the case of the letters.
bool is_same_file(LPCTSTR a, LPCTSTR b);
// Without the folder.
CString file_name_of(LPCTSTR path);
// The name as the shell shows it: without the folder, and without the extension where the user hides those.
CString title_of(LPCTSTR path);
// With the dot; empty where there is none.
CString extension_of(LPCTSTR path);
// About so many characters: folders in the middle become dots.
CString shortened(const CString& path, int length);
// Each ampersand twice: a menu shows it.
CString with_ampersands(const CString& text);
// With a backslash at its end; answers its length.
int current_folder(LPTSTR folder, DWORD room);

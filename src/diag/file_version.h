#pragma once

#include <afxwin.h>

namespace wnt {

enum VersionFact { file_version = 1, product_version, file_flags, operating_system, file_type, language };

/// One piece of a file's version information as text; empty where the file has none or the kind is unknown.
CString version_fact(const char* path, int kind);

} // namespace wnt

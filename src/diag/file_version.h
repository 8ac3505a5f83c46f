#pragma once

#include <afxwin.h>

namespace wnt {

enum VersionFact {
    fact_file_version = 1,
    fact_product_version,
    fact_file_flags,
    fact_operating_system,
    fact_file_type,
    fact_language,
};

/// One piece of a file's version information as text; empty where the file has none or the kind is unknown.
CString version_fact(const char* path, int kind);

} // namespace wnt

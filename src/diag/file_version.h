#pragma once

#include <afxwin.h>

#include <array>

namespace wnt {

enum VersionFact {
    fact_file_version = 1,
    fact_product_version,
    fact_file_flags,
    fact_operating_system,
    fact_file_type,
    fact_language,
};
inline constexpr int fact_count = fact_language;

/// One piece of a file's version information as text; empty where the file has none or the kind is unknown.
CString version_fact(const char* path, int kind);
/// All of them, in their order, from one reading of the file.
std::array<CString, fact_count> version_facts(const char* path);

} // namespace wnt

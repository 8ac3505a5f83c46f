#pragma once

#include <string_view>

namespace wnt {

/// The second argument of a widget's line operation.
enum ScriptMode { script_line = 0, script_begin = 1, script_end = 2 };

/// A line's key and value, both inside the line's text. The value keeps its trailing blanks.
struct ScriptLine {
    std::string_view key;
    std::string_view value;
};

/// Splits ":KEY=VALUE". The key is the run of letters behind the colon, the "=" may be missing or repeated. A line
/// that does not begin with a colon (a comment, a block line) and one without a key give an empty key.
ScriptLine split_script_line(std::string_view line);

} // namespace wnt

#pragma once

#include <string>

namespace wnt {

/// A shortcut as tips and menus write it ("Ctrl+Shift+S"); empty for a key without a name. `key` is a virtual key's
/// code, or a character.
std::string shortcut_text(bool control, bool alt, bool shift, bool is_virtual_key, int key);

} // namespace wnt

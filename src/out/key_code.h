#pragma once

#include <cstdint>

namespace wnt {

/// Kinds of key that `translate_key` tells apart.
enum KeyCategory { key_nothing, key_character, key_function, key_editing, key_control_letter, key_alt };

/// Turns a keyboard message into a key category (out[0]) and a value (out[1]): 1 when the message gives a key, 0 when
/// it is to be ignored. `key` is the message's virtual-key or character code, `flags` its key data, and `key_state`
/// answers a virtual key's state as the platform does: negative while down, odd while toggled.
int translate_key(int out[2], unsigned message, std::uintptr_t key, std::intptr_t flags, short (*key_state)(int));

} // namespace wnt

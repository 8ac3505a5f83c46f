#include "out/key_code.h"

#include <algorithm>
#include <iterator>

namespace wnt {

namespace {

constexpr unsigned key_down_message = 0x100;
constexpr unsigned system_key_down_message = 0x104;
constexpr int tab_key = 9;
constexpr int shift_key = 0x10;
constexpr int control_key = 0x11;

struct EditingKey {
    unsigned key;
    int category;
    int code;
};

constexpr EditingKey editing_keys[] = {
    {3, key_nothing, 0},   // Cancel, Ctrl+C
    {8, key_editing, 1},   // Backspace
    {9, key_editing, 2},   // Tab
    {13, key_editing, 4},  // Enter
    {27, key_editing, 0},  // Escape
    {33, key_editing, 9},  // Page Up
    {34, key_editing, 10}, // Page Down
    {35, key_editing, 8},  // End
    {36, key_editing, 7},  // Home
    {37, key_editing, 11}, // Left
    {38, key_editing, 13}, // Up
    {39, key_editing, 12}, // Right
    {40, key_editing, 14}, // Down
    {45, key_editing, 5},  // Insert
    {46, key_editing, 6},  // Delete
};

constexpr int back_tab_code = 3;
constexpr int first_moving_code = 7;
constexpr int last_moving_code = 14;
constexpr int control_moving_offset = 8;

struct Modifiers {
    bool control;
    bool shift;
    bool alt;
};

Modifiers read_modifiers(std::intptr_t flags, short (*key_state)(int)) {
    Modifiers down = {key_state(control_key) < 0, key_state(shift_key) < 0, (flags >> 29 & 1) != 0};
    if (down.control && down.alt) // AltGr
        down.control = down.alt = false;
    return down;
}

bool gives_no_character(std::uintptr_t key) {
    return (key >= 0x21 && key <= 0x2F) || (key >= 0x70 && key <= 0x7F);
}

bool is_function_scan_code(std::intptr_t flags) {
    const auto code = flags >> 16 & 0xFF;
    return (code >= 0x3B && code <= 0x44) || code == 0x57 || code == 0x58;
}

// A character whose code is an editing key's is taken for that key while the key's state is non-zero: intended.
const EditingKey* find_editing_key(std::uintptr_t key, short (*key_state)(int)) {
    const auto* found = std::ranges::find_if(editing_keys, [key](const EditingKey& k) { return k.key == key; });
    return found != std::end(editing_keys) && key_state(static_cast<int>(key)) != 0 ? found : nullptr;
}

int editing_code(const EditingKey& entry, const Modifiers& down) {
    if (entry.key == tab_key && down.shift)
        return back_tab_code;
    const bool moving = entry.code >= first_moving_code && entry.code <= last_moving_code;
    return entry.code + (moving && down.control ? control_moving_offset : 0);
}

int function_code(std::uintptr_t key, const Modifiers& down) {
    const std::uintptr_t number = key - 0x6F + (down.shift ? 12 : 0);
    return static_cast<int>(static_cast<std::uint32_t>(number)) | (down.control ? 0x80 : 0);
}

int upper_case(std::uintptr_t key) {
    return static_cast<int>(static_cast<std::uint32_t>(key >= 'a' && key <= 'z' ? key - 'a' + 'A' : key));
}

int give(int out[2], int category, int code) {
    out[0] = category;
    out[1] = code;
    return 1;
}

int give_alt(int out[2], int letter) {
    const bool named = (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z');
    return named ? give(out, key_alt, letter) : 0;
}

} // namespace

int translate_key(int out[2], unsigned message, std::uintptr_t key, std::intptr_t flags, short (*key_state)(int)) {
    if (!out || !key_state)
        return 0;
    out[0] = out[1] = 0;
    const bool released = (flags >> 31 & 1) != 0;
    const bool key_message = message == key_down_message || message == system_key_down_message;
    if (released || (key_message && !gives_no_character(key)))
        return 0;
    const Modifiers down = read_modifiers(flags, key_state);
    if (const EditingKey* entry = find_editing_key(key, key_state))
        return give(out, entry->category, editing_code(*entry, down));
    if (is_function_scan_code(flags))
        return down.alt ? 0 : give(out, key_function, function_code(key, down));
    if (down.control && key >= 1 && key <= 26)
        return give(out, key_control_letter, static_cast<int>(key) + 0x40);
    if (key < 32)
        return 0;
    if (down.alt)
        return give_alt(out, upper_case(key));
    return give(out, key_character, static_cast<int>(static_cast<std::uint32_t>(key)));
}

} // namespace wnt

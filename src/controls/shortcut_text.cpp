#include "controls/shortcut_text.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace wnt {

namespace {

constexpr struct {
    int key;
    std::string_view name;
} named_keys[] = {
    {0x08, "Backspace"}, {0x09, "Tab"},   {0x0D, "Enter"}, {0x13, "Pause"}, {0x1B, "Esc"},   {0x20, "Space"},
    {0x21, "PgUp"},      {0x22, "PgDn"},  {0x23, "End"},   {0x24, "Home"},  {0x25, "Left"},  {0x26, "Up"},
    {0x27, "Right"},     {0x28, "Down"},  {0x2D, "Ins"},   {0x2E, "Del"},   {0x6A, "Num *"}, {0x6B, "Num +"},
    {0x6D, "Num -"},     {0x6F, "Num /"}, {0xBB, "+"},     {0xBC, ","},     {0xBD, "-"},     {0xBE, "."},
};

constexpr int first_function_key = 0x70;
constexpr int last_function_key = 0x87;
constexpr int first_keypad_digit = 0x60;
constexpr int last_keypad_digit = 0x69;

std::string key_name(int key) {
    if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z'))
        return std::string(1, static_cast<char>(key));
    if (key >= first_function_key && key <= last_function_key)
        return std::string("F").append(std::to_string(key - first_function_key + 1));
    if (key >= first_keypad_digit && key <= last_keypad_digit)
        return std::string("Num ").append(std::to_string(key - first_keypad_digit));
    const auto* found =
        std::find_if(std::begin(named_keys), std::end(named_keys), [=](const auto& n) { return n.key == key; });
    return found == std::end(named_keys) ? std::string() : std::string(found->name);
}

} // namespace

std::string shortcut_text(bool control, bool alt, bool shift, bool is_virtual_key, int key) {
    std::string name;
    if (is_virtual_key) {
        name = key_name(key);
    } else if (key >= 1 && key <= 26) { // a control character
        control = true;
        name = std::string(1, static_cast<char>('A' + key - 1));
    } else if (key > ' ' && key < 0x7F) {
        name = std::string(1, static_cast<char>(key));
    }
    if (name.empty())
        return name;
    return std::string(control ? "Ctrl+" : "") + (alt ? "Alt+" : "") + (shift ? "Shift+" : "") + name;
}

} // namespace wnt

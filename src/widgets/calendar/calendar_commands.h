#pragma once

#include <windows.h>

namespace wnt {

/// The commands of a calendar's menus, as hosts know them. It follows the months itself.
enum : UINT {
    january_command = 101,
    december_command = 112,
    close_command = 113,
    third_jump_command = 114,
    properties_command = 120,
    first_year_command = 200,
};

} // namespace wnt

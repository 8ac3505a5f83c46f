// What the driver does with each program: throws where it finds something else than it expects.
#pragma once

#include <string>

void drive_front_end(const std::string& program, const std::string& folder);

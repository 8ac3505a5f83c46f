// The platform's header as host programs write its name: file systems may tell capitals, or not.
#pragma once
#pragma GCC system_header

#include_next <sdkddkver.h>

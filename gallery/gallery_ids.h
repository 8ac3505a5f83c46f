#pragma once

// Identifiers of the gallery's own resources.
#define IDB_SPLASH 101
#define IDB_TOOLS_SMALL 102
#define IDB_TOOLS_LARGE 103
#define IDR_PLANT_TOOLS 104

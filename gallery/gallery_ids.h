#pragma once

// Identifiers of the gallery's own resources.
#define IDB_SPLASH 101

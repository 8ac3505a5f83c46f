// Programs include this by custom.
#pragma once

#include "atlconv.h"

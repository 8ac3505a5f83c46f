#pragma once

#include "out/wnt_out.h"

namespace wnt {

/// The font in which `chars` writes on this surface now; the caller deletes it.
HFONT make_chars_font(CWntOut& out);

} // namespace wnt

#pragma once

namespace wnt {

/// The percentage by which the front end's main frame enlarges what is as large at 96 dots an inch as designed: what
/// the drawing-support library says, where it can be loaded, or else the screen's. From 1 to 1000. A library
/// that could not be loaded is looked for again only where asked to.
int screen_scale(bool again = false);

} // namespace wnt

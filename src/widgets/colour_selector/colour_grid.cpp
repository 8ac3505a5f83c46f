#include "widgets/colour_selector/colour_grid.h"

#include "arithmetic.h"

namespace wnt {

int ColourGrid::hit(int x, int y) const {
    const int w = cell_width();
    const int h = cell_height();
    if (w == 0 || h == 0)
        return w + h * columns;
    if (y > height - h)
        return -1;
    const int row = wrapped::subtract(height - h, y) / h;
    return wrapped::add(x / w, wrapped::multiply(row, columns));
}

} // namespace wnt

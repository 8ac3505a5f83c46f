#include "page.h"

// Text: the nine alignments around their reference points, sizes, titles in boxes.

namespace {

void text(CWntOut& out, int x, int y, const char* what, int align) {
    out.chars(x, y, const_cast<char*>(what), align);
}

// A line at each reference point shows the rule: texts 0 to 2 stand on it, 4 to 6 begin a point size above it, 8 to 10
// half of that.
void alignments(CWntOut& out, int x, int y, int w, int h) {
    static constexpr struct {
        int align;
        const char* name;
    } all[] = {{4, "4 top left"},    {6, "6 top centre"},    {5, "5 top right"},
               {8, "8 centre left"}, {10, "10 centre"},      {9, "9 centre right"},
               {0, "0 bottom left"}, {2, "2 bottom centre"}, {1, "1 bottom right"}};
    out.settext(0, 0, 0, 15, 0, 0);
    out.linecolour(0, 0);
    text(out, x + 20, y + h - 24, "chars: the alignments, their points and the lines of y", 0);
    text(out, x + 20, y + h - 44,
         "cells of 0 to 2 end at y; of 4 to 6 they begin fontsize / 10 above it, of 8 to 10 half as much", 0);
    out.settext(0, 0, 0, 23, 0, 0);
    const int rows = h - 60;
    for (int i = 0; i < 9; ++i) {
        const int column = i % 3;
        const int px = x + 20 + column * (w - 40) / 2;
        const int py = y + rows - rows / 6 - i / 3 * rows / 3;
        out.linecolour(RGB(200, 210, 220), 0);
        out.hline(x + 20 + column * (w - 40) / 3, py, (w - 40) / 3 - 12);
        out.linecolour(6, 0);
        out.drawplus(px, py, 5);
        out.linecolour(0, 0);
        text(out, px, py, all[i].name, all[i].align);
    }
}

void sizes(CWntOut& out, int x, int top) {
    int y = top;
    for (int size : {10, 13, 15, 18, 23, 30, 40, 53}) {
        out.settext(0, 0, 0, size, 0, 0);
        y -= size + 8;
        char line[40];
        wsprintfA(line, "%d.%d points", size * 6 / 10, size * 6 % 10);
        out.linecolour(10, 0);
        text(out, x, y, line, 0);
    }
}

void titles(CWntOut& out, int x, int y, int w, int h) {
    out.settext(0, 0, 0, 15, 0, 0);
    out.linecolour(0, 0);
    text(out, x, y + h + 6, "titlechars: sized by the box, the baseline halfway up", 0);
    const int width = w / 4;
    for (int i = 0; i < 4; ++i) {
        const int left = x + i * width;
        const int height = h * (i + 1) / 4;
        out.linecolour(8, 0);
        out.boxr0(left, y, width - 16, height);
        out.linecolour(12, 0);
        char title[] = "Title";
        out.titlechars(left, y, width - 16, height, title);
    }
}

void paint(CWntOut& out) {
    FillSurface(out, RGB(250, 250, 250));
    const int middle = out.ymax * 2 / 5;
    alignments(out, 0, middle, out.xmax * 3 / 5, out.ymax - middle);
    sizes(out, out.xmax * 3 / 5 + 20, out.ymax - 10);
    titles(out, 20, 16, out.xmax - 40, middle - 56);
}

} // namespace

std::unique_ptr<CGalleryPage> MakeTextPage() {
    return std::make_unique<CPaintedPage>("Surface: text", "text", paint);
}

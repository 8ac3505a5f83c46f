#include "page.h"

// Text: the nine alignments around their reference points, sizes, titles in boxes.

namespace {

void text(CWntOut& out, int x, int y, const char* what, int align) {
    out.chars(x, y, const_cast<char*>(what), align);
}

void alignments(CWntOut& out, int x, int y, int w, int h) {
    static constexpr struct {
        int align;
        const char* name;
    } all[] = {{4, "top left"},     {6, "top centre"},  {5, "top right"},     {8, "centre left"}, {10, "centre"},
               {9, "centre right"}, {0, "bottom left"}, {2, "bottom centre"}, {1, "bottom right"}};
    out.settext(0, 0, 0, 18, 0, 0);
    for (int i = 0; i < 9; ++i) {
        const int px = x + w / 6 + i % 3 * w / 3;
        const int py = y + h - h / 6 - i / 3 * h / 3;
        out.linecolour(6, 0);
        out.drawplus(px, py, 4);
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
    int left = x;
    for (int part : {8, 5, 3, 2}) {
        const int height = h / part;
        const int width = w * 2 / (part + 2);
        if (left + width > x + w)
            break;
        out.linecolour(8, 0);
        out.boxr0(left, y, width, height);
        out.linecolour(12, 0);
        char title[] = "Title";
        out.titlechars(left, y, width, height, title);
        left += width + 12;
    }
}

void paint(CWntOut& out) {
    FillSurface(out, RGB(250, 250, 250));
    const int middle = out.ymax * 2 / 5;
    alignments(out, 0, middle, out.xmax * 3 / 5, out.ymax - middle);
    sizes(out, out.xmax * 3 / 5 + 20, out.ymax - 10);
    titles(out, 20, 20, out.xmax - 40, middle - 40);
}

} // namespace

std::unique_ptr<CGalleryPage> MakeTextPage() {
    return std::make_unique<CPaintedPage>("Surface: text", "text", paint);
}

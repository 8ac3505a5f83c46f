// The picture of an axis by plain GDI calls, from a list of what it has to show.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

struct AxisMark {
    int pixel;  // along the axis
    int length; // across
    std::string label;
};

/// Ticks start `tick_start` pixels within the edge that carries them, labels stand `label_start` within.
struct AxisLook {
    int position; // 0 top, 1 left, 2 bottom, 3 right
    int tick_start;
    int label_start;
};
inline constexpr int value_ticks_start = 2, value_labels_start = 8, time_ticks_start = 1, time_labels_start = 10;

inline void draw_line(HDC dc, int system_colour, int x1, int y1, int x2, int y2) {
    ::SetDCPenColor(dc, ::GetSysColor(system_colour));
    ::MoveToEx(dc, x1, y1, nullptr);
    ::LineTo(dc, x2, y2);
}

inline void paint_axis(HDC dc, int width, int height, const AxisLook& look, const std::vector<AxisMark>& marks) {
    static constexpr UINT alignments[] = {TA_CENTER | TA_BOTTOM, TA_RIGHT | TA_BASELINE, TA_CENTER | TA_TOP,
                                          TA_LEFT | TA_BASELINE};
    const bool horizontal = look.position % 2 == 0;
    const auto at = [&](LONG along, LONG depth) {
        const LONG across = look.position > 1 ? depth : (horizontal ? height : width) - depth;
        return horizontal ? POINT{along, across} : POINT{across, along};
    };
    static const HFONT font = ::CreateFontA(-10, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    const int saved = ::SaveDC(dc);
    ::SelectObject(dc, ::GetStockObject(DC_PEN));
    ::SelectObject(dc, ::GetStockObject(GRAY_BRUSH));
    ::PatBlt(dc, 1, 1, width - 2, height - 2, PATCOPY);
    draw_line(dc, COLOR_BTNSHADOW, width - 1, 0, width - 1, height - 1);
    draw_line(dc, COLOR_BTNSHADOW, width - 1, height - 1, -1, height - 1);
    draw_line(dc, COLOR_BTNHIGHLIGHT, 0, height - 2, 0, 0);
    draw_line(dc, COLOR_BTNHIGHLIGHT, 0, 0, width - 1, 0);
    ::SelectObject(dc, font);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextAlign(dc, alignments[look.position]);
    for (const AxisMark& mark : marks) {
        const POINT from = at(mark.pixel, look.tick_start);
        const POINT to = at(mark.pixel, look.tick_start + mark.length);
        draw_line(dc, COLOR_BTNSHADOW, from.x, from.y, to.x, to.y);
        draw_line(dc, COLOR_BTNHIGHLIGHT, from.x + horizontal, from.y + !horizontal, to.x + horizontal,
                  to.y + !horizontal);
        const POINT text = at(mark.pixel, look.label_start);
        ::TextOutA(dc, text.x, text.y, mark.label.c_str(), static_cast<int>(mark.label.size()));
    }
    ::RestoreDC(dc, saved);
}

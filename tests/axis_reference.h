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

struct AxisReference {
    AxisReference()
        : font_(::CreateFontA(-10, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial")),
          shadow_(::CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW))),
          light_(::CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNHIGHLIGHT))),
          ground_(::CreateSolidBrush(RGB(128, 128, 128))) {}
    ~AxisReference() {
        for (HGDIOBJ object : {shadow_, light_, ground_, font_})
            ::DeleteObject(object);
    }
    AxisReference(const AxisReference&) = delete;
    AxisReference& operator=(const AxisReference&) = delete;

    void paint(HDC dc, int width, int height, const AxisLook& look, const std::vector<AxisMark>& marks) const {
        static constexpr UINT alignments[] = {TA_CENTER | TA_BOTTOM, TA_RIGHT | TA_BASELINE, TA_CENTER | TA_TOP,
                                              TA_LEFT | TA_BASELINE};
        const bool horizontal = look.position % 2 == 0;
        const auto at = [&](LONG along, LONG depth) {
            const LONG across = look.position > 1 ? depth : (horizontal ? height : width) - depth;
            return horizontal ? POINT{along, across} : POINT{across, along};
        };
        const int saved = ::SaveDC(dc);
        ::SelectObject(dc, ground_);
        ::PatBlt(dc, 1, 1, width - 2, height - 2, PATCOPY);
        line(dc, shadow_, width - 1, 0, width - 1, height - 1);
        line(dc, shadow_, width - 1, height - 1, -1, height - 1);
        line(dc, light_, 0, height - 2, 0, 0);
        line(dc, light_, 0, 0, width - 1, 0);
        ::SelectObject(dc, font_);
        ::SetBkMode(dc, TRANSPARENT);
        ::SetTextAlign(dc, alignments[look.position]);
        for (const AxisMark& mark : marks) {
            const POINT from = at(mark.pixel, look.tick_start);
            const POINT to = at(mark.pixel, look.tick_start + mark.length);
            line(dc, shadow_, from.x, from.y, to.x, to.y);
            line(dc, light_, from.x + horizontal, from.y + !horizontal, to.x + horizontal, to.y + !horizontal);
            const POINT text = at(mark.pixel, look.label_start);
            if (!mark.label.empty())
                ::TextOutA(dc, text.x, text.y, mark.label.c_str(), static_cast<int>(mark.label.size()));
        }
        ::RestoreDC(dc, saved);
    }

private:
    static void line(HDC dc, HGDIOBJ pen, int x1, int y1, int x2, int y2) {
        ::SelectObject(dc, pen);
        ::MoveToEx(dc, x1, y1, nullptr);
        ::LineTo(dc, x2, y2);
    }

    HGDIOBJ font_, shadow_, light_, ground_;
};

// Full paints of the calendar and of a colour panel beside the raw GDI calls for the same boxes and texts, all by way
// of a picture in memory.
#include <zopwnt.h>

#include <array>

#include "calendar_reference.h"
#include "time_zone.h"
#include "yardstick_window.h"

namespace {

constexpr int width = 400;
constexpr int height = 300;

void measure_calendar(BenchTable& table, CWnd& host) {
    CWntCalendar calendar;
    calendar.Create(nullptr, "Calendar", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &host, 1);
    const CalendarReference reference(width, height);
    const auto today = CalendarReference::today();
    const auto scroll = [&](bool down) { // by a week, with a click on a strip
        calendar.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(width / 2, down ? height - 9 : 9));
    };
    scroll(true);
    const auto set = [&](int week) { scroll(week == 1); };
    const auto paint = [&](HDC dc, int week) {
        for (int top : {0, height - 17}) { // the strips, without their arrows
            RECT strip = {0, top, width, top + 17};
            ::DrawFrameControl(dc, &strip, DFC_BUTTON, DFCS_BUTTONPUSH);
        }
        reference.paint(dc, today + std::chrono::weeks(week), today);
    };
    measure_paint(table, "calendar, full paint", calendar, 2, set, paint, 17, height - 17);
}

void framed_box(HDC dc, int left, int top, int right, int bottom, COLORREF fill) {
    const HBRUSH brush = ::CreateSolidBrush(fill);
    const HGDIOBJ previous = ::SelectObject(dc, brush);
    ::Rectangle(dc, left, top, right + 1, bottom + 1);
    ::SelectObject(dc, previous);
    ::DeleteObject(brush);
}

void edge(HDC dc, int system_colour, int x1, int y1, int x2, int y2, int x3, int y3) {
    const HPEN pen = ::CreatePen(PS_SOLID, 1, ::GetSysColor(system_colour));
    const HGDIOBJ previous = ::SelectObject(dc, pen);
    const POINT line[3] = {{x1, y1}, {x2, y2}, {x3, y3}};
    ::Polyline(dc, line, 3);
    ::SetPixelV(dc, x3, y3, ::GetSysColor(system_colour));
    ::SelectObject(dc, previous);
    ::DeleteObject(pen);
}

void measure_panel(BenchTable& table, CWnd& host) {
    static std::array<std::array<DWORD, 256>, 2> palettes;
    for (DWORD i = 0; i < 256; ++i) {
        palettes[0][i] = RGB(i, 3 * i, 7 * i); // the first one is that of the frames
        palettes[1][i] = RGB(5 * i, i, 3 * i);
    }
    CWntColorSel selector;
    selector.Create(nullptr, "Colours", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &host, 1);
    const auto set = [&](int i) { selector.SetColorPalette(palettes[static_cast<std::size_t>(i)].data(), 256); };
    constexpr int cell_width = width / 8, cell_height = height / 33;
    const auto paint = [&](HDC dc, int palette) {
        const auto& colours = palettes[static_cast<std::size_t>(palette)];
        framed_box(dc, 0, 0, width - 1, height - 1, ::GetSysColor(COLOR_BTNFACE));
        for (int i = 0; i < 256; ++i) {
            const int x = i % 8 * cell_width, y = (i / 8 + 1) * cell_height - 1;
            framed_box(dc, x, y, x + cell_width, y + cell_height, colours[static_cast<std::size_t>(i)]);
        }
        edge(dc, COLOR_3DDKSHADOW, 0, height - 1, 0, 0, width - 1, 0);
        edge(dc, COLOR_3DHIGHLIGHT, width - 1, 0, width - 1, height - 1, 0, height - 1);
        framed_box(dc, 0, 0, width - 1, cell_height - 1, colours[0]);
    };
    measure_paint(table, "256 colours, full paint", selector, 2, set, paint, cell_height + 1, height);
}

} // namespace

int main(int argc, char** argv) {
    set_zone("UTC0");
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    CWnd host;
    if (!host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, width, 2 * height), nullptr, 0))
        return 1;
    host.ShowWindow(SW_SHOWNOACTIVATE);
    BenchTable table("calendar");
    measure_calendar(table, host);
    measure_panel(table, host);
    const int result = table.finish(argc, argv);
    host.DestroyWindow();
    return result;
}

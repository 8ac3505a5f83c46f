// A sash dragged between two gauges beside the raw calls that move two such gauges and draw the same bar.
#include <zopwnt.h>

#include "yardstick_window.h"

namespace {

constexpr int width = 405;
constexpr int height = 200;
constexpr int bar = 5;
constexpr int positions = 100; // dragged over and back, by a pixel a step

int position_at(int step) {
    step %= 2 * positions;
    return 150 + (step < positions ? step : 2 * positions - step);
}

struct Gauges {
    CWntGauge first, second;

    void create(CWnd* parent) {
        const CRect nowhere(0, 0, 0, 0);
        first.Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, parent, 1);
        second.Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, parent, 2);
        first.SetType(2);
        second.SetType(0);
        first.SetTitles("Pressure", "bar");
        second.SetTitles("Level", "cm");
    }
    // As a splitter without anything of the library's would.
    void move(int position) {
        HDWP moves = ::BeginDeferWindowPos(2);
        moves = ::DeferWindowPos(moves, first.m_hWnd, nullptr, 0, 0, position, height, SWP_NOZORDER | SWP_NOACTIVATE);
        moves = ::DeferWindowPos(moves, second.m_hWnd, nullptr, position + bar, 0, width - position - bar, height,
                                 SWP_NOZORDER | SWP_NOACTIVATE);
        ::EndDeferWindowPos(moves);
    }
};

void line(HDC dc, int x1, int y1, int x2, int y2, int colour) {
    const HPEN pen = ::CreatePen(PS_SOLID, 1, ::GetSysColor(colour));
    const HGDIOBJ before = ::SelectObject(dc, pen);
    ::MoveToEx(dc, x1, y1, nullptr);
    ::LineTo(dc, x2, y2);
    ::SelectObject(dc, before);
    ::DeleteObject(pen);
}

// Raised and dotted, with the focus, as a bar looks while it is dragged.
void paint_bar(HDC dc, int position) {
    const RECT all = {0, 0, width, height};
    ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_BTNFACE));
    const int right = position + bar - 1, bottom = height - 1;
    line(dc, position, bottom, position, -1, COLOR_3DHIGHLIGHT);
    line(dc, position, 0, right + 1, 0, COLOR_3DHIGHLIGHT);
    line(dc, right, bottom, right, -1, COLOR_3DDKSHADOW);
    line(dc, position, bottom, right + 1, bottom, COLOR_3DDKSHADOW);
    for (int i = -2; i <= 2; ++i) {
        const int x = position + bar / 2, y = height / 2 + 5 * i;
        const RECT dot = {x - 1, y - 1, x + 1, y + 1};
        ::FillRect(dc, &dot, ::GetSysColorBrush(COLOR_3DDKSHADOW));
    }
    const RECT focus = {position + 1, 1, right, bottom};
    ::SetTextColor(dc, 0);
    ::SetBkColor(dc, RGB(255, 255, 255));
    ::DrawFocusRect(dc, &focus);
}

void show(HWND window) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

std::vector<COLORREF> look_at(HWND window) {
    Picture picture(width, height);
    picture.capture(window);
    return picture.values();
}

void measure(BenchTable& table, CWnd& host) {
    CWntSash sash;
    Gauges ours;
    sash.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, width, height), &host, 1);
    ours.create(&sash);
    sash.SetPanes(&ours.first, &ours.second);
    sash.SetPosition(position_at(0));
    int position = position_at(0);
    const YardstickWindow raw(host.m_hWnd, CPoint(0, height), CSize(width, height),
                              [&](HDC dc) { paint_bar(dc, position); });
    ::SetWindowLongPtrA(raw.window(), GWL_STYLE, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN);
    Gauges theirs;
    theirs.create(CWnd::FromHandle(raw.window()));
    sash.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(position, 50));
    const auto drag = [&](int step) {
        sash.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(position_at(step), 50));
        show(sash.m_hWnd);
    };
    const auto move = [&](int step) {
        position = position_at(step);
        theirs.move(position);
        ::InvalidateRect(raw.window(), nullptr, FALSE);
        show(raw.window());
    };
    const auto look = [&] { return look_at(sash.m_hWnd); };
    const auto look_at_raw = [&] { return look_at(raw.window()); };
    for (int step = 1; step < 2 * positions; ++step) {
        drag(step);
        move(step);
        if (look() != look_at_raw())
            return table.wrong("sash, a step of a drag");
    }
    table.measure_shown("sash, a step of a drag", drag, look, move, look_at_raw, 2 * positions);
}

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    CWnd host;
    if (!host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, width, 2 * height), nullptr, 0))
        return 1;
    host.ShowWindow(SW_SHOW);
    BenchTable table("sash");
    measure(table, host);
    const int result = table.finish(argc, argv);
    host.DestroyWindow();
    return result;
}

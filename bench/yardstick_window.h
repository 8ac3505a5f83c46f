// A window that a function paints by raw GDI calls, without framework and library, as the yardstick of a widget.
#pragma once

#include <zopwnt.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "bench_table.h"
#include "pixels.h"

class YardstickWindow {
public:
    using Painter = std::function<void(HDC)>;

    /// The painter draws into memory; the finished picture is shown at once, as the widgets do it against flicker.
    YardstickWindow(HWND parent, CPoint place, CSize size, Painter painter)
        : size_(size), painter_(std::move(painter)) {
        static const ATOM window_class = registered();
        window_ = ::CreateWindowA(MAKEINTATOM(window_class), "", WS_CHILD | WS_VISIBLE, place.x, place.y, size.cx,
                                  size.cy, parent, nullptr, nullptr, nullptr);
        ::SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~YardstickWindow() { ::DestroyWindow(window_); }
    YardstickWindow(const YardstickWindow&) = delete;
    YardstickWindow& operator=(const YardstickWindow&) = delete;

    HWND window() const { return window_; }

private:
    static ATOM registered() {
        WNDCLASSA description = {};
        description.lpfnWndProc = &procedure;
        description.lpszClassName = "yardstick";
        return ::RegisterClassA(&description);
    }
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* self = reinterpret_cast<YardstickWindow*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
        if (message != WM_PAINT || !self)
            return ::DefWindowProcA(window, message, wParam, lParam);
        self->paint();
        return 0;
    }
    void paint() {
        PAINTSTRUCT paint;
        const HDC dc = ::BeginPaint(window_, &paint);
        const HDC memory = ::CreateCompatibleDC(dc);
        const HBITMAP bitmap = ::CreateCompatibleBitmap(dc, size_.cx, size_.cy);
        const HGDIOBJ previous = ::SelectObject(memory, bitmap);
        painter_(memory);
        ::BitBlt(dc, 0, 0, size_.cx, size_.cy, memory, 0, 0, SRCCOPY);
        ::SelectObject(memory, previous);
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
        ::EndPaint(window_, &paint);
    }

    CSize size_;
    Painter painter_;
    HWND window_;
};

inline void repaint(HWND window) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

/// Times full paints of a widget at the upper left of its host beside those of the painter. Both show `states` in turn:
/// `set` brings the widget to the one with a number, the painter is given it. In each, the rows from `first` to `last`
/// must look the same.
inline void measure_paint(BenchTable& table, const std::string& name, CWnd& widget, int states,
                          const std::function<void(int)>& set, const std::function<void(HDC, int)>& painter, int first,
                          int last) {
    CRect client;
    widget.GetClientRect(&client);
    int state = 0;
    const YardstickWindow yardstick(::GetParent(widget.m_hWnd), CPoint(0, client.bottom), client.Size(),
                                    [&](HDC dc) { painter(dc, state); });
    const auto rows = [&](HWND window) {
        Picture picture(client.right, client.bottom);
        picture.capture(window);
        const auto values = picture.values();
        return std::vector<COLORREF>(values.begin() + first * client.right, values.begin() + last * client.right);
    };
    const auto look = [&] { return rows(widget.m_hWnd); };
    const auto look_at_yardstick = [&] { return rows(yardstick.window()); };
    const auto ours = [&](int i) {
        set(i % states);
        repaint(widget.m_hWnd);
    };
    const auto theirs = [&](int i) {
        state = i % states;
        repaint(yardstick.window());
    };
    for (int i = 0; i < states; ++i) {
        ours(i);
        theirs(i);
        if (look() != look_at_yardstick())
            return table.wrong(name);
    }
    table.measure_shown(name, ours, look, theirs, look_at_yardstick, states);
}

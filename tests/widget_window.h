// A host window for a widget under test, and its pixels.
#pragma once

#include <functional>
#include <shlobj.h>
#include <string_view>
#include <tuple>

#include "pixels.h"
#include "quiet_program.h"
#include "trapping.h"

inline constexpr COLORREF poison = RGB(255, 0, 254); // no widget paints it

/// What a window's client area shows; positions count from the upper left.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<COLORREF> values;

    COLORREF at(int x, int y) const { return values[static_cast<std::size_t>(y) * width + x]; }
    long count(COLORREF colour) const { return static_cast<long>(std::count(values.begin(), values.end(), colour)); }
    friend bool operator==(const Pixels&, const Pixels&) = default;
};

inline CSize size_of(CWnd& window) {
    CRect client;
    window.GetClientRect(&client);
    return client.Size();
}

inline CRect on_screen(CWnd& window) {
    CRect r;
    window.GetWindowRect(&r);
    return r;
}

inline CRect place_in(CWnd& parent, CWnd& window) {
    CRect r = on_screen(window);
    parent.ScreenToClient(&r);
    return r;
}

/// Puts the pointer over a point of a window, without the messages of a move.
inline void point_at(CWnd& window, CPoint at) {
    window.ClientToScreen(&at);
    ::SetCursorPos(at.x, at.y);
}

/// The shape that a window gives the pointer there.
inline HCURSOR pointer_at(CWnd& window, CPoint at) {
    point_at(window, at);
    ::SetCursor(nullptr);
    window.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(window.m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return ::GetCursor();
}

/// Drops a file on a window; without a name, nothing. Gives the block, which the window should have released.
inline HGLOBAL drop_file(CWnd& window, std::string_view name) {
    const HGLOBAL block = ::GlobalAlloc(GHND, sizeof(DROPFILES) + name.size() + 2);
    auto* description = static_cast<DROPFILES*>(::GlobalLock(block));
    description->pFiles = sizeof(DROPFILES);
    std::copy(name.begin(), name.end(), reinterpret_cast<char*>(description + 1));
    ::GlobalUnlock(block);
    window.SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(block));
    return block;
}

inline Pixels pixels_of(CWnd& window) {
    const CSize size = size_of(window);
    Picture picture(size.cx, size.cy);
    picture.capture(window.m_hWnd);
    return {size.cx, size.cy, picture.values()};
}

/// A part of it in letters.
inline std::string sketch(const Pixels& seen, const CRect& part, const std::vector<std::pair<COLORREF, char>>& names) {
    std::vector<COLORREF> values;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            values.push_back(seen.at(x, y));
    return letters(values, part.Width(), names);
}

inline void full_repaint(CWnd& widget) {
    widget.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

inline Pixels repainted(CWnd& widget) {
    full_repaint(widget);
    return pixels_of(widget);
}

/// Covers a widget's surface: what is painted next shows as pixels that lost this colour.
inline void cover(CWnd& widget, int surface_id, COLORREF colour) {
    CWnd* surface = widget.GetDlgItem(surface_id);
    CClientDC(surface).FillSolidRect(CRect(CPoint(0, 0), size_of(*surface)), colour);
}

/// A host that keeps the messages and notifications that it gets.
struct AttentiveHost : CWnd {
    std::vector<std::tuple<UINT, WPARAM, LPARAM>> seen;
    std::vector<NMHDR> notified;
    std::function<void(UINT)> on_message = [](UINT) {};

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        seen.emplace_back(message, wParam, lParam);
        if (message == WM_NOTIFY)
            notified.push_back(*reinterpret_cast<NMHDR*>(lParam));
        on_message(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

struct WidgetTest : testing::Test {
    void SetUp() override {
        ASSERT_TRUE(host_.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, 1010, 1010), nullptr, 0));
        host_.ShowWindow(SW_SHOWNOACTIVATE);
    }
    void TearDown() override { host_.DestroyWindow(); }

    void open(CWnd& widget, int width, int height) {
        ASSERT_TRUE(widget.Create(nullptr, "Widget", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                                  CRect(0, 0, width, height), &host_, 1));
        full_repaint(widget);
    }

    AttentiveHost host_;
};

// A host window for a widget under test, and its pixels.
#pragma once

#include <zopwnt.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <vector>

inline constexpr COLORREF poison = RGB(255, 0, 254); // no widget paints it

/// The pixels of a window's client area.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> values; // 0x00RRGGBB, upper row first

    COLORREF at(int x, int y) const {
        const std::uint32_t v = values[static_cast<std::size_t>(y) * width + x];
        return RGB(v >> 16 & 0xFF, v >> 8 & 0xFF, v & 0xFF);
    }
    long count(COLORREF colour) const {
        const std::uint32_t v = GetRValue(colour) << 16 | GetGValue(colour) << 8 | GetBValue(colour);
        return static_cast<long>(std::count(values.begin(), values.end(), v));
    }
    friend bool operator==(const Pixels&, const Pixels&) = default;
};

inline Pixels pixels_of(CWnd& window) {
    CRect client;
    window.GetClientRect(&client);
    Pixels p = {client.Width(), client.Height(), {}};
    p.values.resize(static_cast<std::size_t>(p.width) * p.height);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, p.width, -p.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    CClientDC dc(&window);
    HDC memory = ::CreateCompatibleDC(dc.m_hDC);
    void* bits = nullptr;
    HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ previous = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, p.width, p.height, dc.m_hDC, 0, 0, SRCCOPY);
    ::GdiFlush();
    std::copy_n(static_cast<const std::uint32_t*>(bits), p.values.size(), p.values.begin());
    for (auto& v : p.values)
        v &= 0xFFFFFF;
    ::SelectObject(memory, previous);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    return p;
}

inline void full_repaint(CWnd& widget) {
    widget.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

/// Covers a widget's surface: what is painted next shows as pixels that lost this colour.
inline void cover(CWnd& widget, int surface_id, COLORREF colour) {
    CWnd* surface = widget.GetDlgItem(surface_id);
    CClientDC dc(surface);
    CRect area;
    surface->GetClientRect(&area);
    dc.FillSolidRect(&area, colour);
}

class WidgetTest : public testing::Test {
protected:
    void SetUp() override {
        static const bool framework = AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0);
        ASSERT_TRUE(framework);
        ASSERT_TRUE(host_.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, 1010, 1010), nullptr, 0));
        host_.ShowWindow(SW_SHOWNOACTIVATE);
    }
    void TearDown() override { host_.DestroyWindow(); }

    void open(CWnd& widget, int width, int height) {
        ASSERT_TRUE(widget.Create(nullptr, "Widget", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                                  CRect(0, 0, width, height), &host_, 1));
        full_repaint(widget);
    }

    CWnd host_;
};

// A drawing surface in a hidden host window, and a picture that it draws into.
#pragma once

#include <zopwnt.h>

#include <gmock/gmock.h>

#include <string>

#include "pixels.h"

constexpr COLORREF ground = RGB(64, 64, 64);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);

class SurfaceTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, 200, 200), nullptr, 0));
        ASSERT_TRUE(create(out, 100, 80));
    }
    void TearDown() override {
        out.ReleaseDrawing();
        host.DestroyWindow();
    }

    BOOL create(CWntOut& surface, int width, int height) {
        return surface.Create(nullptr, "Out", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &host, 100);
    }
    void show() { host.ShowWindow(SW_SHOWNOACTIVATE); }

    /// Draws with red lines and green fills on the ground.
    template <class Draw> void paint(const Picture& picture, Draw draw) {
        out.SetWindowPos(nullptr, 0, 0, picture.width(), picture.height(), SWP_NOZORDER);
        ASSERT_EQ(out.reset(picture.dc()), 1);
        out.linecolour(red, 0);
        out.fillcolour(green, 0);
        draw(out);
        out.endpaint();
    }
    /// A small drawing in letters: L line, F fill, dot ground.
    template <class Draw> std::string drawn(int width, int height, Draw draw) {
        Picture picture(width, height);
        picture.clear(ground);
        paint(picture, draw);
        return picture.letters({{ground, '.'}, {red, 'L'}, {green, 'F'}});
    }

    CWnd host;
    CWntOut out;
};

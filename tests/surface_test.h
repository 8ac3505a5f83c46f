// A drawing surface in a host window, and a picture that it draws into.
#pragma once

#include "widget_window.h"

constexpr COLORREF ground = RGB(60, 60, 60);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);

struct SurfaceTest : WidgetTest {
    void SetUp() override {
        WidgetTest::SetUp();
        open(out, 100, 80);
    }

    /// Draws with red lines and green fills on the ground.
    template <class Draw> void paint(Picture& picture, Draw draw) {
        picture.clear(ground);
        out.SetWindowPos(nullptr, 0, 0, picture.width(), picture.height(), SWP_NOZORDER);
        ASSERT_EQ(out.reset(picture.dc()), 1);
        out.linecolour(red, 0);
        out.fillcolour(green, 0);
        draw(out);
        out.endpaint();
    }
    /// A small drawing in letters: L line, F fill, dot ground, H highlight, D deep shadow.
    template <class Draw> std::string drawn(int width, int height, Draw draw) {
        Picture picture(width, height);
        paint(picture, draw);
        const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT), dark = ::GetSysColor(COLOR_3DDKSHADOW);
        return letters(picture.values(), width, {{ground, '.'}, {red, 'L'}, {green, 'F'}, {light, 'H'}, {dark, 'D'}});
    }

    CWntOut out;
};

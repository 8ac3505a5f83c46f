// Colours of a surface's window on a screen of so many bits a pixel as the last argument says.
#include "surface_test.h"

#include <cstdlib>
#include <cstring>

namespace {

class DepthTest : public SurfaceTest {
protected:
    void SetUp() override {
        SurfaceTest::SetUp();
        const int expected = std::atoi(std::strrchr(::GetCommandLineA(), ' '));
        show();
        ASSERT_EQ(out.reset(), 1);
        depth_ = ::GetDeviceCaps(out.dc, BITSPIXEL);
        ASSERT_EQ(depth_, expected == 24 ? 32 : expected);
        ASSERT_EQ((::GetDeviceCaps(out.dc, RASTERCAPS) & RC_PALETTE) != 0, expected == 8);
    }
    /// The named colours are among the few of any screen; at 16 bits the parts have 5 or 6.
    void expect_shown(COLORREF shown, COLORREF wanted) const {
        const int tolerance = depth_ == 16 ? 8 : 0;
        EXPECT_NEAR(GetRValue(shown), GetRValue(wanted), tolerance) << std::hex << shown << ' ' << wanted;
        EXPECT_NEAR(GetGValue(shown), GetGValue(wanted), tolerance) << std::hex << shown << ' ' << wanted;
        EXPECT_NEAR(GetBValue(shown), GetBValue(wanted), tolerance) << std::hex << shown << ' ' << wanted;
    }
    Picture& captured() {
        shown_.capture(out);
        return shown_;
    }

private:
    int depth_ = 0;
    Picture shown_{100, 80};
};

} // namespace

TEST_F(DepthTest, LinesAndFillsShowTheirColours) {
    out.linecolour(RGB(9, 9, 9), 0);
    out.fillcolour(RGB(9, 9, 9), 0);
    for (int i = 0; i < 16; ++i) {
        out.linecolour(i, 0);
        out.fillcolour(15 - i, 0);
        out.boxr1(6 * i, 10, 5, 20);
        out.hline(6 * i, 40, 5);
        POINT square[] = {{6 * i, 50}, {6 * i + 5, 50}, {6 * i + 5, 60}, {6 * i, 60}};
        out.solidpoly(square, 4);
    }
    const Picture& shown = captured();
    for (int i = 0; i < 16; ++i) {
        expect_shown(shown.at(6 * i, 20), out.rgbcolor(i));
        expect_shown(shown.at(6 * i + 2, 20), out.rgbcolor(15 - i));
        expect_shown(shown.at(6 * i + 5, 40), out.rgbcolor(i));
        expect_shown(shown.at(6 * i, 50), out.rgbcolor(15 - i));
    }
    COLORREF ramp[3] = {RGB(40, 90, 200), RGB(240, 120, 10), RGB(0, 51, 102)};
    out.setcolorpalette(ramp, 3);
    for (int i = 0; i < 6; ++i) {
        out.fillcolour(i, 0);
        out.boxa2(10 * i, 0, 10 * i + 9, 9);
    }
    const auto ramps = captured().values();
    CClientDC plain(&out);
    for (int i = 0; i < 6; ++i) { // a screen of few colours mixes them, so whole boxes are compared
        CBrush brush(ramp[i % 3]);
        plain.FillRect(CRect(10 * i, 70, 10 * i + 10, 80), &brush);
    }
    EXPECT_EQ(captured().values(), ramps);
    plain.FillSolidRect(0, 70, 10, 10, 0);
    EXPECT_NE(captured().values(), ramps);
}

TEST_F(DepthTest, RubberBandsRemoveThemselves) {
    out.fillcolour(3, 0);
    out.boxa2(0, 0, 99, 79);
    const auto before = captured().values();
    const auto bands = [this] {
        Tpt triangle[] = {{5, 5}, {60, 20}, {30, 70}};
        out.linecolour(2, 0);
        out.trackline(0, 0, 99, 79);
        out.trackbox(10, 10, 50, 30, 0x100);
        out.trackpoly(triangle, 3);
    };
    bands();
    EXPECT_NE(captured().values(), before);
    bands();
    EXPECT_EQ(captured().values(), before);
}

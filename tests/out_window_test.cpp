// The surface as a window: device context, input, clipping, contents, ownership.
#include "held_keys.h"
#include "surface_test.h"

#include <climits>
#include <memory>

TEST_F(SurfaceTest, DeviceContextCycle) {
    CWntOut bare;
    EXPECT_EQ(bare.reset(), 0);
    EXPECT_THAT((std::vector{bare.bkcolour, bare.fillcolour_, bare.linecolour_, COLORREF(bare.fontsize)}),
                testing::ElementsAre(0xFFFFFF, 0xFF0000, 0, 80));
    CFont font;
    bare.setbackground(RGB(1, 2, 3), 4);
    bare.setbackgroundbitmap(5);
    bare.setfont(&font);
    EXPECT_THAT((std::vector{bare.bkcolour, COLORREF(bare.bkflag), COLORREF(bare.bkbitmap)}),
                testing::ElementsAre(RGB(1, 2, 3), 4, 5));
    EXPECT_EQ(bare.font, &font);
    host_.ShowWindow(SW_HIDE);
    EXPECT_EQ(out.reset(), 0); // hidden with its host
    host_.ShowWindow(SW_SHOWNOACTIVATE);
    out.SetWindowPos(nullptr, 0, 0, 90, 70, SWP_NOZORDER);
    EXPECT_EQ(CSize(out.xmax, out.ymax), CSize(90, 70)); // one more than after reset()
    ASSERT_EQ(out.reset(), 1);
    EXPECT_EQ(CSize(out.xmax, out.ymax), CSize(89, 69));
    const HDC own = out.dc;
    out.endpaint();

    Picture other(20, 20);
    ASSERT_EQ(out.reset(other.dc()), 1);
    out.endpaint();
    EXPECT_EQ(out.dc, nullptr);
    ASSERT_EQ(out.reset(), 1);
    out.endpaint(); // its own stays
    EXPECT_EQ(out.dc, own);
    out.linecolour(red, 0);
    out.line(0, 0, 89, 69);
    EXPECT_TRUE(pixels_of(out).at(0, 69) == red && pixels_of(out).at(89, 0) == red);

    out.DestroyWindow(); // a new window draws into itself, not into the old one's device context
    open(out, 60, 40);
    ASSERT_EQ(out.reset(), 1);
    EXPECT_EQ(out.ymax, 39);
    out.linecolour(green, 0);
    out.line(0, 0, 0, 0);
    EXPECT_EQ(pixels_of(out).at(0, 39), green);
}

TEST_F(SurfaceTest, ParentSeesInputFirst) {
    const auto forwarded = [&](UINT message) {
        host_.seen.clear();
        out.SendMessage(message, 3, 0x00050007);
        return std::ranges::count(host_.seen, std::tuple(message, WPARAM(3), LPARAM(0x50007))) == 1;
    };
    for (const UINT message : {WM_KEYDOWN, WM_CHAR, WM_SYSKEYDOWN, WM_SYSCHAR, WM_MOUSEMOVE, WM_LBUTTONDOWN,
                               WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONUP, WM_RBUTTONDBLCLK, WM_RBUTTONDOWN})
        EXPECT_TRUE(forwarded(message)) << message;
    for (const UINT message : {WM_KEYUP, WM_MBUTTONDOWN, WM_MBUTTONUP})
        EXPECT_FALSE(forwarded(message)) << message;
    host_.seen.clear();
    EXPECT_EQ(out.SendMessage(WM_MOUSEWHEEL, 0, 0), 1);
    EXPECT_EQ(host_.seen.size(), 1u);

    auto doomed = std::make_unique<CWntOut>();
    open(*doomed, 50, 50);
    const HWND window = *doomed;
    host_.on_message = [&](UINT message) {
        if (message != WM_LBUTTONDOWN)
            return;
        doomed->DestroyWindow(); // in the middle of the message
        doomed.reset();
    };
    ::SendMessage(window, WM_LBUTTONDOWN, 0, 0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(SurfaceTest, KeysAreTranslatedByTheStateOfTheKeyboard) {
    const HeldKeys keys({VK_TAB, VK_SHIFT});
    int code[2] = {-1, -1};
    EXPECT_EQ(out.Whelper_translatekeyboardinput(code, WM_CHAR, VK_TAB, 0), 1);
    EXPECT_THAT(code, testing::ElementsAre(3, 3));
}

TEST_F(SurfaceTest, PointerShapesAndPosition) {
    const HINSTANCE library = ::GetModuleHandleA("ZOPWNT.dll");
    const std::pair<char, LPCSTR> standard[] = {{'A', IDC_ARROW},  {'I', IDC_IBEAM},     {'W', IDC_WAIT},
                                                {'+', IDC_CROSS},  {'*', IDC_SIZEALL},   {'|', IDC_SIZENS},
                                                {'-', IDC_SIZEWE}, {'\\', IDC_SIZENWSE}, {'/', IDC_SIZENESW}};
    const std::pair<char, LPCSTR> own[] = {{'i', "ILLEGAL"}, {'v', "V_SASH"},         {'h', "H_SASH"},
                                           {'c', "COMM"},    {'m', "MOVENODES"},      {'p', "PEN"},
                                           {'f', "FCK"},     {'l', "OBJCONNECTLEFT"}, {'r', "OBJCONNECTRIGHT"}};
    std::string shapes;
    for (short id = 0; id <= 28; ++id) {
        ::SetCursor(nullptr);
        out.setmouseshape(id);
        const HCURSOR shape = ::GetCursor();
        char letter = shape ? '?' : ' '; // this program has no icons of its own
        for (const auto& [name, resource] : standard)
            letter = shape == ::LoadCursorA(nullptr, resource) ? name : letter;
        for (const auto& [name, resource] : own)
            letter = shape == ::LoadCursorA(library, resource) ? name : letter;
        shapes += letter;
    }
    EXPECT_EQ(shapes, "AIW*iWIW+|-\\//\\--||vh  cmpflr");
    EXPECT_EQ(out.cursor, nullptr);
    const HCURSOR last = ::GetCursor();
    for (const short outside : {-1, 29, SHRT_MAX})
        out.setmouseshape(outside);
    EXPECT_EQ(::GetCursor(), last);
    const auto own_shape = reinterpret_cast<HICON>(::LoadCursorA(nullptr, IDC_HELP));
    for (const HICON shape : {own_shape, HICON()}) // none changes nothing
        out.setmouseshape(shape);
    EXPECT_TRUE(::GetCursor() == own_shape && out.cursor == own_shape);

    ASSERT_EQ(out.reset(), 1);
    point_at(out, CPoint(30, 20));
    int position[2];
    out.getmousepos(position);
    EXPECT_THAT(position, testing::ElementsAre(30, 79 - 20));
}

TEST_F(SurfaceTest, ClipCoversItsCornersAndSurvivesAReset) {
    const auto fill = [](CWntOut& o) { o.boxa2(0, 0, 100, 100); };
    EXPECT_EQ(drawn(6, 4, [&](CWntOut& o) { o.setclip(1, 0, 4, 2), fill(o); }), "......\n.FFFF.\n.FFFF.\n.FFFF.\n");
    EXPECT_EQ(out.clipset, 1);
    EXPECT_EQ(CRect(out.cliprect), CRect(1, 1, 5, 4)); // device coordinates
    RECT upper = {0, 3, 2, 2};
    EXPECT_EQ(drawn(6, 4, [&](CWntOut& o) { o.setclip(&upper), o.reset(), fill(o); }),
              "FFF...\nFFF...\n......\n......\n");
    EXPECT_EQ(drawn(6, 4, [&](CWntOut& o) { o.resetclip(), o.excludeclip(1, 1, 2, 2), fill(o); }),
              "FFFFFF\nF..FFF\nF..FFF\nFFFFFF\n");
    EXPECT_EQ(out.clipset, 0);

    Picture picture(40, 30);
    paint(picture, [](CWntOut& o) {
        o.setclip(10, 10, 20, 20);
        const int cases[][5] = {{21, 10, 30, 20, 0}, {20, 20, 30, 30, 1}, {0, 0, 10, 10, 1},
                                {0, 21, 30, 30, 0},  {0, 0, 30, 9, 0},    {0, 0, 40, 40, 1}};
        for (const auto& [x1, y1, x2, y2, visible] : cases)
            EXPECT_EQ(o.testclip(x1, y1, x2, y2), visible) << x1 << ' ' << y1;
        o.resetclip();
    });
}

TEST_F(SurfaceTest, UpdateRectangleIsToldInLibraryCoordinates) {
    ASSERT_EQ(out.reset(), 1);
    out.UpdateWindow(); // paints nothing, but validates
    RECT r = {};
    out.queryclip(&r);
    EXPECT_EQ(CRect(r), CRect(0, 79, -1, 80));
    out.resetclip();
    const CRect stale(10, 20, 31, 41);
    out.InvalidateRect(&stale);
    RECT queried = {};
    out.queryupdaterect(&queried);
    EXPECT_TRUE(CRect(queried) == CRect(10, 59, 30, 39) && out.clipset == 0);
    out.queryclip(&r);
    EXPECT_TRUE(CRect(r) == queried && CRect(out.cliprect) == queried && out.clipset == 1);
    CWntOut().queryupdaterect(&queried);
    EXPECT_EQ(CRect(queried), CRect(r)); // untouched without a window
}

TEST_F(SurfaceTest, ScrollMovesBlocks) {
    const auto scrolled = [this](int x, int y, int w, int h, int dx, int dy) {
        return drawn(6, 4, [&](CWntOut& o) {
            o.boxa2(0, 0, 1, 0);
            o.line(0, 3, 0, 3);
            o.scroll(x, y, w, h, dx, dy, 7);
        });
    };
    EXPECT_EQ(scrolled(0, 0, 2, 1, 3, 2), "L.....\n...FF.\n......\nFF....\n");
    EXPECT_EQ(scrolled(0, 0, 0, 0, 0, 1), "......\n......\nFF....\nFF....\n");
    EXPECT_EQ(scrolled(0, 3, 1, 9, 2, 0), "L.L...\n......\n......\nFFF...\n"); // a block from above the area
}

TEST_F(SurfaceTest, ModesOfOutputLeaveTheWindowAlone) {
    const auto changed = [](CWntOut& o) {
        o.outmode = 4;
        o.boxa2(0, 0, 1, 0);
        o.scroll(0, 0, 2, 1, 3, 2, 0);
        o.excludeclip(3, 0, 5, 3);
        o.boxa1(3, 3, 5, 3);
        EXPECT_EQ(o.testclip(900, 900, 901, 901), 0);
        o.targetmode = 1;
        EXPECT_EQ(o.testclip(900, 900, 901, 901) + o.clipit(900, 900, 901, 901), 2);
        o.outmode = o.targetmode = 0;
    };
    EXPECT_EQ(drawn(6, 4, changed), "...LLL\n......\n......\nFF....\n");
    EXPECT_EQ(out.reset(), 1);
    out.ReleaseDrawing();
    EXPECT_THAT((std::vector<void*>{out.dc, out.pen, out.brush}), testing::Each(nullptr));
    for (int CWntOut::*mode : {&CWntOut::outmode, &CWntOut::targetmode}) {
        out.*mode = 1;
        EXPECT_EQ(out.reset(), 0);
        out.*mode = 0;
    }
    EXPECT_EQ(out.facename + CWntOut().facename, "Arial");
}

// On screens of fewer colours the last argument says how many bits a pixel they have.
TEST_F(SurfaceTest, ScreenShowsTheColoursOfLinesAndFills) {
    const std::string command = ::GetCommandLineA();
    ASSERT_EQ(out.reset(), 1);
    const int depth = ::GetDeviceCaps(out.dc, BITSPIXEL);
    ASSERT_EQ(depth, command.ends_with(" 8") ? 8 : command.ends_with(" 16") ? 16 : 32);
    // The named colours are among the few of any screen; at 16 bits the parts have 5 or 6.
    const auto expect_shown = [tolerance = depth == 16 ? 8 : 0](COLORREF shown, COLORREF wanted) {
        for (int shift = 0; shift < 24; shift += 8)
            EXPECT_NEAR(shown >> shift & 0xFF, wanted >> shift & 0xFF, tolerance) << std::hex << shown << ' ' << wanted;
    };
    out.linecolour(RGB(9, 9, 9), 0);
    out.fillcolour(RGB(9, 9, 9), 0);
    for (int i = 0; i < 16; ++i) {
        out.linecolour(i, 0);
        out.fillcolour(15 - i, 0);
        out.boxr1(6 * i, 10, 5, 20);
    }
    const Pixels shown = pixels_of(out);
    for (int i = 0; i < 16; ++i) {
        expect_shown(shown.at(6 * i, 79 - 20), out.rgbcolor(i));
        expect_shown(shown.at(6 * i + 2, 79 - 20), out.rgbcolor(15 - i));
    }
}

TEST_F(SurfaceTest, ScreenLosesRubberBandsDrawnTwice) {
    static Tpt corners[] = {{5, 5}, {60, 20}, {30, 70}};
    static POINT others[] = {{5, 5}, {60, 20}, {30, 70}};
    using Draw = void (*)(CWntOut&);
    const Draw bands[] = {[](CWntOut& o) { o.trackline(0, 0, 99, 79); },
                          [](CWntOut& o) { o.trackbox(10, 10, 50, 30, 0x200); },
                          [](CWntOut& o) { o.trackpoly(corners, 3); }, [](CWntOut& o) { o.trackpoly(others, 3); }};
    ASSERT_EQ(out.reset(), 1);
    out.fillcolour(3, 0);
    out.boxa2(0, 0, 99, 79);
    out.linecolour(2, 0);
    const auto before = pixels_of(out);
    for (const Draw& band : bands) {
        band(out);
        EXPECT_NE(pixels_of(out), before) << &band - bands;
        band(out);
        EXPECT_EQ(pixels_of(out), before) << &band - bands;
        EXPECT_EQ(::GetROP2(out.dc), R2_COPYPEN);
    }
}

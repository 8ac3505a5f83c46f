// The surface as a window: device context, input, clipping, contents, ownership.
#include "surface_test.h"

#include <climits>
#include <memory>
#include <vector>

namespace {

class Parent : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        seen.push_back({message, wParam, lParam});
        if (message == WM_LBUTTONDOWN && doomed) {
            doomed->DestroyWindow();
            doomed.reset();
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    std::vector<std::tuple<UINT, WPARAM, LPARAM>> seen;
    std::unique_ptr<CWntOut> doomed;
};

bool same(const RECT& a, const RECT& b) {
    return ::EqualRect(&a, &b);
}

} // namespace

TEST_F(SurfaceTest, DeviceContextCycle) {
    CWntOut bare;
    EXPECT_EQ(bare.reset(), 0);
    bare.line(0, 0, 5, 5);
    EXPECT_EQ(out.reset(), 0); // hidden with its host
    show();
    out.SetWindowPos(nullptr, 0, 0, 90, 70, SWP_NOZORDER);
    EXPECT_EQ(out.ymax, 70); // one more than after reset()
    for (const auto mode : {&CWntOut::outmode, &CWntOut::targetmode}) {
        out.*mode = 1;
        EXPECT_EQ(out.reset(), 0);
        out.*mode = 0;
    }
    ASSERT_EQ(out.reset(), 1);
    EXPECT_EQ(out.ymax, 69);
    const HDC own = out.dc;
    out.endpaint();
    EXPECT_EQ(out.dc, own);

    Picture other(20, 20);
    ASSERT_EQ(out.reset(other.dc()), 1);
    out.endpaint();
    EXPECT_EQ(out.dc, nullptr);
    ASSERT_EQ(out.reset(), 1);
    EXPECT_EQ(out.dc, own);
    out.linecolour(red, 0);
    out.line(0, 0, 89, 69);
    Picture shown(90, 70);
    shown.capture(out);
    EXPECT_EQ(shown.at(0, 0), red);
    EXPECT_EQ(shown.at(89, 69), red);

    out.DestroyWindow(); // a new window draws into itself, not into the old one's device context
    ASSERT_TRUE(create(out, 60, 40));
    ASSERT_EQ(out.reset(), 1);
    EXPECT_EQ(out.ymax, 39);
    out.linecolour(green, 0);
    out.line(0, 0, 0, 0);
    Picture again(60, 40);
    again.capture(out);
    EXPECT_EQ(again.at(0, 0), green);
}

TEST_F(SurfaceTest, ParentSeesInputFirst) {
    Parent parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, "parent", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
    auto surface = std::make_unique<CWntOut>();
    ASSERT_TRUE(surface->Create(nullptr, "Out", WS_CHILD, CRect(0, 0, 50, 50), &parent, 1));
    const auto forwarded = [&](UINT message) {
        parent.seen.clear();
        surface->SendMessage(message, 3, 0x00050007);
        return std::count(parent.seen.begin(), parent.seen.end(), std::tuple(message, WPARAM(3), 0x50007)) == 1;
    };
    for (const UINT message : {WM_KEYDOWN, WM_CHAR, WM_SYSKEYDOWN, WM_SYSCHAR, WM_MOUSEMOVE, WM_LBUTTONDOWN,
                               WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONUP, WM_RBUTTONDBLCLK, WM_RBUTTONDOWN})
        EXPECT_TRUE(forwarded(message)) << message;
    for (const UINT message : {WM_KEYUP, WM_MBUTTONDOWN, WM_MBUTTONUP})
        EXPECT_FALSE(forwarded(message)) << message;
    parent.seen.clear();
    EXPECT_EQ(surface->SendMessage(WM_MOUSEWHEEL, 0, 0), 1);
    EXPECT_EQ(parent.seen.size(), 1u);

    const HWND window = *surface;
    parent.doomed = std::move(surface); // ended by its parent in the middle of the message
    ::SendMessage(window, WM_LBUTTONDOWN, 0, 0);
    EXPECT_FALSE(::IsWindow(window));
    parent.DestroyWindow();
}

TEST_F(SurfaceTest, KeysAreTranslatedByTheStateOfTheKeyboard) {
    BYTE before[256];
    ::GetKeyboardState(before);
    for (const BYTE shift : {0x80, 0}) {
        BYTE state[256] = {};
        state[VK_TAB] = 0x80;
        state[VK_SHIFT] = shift;
        ::SetKeyboardState(state);
        int code[2] = {-1, -1};
        EXPECT_EQ(out.Whelper_translatekeyboardinput(code, WM_CHAR, VK_TAB, 0), 1);
        EXPECT_THAT(code, testing::ElementsAre(3, shift ? 3 : 2));
    }
    ::SetKeyboardState(before);
}

TEST_F(SurfaceTest, PointerShapesAndPosition) {
    std::vector<HCURSOR> shapes;
    for (short id = 0; id <= 28; ++id) {
        ::SetCursor(nullptr);
        out.setmouseshape(id);
        shapes.push_back(::GetCursor());
        EXPECT_EQ(shapes.back() != nullptr, id != 21 && id != 22) << id; // this program has no such icons
    }
    EXPECT_EQ(shapes[13], ::LoadCursor(nullptr, IDC_SIZENESW));
    EXPECT_EQ(shapes[14], ::LoadCursor(nullptr, IDC_SIZENWSE));
    for (const int library : {4, 19, 20, 23, 24, 25, 26, 27, 28})
        EXPECT_EQ(std::count(shapes.begin(), shapes.end(), shapes[library]), 1) << library;
    EXPECT_EQ(out.cursor, nullptr);
    ::SetCursor(shapes[8]);
    for (const short outside : {-1, 29, SHRT_MAX})
        out.setmouseshape(outside);
    out.setmouseshape(HICON{});
    EXPECT_EQ(::GetCursor(), shapes[8]);
    out.setmouseshape(static_cast<HICON>(shapes[4]));
    EXPECT_EQ(out.cursor, shapes[4]);

    show();
    ASSERT_EQ(out.reset(), 1);
    POINT origin = {};
    out.ClientToScreen(&origin);
    ::SetCursorPos(origin.x + 30, origin.y + 20);
    int position[2];
    out.getmousepos(position);
    EXPECT_THAT(position, testing::ElementsAre(30, 79 - 20));
}

TEST_F(SurfaceTest, ClipCoversItsCornersAndSurvivesAReset) {
    const auto fill = [](CWntOut& o) { o.boxa2(0, 0, 100, 100); };
    EXPECT_EQ(drawn(6, 4, [&](CWntOut& o) { o.setclip(1, 0, 4, 2), fill(o); }), "......\n.FFFF.\n.FFFF.\n.FFFF.\n");
    EXPECT_EQ(out.clipset, 1);
    EXPECT_TRUE(same(out.cliprect, {1, 1, 5, 4})); // device coordinates
    RECT upper = {0, 3, 2, 2};
    EXPECT_EQ(drawn(6, 4, [&](CWntOut& o) { o.setclip(&upper), o.reset(), fill(o); }),
              "FFF...\nFFF...\n......\n......\n");
    EXPECT_EQ(drawn(6, 4, [&](CWntOut& o) { o.resetclip(), o.excludeclip(1, 1, 2, 2), fill(o); }),
              "FFFFFF\nF..FFF\nF..FFF\nFFFFFF\n");
    EXPECT_EQ(out.clipset, 0);
    EXPECT_EQ(drawn(3, 2, [&](CWntOut& o) { o.outmode = 1, o.excludeclip(0, 0, 0, 0), o.outmode = 0, fill(o); }),
              "FFF\nFFF\n");

    Picture picture(40, 30);
    paint(picture, [](CWntOut& o) {
        o.setclip(10, 10, 20, 20);
        const struct {
            int x1, y1, x2, y2, visible;
        } cases[] = {{21, 10, 30, 20, 0}, {20, 20, 30, 30, 1}, {0, 0, 9, 15, 0},  {0, 0, 10, 10, 1},
                     {0, 21, 30, 30, 0},  {0, 0, 30, 9, 0},    {0, 0, 40, 40, 1}, {12, 12, 13, 13, 1}};
        for (const auto& c : cases)
            EXPECT_EQ(o.testclip(c.x1, c.y1, c.x2, c.y2), c.visible) << c.x1 << ' ' << c.y1;
        o.outmode = 2, o.targetmode = 1;
        EXPECT_EQ(o.testclip(21, 10, 30, 20), 1);
        o.outmode = o.targetmode = 0;
        EXPECT_EQ(o.clipit(900, 900, 901, 901), 1);
        o.resetclip();
    });
}

TEST_F(SurfaceTest, UpdateRectangleIsToldInLibraryCoordinates) {
    show();
    ASSERT_EQ(out.reset(), 1);
    out.UpdateWindow(); // paints nothing, but validates
    RECT r = {};
    out.queryclip(&r);
    EXPECT_TRUE(same(r, {0, 79, -1, 80}));
    out.resetclip();
    const CRect stale(10, 20, 31, 41);
    out.InvalidateRect(&stale);
    RECT queried = {};
    out.queryupdaterect(&queried);
    EXPECT_TRUE(same(queried, {10, 59, 30, 39}));
    EXPECT_EQ(out.clipset, 0);
    out.queryclip(&r);
    EXPECT_TRUE(same(r, queried));
    EXPECT_TRUE(same(out.cliprect, queried));
    EXPECT_EQ(out.clipset, 1);
    CWntOut().queryupdaterect(&queried);
    EXPECT_TRUE(same(queried, r)); // untouched without a window
}

TEST_F(SurfaceTest, ScrollMovesBlocks) {
    const auto scrolled = [this](int x, int y, int w, int h, int dx, int dy, int mode = 0) {
        return drawn(6, 4, [&](CWntOut& o) {
            o.boxa2(0, 0, 1, 0);
            o.line(0, 3, 0, 3);
            o.outmode = mode;
            o.scroll(x, y, w, h, dx, dy, 7);
            o.outmode = 0;
        });
    };
    EXPECT_EQ(scrolled(0, 0, 2, 1, 3, 2), "L.....\n...FF.\n......\nFF....\n");
    EXPECT_EQ(scrolled(0, 0, 0, 0, 0, 1), "......\n......\nFF....\nFF....\n");
    EXPECT_EQ(scrolled(0, 3, 1, 9, 2, 0), "L.L...\n......\n......\nFFF...\n"); // a block from above the area
    EXPECT_EQ(scrolled(0, 0, 2, 1, 3, 2, 1), "L.....\n......\n......\nFF....\n");
}

TEST_F(SurfaceTest, DrawingObjectsDoNotPileUp) {
    show();
    CPen pen(PS_SOLID, 2, RGB(1, 2, 3));
    CBrush brush(RGB(4, 5, 6));
    Picture picture(20, 20);
    ::SelectObject(picture.dc(), pen);
    ::SelectObject(picture.dc(), brush);
    char text[] = "x";
    const auto bracket = [&](int i) {
        POINT line[] = {{0, 0}, {9, i % 7}, {3, 3}};
        out.linecolour(RGB(i, i >> 8, i >> 16), i & 7);
        out.fillcolour(RGB(i >> 16, i, 1), i & 7);
        out.boxr1(1, 1, 3, 3);
        if (i % 256)
            return;
        out.geomline(line, 3, 2);
        out.markers(line, 2, 0);
        out.fillcircle(5, 5, 3, 3);
        out.solidpoly(line, 3);
        out.chars(0, 0, text, 0);
        out.titlechars(0, 0, 9, 9, text);
    };
    int settled = 0;
    for (int i = 0; i <= 110000; ++i) {
        ASSERT_EQ(out.reset(), 1);
        bracket(i);
        out.endpaint();
        ASSERT_EQ(out.reset(picture.dc()), 1);
        bracket(i);
        if (i % 3) // an owner may forget it
            out.endpaint();
        if (i == 1000)
            settled = live_gdi_objects();
    }
    EXPECT_EQ(live_gdi_objects(), settled);
    EXPECT_EQ(::GetCurrentObject(picture.dc(), OBJ_PEN), pen.m_hObject);
    EXPECT_EQ(::GetCurrentObject(picture.dc(), OBJ_BRUSH), brush.m_hObject);

    out.ReleaseDrawing();
    out.fillcolour(RGB(9, 9, 1), 0);
    const int with_brush = live_gdi_objects();
    for (int i = 0; i < 1000; ++i)
        out.fillcolour(RGB(i, 9, 9), 0); // without a device context
    EXPECT_EQ(live_gdi_objects(), with_brush);
    out.ReleaseDrawing();
    EXPECT_EQ(live_gdi_objects(), with_brush - 1);
}

TEST_F(SurfaceTest, NullObjectsAndNullArgumentsAreHarmless) {
    Picture picture(10, 10);
    char text[] = "x";
    POINT point = {};
    RECT rect = {};
    int pair[2];
    LOGFONTA font;
    CWntOut* volatile none = nullptr;
    EXPECT_EQ(none->reset(), 0);
    EXPECT_EQ(none->reset(picture.dc()), 0);
    EXPECT_EQ(none->getcolorpalette(nullptr), 0);
    EXPECT_EQ(none->testclip(0, 0, 1, 1), 0);
    EXPECT_EQ(none->Whelper_translatekeyboardinput(pair, WM_CHAR, 'a', 0), 0);
    EXPECT_EQ(none->getZopguiFont(&font, ZOPFONT_PROPORTIONAL), 0);
    EXPECT_EQ(none->points_testinrect(0, 0, rect), 0);
    none->endpaint(), none->ReleaseDrawing(), none->getmousepos(pair), none->setmouseshape(short{3});
    none->setbackground(1, 2), none->setbackgroundbitmap(3), none->queryupdaterect(&rect);
    none->setcolorpalette(nullptr, 0), none->linecolour(1, 0), none->fillcolour(red, 0), none->boxr1(0, 0, 1, 1);
    none->fillpoly(&point, 1), none->geomline(&point, 1, 1), none->markers(&point, 1, 1),
        none->scroll(0, 0, 1, 1, 1, 1, 1);
    none->fillcircle(1, 1, 1, 1), none->pieslice(1, 1, 1, 1, 0, 9999), none->drawshadow(0, 0, 1, 1, 1);
    none->trackline(0, 0, 1, 1), none->trackbox(0, 0, 1, 1, 0), none->trackpoly(&point, 1), none->queryclip(&rect);
    none->setclip(&rect), none->excludeclip(0, 0, 1, 1), none->settext(1, 2, 3, 4, 5, 6), none->setfont(nullptr);
    none->chars(0, 0, text, 0), none->titlechars(0, 0, 1, 1, text), none->crosslines(&point, 1, 0);

    picture.clear(ground);
    paint(picture, [](CWntOut& o) {
        o.fillpoly(static_cast<POINT*>(nullptr), 3), o.solidpoly(static_cast<Tpt*>(nullptr), 3);
        o.geomline(static_cast<Tpt*>(nullptr), 3, 1), o.crosslines(static_cast<Tpt*>(nullptr), 3, 1);
        o.setclip(nullptr), o.queryclip(nullptr), o.queryupdaterect(nullptr), o.getmousepos(nullptr);
        o.calcpolywind(nullptr, nullptr, 1), o.points_intersect(nullptr, 0, 0, 1, 1, 0, 1, 1, 0);
        o.chars(0, 0, nullptr, 0), o.chars_len(0, 0, 5, nullptr, 0), o.titlechars(0, 0, 9, 9, nullptr);
        EXPECT_EQ(o.getZopguiFont(nullptr, ZOPFONT_PROPORTIONAL), 0);
        EXPECT_EQ(o.Whelper_translatekeyboardinput(nullptr, WM_CHAR, 'a', 0), 0);
    });
    EXPECT_EQ(picture.count(ground), 100);
}

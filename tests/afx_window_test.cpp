// Windows of the framework: their lives, their messages, their mistakes.
#include "afx_test_app.h"

#include <stdexcept>

using testing::ElementsAre;
using Texts = std::vector<std::string>;

namespace {

// A window that no object made.
HWND make_plain() {
    return ::CreateWindow("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
}

TEST(AfxWindow, ReleasesTheObjectOnceWhenCreationFails) {
    recorder refused, rejected, unknown, failed;
    refused.refuse = true;
    rejected.accept = false;
    failed.fail = true;
    EXPECT_FALSE(create_popup(refused) || create_popup(rejected) || create_popup(failed));
    EXPECT_FALSE(unknown.CreateEx(0, "no such class", "", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0));
    for (const recorder* wnd : {&refused, &rejected, &unknown, &failed}) {
        EXPECT_EQ(wnd->m_hWnd, nullptr);
        EXPECT_EQ(std::count(wnd->seen.begin(), wnd->seen.end(), recorder::object_released), 1);
    }
    // The hook of a failed creation must not take the next window that anybody creates.
    const HWND plain = make_plain();
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    ::DestroyWindow(plain);
}

TEST(AfxWindow, OwnsWhatItCreatedAndNothingElse) {
    HWND created = nullptr;
    const HWND foreign = make_plain();
    {
        CWnd wnd;
        ASSERT_TRUE(create_popup(wnd));
        created = wnd.m_hWnd;
        CWnd attached;
        attached.Attach(foreign);
        EXPECT_EQ(CWnd::FromHandle(foreign), &attached);
        EXPECT_EQ(attached.Detach(), foreign);
    }
    EXPECT_FALSE(::IsWindow(created));
    auto* main = new CWnd;
    the_app.m_pMainWnd = main;
    delete main;
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    EXPECT_TRUE(::IsWindow(foreign));

    recorder subclass;
    ASSERT_TRUE(subclass.SubclassWindow(foreign));
    EXPECT_FALSE(CWnd().SubclassWindow(foreign)) << "it has an object already";
    subclass.SetWindowText("through the object");
    EXPECT_THAT(subclass.seen, testing::Contains(WM_SETTEXT));
    EXPECT_EQ(text_of(subclass), "through the object") << "the static control's own procedure was called";
    EXPECT_EQ(subclass.Detach(), foreign);
    ::DestroyWindow(foreign);
    EXPECT_EQ(std::count(subclass.seen.begin(), subclass.seen.end(), WM_DESTROY), 0);
}

TEST(AfxWindow, IsCentredOverItsOwnerWithinTheWorkArea) {
    CRect work;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
    CWnd owner, wnd;
    ASSERT_TRUE(create_popup(owner));
    owner.ShowWindow(SW_SHOWNOACTIVATE);
    ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, CRect(0, 0, 40, 20), &owner, 0));
    const auto at = [&](CRect over, CSize size) {
        owner.MoveWindow(over);
        wnd.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
        wnd.CenterWindow();
        return on_screen(wnd).TopLeft();
    };
    EXPECT_NE(::GetClassLongPtr(wnd, GCLP_HCURSOR), 0u);
    WNDCLASS known{};
    const auto ground = reinterpret_cast<HBRUSH>(7);
    const HCURSOR cross = ::LoadCursor(nullptr, IDC_CROSS);
    LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS, cross, ground);
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), name, &known) && known.style == CS_DBLCLKS);
    EXPECT_TRUE(known.hCursor == cross && known.hbrBackground == ground);
    const CPoint corner = work.TopLeft();
    EXPECT_EQ(at(CRect(corner, CSize(200, 100)), {40, 20}), corner + CSize(80, 40));
    EXPECT_EQ(at(CRect(corner, CSize(20, 10)), {60, 50}), corner);
    EXPECT_EQ(at(CRect(work.BottomRight() - CSize(30, 30), CSize(30, 30)), {60, 50}),
              work.BottomRight() - CSize(60, 50));
    EXPECT_EQ(at(CRect(corner, CSize(200, 100)), {work.Width() + 50, 20}).x, corner.x) << "its left part is seen";
    CWnd child, within;
    owner.MoveWindow(CRect(corner, CSize(200, 100)));
    ASSERT_TRUE(within.Create(nullptr, "", WS_CHILD, CRect(20, 10, 50, 40), &owner, 1));
    ASSERT_TRUE(child.Create(nullptr, "", WS_CHILD, CRect(0, 0, 10, 20), &owner, 2));
    child.CenterWindow(&within);
    EXPECT_EQ(place_in(owner, child), CRect(30, 15, 40, 35));
    wnd.DestroyWindow();
    owner.DestroyWindow();
}

TEST(AfxWindow, DoesWhatItsOperationsSay) {
    CWnd wnd;
    ASSERT_TRUE(create_visible_popup(wnd));
    wnd.ValidateRect(nullptr);
    CRgn part;
    part.CreateRectRgn(1, 2, 30, 40);
    CRect dirty;
    wnd.InvalidateRgn(&part);
    EXPECT_TRUE(wnd.GetUpdateRect(dirty));
    EXPECT_EQ(dirty, CRect(1, 2, 30, 40));
    wnd.ValidateRgn(&part);
    EXPECT_FALSE(wnd.GetUpdateRect(dirty));
    WINDOWPLACEMENT place{}; // without its length
    EXPECT_TRUE(wnd.GetWindowPlacement(&place));
    place.rcNormalPosition = CRect(100, 120, 180, 170);
    place.length = 0;
    EXPECT_TRUE(wnd.SetWindowPlacement(&place));
    EXPECT_EQ(on_screen(wnd), CRect(100, 120, 180, 170));
}

using AfxModalOwner = WithParent;

TEST_F(AfxModalOwner, IsWhatIsNoChild) {
    CWnd child, popup;
    ASSERT_TRUE(child.Create(nullptr, "child", shown, place, &parent, 5));
    ASSERT_TRUE(popup.CreateEx(0, nullptr, "popup", WS_POPUP, place, &parent, 0));
    HWND top = parent;
    EXPECT_EQ(CWnd::GetSafeOwner(&child, &top), &parent);
    EXPECT_TRUE(top == nullptr && parent.IsWindowEnabled());
    EXPECT_EQ(CWnd::GetSafeOwner(&popup, &top), &popup);
    EXPECT_TRUE(top == parent.m_hWnd && !parent.IsWindowEnabled()) << "the one behind is disabled, too";
    EXPECT_TRUE(CWnd::GetSafeOwner(&popup, &top) == &popup && top == nullptr);
}

TEST(AfxWindow, TemporaryObjectsLastUntilIdleHoweverManyThereAre) {
    const HWND kept = make_plain();
    CWnd* object = CWnd::FromHandle(kept);
    for (int i = 0; i < 1100; ++i) {
        const HWND passing = make_plain();
        ASSERT_EQ(CWnd::FromHandle(passing)->m_hWnd, passing);
        ::DestroyWindow(passing);
    }
    EXPECT_EQ(CWnd::FromHandle(kept), object);
    the_app.m_pMainWnd = object;
    the_app.OnIdle(1);
    EXPECT_EQ(the_app.m_pMainWnd, nullptr) << "the object went";
    EXPECT_TRUE(::IsWindow(kept));
    ::DestroyWindow(kept);
}

TEST(AfxHandles, ObjectsHoldOneUntilItIsTakenFromThem) {
    recorder wnd;
    ASSERT_TRUE(create_popup(wnd));
    const HWND first = wnd.m_hWnd, other = make_plain();
    EXPECT_FALSE(create_popup(wnd) || wnd.Attach(other));
    EXPECT_EQ(wnd.m_hWnd, first);
    EXPECT_EQ(std::count(wnd.seen.begin(), wnd.seen.end(), recorder::object_released), 0);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(80, "Arial"));
    const HGDIOBJ held = font.m_hObject;
    EXPECT_TRUE(!font.CreatePointFont(90, "Arial") && font.m_hObject == held);

    CWnd* temporary = CWnd::FromHandle(other);
    temporary->Detach();
    EXPECT_EQ(CWnd::FromHandle(other)->m_hWnd, other) << "a handle's value may come again";
    ::DestroyWindow(other);
}

struct thrower : CWnd {
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == m_message)
            m_throw();
        return CWnd::WindowProc(message, wParam, lParam);
    }
    UINT m_message = 0;
    std::function<void()> m_throw;
};

TEST(AfxException, NeverLeavesAWindowProcedure) {
    thrower wnd;
    ASSERT_TRUE(create_visible_popup(wnd));
    the_app.take_boxes();
    wnd.m_message = WM_USER;
    const std::function<void()> throws[] = {
        [] { AfxThrowMemoryException(); },
        [] { AtlThrow(E_OUTOFMEMORY); },
        [] { throw std::bad_alloc(); },
        [] { throw std::runtime_error("plain words"); },
        [] { throw 1; },
        [] { throw new CUserException; },
        [] { AtlThrow(static_cast<HRESULT>(0x80004005)); },
    };
    for (const auto& one : throws) {
        wnd.m_throw = one;
        EXPECT_EQ(wnd.SendMessage(WM_USER), 0);
    }
    Texts boxes = the_app.take_boxes();
    ASSERT_EQ(boxes.size(), 6u) << "all but the user exception, which has been told already";
    EXPECT_EQ(boxes[3], "plain words");
    EXPECT_TRUE(boxes[0] == boxes[1] && boxes[0] == boxes[2] && boxes[0] != boxes[5]) << boxes[0];

    wnd.m_message = WM_PAINT;
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(wnd, nullptr, FALSE)) << "it would be painted again and again";

    thrower refused;
    refused.m_message = WM_CREATE;
    refused.m_throw = throws[0];
    EXPECT_FALSE(create_popup(refused));
    EXPECT_EQ(refused.m_hWnd, nullptr);
    the_app.box_fails = true;
    EXPECT_FALSE(create_popup(refused)) << "the report fails, too";
    the_app.box_fails = false;
}

} // namespace

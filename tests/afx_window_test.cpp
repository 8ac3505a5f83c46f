// Windows of the framework: their lives, their messages, their mistakes.
#include "afx_test_app.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using Texts = std::vector<std::string>;

namespace {

TEST(AfxWindow, SeesItsMessagesFromTheFirstToTheLast) {
    recorder wnd;
    ASSERT_TRUE(create_popup(wnd));
    const HWND hwnd = wnd.m_hWnd;
    EXPECT_TRUE(wnd.had_handle);
    EXPECT_EQ(CWnd::FromHandlePermanent(hwnd), &wnd);
    const auto at = [&](UINT message) { return std::find(wnd.seen.begin(), wnd.seen.end(), message); };
    EXPECT_LE(at(WM_NCCREATE) - wnd.seen.begin(), 1) << "at most the size question comes before";
    EXPECT_LT(at(WM_NCCREATE), at(WM_NCCALCSIZE));
    EXPECT_LT(at(WM_NCCALCSIZE), at(WM_CREATE));
    ASSERT_NE(at(WM_CREATE), wnd.seen.end());

    wnd.seen.clear();
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_THAT(wnd.seen, testing::Contains(WM_DESTROY));
    ASSERT_GE(wnd.seen.size(), 2u);
    EXPECT_EQ(wnd.seen[wnd.seen.size() - 2], static_cast<UINT>(WM_NCDESTROY));
    EXPECT_EQ(wnd.seen.back(), recorder::object_released);
    EXPECT_EQ(wnd.GetSafeHwnd(), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(hwnd), nullptr);
    EXPECT_FALSE(wnd.DestroyWindow());
    EXPECT_EQ(CWnd::FromHandle(nullptr)->GetSafeHwnd(), nullptr);
}

TEST(AfxWindow, ReleasesTheObjectOnceWhenCreationFails) {
    const auto released_once = [](recorder& wnd) {
        return wnd.m_hWnd == nullptr && std::count(wnd.seen.begin(), wnd.seen.end(), recorder::object_released) == 1;
    };
    recorder refused, rejected, unknown;
    refused.refuse = true;
    EXPECT_FALSE(create_popup(refused));
    EXPECT_TRUE(released_once(refused));
    rejected.accept = false;
    EXPECT_FALSE(create_popup(rejected));
    EXPECT_TRUE(released_once(rejected));
    EXPECT_FALSE(unknown.CreateEx(0, "no such class", "", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0));
    EXPECT_TRUE(released_once(unknown));
    // The hook of a failed creation must not take the next window that anybody creates.
    const HWND plain = ::CreateWindow("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    ::DestroyWindow(plain);
}

TEST(AfxWindow, OwnsWhatItCreatedAndNothingElse) {
    HWND created = nullptr;
    const HWND foreign = ::CreateWindow("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
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
    EXPECT_TRUE(::IsWindow(foreign));

    recorder subclass;
    const LONG_PTR original = ::GetWindowLongPtr(foreign, GWLP_WNDPROC);
    ASSERT_TRUE(subclass.SubclassWindow(foreign));
    EXPECT_FALSE(CWnd().SubclassWindow(foreign)) << "it has an object already";
    subclass.SetWindowText("through the object");
    EXPECT_THAT(subclass.seen, testing::Contains(WM_SETTEXT));
    CString text;
    subclass.GetWindowText(text);
    EXPECT_STREQ(text, "through the object") << "the static control's own procedure was called";
    EXPECT_EQ(subclass.UnsubclassWindow(), foreign);
    EXPECT_EQ(::GetWindowLongPtr(foreign, GWLP_WNDPROC), original);
    ::DestroyWindow(foreign);
    EXPECT_EQ(std::count(subclass.seen.begin(), subclass.seen.end(), WM_DESTROY), 0);
}

TEST(AfxWindow, TemporaryObjectsLastUntilIdleHoweverManyThereAre) {
    const auto make = [] {
        return ::CreateWindow("STATIC", "", 0, 0, 0, 1, 1, HWND_MESSAGE, nullptr, nullptr, nullptr);
    };
    const HWND kept = make(), owner = make();
    CWnd* object = CWnd::FromHandle(kept);
    object->SetOwner(CWnd::FromHandle(owner));
    for (int i = 0; i < 1100; ++i) {
        const HWND passing = make();
        ASSERT_EQ(CWnd::FromHandle(passing)->m_hWnd, passing);
        ::DestroyWindow(passing);
    }
    EXPECT_EQ(CWnd::FromHandle(kept), object);
    EXPECT_EQ(object->m_hWnd, kept);
    EXPECT_EQ(object->GetOwner()->m_hWnd, owner);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(kept));
    EXPECT_NE(CWnd::FromHandle(kept)->GetOwner()->GetSafeHwnd(), owner) << "a new object";
    ::DestroyWindow(kept);
    ::DestroyWindow(owner);
}

const UINT registered_message = ::RegisterWindowMessage("afx_test");

// Writes down every call with its arguments.
class scribe : public CWnd {
public:
    Texts take() { return std::exchange(m_log, {}); }

protected:
    void note(LPCTSTR format, ...) {
        va_list arguments;
        va_start(arguments, format);
        CString line;
        line.FormatV(format, arguments);
        va_end(arguments);
        m_log.push_back(line.GetString());
    }
    void OnSize(UINT type, int cx, int cy) { note("size %u %d %d", type, cx, cy); }
    void OnMove(int x, int y) { note("move %d %d", x, y); }
    void OnTimer(UINT_PTR id) { note("timer %llx", id); }
    void OnChar(UINT c, UINT repeat, UINT flags) { note("char %u %u %u", c, repeat, flags); }
    void OnLButtonDown(UINT flags, CPoint point) { note("button %u %ld %ld", flags, point.x, point.y); }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        note("wheel %u %d %ld %ld", flags, delta, point.x, point.y);
        return TRUE;
    }
    void OnHScroll(UINT code, UINT pos, CScrollBar* bar) { note("scroll %u %u %d", code, pos, bar == nullptr); }
    void OnActivate(UINT state, CWnd* other, BOOL minimized) {
        note("activate %u %d %d", state, other->GetSafeHwnd() == m_hWnd, minimized);
    }
    void OnCaptureChanged(CWnd* wnd) { note("capture %d", wnd->GetSafeHwnd() == m_hWnd); }
    BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message) {
        note("cursor %d %u %x", wnd->GetSafeHwnd() == m_hWnd, hit, message);
        return TRUE;
    }
    void OnContextMenu(CWnd* wnd, CPoint point) { note("context %ld %ld", point.x, point.y); }
    LRESULT OnNcHitTest(CPoint point) {
        note("hit %ld %ld", point.x, point.y);
        return HTCAPTION;
    }
    UINT OnGetDlgCode() { return DLGC_WANTALLKEYS; }
    LRESULT OnAnything(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) * 1000 + lParam; }
    void OnOne() { note("one"); }
    void OnRange(UINT id) { note("range %u", id); }
    void OnUpdate(CCmdUI* ui) { ui->Enable(m_enabled); }
    void OnNotify103(NMHDR* header, LRESULT* result) {
        note("notify %llu", static_cast<unsigned long long>(header->idFrom));
        *result = 42;
    }
    DECLARE_MESSAGE_MAP()

public:
    BOOL m_enabled = TRUE;

private:
    Texts m_log;
};

BEGIN_MESSAGE_MAP(scribe, CWnd)
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_TIMER()
ON_WM_CHAR()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEWHEEL()
ON_WM_HSCROLL()
ON_WM_ACTIVATE()
ON_WM_CAPTURECHANGED()
ON_WM_SETCURSOR()
ON_WM_CONTEXTMENU()
ON_WM_NCHITTEST()
ON_WM_GETDLGCODE()
ON_MESSAGE(WM_USER + 3, &scribe::OnAnything)
ON_REGISTERED_MESSAGE(registered_message, &scribe::OnAnything)
ON_COMMAND(100, &scribe::OnOne)
ON_UPDATE_COMMAND_UI(100, &scribe::OnUpdate)
ON_COMMAND_RANGE(200, 210, &scribe::OnRange)
ON_CONTROL_RANGE(EN_CHANGE, 300, 301, &scribe::OnRange)
ON_NOTIFY(103, 400, &scribe::OnNotify103)
ON_NOTIFY(NM_CLICK, 400, &scribe::OnNotify103)
END_MESSAGE_MAP()

// Adds nothing but a map entry that hides the base's.
class quiet_scribe : public scribe {
    void OnMove(int, int) { note("hidden"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(quiet_scribe, scribe)
ON_WM_MOVE()
END_MESSAGE_MAP()

TEST(AfxMessageMap, UnpacksEveryMessageForItsHandler) {
    scribe wnd;
    ASSERT_TRUE(create_popup(wnd));
    wnd.take();
    const auto own = reinterpret_cast<WPARAM>(wnd.m_hWnd);
    const LPARAM negative = MAKELPARAM(-5, -7);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* call; // null: not written down
        LRESULT result;
    } cases[] = {
        {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(300, 200), "size 2 300 200", 0},
        {WM_MOVE, 0, negative, "move -5 -7", 0},
        {WM_TIMER, 0x123456789, 0, "timer 123456789", 0},
        {WM_CHAR, 'a', MAKELPARAM(3, 0xC01E), "char 97 3 49182", 0},
        {WM_LBUTTONDOWN, MK_SHIFT, negative, "button 4 -5 -7", 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), negative, "wheel 8 -120 -5 -7", TRUE},
        {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 40000), 0, "scroll 5 40000 1", 0},
        {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), static_cast<LPARAM>(own), "activate 2 1 1", 0},
        {WM_CAPTURECHANGED, 0, static_cast<LPARAM>(own), "capture 1", 0},
        {WM_SETCURSOR, own, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor 1 1 200", TRUE},
        {WM_CONTEXTMENU, own, negative, "context -5 -7", 0},
        {WM_NCHITTEST, 0, negative, "hit -5 -7", HTCAPTION},
        {WM_GETDLGCODE, 0, 0, nullptr, DLGC_WANTALLKEYS},
        {WM_USER + 3, 7, 8, nullptr, 7008},
        {registered_message, 7, 9, nullptr, 7009},
        {WM_USER + 4, 7, 8, nullptr, 0},
    };
    for (const auto& given : cases) {
        SCOPED_TRACE(given.message);
        EXPECT_EQ(wnd.SendMessage(given.message, given.wParam, given.lParam), given.result);
        EXPECT_EQ(wnd.take(), given.call != nullptr ? Texts{given.call} : Texts{});
    }
}

TEST(AfxMessageMap, RoutesCommandsAndNotificationsByCodeAndId) {
    scribe wnd;
    ASSERT_TRUE(create_popup(wnd));
    wnd.take();
    const auto command = [&](WORD id, WORD code, HWND control) {
        return wnd.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
    };
    const HWND control = ::GetDesktopWindow();
    EXPECT_EQ(command(100, 0, nullptr), 1);
    EXPECT_EQ(command(100, 1, nullptr), 1) << "from an accelerator";
    EXPECT_EQ(command(210, 0, nullptr), 1);
    EXPECT_EQ(command(301, EN_CHANGE, control), 1);
    EXPECT_THAT(wnd.take(), ElementsAre("one", "one", "range 210", "range 301"));
    EXPECT_EQ(command(211, 0, nullptr), 0);
    EXPECT_EQ(command(301, EN_UPDATE, control), 0);
    EXPECT_EQ(command(301, EN_CHANGE, nullptr), 0);
    wnd.m_enabled = FALSE;
    command(100, 0, nullptr);
    EXPECT_THAT(wnd.take(), IsEmpty()) << "a disabled command is not carried out";

    NMHDR header{control, 400, 103};
    const auto notify = [&] { return wnd.SendMessage(WM_NOTIFY, 400, reinterpret_cast<LPARAM>(&header)); };
    EXPECT_EQ(notify(), 42);
    header.code = NM_CLICK; // codes of the platform are negative
    EXPECT_EQ(notify(), 42);
    header.code = 104;
    EXPECT_EQ(notify(), 0);
    EXPECT_THAT(wnd.take(), ElementsAre("notify 400", "notify 400"));
}

TEST(AfxMessageMap, LooksInTheDerivedClassFirst) {
    quiet_scribe wnd;
    ASSERT_TRUE(create_popup(wnd));
    wnd.take();
    wnd.SendMessage(WM_MOVE);
    wnd.SendMessage(WM_TIMER, 1);
    EXPECT_THAT(wnd.take(), ElementsAre("hidden", "timer 1"));
}

class reflecting_button : public CButton {
public:
    int clicks = 0, notified = 0;
    HBRUSH brush = nullptr;

private:
    void OnClicked() { ++clicks; }
    void OnClick(NMHDR*, LRESULT* result) { *result = ++notified; }
    HBRUSH CtlColor(CDC*, UINT) { return brush; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(reflecting_button, CButton)
ON_CONTROL_REFLECT(BN_CLICKED, &reflecting_button::OnClicked)
ON_NOTIFY_REFLECT(NM_CLICK, &reflecting_button::OnClick)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class button_parent : public CWnd {
public:
    int clicks = 0;

private:
    void OnClicked() { ++clicks; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(button_parent, CWnd)
ON_BN_CLICKED(1, &button_parent::OnClicked)
ON_BN_CLICKED(2, &button_parent::OnClicked)
END_MESSAGE_MAP()

TEST(AfxReflection, GivesTheControlItsNotificationsBeforeTheParent) {
    button_parent parent;
    reflecting_button reflecting;
    CButton plain;
    ASSERT_TRUE(create_popup(parent));
    ASSERT_TRUE(reflecting.Create("", WS_CHILD, CRect(0, 0, 9, 9), &parent, 1));
    ASSERT_TRUE(plain.Create("", WS_CHILD, CRect(0, 0, 9, 9), &parent, 2));
    reflecting.SendMessage(BM_CLICK);
    EXPECT_EQ(reflecting.clicks, 1);
    EXPECT_EQ(parent.clicks, 0);
    plain.SendMessage(BM_CLICK);
    EXPECT_EQ(parent.clicks, 1);
    NMHDR header{reflecting.m_hWnd, 1, NM_CLICK};
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&header)), 1);

    CClientDC dc(&parent);
    const auto color = [&] {
        return reinterpret_cast<HBRUSH>(parent.SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                           reinterpret_cast<LPARAM>(reflecting.m_hWnd)));
    };
    EXPECT_NE(color(), nullptr) << "without a brush of its own, the default one";
    reflecting.brush = static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH));
    EXPECT_EQ(color(), reflecting.brush);
}

class thrower : public CWnd {
public:
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
        [] { AfxThrowUserException(); },
        [] { AtlThrow(static_cast<HRESULT>(0x80004005)); },
    };
    for (const auto& one : throws) {
        wnd.m_throw = one;
        EXPECT_EQ(wnd.SendMessage(WM_USER), 0);
    }
    Texts boxes = the_app.take_boxes();
    ASSERT_EQ(boxes.size(), 6u) << "all but the user exception, which has been told already";
    EXPECT_EQ(boxes[3], "plain words");
    EXPECT_EQ(boxes[0], boxes[1]);
    EXPECT_EQ(boxes[0], boxes[2]);

    wnd.m_message = WM_PAINT;
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr)) << "it would be painted again and again";

    thrower refused;
    refused.m_message = WM_CREATE;
    refused.m_throw = throws[0];
    EXPECT_FALSE(create_popup(refused));
    EXPECT_EQ(refused.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::GetCurrentMessage()->hwnd, nullptr) << "the outer message is current again";
}

TEST(AfxException, MacrosDeleteWhatTheyCaughtUnlessItIsThrownOn) {
    static int alive = 0;
    class counted : public CUserException {
    public:
        counted() { ++alive; }
        ~counted() override { --alive; }
    };
    TRY{TRY{THROW(new counted);
}
CATCH(CMemoryException, e) {
    ADD_FAILURE() << "another class";
}
AND_CATCH(CUserException, e) {
    EXPECT_EQ(alive, 1);
    THROW_LAST();
}
END_CATCH
} // namespace
CATCH_ALL(e) {
    EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CUserException)));
    EXPECT_EQ(alive, 1);
}
END_CATCH_ALL
EXPECT_EQ(alive, 0);
try {
    AtlThrow(E_INVALIDARG);
} catch (COleException* e) {
    EXPECT_EQ(e->m_sc, E_INVALIDARG);
    e->Delete();
}
}

} // namespace

// A toolbar in a host that keeps what it is told.
#pragma once

#include <afxpriv.h>

#include "control_host.h"

inline constexpr COLORREF red = RGB(255, 0, 0), green = RGB(0, 255, 0), key_colour = RGB(255, 0, 200);

// Owner of bars: keeps commands and notifications, and tells states.
struct ToolHost : CWnd {
    std::vector<UINT> commands, told;
    std::function<void(UINT)> on_command = [](UINT) {};
    std::function<void(UINT, WPARAM)> on_message = [](UINT, WPARAM) {};
    std::function<LRESULT(WntToolNotify&)> answer = [](WntToolNotify&) { return 0; };
    std::function<void(CCmdUI&)> state = [](CCmdUI& ui) { ui.Enable(); };

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        on_message(message, wParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    // Commands 100 to 199 have a handler, the first half of them one for their state, too.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code == CN_UPDATE_COMMAND_UI && id >= 100 && id < 150)
            return state(*static_cast<CCmdUI*>(extra)), TRUE;
        if (code != CN_COMMAND || id < 100 || id >= 200)
            return CWnd::OnCmdMsg(id, code, extra, info);
        if (info)
            return TRUE; // only asked whether there is one
        commands.push_back(id);
        on_command(id);
        return TRUE;
    }

    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        if (header.code < WNT_TOOL_DROPPING || header.code > WNT_TOOL_MOVED)
            return FALSE;
        told.push_back(header.code);
        *result = answer(reinterpret_cast<WntToolNotify&>(header));
        return TRUE;
    }
};

struct ToolBar : ControlTest<ToolHost> {
    void SetUp() override {
        ControlTest::SetUp();
        ASSERT_TRUE(edit_.Create(WS_CHILD | WS_VISIBLE, CRect(0, 300, 50, 320), &host_, 50));
        open();
    }
    void TearDown() override {
        delete bar_;
        ControlTest::TearDown();
    }
    void open() {
        bar_ = new Trapping<CWntToolBar>;
        ASSERT_TRUE(bar_->Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 400, 26), &host_, 9));
        CClientDC screen(nullptr);
        CDC dc;
        CBitmap squares;
        ASSERT_TRUE(dc.CreateCompatibleDC(&screen) && squares.CreateCompatibleBitmap(&screen, 48, 16));
        CBitmap* before = dc.SelectObject(&squares);
        int x = 0;
        for (const COLORREF colour : {red, green, key_colour})
            dc.FillSolidRect(std::exchange(x, x + 16), 0, 16, 16, colour);
        dc.SelectObject(before);
        EXPECT_EQ(bar_->SetPictures(squares, nullptr, key_colour), 1);
    }
    void script(std::initializer_list<const char*> lines) {
        bar_->LoadLine("", 1);
        for (const char* line : lines)
            bar_->LoadLine(line, 0);
        bar_->LoadLine("", 2);
    }
    Pixels shown() { return bar_->UpdateWindow(), pixels_of(*bar_); }
    CRect place(UINT id) {
        CRect r;
        bar_->GetItemRect(bar_->FindItem(id), &r);
        return r;
    }
    void mouse(UINT message, CPoint at) { bar_->SendMessage(message, MK_LBUTTON, MAKELPARAM(at.x, at.y)); }
    void click(UINT id) {
        const CPoint at = place(id).CenterPoint();
        mouse(WM_LBUTTONDOWN, at);
        if (bar_)
            mouse(WM_LBUTTONUP, at);
    }
    void key(UINT k, UINT message = WM_KEYDOWN) { bar_->SendMessage(message, k, 1); }
    bool filter_f6(CWnd& window) {
        MSG f6 = {window.m_hWnd, WM_KEYDOWN, VK_F6, 1, 0, {}};
        return bar_->FilterKey(&f6) != 0;
    }
    void when_an_edit_loses_the_focus(const std::function<void()>& work) {
        host_.on_message = [work](UINT message, WPARAM w) {
            if (message == WM_COMMAND && HIWORD(w) == EN_KILLFOCUS)
                work();
        };
    }
    int checked(UINT id) {
        CWntToolItem item;
        EXPECT_TRUE(bar_->GetItem(bar_->FindItem(id), &item)) << id;
        return item.check + (item.enabled ? 0 : 10);
    }
    // The one whose dotted frame is seen.
    UINT focused() {
        const Pixels now = shown();
        for (const UINT id : {100u, 101u, 102u, 103u, 104u, 105u}) {
            const CRect r = place(id);
            if (r.IsRectEmpty())
                continue;
            int changes = 0;
            for (int x = r.left + 2; x < r.right - 2; ++x)
                changes += now.at(x, r.top + 1) != now.at(x - 1, r.top + 1);
            if (changes > r.Width() / 2)
                return id;
        }
        return 0;
    }
    // Opens a menu by `open`; while it is up, `seen` is given what it holds and keys are pressed.
    void with_menu(
        const std::function<void()>& open, std::initializer_list<UINT> keys,
        const std::function<void(HMENU)>& seen = [](HMENU) {}) {
        static const std::function<void(HMENU)>* watcher;
        static bool watched;
        watcher = &seen;
        watched = false;
        const HHOOK hook = ::SetWindowsHookExA(
            WH_CALLWNDPROC,
            [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
                const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
                if (code == HC_ACTION && call.message == WM_INITMENUPOPUP && !watched) {
                    watched = true;
                    (*watcher)(reinterpret_cast<HMENU>(call.wParam));
                }
                return ::CallNextHookEx(nullptr, code, wParam, lParam);
            },
            nullptr, ::GetCurrentThreadId());
        for (const UINT k : keys)
            ::PostMessageA(host_.m_hWnd, WM_KEYDOWN, k, 1);
        open();
        ::UnhookWindowsHookEx(hook);
        EXPECT_TRUE(watched);
        MSG rest;
        while (::PeekMessageA(&rest, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        }
    }

    CEdit edit_;
    CWntToolBar* bar_ = nullptr;
};

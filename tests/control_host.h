// Hosts of controls that tell their parent something, and what tests of such controls share.
#pragma once

#include <zopwnt.h>

#include <gmock/gmock.h>

#include <bit>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "held_keys.h"
#include "thread_window.h"
#include "widget_window.h"

/// Keeps commands and notifications, code first, and answers as it is told to.
template <class Notify, auto... kept> struct AnsweringHost : AttentiveHost {
    using Told = decltype(std::tuple(UINT(), std::declval<Notify>().*kept...));

    std::vector<Told> told;
    std::vector<UINT> commands;
    std::function<LRESULT(Notify&)> answer = [](Notify&) { return 0; };

    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        auto& n = *reinterpret_cast<Notify*>(lParam);
        told.emplace_back(n.hdr.code, n.*kept...);
        *result = answer(n);
        return TRUE;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM) override {
        commands.push_back(LOWORD(wParam));
        return TRUE;
    }
};

template <class Host> struct ControlTest : testing::Test {
    void SetUp() override {
        ASSERT_TRUE(host_.CreateEx(WS_EX_TOPMOST, nullptr, "host", WS_POPUP, CRect(50, 50, 650, 450), nullptr, 0));
        host_.ShowWindow(SW_SHOW);
    }
    void TearDown() override { host_.DestroyWindow(); }
    /// As the message loop would give it to a window within.
    bool translated(CWnd& window, UINT message, WPARAM wParam) {
        MSG m = {window.m_hWnd, message, wParam, 0, 0, {}};
        return CWnd::WalkPreTranslateTree(host_.m_hWnd, &m);
    }

    Host host_;
};

/// Where pixels of a colour lie; empty where there are none.
inline CRect extent(const Pixels& seen, COLORREF colour, const CRect& part) {
    CRect box;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            if (seen.at(x, y) == colour)
                box |= CRect(x, y, x + 1, y + 1);
    return box;
}

/// Settings in a file of its own, which goes with the object.
struct TemporaryProfile {
    TemporaryProfile() { std::remove(name_.c_str()); }
    ~TemporaryProfile() { std::remove(name_.c_str()); }
    TemporaryProfile(const TemporaryProfile&) = delete;
    TemporaryProfile& operator=(const TemporaryProfile&) = delete;
    operator const char*() const { return name_.c_str(); }

private:
    const std::string name_ = (std::filesystem::temp_directory_path() / "control_test.ini").string();
};

/// The front end's library of scaling, as long as the object lives.
struct MainFrameScale {
    MainFrameScale() : library_(::LoadLibraryA(path())) {
        EXPECT_TRUE(library_);
        percentage_ = std::bit_cast<int*>(::GetProcAddress(library_, "percentage"));
    }
    ~MainFrameScale() { ::FreeLibrary(library_); }
    MainFrameScale(const MainFrameScale&) = delete;
    MainFrameScale& operator=(const MainFrameScale&) = delete;
    void tell(CWnd& control, int percentage) {
        *percentage_ = percentage;
        control.SendMessage(WM_SETTINGCHANGE);
    }

private:
    static CString path() { // a folder of its own: beside the programs all would find it
        char program[MAX_PATH];
        ::GetModuleFileNameA(nullptr, program, sizeof program);
        return CString(program).Left(CString(program).ReverseFind('\\')) + "\\stub\\zopfdraw.dll";
    }

    HMODULE library_;
    int* percentage_;
};

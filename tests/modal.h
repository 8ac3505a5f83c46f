// The program object of tests that run modal dialogs: at home beside its files, never stopped by a message box.
#pragma once

#include <zopwnt.h>

#include <gmock/gmock.h>

#include <cstring>
#include <functional>
#include <string>
#include <utility>

class ModalProgram : public CWinApp {
public:
    int DoMessageBox(LPCTSTR, UINT, UINT) override { return IDOK; }
};
inline ModalProgram program;

class Framework : public testing::Environment {
    void SetUp() override {
        ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0));
        char path[MAX_PATH] = "";
        ::GetModuleFileNameA(nullptr, path, sizeof path);
        *std::strrchr(path, '\\') = '\0';
        ASSERT_TRUE(::SetCurrentDirectoryA(path));
    }
};
inline const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new Framework);

/// Calls the function again and again while messages are dispatched, until it answers true.
class WhileModal {
public:
    explicit WhileModal(std::function<bool()> work) {
        work_ = std::move(work);
        timer_ = ::SetTimer(nullptr, 0, 20, &WhileModal::tick);
    }
    ~WhileModal() { ::KillTimer(nullptr, timer_); }

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR timer, DWORD) {
        if (work_())
            ::KillTimer(nullptr, timer);
    }
    static inline std::function<bool()> work_;
    UINT_PTR timer_;
};

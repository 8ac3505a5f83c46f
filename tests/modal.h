// A program object that answers message boxes, and work to be done while a modal dialog runs.
#pragma once

#include <zopwnt.h>

#include <functional>
#include <string>
#include <vector>

class ModalProgram : public CWinApp {
public:
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        boxes.push_back(text);
        return IDOK;
    }
    std::vector<std::string> boxes;
};

/// Calls the function again and again while messages are dispatched, until it answers true.
class WhileModal {
public:
    explicit WhileModal(std::function<bool()> work) {
        work_ = std::move(work);
        timer_ = ::SetTimer(nullptr, 0, 20, &WhileModal::tick);
    }
    ~WhileModal() {
        ::KillTimer(nullptr, timer_);
        work_ = nullptr;
    }
    WhileModal(const WhileModal&) = delete;
    WhileModal& operator=(const WhileModal&) = delete;

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR timer, DWORD) {
        if (work_ && work_()) {
            work_ = nullptr;
            ::KillTimer(nullptr, timer);
        }
    }
    static inline std::function<bool()> work_;
    UINT_PTR timer_;
};

// A program object that answers message boxes and keeps their texts, and a way to cancel dialogs.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class UnattendedApp : public CWinApp {
public:
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        texts.push_back(text);
        return IDOK;
    }
    std::vector<std::string> texts;
};
inline UnattendedApp unattended_app;

/// Cancels every dialog that comes up while the object lives, and counts them.
class DialogCanceller {
public:
    DialogCanceller() : timer_(::SetTimer(nullptr, 0, 20, &look)) { cancelled = 0; }
    ~DialogCanceller() { ::KillTimer(nullptr, timer_); }
    DialogCanceller(const DialogCanceller&) = delete;
    DialogCanceller& operator=(const DialogCanceller&) = delete;

    static inline int cancelled = 0;

private:
    static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD) {
        if (HWND dialog = ::FindWindowA("#32770", nullptr); dialog && ::IsWindowVisible(dialog)) {
            ++cancelled;
            ::SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        }
    }
    UINT_PTR timer_;
};

// Another process with windows: started, commanded, watched, ended.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

inline void expect(bool holds, const std::string& what) {
    if (!holds)
        throw std::runtime_error(what);
}

// Asks again and again, for at most so long that a busy machine gets there too.
inline void eventually(const std::string& what, const std::function<bool()>& holds) {
    const ULONGLONG end = ::GetTickCount64() + 60'000;
    while (!holds()) {
        expect(::GetTickCount64() < end, "never: " + what);
        ::Sleep(20);
    }
}

struct Program {
    explicit Program(const std::string& command) {
        STARTUPINFOA start = {};
        start.cb = sizeof start;
        PROCESS_INFORMATION made = {};
        std::string line = command;
        expect(::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made),
               "cannot start " + command);
        ::CloseHandle(made.hThread);
        process_ = made.hProcess;
        id_ = made.dwProcessId;
    }
    ~Program() {
        ::TerminateProcess(process_, 1); // of no effect on one that has ended
        ::CloseHandle(process_);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool ended() const { return ::WaitForSingleObject(process_, 0) == WAIT_OBJECT_0; }

    // The visible window of the process that is wanted, once there is one.
    HWND window(const std::string& what, const std::function<bool(HWND)>& wanted) const {
        HWND found = nullptr;
        eventually(what, [&] {
            expect(!ended(), "the program ended before: " + what);
            struct Search {
                DWORD process;
                const std::function<bool(HWND)>& wanted;
                HWND found;
            } search{id_, wanted, nullptr};
            ::EnumWindows(
                [](HWND window, LPARAM param) -> BOOL {
                    auto& search = *reinterpret_cast<Search*>(param);
                    DWORD process = 0;
                    ::GetWindowThreadProcessId(window, &process);
                    if (process != search.process || !::IsWindowVisible(window) || !search.wanted(window))
                        return TRUE;
                    search.found = window;
                    return FALSE;
                },
                reinterpret_cast<LPARAM>(&search));
            found = search.found;
            return found != nullptr;
        });
        return found;
    }
    HWND frame() const {
        return window("a window with a menu", [](HWND window) { return ::GetMenu(window) != nullptr; });
    }
    // A dialog or a message box that holds a control with this number.
    HWND dialog(int control) const {
        return window("a dialog", [control](HWND window) {
            char name[32] = "";
            ::GetClassNameA(window, name, sizeof name);
            return std::string(name) == "#32770" && ::GetDlgItem(window, control) != nullptr;
        });
    }
    void expect_end(HWND window) const {
        ::PostMessageA(window, WM_CLOSE, 0, 0);
        expect_end();
    }
    void expect_end() const {
        eventually("the program ends", [this] { return ended(); });
        DWORD code = 1;
        ::GetExitCodeProcess(process_, &code);
        expect(code == 0, "the program ended with " + std::to_string(code));
    }

private:
    HANDLE process_ = nullptr;
    DWORD id_ = 0;
};

inline void press(HWND dialog, int button) {
    ::PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
}

// A message with one button, beside the windows that it is about.
inline void dismiss(const Program& program, HWND dialog = nullptr) {
    HWND box = program.window("a message", [dialog](HWND window) {
        return window != dialog && !::GetMenu(window) && (::GetDlgItem(window, IDOK) || ::GetDlgItem(window, IDCANCEL));
    });
    press(box, ::GetDlgItem(box, IDOK) ? IDOK : IDCANCEL);
}

inline void enter(HWND dialog, int field, const char* text) {
    ::SendDlgItemMessageA(dialog, field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

inline std::string text_of(HWND dialog, int field) {
    char text[256] = "";
    ::SendDlgItemMessageA(dialog, field, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

inline void command(HWND window, int id) {
    ::SendMessageA(window, WM_COMMAND, static_cast<WPARAM>(id), 0);
}

// A window however deep inside another one.
inline HWND descendant(HWND window, int id) {
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        HWND found = ::GetDlgCtrlID(child) == id ? child : descendant(child, id);
        if (found)
            return found;
    }
    return nullptr;
}

// How many pixels there are of each colour.
inline std::map<COLORREF, int> colours_of(HDC dc, int width, int height) {
    std::map<COLORREF, int> seen;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            ++seen[::GetPixel(dc, x, y)];
    return seen;
}

// What a window shows on the screen.
inline std::map<COLORREF, int> colours_on_screen(HWND window) {
    RECT place = {};
    ::GetWindowRect(window, &place);
    const int width = place.right - place.left, height = place.bottom - place.top;
    HDC screen = ::GetDC(nullptr), memory = ::CreateCompatibleDC(screen);
    HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ before = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    const std::map<COLORREF, int> counted = colours_of(memory, width, height);
    ::SelectObject(memory, before);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return counted;
}

// In a file of its own: throws where it finds something else than it expects.
void drive_front_end(const std::string& program, const std::string& folder);

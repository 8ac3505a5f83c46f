// What every thread has of its own: handle maps, the message being handled, hooks, the current thread object.
#pragma once

#include "afx_base.h"

class CWinThread;
struct AFX_MODULE_STATE;
class CWnd;

// A slot holds one object for each thread that asks for it; it goes with its thread. The objects of the thread that
// ends the process stay: static objects of other modules may let go of their handles later.
int new_thread_slot(void* (*make)(), void (*destroy)(void*));
void* thread_slot(int slot);

template <class State> State& of_this_thread() {
    static const int slot =
        new_thread_slot([]() -> void* { return new State; }, [](void* state) { delete static_cast<State*>(state); });
    return *static_cast<State*>(thread_slot(slot));
}

struct thread_state {
    ~thread_state();

    CWinThread* thread = nullptr;
    AFX_MODULE_STATE* module_state = nullptr; // null: the program's
    MSG last_message{};                       // the window message that is being handled; all zero while none is
    MSG pumped_message{};                     // the message taken from the queue last
    POINT last_mouse{-1, -1};
    CWnd* wnd_in_creation = nullptr;
    HHOOK creation_hook = nullptr;
    HHOOK filter_hook = nullptr;
    HWND updating = nullptr;      // the window whose UpdateData runs: its controls' notifications are held back
    HMENU tracked_menu = nullptr; // the popup that TrackPopupMenu shows
    int wait_cursors = 0;
    HCURSOR cursor_before_wait = nullptr;
};

inline thread_state& this_thread() {
    return of_this_thread<thread_state>();
}

// Lets the calling thread's object filter the messages of the system's own loops.
void hook_message_filter();

// 1 and -1 begin and end a time of waiting, 0 shows its cursor again.
void change_wait_cursor(int by);

// Deletes what the calling thread has.
void end_thread_state();

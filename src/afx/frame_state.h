// The frame windows of a thread.
#pragma once

#include "thread_state.h"

#include <vector>

class CFrameWnd;

struct frame_state {
    std::vector<CFrameWnd*> frames;
};

inline frame_state& frames_of_this_thread() {
    return of_this_thread<frame_state>();
}

// What a thread does when it becomes idle: has the bars of its visible windows ask for the state of their commands.
void update_frames(CWnd* main_window);

// The window class of frames with the icon. The program's icon of the number, or the platform's for programs.
LPCTSTR frame_class(HICON icon);
HICON standard_icon(UINT id);

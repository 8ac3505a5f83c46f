// Whether OLE is to be ended in a thread.
#pragma once

#include "thread_state.h"

struct ole_state {
    ~ole_state();
    void end();

    bool begun = false;
};

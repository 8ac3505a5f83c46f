// OLE in a thread.
#include "afxdisp.h"
#include "ole_state.h"

#include "thread_state.h"

#include <utility>

namespace {

struct ole_state {
    bool begun = false;
};

} // namespace

void end_ole() {
    if (std::exchange(of_this_thread<ole_state>().begun, false))
        ::OleUninitialize();
}

BOOL AFXAPI AfxOleInit() {
    ole_state& state = of_this_thread<ole_state>();
    if (AfxGetModuleState() != AfxGetAppModuleState())
        return TRUE;
    if (!state.begun)
        state.begun = SUCCEEDED(::OleInitialize(nullptr));
    return state.begun;
}

// OLE in a thread.
#include "afxdisp.h"
#include "ole_state.h"

ole_state::~ole_state() {
    end();
}

void ole_state::end() {
    if (begun)
        ::OleUninitialize();
    begun = false;
}

BOOL AFXAPI AfxOleInit() {
    ole_state& state = of_this_thread<ole_state>();
    if (AfxGetModuleState() != AfxGetAppModuleState())
        return TRUE;
    if (!state.begun)
        state.begun = SUCCEEDED(::OleInitialize(nullptr));
    return state.begun;
}

// The states of modules: the program's, and those of libraries that any program may load.
#include "afx_app.h"
#include "module_state.h"
#include "thread_state.h"

#include <map>
#include <mutex>
#include <utility>

namespace {

// A library's state outlives it: a thread may still have it in force, and the library may come back to its place.
struct library_states {
    std::mutex lock;
    std::map<HINSTANCE, AFX_MODULE_STATE> states;
};

library_states& libraries() {
    static library_states all;
    return all;
}

} // namespace

HINSTANCE module_of(const void* address) {
    HMODULE module = nullptr;
    constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    return ::GetModuleHandleEx(flags, static_cast<LPCTSTR>(address), &module) ? module : ::GetModuleHandle(nullptr);
}

AFX_MODULE_STATE* AFXAPI afx_state_of_module(HINSTANCE module) {
    if (module == ::GetModuleHandle(nullptr))
        return AfxGetAppModuleState();
    const std::lock_guard guard(libraries().lock);
    AFX_MODULE_STATE& state = libraries().states[module];
    state.m_hCurrentInstanceHandle = module;
    return &state;
}

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState() {
    static AFX_MODULE_STATE program{nullptr, ::GetModuleHandle(nullptr), nullptr};
    return &program;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState() {
    AFX_MODULE_STATE* state = this_thread().module_state;
    return state != nullptr ? state : AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState) {
    AFX_MODULE_STATE* before = AfxGetModuleState();
    this_thread().module_state = pNewState;
    return before;
}

// A library without a program object has nothing to begin or to end.
BOOL AFXAPI afx_library_main(HINSTANCE module, DWORD reason) {
    AFX_MODULE_STATE* state = afx_state_of_module(module);
    CWinApp* app = state->m_pCurrentWinApp;
    if (app == nullptr || (reason != DLL_PROCESS_ATTACH && reason != DLL_PROCESS_DETACH))
        return TRUE;
    AFX_MANAGE_STATE(state);
    static char no_arguments[] = "";
    try {
        if (reason == DLL_PROCESS_ATTACH) {
            state->begun = AfxWinInit(module, nullptr, no_arguments, 0);
            if (state->begun && app->InitInstance())
                return TRUE;
        }
        if (std::exchange(state->begun, false)) // a library that could not begin is told of its end, too
            app->ExitInstance();
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) { // out of a call of the system's loader: the library is not loaded
    }
    return reason == DLL_PROCESS_DETACH;
}

#include "thread_state.h"

#include <atomic>
#include <stdexcept>
#include <utility>

namespace {

constexpr int most_slots = 16;

struct slot_functions {
    void* (*make)();
    void (*destroy)(void*);
};

// Constant-initialised: static objects of any module may ask before this library's own are made.
slot_functions functions[most_slots];
std::atomic<int> slots_taken = 0;

struct slots_of_thread {
    void* at[most_slots] = {};
};

// The platform's own storage: still there when the system tells of a thread's end.
DWORD storage() {
    static const DWORD index = ::TlsAlloc();
    return index;
}

} // namespace

int new_thread_slot(void* (*make)(), void (*destroy)(void*)) {
    const int slot = slots_taken++;
    if (slot >= most_slots)
        throw std::length_error("thread slots");
    functions[slot] = {make, destroy};
    return slot;
}

void* thread_slot(int slot) {
    auto* slots = static_cast<slots_of_thread*>(::TlsGetValue(storage()));
    if (slots == nullptr) {
        slots = new slots_of_thread;
        ::TlsSetValue(storage(), slots);
    }
    if (slots->at[slot] == nullptr)
        slots->at[slot] = functions[slot].make();
    return slots->at[slot];
}

void end_thread_state() {
    auto* slots = static_cast<slots_of_thread*>(::TlsGetValue(storage()));
    if (slots == nullptr)
        return;
    for (int pass = 0; pass < 2; ++pass) { // what goes may ask for another slot's object, and make it anew
        for (int slot = slots_taken; slot-- > 0;) {
            if (void* state = std::exchange(slots->at[slot], nullptr))
                functions[slot].destroy(state);
        }
    }
    ::TlsSetValue(storage(), nullptr);
    delete slots;
}

// Threads that the framework did not start end here.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_THREAD_DETACH)
        end_thread_state();
    return TRUE;
}

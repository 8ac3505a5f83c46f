// Memory that ends with its object.
#pragma once

#include <windows.h>

#include <cstddef>

/// A window whose memory is out of reach once it is deleted: any use after that traps.
template <class Window> struct Trapping : Window {
    static void* operator new(std::size_t size) {
        return ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    }
    static void operator delete(void* memory) { ::VirtualFree(memory, 0, MEM_RELEASE); }
};

// Keys that are down for a while.
#pragma once

#include <windows.h>

#include <algorithm>
#include <initializer_list>

struct HeldKeys {
    explicit HeldKeys(std::initializer_list<int> keys) {
        ::GetKeyboardState(before_);
        BYTE now[256];
        std::copy_n(before_, 256, now);
        for (const int key : keys)
            now[key] = 0x80;
        ::SetKeyboardState(now);
    }
    ~HeldKeys() { ::SetKeyboardState(before_); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE before_[256];
};

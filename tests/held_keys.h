// Keys that are down, or switched on, for a while.
#pragma once

#include <windows.h>

#include <algorithm>
#include <initializer_list>

/// As an operand before a comma: as long as the whole expression.
struct HeldKeys {
    /// The state: 0x80 down, 1 switched on.
    explicit HeldKeys(std::initializer_list<int> keys, BYTE state = 0x80) {
        ::GetKeyboardState(before_);
        BYTE now[256];
        std::copy_n(before_, 256, now);
        for (const int key : keys)
            now[key] = state;
        ::SetKeyboardState(now);
    }
    ~HeldKeys() { ::SetKeyboardState(before_); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE before_[256];
};

// Positions in lists of objects. A position is the object that comes next, so that the one before may go meanwhile.
#pragma once

#include "afx_base.h"

#include <algorithm>
#include <vector>

template <class Object> POSITION first_position(const std::vector<Object*>& list) {
    return list.empty() ? nullptr : reinterpret_cast<POSITION>(list.front());
}

// The object at the position, which moves on; null where it went meanwhile.
template <class Object> Object* next_at(const std::vector<Object*>& list, POSITION& position) {
    auto* wanted = reinterpret_cast<Object*>(position);
    const auto at = std::find(list.begin(), list.end(), wanted);
    position = nullptr;
    if (at == list.end())
        return nullptr;
    if (at + 1 != list.end())
        position = reinterpret_cast<POSITION>(*(at + 1));
    return *at;
}

// Positions in lists of objects. A position is the object that comes next, so that the one before may go meanwhile.
#pragma once

#include "afxcoll.h"

#include <algorithm>
#include <vector>

// Over a list of pointers; the object that is at hand may leave the list.
template <class Object> class objects_in {
public:
    class iterator {
    public:
        explicit iterator(const CPtrList& list) : m_list(list), m_next(list.GetHeadPosition()) { ++*this; }
        Object* operator*() const { return m_object; }
        iterator& operator++() {
            m_object = m_next != nullptr ? static_cast<Object*>(m_list.GetNext(m_next)) : nullptr;
            return *this;
        }
        bool operator!=(std::nullptr_t) const { return m_object != nullptr; }

    private:
        const CPtrList& m_list;
        POSITION m_next;
        Object* m_object = nullptr;
    };

    explicit objects_in(const CPtrList& list) : m_list(list) {}
    iterator begin() const { return iterator(m_list); }
    std::nullptr_t end() const { return nullptr; }

private:
    const CPtrList& m_list;
};

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

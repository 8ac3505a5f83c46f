// From a platform handle to the object that stands for it.
#pragma once

#include "thread_state.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <utility>

inline bool is_alive(HWND handle) {
    return ::IsWindow(handle);
}
inline bool is_alive(HMENU handle) {
    return ::IsMenu(handle);
}
inline bool is_alive(HGDIOBJ handle) {
    return ::GetObjectType(handle) != 0;
}

// Permanent objects belong to the program, which attached them. Temporary ones are made on demand and deleted when the
// program is idle; a program that is never idle has those of dead handles deleted whenever their number doubles.
// Member points to the object's member that holds the handle.
template <class Object, auto Member> class handle_map {
public:
    using Handle = std::remove_reference_t<decltype(std::declval<Object&>().*Member)>;

    handle_map() = default;
    ~handle_map() { delete_temporary(); }
    handle_map(const handle_map&) = delete;
    handle_map& operator=(const handle_map&) = delete;

    Object* permanent(Handle handle) const {
        const auto at = m_permanent.find(handle);
        return at != m_permanent.end() ? at->second : nullptr;
    }

    template <class Wanted = Object> Object* any(Handle handle) {
        if (handle == nullptr)
            return nullptr;
        if (Object* known = permanent(handle))
            return known;
        auto at = m_temporary.find(handle);
        if (at == m_temporary.end()) {
            if (m_temporary.size() >= m_limit)
                drop_dead();
            at = m_temporary.emplace(handle, std::make_unique<Wanted>()).first;
        }
        Object* temporary = at->second.get();
        temporary->*Member = handle; // again: it may have been detached or deleted, and the handle's value be another's
        return temporary;
    }

    // False where there is no handle to hold, or the object holds one already.
    bool attach(Object* object, Handle handle) {
        if (handle == nullptr || object->*Member != nullptr)
            return false;
        m_permanent[handle] = object;
        object->*Member = handle;
        return true;
    }

    // The handle, which is the caller's now.
    Handle detach(Object* object) {
        const Handle handle = std::exchange(object->*Member, nullptr);
        const auto at = m_permanent.find(handle);
        if (at != m_permanent.end() && at->second == object)
            m_permanent.erase(at);
        return handle;
    }

    void delete_temporary() {
        delete_if([](Handle) { return true; });
    }

private:
    void drop_dead() {
        delete_if([](Handle handle) { return !is_alive(handle); });
        m_limit = std::max(least_limit, 2 * m_temporary.size());
    }

    template <class Condition> void delete_if(Condition condition) {
        std::erase_if(m_temporary, [&](auto& entry) {
            if (!condition(entry.first))
                return false;
            entry.second.get()->*Member = nullptr; // the handle is somebody else's
            return true;
        });
    }

    static constexpr std::size_t least_limit = 1024;
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
    std::size_t m_limit = least_limit;
};

// Deletes the calling thread's temporary objects of every kind of handle.
void delete_temporary_objects();
void delete_temporary_windows();
void delete_temporary_menus();
void delete_temporary_gdi_objects();
void delete_temporary_device_contexts();
void delete_temporary_image_lists();

// From a platform handle to the object that stands for it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <unordered_map>

// Permanent objects belong to the program, which attached them. Temporary ones are made on demand and deleted when the
// program is idle; a program that is never idle has those of dead handles deleted whenever their number doubles.
//   Traits: Object* make(void* handle); void forget(Object*); bool alive(void* handle)
template <class Object, class Traits> class handle_map {
public:
    Object* permanent(void* handle) const { return find(m_permanent, handle); }

    template <class Wanted = Object> Object* any(void* handle) {
        if (handle == nullptr)
            return nullptr;
        if (Object* known = permanent(handle))
            return known;
        if (Object* known = find(m_temporary, handle))
            return known;
        if (m_temporary.size() >= m_limit)
            drop_dead();
        Object* made = Traits::template make<Wanted>(handle);
        m_temporary.emplace(handle, made);
        return made;
    }

    void set_permanent(void* handle, Object* object) { m_permanent[handle] = object; }

    void remove_permanent(void* handle, const Object* object) {
        const auto at = m_permanent.find(handle);
        if (at != m_permanent.end() && at->second == object)
            m_permanent.erase(at);
    }

    void delete_temporary() {
        delete_if([](void*) { return true; });
    }

private:
    using Map = std::unordered_map<void*, Object*>;

    static Object* find(const Map& map, void* handle) {
        const auto at = map.find(handle);
        return at != map.end() ? at->second : nullptr;
    }

    void drop_dead() {
        delete_if([](void* handle) { return !Traits::alive(handle); });
        m_limit = std::max(least_limit, 2 * m_temporary.size());
    }

    template <class Condition> void delete_if(Condition condition) {
        for (auto at = m_temporary.begin(); at != m_temporary.end();) {
            if (condition(at->first)) {
                Traits::forget(at->second); // the handle is somebody else's
                delete at->second;
                at = m_temporary.erase(at);
            } else {
                ++at;
            }
        }
    }

    static constexpr std::size_t least_limit = 1024;
    Map m_permanent, m_temporary;
    std::size_t m_limit = least_limit;
};

// Deletes the temporary objects of every kind of handle.
void delete_temporary_objects();
void delete_temporary_windows();
void delete_temporary_gdi_objects();
void delete_temporary_device_contexts();
void delete_temporary_menus();

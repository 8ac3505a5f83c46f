// What the collections are made of: a growing array, a chain whose places stay valid, a table of keys and values.
#pragma once

#include "afx_archive.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <utility>
#include <vector>

// Where an array keeps an element: in the array itself, or apart from it where the type cannot be copied, which then
// never is, and assigned only by what is called with an element.
template <class Item, bool = std::is_copy_constructible_v<Item>> class afx_cell {
public:
    afx_cell() = default;
    explicit afx_cell(const Item& item) : m_value(item) {}
    Item& value() { return m_value; }
    const Item& value() const { return m_value; }

private:
    Item m_value{};
};
template <class Item> class afx_cell<Item, false> {
public:
    afx_cell() : m_value(std::make_unique<Item>()) {}
    explicit afx_cell(const Item& item) : afx_cell() { *m_value = item; }
    afx_cell(const afx_cell& other) : afx_cell(other.value()) {}
    afx_cell(afx_cell&&) noexcept = default;
    afx_cell& operator=(const afx_cell& other) { return *this = afx_cell(other); }
    afx_cell& operator=(afx_cell&&) noexcept = default;
    Item& value() { return *m_value; }
    const Item& value() const { return *m_value; }

private:
    std::unique_ptr<Item> m_value;
};

// Indices out of range raise CInvalidArgException.
template <class Item> class afx_items {
public:
    INT_PTR size() const { return static_cast<INT_PTR>(m_cells.size()); }
    Item* data() {
        static_assert(in_a_row, "elements that cannot be copied do not lie in a row");
        return m_cells.empty() ? nullptr : &m_cells.front().value();
    }
    const Item* data() const { return const_cast<afx_items*>(this)->data(); }
    Item& at(INT_PTR index) { return m_cells[checked(index, size())].value(); }
    const Item& at(INT_PTR index) const { return m_cells[checked(index, size())].value(); }
    // Calls with each run of elements that lie in a row, of which an int can tell the length.
    template <class Call> void each_run(Call call) {
        for (INT_PTR first = 0, count; first < size(); first += count) {
            count = in_a_row ? std::min<INT_PTR>(size() - first, INT_MAX) : 1;
            call(&at(first), static_cast<int>(count));
        }
    }

    void resize(INT_PTR count, INT_PTR grow_by) {
        require(count >= 0);
        if (grow_by > 0 && count > size())
            m_cells.reserve(static_cast<std::size_t>((count + grow_by - 1) / grow_by * grow_by));
        m_cells.resize(static_cast<std::size_t>(count));
    }
    void set_grow(INT_PTR index, const Item& item) {
        require(index >= 0);
        if (index < size()) {
            at(index) = item;
            return;
        }
        cell copy(item); // it may lie in this array
        resize(index, -1);
        m_cells.push_back(std::move(copy));
    }
    void insert(INT_PTR index, const Item& item, INT_PTR count) {
        require(index >= 0 && count > 0);
        const cell copy(item);
        if (index > size())
            resize(index, -1);
        m_cells.insert(m_cells.begin() + index, static_cast<std::size_t>(count), copy);
    }
    void insert(INT_PTR index, const afx_items& items) {
        require(index >= 0);
        const std::vector<cell> copies(items.m_cells);
        if (index > size())
            resize(index, -1);
        m_cells.insert(m_cells.begin() + index, copies.begin(), copies.end());
    }
    void remove(INT_PTR index, INT_PTR count) {
        require(index >= 0 && count >= 0 && count <= size() && index <= size() - count);
        m_cells.erase(m_cells.begin() + index, m_cells.begin() + index + count);
    }
    void clear() { std::vector<cell>().swap(m_cells); }
    void shrink() { m_cells.shrink_to_fit(); }

private:
    struct cell : afx_cell<Item> { // a class of its own: an array may be a member of its elements
        using afx_cell<Item>::afx_cell;
    };
    static constexpr bool in_a_row = std::is_copy_constructible_v<Item>;
    static void require(bool condition) {
        if (!condition)
            AfxThrowInvalidArgException();
    }
    static std::size_t checked(INT_PTR index, INT_PTR count) {
        require(index >= 0 && index < count);
        return static_cast<std::size_t>(index);
    }

    std::vector<cell> m_cells;
};

// Places out of use raise CInvalidArgException only where they are null.
template <class Item> class afx_chain {
public:
    afx_chain() = default;
    ~afx_chain() { clear(); }
    afx_chain(const afx_chain&) = delete;
    afx_chain& operator=(const afx_chain&) = delete;

    INT_PTR size() const { return m_count; }
    POSITION head() const { return place(m_first); }
    POSITION tail() const { return place(m_last); }
    Item& at(POSITION position) const { return link(position)->value; }
    Item& next(POSITION& position) const {
        node* here = link(position);
        position = place(here->after);
        return here->value;
    }
    Item& before(POSITION& position) const {
        node* here = link(position);
        position = place(here->before);
        return here->value;
    }
    // Before the place; null stands for the end.
    POSITION insert(POSITION position, const Item& item) {
        node* after = reinterpret_cast<node*>(position);
        node* made = new_node(item);
        made->before = after != nullptr ? after->before : m_last;
        made->after = after;
        (made->before != nullptr ? made->before->after : m_first) = made;
        (after != nullptr ? after->before : m_last) = made;
        ++m_count;
        return place(made);
    }
    POSITION insert_after(POSITION position, const Item& item) { return insert(place(link(position)->after), item); }
    void append(const afx_chain& items) {
        POSITION at = items.head();
        for (INT_PTR i = items.size(); i > 0; --i) // the list may be this one
            insert(nullptr, items.next(at));
    }
    void prepend(const afx_chain& items) {
        POSITION at = items.tail();
        for (INT_PTR i = items.size(); i > 0; --i)
            insert(head(), items.before(at));
    }
    void erase(POSITION position) {
        node* gone = link(position);
        (gone->before != nullptr ? gone->before->after : m_first) = gone->after;
        (gone->after != nullptr ? gone->after->before : m_last) = gone->before;
        --m_count;
        delete gone;
    }
    Item remove(POSITION position) {
        Item value = std::move(at(position));
        erase(position);
        return value;
    }
    void clear() {
        while (m_first != nullptr)
            delete std::exchange(m_first, m_first->after);
        m_last = nullptr;
        m_count = 0;
    }
    template <class Condition> POSITION find(POSITION start_after, Condition condition) const {
        POSITION at = start_after != nullptr ? place(link(start_after)->after) : head();
        while (at != nullptr && !condition(this->at(at)))
            next(at);
        return at;
    }
    POSITION find_index(INT_PTR index) const {
        if (index < 0 || index >= m_count)
            return nullptr;
        POSITION at = head();
        for (; index > 0; --index)
            next(at);
        return at;
    }

private:
    struct node {
        Item value{};
        node *before = nullptr, *after = nullptr;
    };
    static node* new_node(const Item& item) {
        if constexpr (std::is_copy_constructible_v<Item>)
            return new node{item};
        auto made = std::make_unique<node>();
        made->value = item;
        return made.release();
    }
    static POSITION place(node* at) { return reinterpret_cast<POSITION>(at); }
    static node* link(POSITION position) {
        if (position == nullptr)
            AfxThrowInvalidArgException();
        return reinterpret_cast<node*>(position);
    }

    node *m_first = nullptr, *m_last = nullptr;
    INT_PTR m_count = 0;
};

// Pairs in the order of their coming, each also in one of the buckets by its key's hash. A position is the pair that
// comes next, so that the one before may go meanwhile.
template <class Pair> class afx_table {
public:
    afx_table() = default;
    ~afx_table() { clear(); }
    afx_table(const afx_table&) = delete;
    afx_table& operator=(const afx_table&) = delete;

    INT_PTR size() const { return m_count; }
    UINT buckets() const { return static_cast<UINT>(m_buckets.empty() ? m_wanted : m_buckets.size()); }
    void set_buckets(UINT count) {
        m_wanted = std::max(count, 1U);
        m_buckets.clear();
        if (m_count > 0)
            rehash(m_wanted);
    }
    Pair* first() const { return m_first; }
    static Pair* next(const Pair* pair) { return static_cast<const node*>(pair)->after; }
    static POSITION place(Pair* pair) { return reinterpret_cast<POSITION>(static_cast<node*>(pair)); }
    Pair& take(POSITION& position) const {
        auto* here = reinterpret_cast<node*>(position);
        if (here == nullptr)
            AfxThrowInvalidArgException();
        position = place(here->after);
        return *here;
    }

    template <class Same> Pair* find(UINT hash, Same same) const {
        node* at = m_buckets.empty() ? nullptr : m_buckets[hash % m_buckets.size()];
        while (at != nullptr && (at->hash != hash || !same(*at)))
            at = at->chained;
        return at;
    }
    template <class Key> Pair& add(UINT hash, Key&& key) {
        if (m_buckets.empty())
            rehash(m_wanted);
        else if (m_count >= 2 * static_cast<INT_PTR>(m_buckets.size()))
            rehash(2 * m_buckets.size() + 1);
        node* made = new node(std::forward<Key>(key), hash, m_last);
        (m_last != nullptr ? m_last->after : m_first) = made;
        m_last = made;
        chain(made);
        ++m_count;
        return *made;
    }
    template <class Same> bool remove(UINT hash, Same same) {
        if (m_buckets.empty())
            return false;
        for (node** at = &m_buckets[hash % m_buckets.size()]; *at != nullptr; at = &(*at)->chained) {
            node* gone = *at;
            if (gone->hash != hash || !same(*gone))
                continue;
            *at = gone->chained;
            (gone->before != nullptr ? gone->before->after : m_first) = gone->after;
            (gone->after != nullptr ? gone->after->before : m_last) = gone->before;
            --m_count;
            delete gone;
            return true;
        }
        return false;
    }
    void clear() {
        while (m_first != nullptr)
            delete std::exchange(m_first, m_first->after);
        m_last = nullptr;
        m_count = 0;
        m_buckets.clear();
    }

private:
    struct node : Pair {
        template <class Key>
        node(Key&& key, UINT hash, node* before) : Pair(std::forward<Key>(key)), before(before), hash(hash) {}
        node *chained = nullptr, *before, *after = nullptr;
        UINT hash;
    };
    void chain(node* at) {
        node*& bucket = m_buckets[at->hash % m_buckets.size()];
        at->chained = bucket;
        bucket = at;
    }
    void rehash(std::size_t count) {
        m_buckets.assign(count, nullptr);
        for (node* at = m_first; at != nullptr; at = at->after)
            chain(at);
    }

    std::vector<node*> m_buckets;
    node *m_first = nullptr, *m_last = nullptr;
    INT_PTR m_count = 0;
    UINT m_wanted = 17;
};

inline UINT afx_hash(LPCSTR text) {
    UINT hash = 2166136261U;
    for (; text != nullptr && *text != '\0'; ++text)
        hash = (hash ^ static_cast<BYTE>(*text)) * 16777619U;
    return hash;
}
inline UINT afx_hash(ULONGLONG number) {
    return static_cast<UINT>((number * 0x9E3779B97F4A7C15ULL) >> 32);
}
inline UINT afx_hash(WORD number) {
    return number;
}
inline UINT afx_hash(const void* at) {
    return afx_hash(static_cast<ULONGLONG>(reinterpret_cast<UINT_PTR>(at)));
}

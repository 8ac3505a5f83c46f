#pragma once

#include <cstddef>
#include <cstdint>

#include "zopwnt_api.h"

/// Items of one size, side by side in a buffer of fixed capacity, with a cursor. Items are copied as raw bytes.
///
///     CWntUlist list;
///     list.create(name, sizeof(Item), 100);
///     list.additem(&item);
///     list.seek(1, 0);
///     while (auto* each = static_cast<Item*>(list.nextitem()))
///         ...
///     list.destroy();
///
/// Slots count from 0; the cursor is a slot's index and may stand anywhere after seek(1, n). Pointers into the list
/// hold until it is destroyed. On a null object, before create() and after destroy() every operation answers its
/// failure value, or does nothing. The buffer belongs to the object from create() to destroy(): the destructor frees
/// nothing.
class ZOPWNT_API CWntUlist {
public:
    CWntUlist();
    virtual ~CWntUlist();

    CWntUlist(const CWntUlist&) = delete;
    CWntUlist& operator=(const CWntUlist&) = delete;

    /// Makes an empty list, its slots all zero; what the object held before is freed. The name is kept as given,
    /// neither copied nor read. 0 for negative sizes, for 2 GB and more, and when there is no memory.
    int create(char* name, int itemsize, int capacity);
    /// Frees the slots; pointers into them are void.
    void destroy();
    /// Empties the list and zeroes its slots; the cursor stays. Always 1.
    int flush();

    /// Appends: the new item's index, or -1 when the list is full.
    int additem(void* item);
    /// Inserts at the cursor: the new number of items, or -1. The last slot is for additem() alone: refused when only
    /// one is free, and when the cursor is outside the slots. Behind the items nothing moves.
    int insertitem(void* item);
    /// Removes the item at the cursor, the last one when the cursor is behind it; 0 without items. The slot of the
    /// former last item keeps its bytes.
    int deleteitem();

    /// Copies item `index` to out; 0 when there is none.
    int getitem(void* out, int index);
    /// Address of item `index`, or null.
    void* mkptr(int index);
    /// Address of the item at the cursor, or null.
    void* readitem();
    /// The same, then the cursor moves on.
    void* nextitem();
    /// Address of the cursor's slot, which may be the one behind the last item, then the cursor moves back; null from
    /// slot 0, where it stays, and from beyond the slots.
    void* previousitem();
    /// Overwrites the item at the cursor; 0 when there is none.
    int updateitem(void* item);

    /// mode 0: by n, but only to an item; 1: to n, unchecked; 2: behind the last item. Always 1.
    int seek(int mode, int n);
    /// Number of items; -1 on a null object.
    int queryitemno();

    char* name;            ///< as given to create()
    std::int32_t itemsize; ///< bytes
    std::int32_t capacity; ///< slots
    std::uint8_t* buffer;  ///< null without a list
    std::int32_t bytes;    ///< itemsize * capacity
    std::int32_t count;    ///< items, in slots 0 to count - 1
    std::int32_t cursor;   ///< a slot's index

private:
    bool holds(std::int64_t index) const { return 0 <= index && index < count; }
    std::uint8_t* slot(int index) const { return buffer + static_cast<std::ptrdiff_t>(index) * itemsize; }
    void move(int from, int to, int items);
};

#include "controls/wnt_ulist.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

// Hosts read these fields.
static_assert(sizeof(void*) != 8 || sizeof(CWntUlist) == 48, "the fields follow one another with natural alignment");

CWntUlist::CWntUlist() : name(nullptr), itemsize(0), capacity(0), buffer(nullptr), bytes(0), count(0), cursor(0) {}

CWntUlist::~CWntUlist() = default;

int CWntUlist::create(char* list_name, int item_bytes, int slots) {
    if (!this)
        return 0;
    destroy();
    name = list_name;
    itemsize = cursor = 0;
    const std::int64_t total = std::int64_t{item_bytes} * slots;
    if (item_bytes < 0 || slots < 0 || !std::in_range<std::int32_t>(total))
        return 0;
    // One slot to spare: deleting from a full list zeroes the one behind the last.
    const std::size_t with_spare = static_cast<std::size_t>(total) + static_cast<std::size_t>(item_bytes);
    buffer = static_cast<std::uint8_t*>(std::calloc(std::max<std::size_t>(with_spare, 1), 1));
    if (!buffer)
        return 0;
    itemsize = item_bytes;
    capacity = slots;
    bytes = static_cast<std::int32_t>(total);
    return 1;
}

// Without slots and items everything is refused until the next create().
void CWntUlist::destroy() {
    if (!this)
        return;
    std::free(buffer);
    buffer = nullptr;
    capacity = bytes = count = 0;
}

int CWntUlist::flush() {
    if (!this)
        return 0;
    count = 0;
    if (buffer)
        std::memset(buffer, 0, bytes);
    return 1;
}

int CWntUlist::additem(void* item) {
    if (!this || !item || count >= capacity)
        return -1;
    std::memmove(slot(count), item, itemsize);
    return count++;
}

int CWntUlist::insertitem(void* item) {
    if (!this || !item || count >= capacity - 1 || cursor < 0 || cursor >= capacity)
        return -1;
    move(cursor, cursor + 1, std::max(count - cursor, 0));
    std::memmove(slot(cursor), item, itemsize);
    return ++count;
}

int CWntUlist::deleteitem() {
    if (!this || count == 0 || cursor < 0)
        return 0;
    if (cursor < count)
        move(cursor + 1, cursor, count - 1 - cursor);
    std::memset(slot(count), 0, itemsize);
    --count;
    return 1;
}

int CWntUlist::getitem(void* out, int index) {
    if (!this || !out || !holds(index))
        return 0;
    std::memmove(out, slot(index), itemsize);
    return 1;
}

void* CWntUlist::mkptr(int index) {
    return this && holds(index) ? slot(index) : nullptr;
}

void* CWntUlist::readitem() {
    return this ? mkptr(cursor) : nullptr;
}

void* CWntUlist::nextitem() {
    return this && holds(cursor) ? slot(cursor++) : nullptr;
}

// The spare slot is the last one with an address; a cursor from beyond it walks back as well.
void* CWntUlist::previousitem() {
    if (!this || cursor < 1)
        return nullptr;
    const int at = cursor--;
    return buffer && at <= capacity ? slot(at) : nullptr;
}

int CWntUlist::updateitem(void* item) {
    if (!this || !item || !holds(cursor))
        return 0;
    std::memmove(slot(cursor), item, itemsize);
    return 1;
}

int CWntUlist::seek(int mode, int n) {
    if (!this)
        return 0;
    if (mode == 0) {
        const std::int64_t target = std::int64_t{cursor} + n;
        if (holds(target))
            cursor = static_cast<std::int32_t>(target);
    } else if (mode == 1) {
        cursor = n;
    } else if (mode == 2) {
        cursor = count;
    }
    return 1;
}

int CWntUlist::queryitemno() {
    return this ? count : -1;
}

void CWntUlist::move(int from, int to, int items) {
    std::memmove(slot(to), slot(from), static_cast<std::size_t>(items) * itemsize);
}

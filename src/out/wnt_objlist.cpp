#include "out/wnt_objlist.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <utility>

// Hosts read these fields.
static_assert(sizeof(void*) != 8 || sizeof(CWntObjlist) == 64, "the fields follow one another with natural alignment");

CWntObjlist::CWntObjlist()
    : name(nullptr), size(0), buffer(nullptr), first(nullptr), end(nullptr), cursor(nullptr), count(0), atstart(0) {}

CWntObjlist::~CWntObjlist() = default;

int CWntObjlist::create(char* list_name, long list_size) {
    if (!this)
        return 0;
    destroy();
    name = list_name;
    size = 0;
    atstart = 0;
    if (list_size < 0 || !std::in_range<std::int32_t>(list_size))
        return 0;
    size = static_cast<std::int32_t>(list_size);
    buffer = static_cast<std::uint8_t*>(std::calloc(std::max<std::size_t>(size, 1), 1));
    first = end = cursor = buffer;
    return buffer != nullptr;
}

void CWntObjlist::destroy() {
    if (!this)
        return;
    std::free(buffer);
    buffer = first = end = cursor = nullptr;
    count = 0;
}

int CWntObjlist::flush() {
    if (!this)
        return 0;
    if (buffer)
        std::memset(buffer, 0, size);
    first = end = cursor = buffer;
    count = 0;
    return 1;
}

int CWntObjlist::additem(char* key, int len, void* data) {
    if (!this || !buffer || !key || !data || len <= 0 || free_bytes() <= len + header_size)
        return 0;
    write(end, {tag_of(key), static_cast<std::uint32_t>(len)}, data);
    end += len + header_size;
    ++count;
    return 1;
}

int CWntObjlist::insertitem(char* key, int len, void* data) {
    if (!this || !buffer || !key || !data || len < 0 || free_bytes() <= len + header_size)
        return -1;
    const std::int64_t tail = bytes_from_cursor();
    if (tail < 0)
        return -1;
    const std::int64_t taken = len + header_size;
    std::memmove(cursor + taken, cursor, tail);
    write(cursor, {tag_of(key), static_cast<std::uint32_t>(len)}, data);
    cursor += taken;
    end += taken;
    ++count;
    return 0;
}

int CWntObjlist::deleteitem() {
    Header header;
    if (!this || !current(header) || header.length == 0)
        return 0;
    const std::int64_t taken = header.length + header_size;
    std::memmove(cursor, cursor + taken, bytes_from_cursor() - taken);
    end -= taken;
    std::memset(end, 0, taken);
    --count;
    return 1;
}

int CWntObjlist::seek(int where, int) {
    if (!this)
        return 0;
    if (where == 1) {
        cursor = first;
        atstart = 1;
    } else if (where == 2) {
        cursor = end;
    }
    return 1;
}

void* CWntObjlist::nextitem(char* key) {
    Header header;
    if (!this || !key || !current(header))
        return nullptr;
    const std::uint32_t tag = tag_of(key);
    if (cursor == first && atstart && header.tag == tag) {
        atstart = 0;
        return cursor + header_size;
    }
    do {
        cursor += header.length + header_size;
        if (!current(header))
            return nullptr;
        if (header.tag == tag)
            return cursor + header_size;
    } while (header.tag != 0 && header.length != 0);
    return nullptr;
}

void* CWntObjlist::previousitem(char*) {
    return nullptr;
}

int CWntObjlist::readitem(char* key, int len, void* out) {
    Header header;
    if (!this || !key || len < 0 || !out || !current_has(key, header))
        return 0;
    std::memmove(out, cursor + header_size, std::min(static_cast<std::uint32_t>(len), header.length));
    return 1;
}

int CWntObjlist::updateitem(char* key, int len, void* data) {
    Header header;
    if (!this || !key || !current_has(key, header))
        return 0;
    if (len < 0 || static_cast<std::uint32_t>(len) != header.length)
        return 1; // intended: another length is accepted and changes nothing
    if (!data)
        return 0;
    std::memmove(cursor + header_size, data, header.length);
    return 1;
}

int CWntObjlist::queryitemno() {
    return this ? count : -1;
}

// Not beyond the key's end, which may come before its fourth character.
std::uint32_t CWntObjlist::tag_of(const char* key) {
    char bytes[sizeof(std::uint32_t)] = {};
    for (std::size_t i = 0; i < sizeof bytes && key[i] != 0; ++i)
        bytes[i] = key[i];
    std::uint32_t tag;
    std::memcpy(&tag, bytes, sizeof tag);
    return tag;
}

// Negative for a cursor that stands nowhere in the list; the field is the host's to set.
std::int64_t CWntObjlist::bytes_from_cursor() const {
    constexpr std::less<const std::uint8_t*> before;
    return !cursor || before(cursor, buffer) || before(end, cursor) ? -1 : end - cursor;
}

// The header at the cursor, if a whole record follows it.
bool CWntObjlist::current(Header& header) const {
    const std::int64_t available = bytes_from_cursor() - header_size;
    if (available < 0)
        return false;
    std::memcpy(&header, cursor, sizeof header);
    return header.length <= available;
}

bool CWntObjlist::current_has(char* key, Header& header) const {
    return current(header) && header.tag == tag_of(key);
}

void CWntObjlist::write(std::uint8_t* at, Header header, const void* data) {
    std::memcpy(at, &header, sizeof header);
    std::memmove(at + header_size, data, header.length);
}

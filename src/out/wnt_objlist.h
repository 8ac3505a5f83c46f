#pragma once

#include <cstddef>
#include <cstdint>

#include "zopwnt_api.h"

/// Tagged records of any length, one after another in a buffer that never grows, with a cursor to walk them.
///
///     CWntObjlist list;
///     list.create(name, 4096);
///     list.additem(key, sizeof(point), &point);
///     list.seek(1, 0);
///     while (auto* each = static_cast<Point*>(list.nextitem(key)))
///         ...
///     list.destroy();
///
/// A record is its tag (4 bytes), the length of its data (4 bytes) and the data, unaligned and without padding; a tag
/// or a length of 0 ends a walk. Only the first four characters of a key count, a shorter one is filled up with zeros:
/// keys are texts, nothing behind a zero byte counts. Data to be stored must not lie in the list.
///
/// Refusals show in the results only. On a null object, before create() and after destroy() every operation answers
/// its failure value, or does nothing. A cursor outside the records, or a length that leads out of them, ends a walk
/// and is refused elsewhere. The buffer belongs to the object from create() to destroy(): the destructor frees nothing.
class ZOPWNT_API CWntObjlist {
public:
    CWntObjlist();
    virtual ~CWntObjlist();

    CWntObjlist(const CWntObjlist&) = delete;
    CWntObjlist& operator=(const CWntObjlist&) = delete;

    /// Makes an empty list of `size` bytes, all zero; what the object held before is freed. The name is kept as given,
    /// neither copied nor read. 0 for a negative size and when there is no memory.
    int create(char* name, long size);
    /// Frees the buffer; pointers into it are void.
    void destroy();
    /// Empties the list. Always 1.
    int flush();

    /// Appends a record of len bytes, 1 and up; the cursor stays. 0 unless more than len + 8 bytes are free.
    int additem(char* key, int len, void* data);
    /// Inserts a record before the cursor's, which stays current. 0 for success (unlike additem), -1 for refusal.
    int insertitem(char* key, int len, void* data);
    /// Removes the cursor's record; the one that followed is current then. 0 without one, or when it is empty.
    int deleteitem();

    /// where 1: to the first record, which the next nextitem() may answer; 2: behind the last one. Always 1.
    int seek(int where, int unused);
    /// Data of the next record with the tag, which becomes current, or null. The search starts behind the current
    /// record, after seek(1, 0) with the first one.
    void* nextitem(char* key);
    /// Always null: there is no search backwards.
    void* previousitem(char* key);

    /// Copies at most len bytes of the current record's data; 0 when its tag is another one.
    int readitem(char* key, int len, void* out);
    /// Overwrites the current record's data when it has exactly len bytes, otherwise leaves them and answers 1 too.
    /// 0 when its tag is another one.
    int updateitem(char* key, int len, void* data);
    /// Number of records; -1 on a null object.
    int queryitemno();

    char* name;           ///< as given to create()
    std::int32_t size;    ///< of the buffer, in bytes
    std::uint8_t* buffer; ///< null without a list
    std::uint8_t* first;  ///< always the buffer's start
    std::uint8_t* end;    ///< first free byte
    std::uint8_t* cursor; ///< the current record
    std::int32_t count;   ///< records
    std::int32_t atstart; ///< set by seek(1, 0): nextitem() has not answered the first record yet

private:
    struct Header {
        std::uint32_t tag;
        std::uint32_t length;
    };
    static constexpr std::int64_t header_size = sizeof(Header);

    static std::uint32_t tag_of(const char* key);
    std::int64_t free_bytes() const { return size - (end - buffer); }
    std::int64_t bytes_from_cursor() const;
    bool current(Header& header) const;
    bool current_has(char* key, Header& header) const;
    void write(std::uint8_t* at, Header header, const void* data);
};

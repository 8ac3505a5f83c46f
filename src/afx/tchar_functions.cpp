// What <tchar.h> declares for multi-byte programs and no library of the toolchain has: the generic names of text
// functions, over those for multi-byte characters. The header declares them as imports, so it must not be seen here.
#include <mbstring.h>

#include <cstdint>

#define EXPORTED extern "C" __declspec(dllexport)

namespace {

unsigned char* bytes(char* text) {
    return reinterpret_cast<unsigned char*>(text);
}
const unsigned char* bytes(const char* text) {
    return reinterpret_cast<const unsigned char*>(text);
}
char* text(const unsigned char* bytes) {
    return reinterpret_cast<char*>(const_cast<unsigned char*>(bytes));
}
// The header has these answer a pointer where the documentation has an error's number.
char* as_declared(errno_t error) {
    return reinterpret_cast<char*>(static_cast<std::intptr_t>(error));
}

} // namespace

#define COMPARISON(name, work)                                                                                         \
    EXPORTED int name(const char* a, const char* b) {                                                                  \
        return work(bytes(a), bytes(b));                                                                               \
    }
COMPARISON(_tcscmp, _mbscmp)
COMPARISON(_tcsicmp, _mbsicmp)
COMPARISON(_tcscoll, _mbscoll)
COMPARISON(_tcsicoll, _mbsicoll)

#define BOUNDED_COMPARISON(name, work)                                                                                 \
    EXPORTED int name(const char* a, const char* b, size_t count) {                                                    \
        return work(bytes(a), bytes(b), count);                                                                        \
    }
BOUNDED_COMPARISON(_tcsncmp, _mbsnbcmp)
BOUNDED_COMPARISON(_tcsnccmp, _mbsncmp)
BOUNDED_COMPARISON(_tcsnicmp, _mbsnbicmp)
BOUNDED_COMPARISON(_tcsncicmp, _mbsnicmp)
BOUNDED_COMPARISON(_tcsncoll, _mbsnbcoll)
BOUNDED_COMPARISON(_tcsnccoll, _mbsncoll)
BOUNDED_COMPARISON(_tcsnicoll, _mbsnbicoll)
BOUNDED_COMPARISON(_tcsncicoll, _mbsnicoll)

#define COPY(name, work)                                                                                               \
    EXPORTED char* name(char* to, const char* from, size_t count) {                                                    \
        return text(work(bytes(to), bytes(from), count));                                                              \
    }
COPY(_tcsncpy, _mbsnbcpy)
COPY(_tcsnccpy, _mbsncpy)
COPY(_tcsncat, _mbsnbcat)
COPY(_tcsnccat, _mbsncat)

#define BOUNDED_COPY(name, work)                                                                                       \
    EXPORTED char* name(char* to, size_t room, const char* from, size_t count) {                                       \
        return as_declared(work(bytes(to), room, bytes(from), count));                                                 \
    }
BOUNDED_COPY(_tcsncpy_s, _mbsnbcpy_s)
BOUNDED_COPY(_tcsnccpy_s, _mbsncpy_s)
BOUNDED_COPY(_tcsncat_s, _mbsnbcat_s)
BOUNDED_COPY(_tcsnccat_s, _mbsncat_s)

#define SEARCH(name, work)                                                                                             \
    EXPORTED char* name(const char* in, const char* wanted) {                                                          \
        return text(work(bytes(in), bytes(wanted)));                                                                   \
    }
SEARCH(_tcsstr, _mbsstr)
SEARCH(_tcspbrk, _mbspbrk)
SEARCH(_tcsspnp, _mbsspnp)
SEARCH(_tcsdec, _mbsdec)

#define SPAN(name, work)                                                                                               \
    EXPORTED size_t name(const char* in, const char* set) {                                                            \
        return work(bytes(in), bytes(set));                                                                            \
    }
SPAN(_tcsspn, _mbsspn)
SPAN(_tcscspn, _mbscspn)

#define COUNT(name, work)                                                                                              \
    EXPORTED size_t name(const char* in, size_t most) {                                                                \
        return work(bytes(in), most);                                                                                  \
    }
COUNT(_tcscnlen, _mbsnlen)
COUNT(_tcsnbcnt, _mbsnbcnt)
COUNT(_tcsnccnt, _mbsnccnt)

#define CHANGE(name, work)                                                                                             \
    EXPORTED char* name(char* in) {                                                                                    \
        return text(work(bytes(in)));                                                                                  \
    }
CHANGE(_tcsrev, _mbsrev)
CHANGE(_tcslwr, _mbslwr)
CHANGE(_tcsupr, _mbsupr)

EXPORTED char* _tcslwr_s(char* in, size_t room) {
    return as_declared(_mbslwr_s(bytes(in), room));
}
EXPORTED char* _tcsupr_s(char* in, size_t room) {
    return as_declared(_mbsupr_s(bytes(in), room));
}

EXPORTED char* _tcschr(const char* in, unsigned wanted) {
    return text(_mbschr(bytes(in), wanted));
}
EXPORTED char* _tcsrchr(const char* in, unsigned wanted) {
    return text(_mbsrchr(bytes(in), wanted));
}
EXPORTED char* _tcsset(char* in, unsigned value) {
    return text(_mbsset(bytes(in), value));
}
EXPORTED char* _tcsnset(char* in, unsigned value, size_t count) {
    return text(_mbsnbset(bytes(in), value, count));
}
EXPORTED char* _tcsncset(char* in, unsigned value, size_t count) {
    return text(_mbsnset(bytes(in), value, count));
}
EXPORTED char* _tcstok(char* in, const char* delimiters) {
    return text(_mbstok(bytes(in), bytes(delimiters)));
}
EXPORTED char* _tcstok_s(char* in, const char* delimiters, char** place) {
    return text(_mbstok_s(bytes(in), bytes(delimiters), reinterpret_cast<unsigned char**>(place)));
}
EXPORTED char* _tcsinc(const char* at) {
    return text(_mbsinc(bytes(at)));
}
EXPORTED char* _tcsninc(const char* at, size_t count) {
    return text(_mbsninc(bytes(at), count));
}
EXPORTED unsigned _tcsnextc(const char* at) {
    return _mbsnextc(bytes(at));
}
EXPORTED size_t _tcsclen(const char* in) {
    return _mbslen(bytes(in));
}
EXPORTED size_t _tclen(const char* at) {
    return _mbclen(bytes(at));
}
EXPORTED void _tccpy(char* to, const char* from) {
    _mbccpy(bytes(to), bytes(from));
}

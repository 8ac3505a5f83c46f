#include "atlconv.h"

namespace ATL {

namespace {

std::size_t at_least_none(int count) {
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

} // namespace

std::wstring afx_widen(LPCSTR text, UINT code_page) {
    const int count = text != nullptr ? ::MultiByteToWideChar(code_page, 0, text, -1, nullptr, 0) : 0;
    std::wstring wide(at_least_none(count), L'\0');
    ::MultiByteToWideChar(code_page, 0, text, -1, wide.data(), count);
    wide.resize(at_least_none(count - 1)); // the terminator is the string's own
    return wide;
}

std::string afx_narrow(LPCWSTR text, UINT code_page) {
    const int count = text != nullptr ? ::WideCharToMultiByte(code_page, 0, text, -1, nullptr, 0, nullptr, nullptr) : 0;
    std::string narrow(at_least_none(count), '\0');
    ::WideCharToMultiByte(code_page, 0, text, -1, narrow.data(), count, nullptr, nullptr);
    narrow.resize(at_least_none(count - 1));
    return narrow;
}

LPWSTR afx_widen_into(LPWSTR room, int count, LPCSTR text) {
    room[0] = L'\0';
    ::MultiByteToWideChar(CP_ACP, 0, text, -1, room, count);
    return room;
}

LPSTR afx_narrow_into(LPSTR room, int count, LPCWSTR text) {
    room[0] = '\0';
    ::WideCharToMultiByte(CP_ACP, 0, text, -1, room, count, nullptr, nullptr);
    return room;
}

} // namespace ATL

#pragma once

#include <algorithm>
#include <cstring>

#include "controls/tip_layout.h"
#include "controls/tool_tip_ex.h"

namespace wnt {

// The texts in what the framework's messages about tools tell.

inline constexpr std::size_t old_callers = 80; // room for a text of those who tell no length
inline constexpr std::size_t need_text_size = sizeof(NMTTDISPINFOA::szText);

// The control itself sees this text alone: it decides when to show, and is not to ask or measure anything.
inline char something[] = " ";

inline CString text_of_tool(const TOOLINFO& info) {
    if (!info.lpszText || info.lpszText == LPSTR_TEXTCALLBACK)
        return CString();
    if (!IS_INTRESOURCE(info.lpszText))
        return info.lpszText;
    char text[longest_tip];
    const int length = ::LoadStringA(info.hinst, LOWORD(reinterpret_cast<UINT_PTR>(info.lpszText)), text, sizeof text);
    return CString(text, length);
}

inline CString answered_text(const NMTTDISPINFOA& need) {
    if (need.lpszText == need.szText)
        return CString(need.szText, static_cast<int>(::strnlen(need.szText, need_text_size)));
    TOOLINFO answer = {};
    answer.hinst = need.hinst;
    answer.lpszText = need.lpszText;
    return text_of_tool(answer);
}

inline CString flat_text(const WntTip& tip) {
    return tip.title.IsEmpty() || tip.text.IsEmpty() ? tip.title + tip.text : tip.title + "\n" + tip.text;
}

// What the control is to know of a tool.
inline TOOLINFO with_something(const TOOLINFO& given) {
    TOOLINFO seen = {};
    std::memcpy(&seen, &given, std::min<std::size_t>(given.cbSize, TTTOOLINFOA_V2_SIZE));
    seen.cbSize = TTTOOLINFOA_V2_SIZE; // what every version of the control takes
    seen.hinst = nullptr;
    seen.lpszText = something;
    return seen;
}

inline LRESULT copy_text(const CString& text, char* to, std::size_t capacity) {
    if (!to || capacity == 0)
        return 0;
    const std::size_t length = std::min<std::size_t>(text.GetLength(), capacity - 1);
    std::copy_n(text.GetString(), length, to);
    to[length] = 0;
    return static_cast<LRESULT>(length);
}

} // namespace wnt

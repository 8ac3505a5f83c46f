#include "controls/control_font.h"

namespace wnt {

namespace {

constexpr int letter_height = 13; // pixels at 96 dots an inch

} // namespace

ControlFont::ControlFont(int scale, bool bold) : dc_(::CreateCompatibleDC(nullptr)) {
    font_.CreateFont(-::MulDiv(letter_height, scale, 100), 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, 0, 0, 0,
                     DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                     DEFAULT_PITCH | FF_DONTCARE, "Arial");
    previous_ = ::SelectObject(dc_, font_.GetSafeHandle());
    TEXTMETRICA metrics = {};
    ::GetTextMetricsA(dc_, &metrics);
    row_ = metrics.tmHeight;
}

ControlFont::~ControlFont() {
    ::SelectObject(dc_, previous_);
    ::DeleteDC(dc_);
}

int ControlFont::width(std::string_view text) const {
    SIZE size = {};
    ::GetTextExtentPoint32A(dc_, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

} // namespace wnt

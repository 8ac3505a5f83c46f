#include "controls/control_font.h"

namespace wnt {

namespace {

constexpr int letter_height = 13; // pixels at 96 dots an inch

} // namespace

void make_control_font(CFont& font, int pixels, int scale, int weight) {
    font.DeleteObject();
    font.CreateFont(-::MulDiv(pixels, scale, 100), 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
}

ControlFont::ControlFont(int scale, bool bold) : dc_(::CreateCompatibleDC(nullptr)) {
    make_control_font(font_, letter_height, scale, bold ? FW_BOLD : FW_NORMAL);
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

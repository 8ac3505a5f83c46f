#include "out/wnt_out.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "arithmetic.h"
#include "out/device_state.h"
#include "out/point_font.h"
#include "out/text_font.h"

namespace wrapped = wnt::wrapped;

namespace {

bool single_byte_locale() {
    return MB_CUR_MAX == 1;
}

int length_of(const char* text) {
    return static_cast<int>(std::min<std::size_t>(std::strlen(text), INT_MAX));
}

// The service's font, with its height replaced; the system's default face at `size` without a service.
HFONT service_font(CWntOut& out, int (*height)(int service_height, int size), int size) {
    LOGFONTA description;
    if (!out.getZopguiFont(&description, ZOPFONT_PROPORTIONAL))
        return wnt::make_point_font(size, nullptr);
    description.lfHeight = height(description.lfHeight, size);
    return wnt::make_point_font(description);
}

// How far above y the text hangs: from the middle of its size, its whole size, or not at all.
int drop_for(int align, int points) {
    if (align & 8)
        return points >> 1;
    return align & 4 ? points : 0;
}

// Where the reference point lies on the string; other codes leave the device context's own alignment.
void select_alignment(HDC dc, int align) {
    static constexpr UINT horizontal[3] = {TA_LEFT, TA_RIGHT, TA_CENTER};
    if (align >= 0 && align <= 10 && (align & 3) != 3)
        ::SetTextAlign(dc, (align < 4 ? TA_BOTTOM : TA_TOP) | horizontal[align & 3]);
}

} // namespace

HFONT wnt::make_chars_font(CWntOut& out) {
    if (single_byte_locale())
        return make_point_font(out.fontsize, "Arial"); // intended: not `facename`
    auto height = [](int h, int size) { return wnt::saturated_int(10 * (std::int64_t{h / 10} + 1) - h + size); };
    return service_font(out, height, out.fontsize);
}

void CWntOut::settext(int a, int b, int c, int size, int e, int f) {
    if (!this)
        return;
    const int values[6] = {a, b, c, size, e, f};
    std::copy(std::begin(values), std::end(values), textparams);
    fontsize = wnt::saturated_int(std::int64_t{size} * 6);
}

void CWntOut::setdeftext() {}

void CWntOut::setfont(CFont* f) {
    if (this && f)
        font = f;
}

void CWntOut::chars(int x, int y, char* text, int align) {
    if (text)
        chars_len(x, y, length_of(text), text, align);
}

void CWntOut::chars_len(int x, int y, int len, char* text, int align) {
    if (!ready() || !text || len < 0)
        return;
    wnt::GdiObject<HFONT> made(wnt::make_chars_font(*this));
    wnt::SelectGuard selected(dc, made.get());

    select_alignment(dc, align);
    ::TextOutA(dc, x, flip(wrapped::add(y, drop_for(align, fontsize / 10))), text, len);
}

void CWntOut::titlechars(int x, int y, int w, int h, char* text) {
    if (!ready() || !text || w == 0 || h == 0 || !*text)
        return;
    const int size = wnt::saturated_int(std::int64_t{h} * 4);
    wnt::GdiObject<HFONT> made(
        single_byte_locale()
            ? wnt::make_point_font(size, facename)
            : service_font(
                  *this, [](int, int tenths) { return wnt::saturated_int((std::int64_t{tenths / 10} + 1) * 10); },
                  size));
    wnt::SelectGuard selected(dc, made.get());
    ::SetTextAlign(dc, TA_BASELINE | TA_CENTER);
    ::TextOutA(dc, wrapped::add(x, w / 2), flip(wrapped::add(y, h / 2)), text, length_of(text));
}

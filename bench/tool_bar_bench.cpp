// Full paints of a toolbar of 40 items beside the raw GDI calls for the same pictures, texts and edges, all by way of a
// picture in memory.
#include <zopwnt.h>

#include <vector>

#include "yardstick_window.h"

namespace {

constexpr int width = 1000;
constexpr int height = 100;
constexpr int items = 40;
constexpr int picture = 16;
constexpr int padding = 3;
constexpr int gap = 4;

// Discs of several colours with smooth edges.
HBITMAP strip(HDC dc, int count) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, picture * count, -picture, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    auto* pixel = static_cast<DWORD*>(bits);
    for (int y = 0; y < picture; ++y)
        for (int x = 0; x < picture * count; ++x) {
            const int dx = 2 * (x % picture) - picture + 1, dy = 2 * y - picture + 1;
            const DWORD opacity = static_cast<DWORD>(std::clamp(300 - dx * dx - dy * dy, 0, 255));
            const DWORD shade = static_cast<DWORD>(x / picture) * 40 % 256;
            *pixel++ = opacity << 24 | shade << 16 | (255 - shade) << 8 | 96;
        }
    return bitmap;
}

CString name_of(int item) {
    CString name;
    name.Format("Item %d", item);
    return name;
}

/// Paints what the bar shows with as few raw calls as it takes.
class RawBar {
public:
    RawBar(CWntToolBar& bar, HBITMAP pictures) : memory_(::CreateCompatibleDC(nullptr)) {
        for (int i = 0; i < items; ++i) {
            RECT place;
            bar.GetItemRect(i, &place);
            places_.push_back(place);
            texts_.push_back(name_of(i));
        }
        multiply(pictures);
        font_ = ::CreateFontA(-13, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                              CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
        const HGDIOBJ before = ::SelectObject(memory_, font_);
        TEXTMETRICA metrics;
        ::GetTextMetricsA(memory_, &metrics);
        row_ = metrics.tmHeight;
        ::SelectObject(memory_, before);
    }
    ~RawBar() {
        ::DeleteDC(memory_);
        ::DeleteObject(multiplied_);
        ::DeleteObject(font_);
    }
    RawBar(const RawBar&) = delete;
    RawBar& operator=(const RawBar&) = delete;

    void paint(HDC dc, int checked) const {
        const RECT all = {0, 0, width, height};
        ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_BTNFACE));
        const HGDIOBJ before = ::SelectObject(dc, font_);
        ::SetBkMode(dc, TRANSPARENT);
        ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
        for (int i = 0; i < items; ++i) {
            RECT place = places_[static_cast<std::size_t>(i)];
            if (i == checked)
                sink(dc, place);
            const int top = place.top + (place.bottom - place.top - picture) / 2;
            const BLENDFUNCTION over = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
            ::GdiAlphaBlend(dc, place.left + padding, top, picture, picture, memory_, i % 4 * picture, 0, picture,
                            picture, over);
            place.left += padding + picture + gap;
            place.top += (place.bottom - place.top - row_) / 2;
            place.bottom = place.top + row_;
            const CString& text = texts_[static_cast<std::size_t>(i)];
            ::DrawTextA(dc, text, text.GetLength(), &place,
                        DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
        }
        ::SelectObject(dc, before);
    }

private:
    void multiply(HBITMAP pictures) {
        DIBSECTION section;
        ::GetObjectA(pictures, sizeof section, &section);
        BITMAPINFO info = {};
        info.bmiHeader = section.dsBmih;
        void* bits = nullptr;
        multiplied_ = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        const auto* from = static_cast<const BYTE*>(section.dsBm.bmBits);
        auto* to = static_cast<BYTE*>(bits);
        for (int i = 0; i < section.dsBm.bmWidth * picture * 4; ++i)
            to[i] = i % 4 == 3 ? from[i] : static_cast<BYTE>((from[i] * from[i / 4 * 4 + 3] + 127) / 255);
        ::SelectObject(memory_, multiplied_);
    }
    static void sink(HDC dc, const RECT& r) {
        const auto line = [&](COLORREF colour, int x1, int y1, int x2, int y2) {
            const HPEN pen = ::CreatePen(PS_SOLID, 1, colour);
            const HGDIOBJ before = ::SelectObject(dc, pen);
            ::MoveToEx(dc, x1, y1, nullptr);
            ::LineTo(dc, x2, y2);
            ::SelectObject(dc, before);
            ::DeleteObject(pen);
        };
        const COLORREF face = ::GetSysColor(COLOR_BTNFACE), shadow = ::GetSysColor(COLOR_BTNSHADOW);
        const auto mixed = [](int under, int over) { return (7 * under + over) / 8; };
        const HBRUSH brush =
            ::CreateSolidBrush(RGB(mixed(GetRValue(face), GetRValue(shadow)), mixed(GetGValue(face), GetGValue(shadow)),
                                   mixed(GetBValue(face), GetBValue(shadow))));
        ::FillRect(dc, &r, brush);
        ::DeleteObject(brush);
        const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW), light = ::GetSysColor(COLOR_3DHIGHLIGHT);
        line(dark, r.left, r.top, r.right, r.top);
        line(dark, r.left, r.top, r.left, r.bottom);
        line(light, r.right - 1, r.top, r.right - 1, r.bottom);
        line(light, r.left, r.bottom - 1, r.right, r.bottom - 1);
    }

    HDC memory_;
    HBITMAP multiplied_ = nullptr;
    HFONT font_;
    int row_;
    std::vector<RECT> places_;
    std::vector<CString> texts_;
};

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    CWnd host;
    host.CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP | WS_VISIBLE, CRect(0, 0, 1000, 700), nullptr, 0);
    CWntToolBar bar;
    bar.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &host, 1);
    const HBITMAP pictures = strip(nullptr, 4);
    bar.SetPictures(pictures, nullptr);
    bar.SetTextPlace(WNT_TOOL_TEXT_BESIDE);
    bar.SetWrapping(1);
    for (int i = 0; i < items; ++i) {
        CWntToolItem item(static_cast<UINT>(100 + i), name_of(i), WNT_TOOL_RADIO);
        item.picture = i % 4;
        bar.AddItem(item);
    }
    const RawBar raw(bar, pictures);
    BenchTable table("tool_bar");
    const auto set = [&](int state) { bar.CheckItem(static_cast<UINT>(100 + 3 * state), 1); };
    measure_paint(
        table, "toolbar of 40 items, full paint", bar, 13, set, [&](HDC dc, int state) { raw.paint(dc, 3 * state); }, 0,
        height);
    ::DeleteObject(pictures);
    return table.finish(argc, argv);
}

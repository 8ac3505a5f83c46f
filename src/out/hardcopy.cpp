#include "out/hardcopy.h"

#include "out/default_printer.h"
#include "out/page_scale.h"

namespace {

/// The pixels of a whole window, frame included.
class WindowPicture {
public:
    WindowPicture(CWnd& window, int width, int height) {
        info_.bmiHeader = {sizeof info_.bmiHeader, width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
        CWindowDC from(&window);
        CDC memory;
        if (!memory.CreateCompatibleDC(&from) ||
            !bitmap_.Attach(::CreateDIBSection(from, &info_, DIB_RGB_COLORS, &bits_, nullptr, 0)))
            return;
        CBitmap* previous = memory.SelectObject(&bitmap_);
        memory.BitBlt(0, 0, width, height, &from, 0, 0, SRCCOPY);
        memory.SelectObject(previous);
        ::GdiFlush();
    }

    void print(CDC& page, int width, int height) const {
        const auto& header = info_.bmiHeader;
        if (width < 1 || height < 1) { // an empty target means the picture's own size
            width = header.biWidth;
            height = header.biHeight;
        }
        if (bits_)
            ::StretchDIBits(page, 0, 0, width, height, 0, 0, header.biWidth, header.biHeight, bits_, &info_,
                            DIB_RGB_COLORS, SRCCOPY);
    }

private:
    BITMAPINFO info_ = {};
    CBitmap bitmap_;
    void* bits_ = nullptr;
};

void print_window(CWnd& window, CDC& page) {
    CRect place;
    window.GetWindowRect(&place);
    if (place.Width() <= 0 || place.Height() <= 0)
        return;
    const double scale =
        wnt::page_scale(page.GetDeviceCaps(HORZRES), page.GetDeviceCaps(VERTRES), place.Width(), place.Height());
    const WindowPicture picture(window, place.Width(), place.Height());
    picture.print(page, static_cast<int>(place.Width() * scale), static_cast<int>(place.Height() * scale));
}

} // namespace

void MakeHardcopy(CWnd* wnd, const char* docname) {
    if (!::IsWindow(wnd->GetSafeHwnd()))
        return;
    wnt::DefaultPrinter printer;
    if (!printer.begin(docname))
        return;
    print_window(*wnd, printer.page());
    printer.end();
}

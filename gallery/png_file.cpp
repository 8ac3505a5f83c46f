#include "png_file.h"

#include <algorithm>
#include <string>

// The platform's imaging header expects these two as they were once macros.
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace {

class GdiplusSession {
public:
    GdiplusSession() {
        Gdiplus::GdiplusStartupInput input;
        good_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok;
    }
    ~GdiplusSession() {
        if (good_)
            Gdiplus::GdiplusShutdown(token_);
    }
    bool good() const { return good_; }

private:
    ULONG_PTR token_ = 0;
    bool good_ = false;
};

std::wstring wide(const CString& text) {
    std::wstring result(static_cast<std::size_t>(text.GetLength()) + 1, L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, -1, result.data(), static_cast<int>(result.size()));
    return result;
}

} // namespace

bool WritePng(HBITMAP bitmap, const CString& file) {
    static GdiplusSession session;
    static constexpr CLSID png_encoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    if (!session.good())
        return false;
    Gdiplus::Bitmap picture(bitmap, nullptr);
    return picture.Save(wide(file).c_str(), &png_encoder, nullptr) == Gdiplus::Ok;
}

#pragma once

#include <windows.h>

namespace wnt {

/// Selects an object for the life of the guard, then puts the previous one back. Owns nothing.
class SelectGuard {
public:
    SelectGuard(HDC dc, HGDIOBJ object) : dc_(dc), previous_(object ? ::SelectObject(dc, object) : nullptr) {}
    ~SelectGuard() {
        if (previous_)
            ::SelectObject(dc_, previous_);
    }
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    HDC dc_;
    HGDIOBJ previous_;
};

/// Owns a pen, brush, font or region and deletes it.
template <class Handle> class GdiObject {
public:
    explicit GdiObject(Handle handle) : handle_(handle) {}
    ~GdiObject() {
        if (handle_)
            ::DeleteObject(handle_);
    }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

private:
    Handle handle_;
};

/// The screen's device context.
class ScreenContext {
public:
    ScreenContext() : dc_(::GetDC(nullptr)) {}
    ~ScreenContext() { ::ReleaseDC(nullptr, dc_); }
    ScreenContext(const ScreenContext&) = delete;
    ScreenContext& operator=(const ScreenContext&) = delete;
    operator HDC() const { return dc_; }

private:
    HDC dc_;
};

/// Whether the device shows 256 colours or fewer.
inline bool few_colours(HDC dc) {
    return ::GetDeviceCaps(dc, BITSPIXEL) * ::GetDeviceCaps(dc, PLANES) <= 8;
}

/// The XOR pen mix, set back to plain copy at the end.
class XorGuard {
public:
    explicit XorGuard(HDC dc) : dc_(dc) { ::SetROP2(dc, R2_XORPEN); }
    ~XorGuard() { ::SetROP2(dc_, R2_COPYPEN); }
    XorGuard(const XorGuard&) = delete;
    XorGuard& operator=(const XorGuard&) = delete;

private:
    HDC dc_;
};

} // namespace wnt

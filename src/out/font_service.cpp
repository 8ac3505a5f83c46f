#include "out/font_service.h"

#include <ole2.h>
#include <olectl.h>

#include "out/wnt_out.h"

namespace {

/// Holds one reference and releases it.
template <class T> class Reference {
public:
    Reference() = default;
    ~Reference() {
        if (object_)
            object_->Release();
    }
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;

    T** put() { return &object_; }
    void** put_void() { return reinterpret_cast<void**>(&object_); }
    T* operator->() const { return object_; }
    T* get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

bool connect(Reference<IZopFontService>& service) {
    Reference<IUnknown> instance;
    if (FAILED(::CoCreateInstance(CLSID_ZopFontService, nullptr, CLSCTX_ALL, IID_IUnknown, instance.put_void())))
        return false;
    if (FAILED(::OleRun(instance.get())))
        return false;
    return SUCCEEDED(instance->QueryInterface(IID_IZopFontService, service.put_void())) && service;
}

bool find_font(tagZopFontId id, Reference<IFont>& font) {
    Reference<IZopFontService> service;
    if (!connect(service))
        return false;
    Reference<IZopFontCollection> fonts;
    if (FAILED(service->GetFonts(fonts.put())) || !fonts)
        return false;
    Reference<IUnknown> object;
    if (FAILED(fonts->GetFont(id, object.put())) || !object)
        return false;
    return SUCCEEDED(object->QueryInterface(IID_IFont, font.put_void())) && font;
}

} // namespace

int CWntOut::getZopguiFont(LOGFONTA* out, tagZopFontId id) {
    if (!this || !out)
        return 0;
    Reference<IFont> font;
    HFONT handle = nullptr;
    if (!find_font(id, font) || FAILED(font->get_hFont(&handle)))
        return 0;
    LOGFONTA description;
    if (::GetObjectA(handle, sizeof description, &description) != sizeof description)
        return 0;
    *out = description;
    return 1;
}

unsigned CWntOut::getZopguiFontCodepage() {
    const unsigned process_codepage = ::GetACP();
    LOGFONTA description;
    CHARSETINFO info;
    if (!getZopguiFont(&description, ZOPFONT_PROPORTIONAL))
        return process_codepage;
    // The call takes the number in the place of a pointer.
    auto* charset = reinterpret_cast<DWORD*>(static_cast<ULONG_PTR>(description.lfCharSet));
    return ::TranslateCharsetInfo(charset, &info, TCI_SRCCHARSET) ? info.ciACP : process_codepage;
}

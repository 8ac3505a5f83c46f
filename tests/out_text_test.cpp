// Text on the surface, judged by the box of its ink, and the front end's font service over COM.
#include "surface_test.h"

#include <climits>
#include <clocale>
#include <cstring>
#include <ole2.h>
#include <olectl.h>

namespace {

/// A font service that lives in this program.
struct FontService : IZopFontService, IZopFontCollection, IClassFactory {
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
        if (id == IID_IZopFontService)
            *out = static_cast<IZopFontService*>(this);
        else if (id == IID_IZopFontCollection)
            *out = static_cast<IZopFontCollection*>(this);
        else if (id == IID_IClassFactory || id == IID_IUnknown)
            *out = static_cast<IClassFactory*>(this);
        else
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** out) override {
        return QueryInterface(id, out);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetFonts(IZopFontCollection** fonts) override {
        AddRef();
        *fonts = this;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetFont(tagZopFontId id, IUnknown** font) override {
        asked = id;
        if (!gives_font)
            return QueryInterface(IID_IUnknown, reinterpret_cast<void**>(font)); // an object that is no font
        wchar_t face[] = L"Liberation Mono";
        FONTDESC description = {sizeof description, face, {}, FW_BOLD, 128, FALSE, FALSE, FALSE};
        description.cySize.int64 = 120000; // 12 points
        return ::OleCreateFontIndirect(&description, IID_IUnknown, reinterpret_cast<void**>(font));
    }

    LONG references = 0;
    int asked = 0;
    bool gives_font = true;
};

} // namespace

struct TextTest : SurfaceTest {
    template <class Draw> RECT ink(Draw draw) {
        Picture picture(400, 120);
        paint(picture, draw);
        return picture.ink(ground);
    }
    static LONG width(const RECT& r) { return std::max(r.right - r.left + 1, 0L); }

    /// The box of the word in a font `tenths` tenths of a point high, written by hand.
    RECT plain_ink(const char* face, int tenths, int weight = FW_NORMAL, BYTE charset = DEFAULT_CHARSET) {
        HFONT font = nullptr;
        const RECT box = ink([&](CWntOut& o) {
            const int pixels = ::MulDiv(tenths, ::GetDeviceCaps(o.dc, LOGPIXELSY), 720);
            font = ::CreateFontA(-pixels, 0, 0, 0, weight, 0, 0, 0, charset, 0, 0, 0, 0, face);
            ::SelectObject(o.dc, font);
            ::TextOutA(o.dc, 20, 60, word, static_cast<int>(std::strlen(word)));
        });
        ::DeleteObject(font);
        return box;
    }

    char word[8] = "HiigiH";
};

TEST_F(TextTest, AlignmentPutsTheStringAtItsPoint) {
    // The share of the text that lies left of x, how far above y it is, and whether it stands there or hangs from
    // there.
    const std::tuple<int, double, int, bool> cases[] = {
        {0, 0, 0, true},   {1, 1, 0, true},      {2, 0.5, 0, true}, {4, 0, 20, false}, {8, 0, 10, false},
        {9, 1, 10, false}, {10, 0.5, 10, false}, {7, 0, 20, true},  {-1, 0, 10, true}, {16, 0, 0, true}};
    const LONG across = width(plain_ink("Arial", 200));
    for (const auto& [align, side, drop, stands] : cases) {
        const RECT box = ink([&, align = align](CWntOut& o) {
            o.settext(0, 0, 0, 33, 0, 0); // 19.8 points: drop counts whole ones
            o.fontsize = 200;
            o.chars(200, 60, word, align);
            EXPECT_EQ(o.linecolour_, ::GetTextColor(o.dc));
        });
        EXPECT_NEAR(box.left + side * width(box), 200, 4) << align;
        EXPECT_NEAR(width(box), across, 2) << align;
        EXPECT_NEAR(stands ? box.bottom : box.top, 60 + drop + (stands ? 2 : -5), 4) << align;
    }
}

TEST_F(TextTest, SizesAndFaces) {
    const auto chars = [this](int fontsize, const char* face) {
        out.facename = face;
        out.fontsize = fontsize;
        return ink([&](CWntOut& o) { o.chars(100, 60, word, 0); });
    };
    const LONG plain = width(plain_ink("Arial", 80));
    EXPECT_EQ(width(chars(80, "Arial")), plain);
    ASSERT_NE(width(plain_ink("Liberation Mono", 80)), plain);
    EXPECT_EQ(width(chars(80, "Liberation Mono")), plain); // the face is for titles alone
    out.settext(0, 0, 0, 15, 0, 0);
    EXPECT_EQ(width(chars(out.fontsize, "Arial")), width(plain_ink("Arial", 90)));
    out.settext(1, 2, 3, 4, 5, 6);
    EXPECT_THAT(out.textparams, testing::ElementsAre(1, 2, 3, 4, 5, 6));

    const auto title = [this](const char* face, int w, int h) {
        out.facename = face;
        return ink([&](CWntOut& o) { o.titlechars(20, 30, w, h, word); });
    };
    const RECT arial = title("Arial", 160, 60);
    EXPECT_EQ(width(arial), width(plain_ink("Arial", 240)));
    EXPECT_EQ(width(title("Liberation Mono", 160, 60)), width(plain_ink("Liberation Mono", 240)));
    EXPECT_NEAR((arial.left + arial.right) / 2, 20 + 160 / 2, 1);
    EXPECT_NEAR(arial.bottom, 30 + 60 / 2 - 6, 1); // six pixels of the letters hang below their line
    EXPECT_EQ(width(title("Arial", 0, 60)) + width(title("Arial", 160, 0)), 0);
}

TEST_F(TextTest, LengthsAndSizesAreBounded) {
    const auto written = [this](int len) { return ink([&](CWntOut& o) { o.chars_len(100, 60, len, word, 0); }); };
    EXPECT_LT(width(written(2)), width(written(3)));
    for (const int none : {0, -1, INT_MIN})
        EXPECT_EQ(width(written(none)), 0);
    for (const int size : {INT_MAX, INT_MIN, INT_MAX / 6 + 1, -80, 0}) {
        ink([&](CWntOut& o) {
            o.settext(1, 2, 3, size, 5, 6), o.chars(20, 20, word, 6), o.titlechars(0, 0, 50, size, word);
        });
        EXPECT_EQ(out.fontsize, size == INT_MIN ? INT_MIN : size > 0 ? INT_MAX : 6 * size);
    }
}

TEST_F(TextTest, FontServiceOfTheFrontEnd) {
    ASSERT_TRUE(SUCCEEDED(::OleInitialize(nullptr)));
    LOGFONTA font;
    std::memset(&font, 0x5A, sizeof font);
    const LOGFONTA untouched = font;
    EXPECT_EQ(out.getZopguiFont(&font, ZOPFONT_PROPORTIONAL), 0);
    EXPECT_EQ(std::memcmp(&font, &untouched, sizeof font), 0);
    EXPECT_EQ(out.getZopguiFontCodepage(), ::GetACP());

    const auto text = [this] { return ink([&](CWntOut& o) { o.chars(100, 60, word, 0); }); };
    const auto title = [this] { return ink([&](CWntOut& o) { o.titlechars(20, 30, 160, 40, word); }); };
    ASSERT_TRUE(std::setlocale(LC_ALL, "Japanese_Japan.932"));
    EXPECT_EQ(width(text()), width(plain_ink("", 80))); // no service: the system's default face
    EXPECT_EQ(width(title()), width(plain_ink("", 160)));

    FontService service;
    DWORD registered = 0;
    ASSERT_TRUE(SUCCEEDED(::CoRegisterClassObject(CLSID_ZopFontService, static_cast<IClassFactory*>(&service),
                                                  CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registered)));
    const LONG references = service.references;
    ASSERT_EQ(out.getZopguiFont(&font, ZOPFONT_PROPORTIONAL), 1);
    EXPECT_TRUE(service.asked == 2 && font.lfWeight == FW_BOLD);
    EXPECT_STREQ(font.lfFaceName, "Liberation Mono");
    EXPECT_EQ(out.getZopguiFontCodepage(), 932u); // of the character set
    // The service's height of -16 pixels enters the sum in its own unit: 10 x (-1 + 1) + 16 + 80.
    ASSERT_EQ(font.lfHeight, -16);
    EXPECT_EQ(width(text()), width(plain_ink("Liberation Mono", 96, FW_BOLD, SHIFTJIS_CHARSET)));
    EXPECT_EQ(width(title()), width(plain_ink("Liberation Mono", 170, FW_BOLD, SHIFTJIS_CHARSET)));

    service.gives_font = false;
    EXPECT_EQ(out.getZopguiFont(&font, ZOPFONT_PROPORTIONAL), 0);
    EXPECT_EQ(width(text()), width(plain_ink("", 80)));
    EXPECT_EQ(service.references, references); // every interface was released, on every path
    std::setlocale(LC_ALL, "C");
    service.asked = 0;
    text();
    EXPECT_EQ(service.asked, 0); // a single-byte locale does not ask
    ::CoRevokeClassObject(registered);
    ::OleUninitialize();
}

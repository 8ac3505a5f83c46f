// Pictures: their pixels through files and streams, their orientation, transparency, and what they refuse.
#include "afx_test_app.h"
#include "pixels.h"
#include "temporary_file.h"

#include <afxstr.h>
#include <atlimage.h>

#include <algorithm>
#include <array>
#include <filesystem>

namespace {

constexpr COLORREF red = RGB(255, 0, 0), green = RGB(0, 255, 0), blue = RGB(0, 0, 255), white = RGB(255, 255, 255);

const std::vector<std::pair<COLORREF, char>> names{{red, 'r'},   {green, 'g'}, {blue, 'b'},
                                                   {white, 'w'}, {0, '.'},     {CLR_INVALID, '!'}};

std::string shown(const CImage& image) {
    std::vector<COLORREF> all;
    for (int i = 0; i < image.GetWidth() * image.GetHeight(); ++i)
        all.push_back(image.GetPixel(i % image.GetWidth(), i / image.GetWidth()));
    return letters(all, image.GetWidth(), names);
}

std::string shown(const Picture& picture) {
    return letters(picture.values(), picture.width(), names);
}

// No two rows, columns or corners are alike.
constexpr char figure[] = "rgbww\n"
                          "b.wwr\n"
                          "gwr..\n";

void paint(CImage& image) {
    const RGBQUAD table[] = {{0, 0, 0, 0}, {0, 0, 255, 0}, {0, 255, 0, 0}, {255, 0, 0, 0}, {255, 255, 255, 0}};
    image.SetColorTable(0, 5, table);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) {
            const int index = static_cast<int>(std::string(".rgbw").find(figure[y * 6 + x]));
            if (image.IsIndexed())
                image.SetPixelIndexed(x, y, index);
            else
                image.SetPixel(x, y, std::array{COLORREF(0), red, green, blue, white}[index]);
        }
}

// In an empty folder.
class AfxImage : public testing::Test {
protected:
    AfxImage() {
        std::filesystem::create_directory(folder);
        std::filesystem::current_path(folder);
    }
    ~AfxImage() override {
        std::filesystem::current_path(home);
        std::filesystem::remove_all(folder);
    }

private:
    const std::filesystem::path home = std::filesystem::current_path();
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("afx images " + std::to_string(::GetCurrentProcessId()));
};

constexpr DWORD masks[] = {0x0F, 0xF0, 0xF00};

TEST_F(AfxImage, PixelsLieWhereTheyAreSaidToBe) {
    for (const int depth : {4, 8, 16, 24, 32, 0})
        for (const int height : {3, -3}) {
            CImage image;
            ASSERT_TRUE(depth != 0 ? image.Create(5, height, depth)
                                   : image.CreateEx(5, height, 16, BI_BITFIELDS, masks));
            paint(image);
            EXPECT_EQ(shown(image), figure) << depth << ' ' << height;
            Picture seen(5, 3);
            EXPECT_TRUE(image.Draw(seen.dc(), 0, 0));
            EXPECT_EQ(shown(seen), figure) << "what GDI sees " << depth << ' ' << height;
            EXPECT_EQ(image.GetPitch() < 0, height > 0);
            const int bits = image.GetBPP();
            auto* first = static_cast<BYTE*>(image.GetBits());
            EXPECT_EQ(image.GetPixelAddress(3, 2), first + 2 * image.GetPitch() + 3 * bits / 8);
            BITMAP held{};
            ::GetObject(image, sizeof held, &held);
            EXPECT_EQ(height > 0 ? first + 2 * image.GetPitch() : first, held.bmBits);
            EXPECT_TRUE(image.GetPixel(5, 0) == CLR_INVALID && image.GetPixel(0, 3) == CLR_INVALID &&
                        image.GetPixel(-1, 0) == CLR_INVALID && image.GetPixelAddress(0, -1) == nullptr &&
                        image.GetPixelAddress(5, 2) == nullptr);
            image.SetPixel(5, 1, green), image.SetPixel(2, -1, green), image.SetPixelIndexed(1, 3, 1);
            image.SetPixelIndexed(0, 0, 1 << std::min(bits, 30));
            EXPECT_EQ(shown(image), figure) << "outside";
        }
}

TEST_F(AfxImage, RefusesImpossibleOnesAndKeepsWhatItHas) {
    constexpr int sizes[][3] = {
        {0, 3, 24},        {-5, 3, 24}, {5, 0, 24}, {1, INT_MIN, 24}, {5, 3, 0}, {5, 3, 7}, {INT_MAX, INT_MAX, 32},
        {46341, -46341, 8}};
    CImage image;
    ASSERT_TRUE(image.Create(5, 3, 24));
    paint(image);
    for (const auto& [width, height, depth] : sizes)
        EXPECT_FALSE(image.Create(width, height, depth)) << width << ' ' << height << ' ' << depth;
    EXPECT_FALSE(image.CreateEx(65536, 65536, 1, BI_RGB, nullptr, 0x100));
    EXPECT_FALSE(image.CreateEx(5, 3, 24, BI_RGB, nullptr, CImage::createAlphaChannel) ||
                 image.CreateEx(5, 3, 16, BI_BITFIELDS, nullptr) || image.CreateEx(5, 3, 8, BI_RLE8));
    EXPECT_EQ(image.Load("missing.png"), HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    image.LoadFromResource(::GetModuleHandle(nullptr), 9999);
    image.Attach(reinterpret_cast<HBITMAP>(::GetStockObject(BLACK_PEN)));
    EXPECT_EQ(shown(image), figure);
    EXPECT_TRUE(FAILED(image.Save("no folder/a.png")) && FAILED(image.Save("a.unknown")) &&
                FAILED(image.Save("a.png", IID_IUnknown)));
    image.Destroy();
    Picture target(2, 2);
    EXPECT_TRUE(image.IsNull() && FAILED(image.Save("a.png")) && !image.Draw(target.dc(), 0, 0) &&
                image.GetPixel(0, 0) == CLR_INVALID && image.Detach() == nullptr);
}

TEST_F(AfxImage, PixelsComeBackFromFiles) {
    const std::tuple<const char*, int, int> files[] = {
        {"a.bmp", 24, 24}, {"a.bmp", 16, 0}, {"a.bmp", 8, 8},   {"a.bmp", 4, 4},        {"a.bmp", 32, 32},
        {"a.png", 24, 24}, {"a.png", 8, 8},  {"a.png", 4, 4},   {"a.GIF", 8, 8},        {"a.gif", 24, 8},
        {"a.tif", 24, 24}, {"a", 24, 24},    {"b.xyz", 24, 24}, {"Caf\xe9.png", 24, 24}};
    for (const auto& [name, depth, comes_with] : files) // 0: as the platform will
        for (const int height : {3, -3}) {
            CImage image, back;
            ASSERT_TRUE(image.Create(5, height, depth));
            paint(image);
            ASSERT_EQ(image.Save(name, *name == 'b' ? Gdiplus::ImageFormatPNG : GUID_NULL), S_OK) << name << depth;
            EXPECT_EQ(shown(image), figure);
            ASSERT_EQ(back.Load(name), S_OK) << name;
            EXPECT_EQ(shown(back), figure) << name << ' ' << depth << ' ' << height;
            EXPECT_TRUE(comes_with == 0 || back.GetBPP() == comes_with) << name;
            EXPECT_LT(back.GetPitch(), 0) << "the lowest row comes first";
            EXPECT_EQ(back.Load(name), S_OK) << "in place of what was there";
        }
    EXPECT_EQ(text_of("a").substr(0, 2), "BM");
    EXPECT_EQ(text_of("b.xyz").substr(1, 3), "PNG");
}

TEST_F(AfxImage, FileDialogsAreToldWhichKindsThereAre) {
    CSimpleArray<GUID> kinds;
    CString filters;
    ASSERT_EQ(CImage::GetImporterFilterString(filters, kinds, "All pictures"), S_OK);
    EXPECT_TRUE(filters.Left(13) == "All pictures|" && filters.Right(2) == "||" && kinds[0] == GUID_NULL);
    EXPECT_TRUE(filters.Find("|*.PNG|") > 0 && filters.Find("WMF") < 0) << filters.GetString();
    CString bars = filters;
    EXPECT_EQ(bars.Remove('|'), 2 * kinds.GetSize() + 1);
    EXPECT_TRUE(raises<CInvalidArgException>([&] { kinds[kinds.GetSize()]; }));
    ASSERT_EQ(CImage::GetExporterFilterString(filters, kinds, nullptr, CImage::excludeGIF, '\0'), S_OK);
    EXPECT_TRUE(kinds.Find(Gdiplus::ImageFormatGIF) < 0 && kinds.Find(Gdiplus::ImageFormatPNG) >= 0);
    EXPECT_TRUE(lstrcmp(filters.GetString() + lstrlen(filters) + 1, "*.BMP;*.DIB;*.RLE") == 0) << "behind its name";
}

TEST_F(AfxImage, WhatGdiPlusCannotReadIsSavedByItsColours) {
    CImage masked, device, back;
    ASSERT_TRUE(masked.CreateEx(5, 3, 16, BI_BITFIELDS, masks));
    paint(masked);
    CWindowDC screen(nullptr);
    device.Attach(::CreateCompatibleBitmap(screen, 5, 3));
    paint(device);
    EXPECT_TRUE(!device.IsDIBSection() && device.GetBits() == nullptr && device.GetPitch() == 0);
    for (const CImage* image : {&masked, &device}) {
        ASSERT_EQ(image->Save("a.bmp"), S_OK);
        ASSERT_EQ(back.Load("a.bmp"), S_OK);
        EXPECT_EQ(shown(back), figure);
    }
    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    EXPECT_EQ(masked.Save(stream, Gdiplus::ImageFormatPNG), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    EXPECT_TRUE(device.Load(stream) == S_OK && stream->Release() == 0) << "nobody keeps it";
    EXPECT_EQ(shown(device), figure);
}

void set_argb(CImage& image, int x, DWORD colour) {
    *static_cast<DWORD*>(image.GetPixelAddress(x, 0)) = colour;
}

TEST_F(AfxImage, AlphaChannelsBlend) {
    CImage image, loaded;
    ASSERT_TRUE(image.Create(3, 1, 32, CImage::createAlphaChannel));
    set_argb(image, 0, 0xFFFF0000), set_argb(image, 1, 0x80800000), set_argb(image, 2, 0);
    Picture seen(3, 1);
    seen.clear(blue);
    EXPECT_TRUE(image.Draw(seen.dc(), 0, 0));
    EXPECT_TRUE(seen.at(0, 0) == red && seen.at(2, 0) == blue);
    EXPECT_NEAR(GetRValue(seen.at(1, 0)), 128, 1);
    EXPECT_NEAR(GetBValue(seen.at(1, 0)), 127, 1);
    seen.clear(blue);
    EXPECT_TRUE(image.AlphaBlend(seen.dc(), 0, 0, 0));
    EXPECT_EQ(seen.count(blue), 3) << "nothing of it";

    set_argb(image, 1, 0x80FF8001), set_argb(image, 2, 0x00FFFFFF);
    ASSERT_TRUE(image.Save("a.png") == S_OK && loaded.Load("a.png") == S_OK);
    EXPECT_EQ(loaded.GetPixel(1, 0), RGB(255, 128, 1)) << "as it stands in the file";
    loaded.SetPixel(0, 0, green);
    seen.clear(blue);
    EXPECT_TRUE(loaded.Draw(seen.dc(), 0, 0));
    EXPECT_TRUE(seen.at(0, 0) == green && seen.at(2, 0) == blue) << "clear white adds nothing";
    EXPECT_NEAR(GetRValue(seen.at(1, 0)), 128, 1);
    EXPECT_NEAR(GetGValue(seen.at(1, 0)), 64, 1);
    EXPECT_EQ(*static_cast<DWORD*>(loaded.GetPixelAddress(1, 0)), 0x80FF8001) << "drawing left it alone";
}

TEST_F(AfxImage, TransparentColoursLetTheGroundThrough) {
    CImage image, back;
    ASSERT_TRUE(image.Create(5, 3, 8));
    paint(image);
    Picture seen(5, 3);
    EXPECT_FALSE(image.TransparentBlt(seen.dc(), 0, 0, 5, 3)) << "it has none";
    const RGBQUAD violet{255, 0, 255, 0};
    image.SetColorTable(4, 1, &violet);
    RGBQUAD same{};
    image.GetColorTable(4, 1, &same);
    EXPECT_TRUE(image.SetTransparentColor(4) == -1 && same.rgbBlue == 255 && same.rgbGreen == 0);
    ASSERT_TRUE(image.Save("a.png") == S_OK && back.Load("a.png") == S_OK);
    for (const CImage* drawn : {&image, &back}) {
        seen.clear(white);
        EXPECT_TRUE(drawn->Draw(seen.dc(), 0, 0));
        EXPECT_EQ(shown(seen), figure);
    }
    seen.clear(green);
    EXPECT_TRUE(image.TransparentBlt(seen.dc(), 0, 0, 5, 3, red));
    EXPECT_EQ(seen.at(0, 2), green) << "the colour asked for";
    EXPECT_EQ(seen.at(4, 2), RGB(255, 0, 255));
}

TEST_F(AfxImage, DrawsIntoRectangles) {
    CImage image;
    ASSERT_TRUE(image.Create(5, 3, 24));
    paint(image);
    CBitmap mask;
    constexpr WORD left_two[] = {0xC000 >> 8, 0xC000 >> 8, 0xC000 >> 8};
    mask.CreateBitmap(5, 3, 1, 1, left_two);
    const RECT source{1, 1, 3, 3}, place{2, 0, 4, 2}, large{2, 0, 6, 4};
    const POINT at{2, 0}, from{1, 1}, corners[] = {{2, 0}, {4, 0}, {2, 2}};
    constexpr DWORD keep = MAKEROP4(SRCCOPY, 0x00AA0029);
    const std::string part = "...w....\n..wr....\n........\n........\n",
                      doubled = "....ww..\n....ww..\n..wwrr..\n..wwrr..\n",
                      whole = "..rgbww.\n..b.wwr.\n..gwr...\n........\n",
                      masked = "..rg....\n..b.....\n..gw....\n........\n";
    const struct {
        const std::string& wanted;
        std::function<BOOL(HDC)> draw;
    } ways[] = {
        {whole, [&](HDC dc) { return image.Draw(dc, 2, 0); }},
        {whole, [&](HDC dc) { return image.Draw(dc, at); }},
        {whole, [&](HDC dc) { return image.Draw(dc, 2, 0, 5, 3); }},
        {whole, [&](HDC dc) { return image.Draw(dc, CRect(2, 0, 7, 3)); }},
        {doubled, [&](HDC dc) { return image.Draw(dc, large, source); }},
        {part, [&](HDC dc) { return image.Draw(dc, 2, 0, 2, 2, 1, 1, 2, 2); }},
        {whole, [&](HDC dc) { return image.BitBlt(dc, 2, 0); }},
        {whole, [&](HDC dc) { return image.BitBlt(dc, at); }},
        {part, [&](HDC dc) { return image.BitBlt(dc, place, from); }},
        {part, [&](HDC dc) { return image.BitBlt(dc, 2, 0, 2, 2, 1, 1, SRCPAINT); }},
        {whole, [&](HDC dc) { return image.StretchBlt(dc, 2, 0, 5, 3); }},
        {doubled, [&](HDC dc) { return image.StretchBlt(dc, large, source); }},
        {whole, [&](HDC dc) { return image.TransparentBlt(dc, CRect(2, 0, 7, 3), RGB(1, 2, 3)); }},
        {part, [&](HDC dc) { return image.TransparentBlt(dc, place, source, RGB(1, 2, 3)); }},
        {whole, [&](HDC dc) { return image.AlphaBlend(dc, at); }},
        {part, [&](HDC dc) { return image.AlphaBlend(dc, place, source); }},
        {masked, [&](HDC dc) { return image.MaskBlt(dc, 2, 0, mask, keep); }},
        {masked, [&](HDC dc) { return image.MaskBlt(dc, at, mask, keep); }},
        {part, [&](HDC dc) { return image.MaskBlt(dc, place, from, mask, CPoint(0, 0), keep); }},
        {part, [&](HDC dc) { return image.PlgBlt(dc, corners, source); }},
    };
    for (const auto& way : ways) {
        Picture seen(8, 4);
        EXPECT_TRUE(way.draw(seen.dc()));
        EXPECT_EQ(shown(seen), way.wanted) << &way - ways;
    }
    EXPECT_FALSE(image.PlgBlt(Picture(2, 2).dc(), nullptr));
}

} // namespace

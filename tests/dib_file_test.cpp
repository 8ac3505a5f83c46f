// The DIB file, and both bitmap classes over files of every kind.
#include <zopwnt.h>

#include <GL/gl.h>
#include <gmock/gmock.h>

#include <cstring>

#include "bitmap_files.h"
#include "pixels.h"
#include "temporary_file.h"

namespace {

Bytes bits_of(const CDibFile& dib, std::size_t count) {
    ::GdiFlush();
    const auto* bits = static_cast<const std::uint8_t*>(dib.GetPtrBits());
    return {bits, bits + count};
}

// Of a DIB file's rows that are not padded the first bytes are read and written; of a top-down one the whole section.
TEST(Bitmaps, ShowAndSaveEveryKindOfFile) {
    for (const BitmapFile& file : all_bitmap_files()) {
        SCOPED_TRACE(testing::Message() << file.bits << " bits, width " << file.width << ", core " << file.core);
        const Bytes bytes = file.bytes();
        Bytes behind_others(77, 0xEE);
        behind_others.insert(behind_others.end(), bytes.begin(), bytes.end());
        const TemporaryFile disk(behind_others);
        CFile open(disk.name(), CFile::modeRead);
        open.Seek(77, CFile::begin);
        const int height = std::abs(file.height);
        Picture picture(file.width + 3, height + 1), large(2 * file.width + 5, 3 * height + 4);
        const auto check_pictures = [&] { // drawn to the right and from below the upper edge on
            for (int i = 0; i < file.width * height; ++i)
                ASSERT_EQ(picture.at(2 + i % file.width, i / file.width),
                          file.colour_at(i % file.width, i / file.width));
            for (const int y : {0, height - 1}) {
                EXPECT_EQ(large.at(4, 3 * y + 1), picture.at(2, y));
                EXPECT_EQ(large.at(4 + 2 * file.width - 1, 3 * y + 1), picture.at(2 + file.width - 1, y));
            }
            EXPECT_THAT(
                (std::vector{large.at(4 + 2 * file.width, 0), picture.at(2 + file.width, 0), picture.at(2, height)}),
                testing::Each(0u));
            picture.clear(0);
            large.clear(0);
        };
        CWntBitmap bitmap;
        ASSERT_TRUE(bitmap.Load(&open));
        bitmap.Draw(CDC::FromHandle(picture.dc()), 2, 1);
        bitmap.Draw(CDC::FromHandle(large.dc()), 4, 4, 2 * file.width, 3 * height);
        check_pictures();
        CWntBitmapPalette palette;
        const UINT colours = file.bits == 8 ? std::min(file.colours(), 256U) : file.colours();
        ASSERT_EQ(palette.Create(&bitmap), colours > 0);
        PALETTEENTRY last = {}; // stays black where there is none
        palette.GetPaletteEntries(colours - 1, 1, &last);
        EXPECT_EQ(last.peRed, colours ? file.colour_byte(colours - 1, 2) : 0);
        EXPECT_EQ(last.peBlue, colours ? file.colour_byte(colours - 1, 0) : 0);
        EXPECT_EQ(palette.GetNumColors(), static_cast<int>(colours));

        CDibFile dib;
        open.Seek(77, CFile::begin);
        ASSERT_EQ(dib.StreamIn(open), !file.core);
        open.Close();
        EXPECT_EQ(dib.GetLastError(), file.core ? 6 : 0);
        if (file.core)
            continue;
        EXPECT_EQ(std::tuple(dib.GetWidth(), dib.GetHeight(), dib.GetBitsPerPixel()),
                  std::tuple(file.width, file.height, file.bits));
        if (file.height < 0 || file.width * file.bits % 32 == 0) {
            const int plain = file.colours() == 0; // intended: a palette that is selected counts as a failure
            EXPECT_TRUE(dib.Draw(picture.dc(), 2, 1, 0, 9) == plain && dib.GetLastError() == !plain);
            const int drawn = dib.DrawRealized(large.dc(), 4, 4, 2 * file.width, 3 * height);
            EXPECT_TRUE(drawn == plain && dib.GetLastError() == !plain);
            EXPECT_EQ(::GetCurrentObject(large.dc(), OBJ_PAL), ::GetStockObject(DEFAULT_PALETTE)); // again
            check_pictures();
        }
        const std::size_t unpadded = static_cast<std::size_t>(file.bits * file.width * height / 8);
        const std::size_t count = file.height < 0 ? file.pixel_bytes() : unpadded;
        const auto pixels = bytes.begin() + file.head_bytes() + file.gap;
        const Bytes stored(pixels, pixels + static_cast<std::ptrdiff_t>(count));
        EXPECT_EQ(bits_of(dib, count), stored);
        const CDibFile copy(dib);
        EXPECT_EQ(bits_of(copy, count), stored);

        ASSERT_EQ(copy.Save(disk.name()), 1);
        Bytes expected(bytes.begin(), bytes.begin() + file.head_bytes());
        expected.insert(expected.end(), stored.begin(), stored.end());
        const std::uint32_t facts[3] = {static_cast<std::uint32_t>(expected.size()), 0, file.head_bytes()};
        std::memcpy(expected.data() + 2, facts, sizeof facts);
        EXPECT_EQ(disk.bytes(), expected);
    }
}

TEST(DibFile, TellsWhatFailed) {
    CDibFile dib;
    EXPECT_EQ(dib.Load(nullptr) + dib.Load("no such file.bmp") + dib.GetLastError(), 0);
    const std::tuple<std::size_t, std::uint8_t, int> cases[] = {{0, 'X', 4},   {14, 108, 6}, {30, 1, 6}, {30, 3, 6},
                                                                {21, 0x80, 9}, {18, 0, 9},   {28, 7, 9}};
    const TemporaryFile disk;
    for (const auto& [at, value, code] : cases) {
        Bytes bytes = BitmapFile{8, 4, 4}.bytes();
        bytes[at] = value;
        disk.write(bytes);
        ASSERT_EQ(dib.CreateNewHighColor(2, 2, 0), 1);
        EXPECT_EQ(dib.Load(disk.name()) + dib.IsValid(), 0);
        EXPECT_EQ(dib.GetLastError(), code) << at;
        EXPECT_EQ(dib.GetLastError(), 0);
    }
    const auto fails = [&](int result, int code) { EXPECT_TRUE(result == 0 && dib.GetLastError() == code) << code; };
    fails(dib.StreamIn(INVALID_HANDLE_VALUE), 2);
    fails(dib.Save(disk.name()), 1);
    EXPECT_EQ(disk.bytes(), Bytes{}); // created before it is known that there is nothing to write
    const CFile reading(disk.name(), CFile::modeRead | CFile::shareDenyNone);
    const CFile writing(disk.name(), CFile::modeWrite | CFile::shareDenyNone);
    ASSERT_EQ(dib.CreateNewHighColor(2, 2, 0), 1);
    fails(dib.Draw(nullptr, 0, 0, 0, 0), 1);
    fails(dib.StreamOut(INVALID_HANDLE_VALUE), 2);
    fails(dib.StreamOut(reading), 4);
    fails(dib.StreamIn(reading), 4);
    fails(dib.StreamIn(writing), 3);
    fails(dib.CreateNew(0, 5, 0, 0), 3);
    fails(dib.CreateNewTrueColor(0, 5, 0), 2);
    fails(dib.CreateNew(INT_MAX, INT_MAX, 0, 0), 6);
    fails(dib.CreateNew256Color(INT_MAX, INT_MAX, 0, 0), 5);
}

TEST(DibFile, CreatesBlankBitmaps) {
    CDibFile dib;
    const auto check = [&](int made, int bits) {
        EXPECT_TRUE(made && dib.GetBitsPerPixel() == bits);
        const Bytes expected(4U * 3 * bits / 8, 11);
        EXPECT_EQ(bits_of(dib, expected.size()), expected);
        dib.SetColor(255, 255, 255);
        dib.Line(1, 1, 2, 1);
        const Bytes lined = bits_of(dib, expected.size());
        EXPECT_EQ(std::count(lined.begin(), lined.end(), 11), 10 * bits / 8);
    };
    check(dib.CreateNewHighColor(4, 3, 11), 16);
    check(dib.CreateNewTrueColor(4, 3, 0x10B), 24);
    check(dib.CreateNew256Color(4, 3, 11, 0), 8);
    Picture picture(4, 3);
    dib.Draw(picture.dc(), 0, 0, 0, 0);
    EXPECT_EQ(picture.at(0, 0), RGB(0x0A, 0x14, 0x37));
    std::uint32_t sum = 2166136261u; // of the whole table
    for (const RGBQUAD& colour : CDibFile::rgbQuadDefaultTable)
        for (const BYTE part : {colour.rgbBlue, colour.rgbGreen, colour.rgbRed, colour.rgbReserved})
            sum = (sum ^ part) * 16777619u;
    EXPECT_EQ(sum, 1945435233u);
    const int objects = live_gdi_objects();
    for (int i = 0; i < 30; ++i)
        check(dib.CreateNew256Color(4, 3, 11, 1), 8);
    EXPECT_LT(live_gdi_objects(), objects + 20);
    dib.Draw(picture.dc(), 0, 0, 0, 0);
    EXPECT_EQ(picture.at(0, 0), RGB(3 * 255 / 7, 255 / 7, 0));
    RGBQUAD cube[256];
    ASSERT_EQ(::GetDIBColorTable(dib.GetDC(), 0, 256, cube), 256u);
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(std::tuple(cube[i].rgbRed, cube[i].rgbGreen, cube[i].rgbBlue),
                  std::tuple(i % 8 * 255 / 7, i / 8 % 8 * 255 / 7, i / 64 * 85))
            << i;
}

TEST(DibFile, ListsItsHeaderAndItsColours) {
    Bytes bytes = BitmapFile{4, 3, 2, false, 5}.bytes();
    bytes[38] = 7; // the resolutions differ
    const TemporaryFile disk(bytes);
    CDibFile dib;
    ASSERT_EQ(dib.Load(disk.name()), 1);
    dib.SaveBitmapInfo(disk.name());
    const std::string listed = disk.text();
    EXPECT_THAT(listed, testing::StartsWith("// Bitmap Info\r\n\r\n\r\nm_pBitmapInfo->bmiHeader.biSize\t = 40 ;\r\n"));
    std::string values;
    for (std::size_t at = listed.find(" = "); at < listed.find("RGBQUAD"); at = listed.find(" = ", at + 1))
        values += listed.substr(at + 2, listed.find(';', at) - at - 2);
    EXPECT_EQ(values, " 40  3  2  1  4  0  0  2823  2835  5  0 ");
    EXPECT_EQ(listed.substr(listed.find("RGBQUAD")),
              "RGBQUAD  rgbQuadTable[5] =\r\n\t{\r\n\t\t"
              "\r\n\t\t  0, 10, 20,  0   ,  1, 13, 25,  0   ,  2, 16, 30,  0   ,  3, 19, 35,  0   ,"
              "\r\n\t\t  4, 22, 40,  0   \r\n\t}\r\n\r\n");
    dib.Delete();
    dib.SaveBitmapInfo(disk.name());
    EXPECT_EQ(disk.text(), "// Bitmap Info\r\n\r\n\r\n// Bitmap NOT valid !\r\n");
    dib.SaveBitmapInfo(nullptr);
}

// A new bitmap of the screen's depth; the palette screen gets the table.
TEST(DibFileScreen, FollowsTheScreensDepth) {
    HDC screen = ::GetDC(nullptr);
    const int depth = ::GetDeviceCaps(screen, BITSPIXEL);
    CDibFile dib;
    ASSERT_EQ(dib.CreateNew(16, 8, 0, 0), 1);
    EXPECT_EQ(dib.GetBitsPerPixel(), depth);
    EXPECT_EQ(dib.DrawRealized(screen, 0, 0, 0, 0), depth > 8);
    EXPECT_EQ(dib.GetLastError(), depth > 8 ? 0 : 1);
    dib.SetColor(0, 255, 255);
    dib.Line(0, 0, 15, 0);
    EXPECT_EQ(bits_of(dib, 1)[0] != 0, depth < 32);
    ::ReleaseDC(nullptr, screen);
}

TEST(DibFile, IsDrawnOnWithinItsBounds) {
    CDibFile dib;
    dib.SetColor(1, 2, 3); // empty: nothing happens
    dib.SetPixel(0, 0);
    dib.Line(0, 0, 5, 5);
    dib.ClearBits(9);
    EXPECT_EQ(dib.Draw(nullptr, 0, 0, 0, 0) + dib.PrepareOpenGL() + dib.GetWidth(), 0);
    ASSERT_EQ(dib.CreateNewTrueColor(3, 3, 0), 1);
    dib.SetColor(1, 2, 3);
    for (const POINT p : {POINT{-1, 0}, POINT{3, 0}, POINT{0, 3}, POINT{INT_MIN, INT_MAX}})
        dib.SetPixel(p.x, p.y);
    EXPECT_EQ(bits_of(dib, 27), Bytes(27, 0));
    dib.SetPixel(0, 1);
    EXPECT_EQ(bits_of(dib, 12), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 2, 1}));
    dib.Line(INT_MIN, 2, INT_MAX, 2);
    CDibFile copy(dib);
    const CDibFile& same = dib;
    dib = same;
    EXPECT_EQ(bits_of(dib, 27)[26], 1);
    dib.ClearBits(0x102);
    EXPECT_EQ(bits_of(dib, 27), Bytes(27, 2));
    copy.SetColor(1, 2, 7);
    copy.SetPixel(0, 1);
    EXPECT_EQ(bits_of(copy, 12), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 7, 2, 1}));
    dib = CDibFile();
    EXPECT_EQ(dib.IsValid() + dib.GetLastError(), 0);
}

TEST(DibFile, IsRenderedIntoByOpenGL) {
    CDibFile dib;
    const TemporaryFile disk(BitmapFile{32, 32, 32}.bytes());
    ASSERT_EQ(dib.Load(disk.name()), 1);
    ASSERT_NE(dib.PrepareOpenGL(), 0) << "is libosmesa6 installed?";
    HGLRC context = ::wglCreateContext(dib.GetDC());
    ASSERT_TRUE(context && ::wglMakeCurrent(dib.GetDC(), context));
    ::glClearColor(1, 0, 0, 1);
    ::glClear(GL_COLOR_BUFFER_BIT);
    ::glFinish();
    ::wglMakeCurrent(nullptr, nullptr);
    ::wglDeleteContext(context);
    Picture picture(32, 32);
    EXPECT_EQ(dib.Draw(picture.dc(), 0, 0, 0, 0), 1);
    EXPECT_EQ(picture.count(RGB(255, 0, 0)), 32 * 32);
}

// What is loaded of them can be drawn and drawn on; large ones only take time.
TEST(Bitmaps, BrokenFilesDoNoHarm) {
    const TemporaryFile disk;
    Picture picture(40, 40);
    int files = 0, loaded = 0;
    const auto small = [](auto& loaded) { return loaded.GetWidth() * std::abs(1LL * loaded.GetHeight()) <= 1 << 18; };
    try_broken_bitmap_files([&](const Bytes& bytes) {
        disk.write(bytes);
        ++files;
        CDibFile dib;
        CWntBitmap bitmap;
        if (dib.Load(disk.name()) && small(dib)) {
            ++loaded;
            dib.SetColor(200, 100, 255);
            dib.Line(-5, -5, 5, 50'000);
            CDibFile(dib).DrawRealized(picture.dc(), 1, 1, 30, 30);
        }
        if (bitmap.Load(disk.name()) && small(bitmap))
            bitmap.Draw(CDC::FromHandle(picture.dc()), 0, 0);
    });
    EXPECT_GE(loaded, files / 10);
}

} // namespace

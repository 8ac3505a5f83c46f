#include <zopwnt.h>

#include <GL/gl.h>
#include <gmock/gmock.h>

#include <climits>
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

std::size_t unpadded(const BitmapFile& file) {
    return static_cast<std::size_t>(file.bits * file.width * std::abs(file.height) / 8);
}

// Of rows that are not padded the first bytes are read and written; of a top-down bitmap the whole section.
TEST(DibFile, LoadsAndSavesEveryDepthWidthAndOrder) {
    auto files = all_bitmap_files();
    files.push_back({8, 5, 2, false, 300});
    files.push_back({4, 8, 2, false, 3, 40});
    for (const BitmapFile& file : files) {
        SCOPED_TRACE(testing::Message() << file.bits << " bits, " << file.width << " x " << file.height << ", core "
                                        << file.core << ", colours " << file.colours_used);
        const Bytes bytes = file.bytes();
        const TemporaryFile disk("dib_file_test.bmp", bytes);
        CDibFile dib;
        ASSERT_EQ(dib.Load(disk.name()), !file.core);
        EXPECT_EQ(dib.GetLastError(), file.core ? 6 : 0);
        EXPECT_EQ(dib.IsValid() != 0, !file.core);
        if (file.core)
            continue;
        EXPECT_EQ(dib.GetWidth(), file.width);
        EXPECT_EQ(dib.GetHeight(), file.height);
        EXPECT_EQ(dib.GetBitsPerPixel(), file.bits);
        const std::size_t count = file.height < 0 ? file.pixel_bytes() : unpadded(file);
        const auto pixels = bytes.begin() + file.head_bytes() + file.gap;
        Bytes stored(pixels, pixels + static_cast<std::ptrdiff_t>(count));
        EXPECT_EQ(bits_of(dib, count), stored);

        ASSERT_EQ(dib.Save(disk.name()), 1);
        Bytes expected(bytes.begin(), bytes.begin() + file.head_bytes());
        expected.insert(expected.end(), stored.begin(), stored.end());
        const std::uint32_t facts[3] = {static_cast<std::uint32_t>(expected.size()), 0, file.head_bytes()};
        std::memcpy(expected.data() + 2, facts, sizeof facts);
        EXPECT_EQ(disk.bytes(), expected);

        CDibFile copy(dib);
        EXPECT_EQ(bits_of(copy, count), stored);
        EXPECT_NE(copy.GetHBitmap(), dib.GetHBitmap());
        EXPECT_EQ(copy.GetBitsPerPixel(), file.bits);
    }
}

// What a viewer sees of a file with rows of whole words is the file's picture, whichever row comes first.
TEST(DibFile, ShowsTheFilesColours) {
    for (int bits : {1, 4, 8, 24, 32})
        for (int height : {4, -4}) {
            const BitmapFile file = {bits, 32, height};
            const TemporaryFile disk("dib_file_test.bmp", file.bytes());
            CDibFile dib;
            ASSERT_EQ(dib.Load(disk.name()), 1);
            Picture picture(32, 4);
            EXPECT_EQ(dib.Draw(picture.dc(), 0, 0, 0, 0), bits > 8);
            EXPECT_EQ(dib.GetLastError(), bits > 8 ? 0 : 1); // intended: a palette was selected
            const auto part = [&](int x, int y, int component) {
                const int row = height < 0 ? 3 - y : y;
                const std::size_t first = static_cast<std::size_t>(row) * file.row_bytes();
                if (bits > 8)
                    return BitmapFile::pixel_byte(first + x * bits / 8 + component);
                const int byte = BitmapFile::pixel_byte(first + x * bits / 8);
                const int index = byte >> (8 - bits - x * bits % 8) & ((1 << bits) - 1);
                return BitmapFile::colour_byte(index, component);
            };
            for (int x = 0; x < 32; ++x)
                for (int y = 0; y < 4; ++y)
                    ASSERT_EQ(picture.at(x, y), RGB(part(x, y, 2), part(x, y, 1), part(x, y, 0)))
                        << bits << " bits, height " << height << " at " << x << ' ' << y;
            Picture large(64, 12);
            dib.DrawRealized(large.dc(), 0, 0, 64, 12);
            EXPECT_EQ(large.at(63, 11), picture.at(31, 3));
            EXPECT_EQ(large.at(0, 0), picture.at(0, 0));
        }
}

TEST(DibFile, TellsWhatFailed) {
    CDibFile dib;
    EXPECT_EQ(dib.Load(nullptr), 0);
    EXPECT_EQ(dib.Load("no such file.bmp"), 0);
    EXPECT_EQ(dib.GetLastError(), 0);
    const struct {
        std::size_t at;
        std::uint8_t value;
        int code;
    } cases[] = {{0, 'X', 4}, {14, 108, 6}, {14, 12, 6}, {30, 1, 6}, {30, 3, 6}, {21, 0x80, 9}, {18, 0, 9}, {28, 7, 9}};
    for (const auto& c : cases) {
        Bytes bytes = BitmapFile{8, 4, 4}.bytes();
        bytes[c.at] = c.value;
        const TemporaryFile disk("dib_file_test.bmp", bytes);
        ASSERT_EQ(dib.CreateNewHighColor(2, 2, 0), 1);
        EXPECT_EQ(dib.Load(disk.name()), 0);
        EXPECT_EQ(dib.IsValid(), 0);
        EXPECT_EQ(dib.GetLastError(), c.code) << c.at;
        EXPECT_EQ(dib.GetLastError(), 0);
    }
    EXPECT_EQ(dib.StreamIn(INVALID_HANDLE_VALUE), 0);
    EXPECT_EQ(dib.GetLastError(), 2);
    const TemporaryFile disk("dib_file_test.bmp", {1, 2, 3});
    EXPECT_EQ(dib.Save(disk.name()), 0);
    EXPECT_EQ(dib.GetLastError(), 1);
    EXPECT_EQ(disk.bytes(), Bytes{}); // created before it is known that there is nothing to write
    ASSERT_EQ(dib.CreateNewHighColor(2, 2, 0), 1);
    EXPECT_EQ(dib.StreamOut(INVALID_HANDLE_VALUE), 0);
    EXPECT_EQ(dib.GetLastError(), 2);
    EXPECT_EQ(dib.Draw(nullptr, 0, 0, 0, 0), 0);
    EXPECT_EQ(dib.GetLastError(), 1);
    HANDLE reading = ::CreateFileA(disk.name(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(dib.StreamOut(reading), 0);
    EXPECT_EQ(dib.GetLastError(), 4);
    EXPECT_EQ(dib.StreamIn(reading), 0);
    EXPECT_EQ(dib.GetLastError(), 4);
    ::CloseHandle(reading);
}

TEST(DibFile, CreatesBlankBitmaps) {
    CDibFile dib;
    for (const SIZE size : {SIZE{0, 5}, SIZE{5, -1}, SIZE{INT_MAX, INT_MAX}}) {
        const bool huge = size.cx == INT_MAX;
        EXPECT_EQ(dib.CreateNew(size.cx, size.cy, 0, 0), 0);
        EXPECT_EQ(dib.GetLastError(), huge ? 6 : 3);
        EXPECT_EQ(dib.CreateNew256Color(size.cx, size.cy, 0, 0), 0);
        EXPECT_EQ(dib.GetLastError(), huge ? 5 : 2);
        EXPECT_EQ(dib.CreateNewTrueColor(size.cx, size.cy, 0), 0);
        EXPECT_EQ(dib.GetLastError(), huge ? 5 : 2);
        EXPECT_EQ(dib.IsValid(), 0);
    }
    const auto check = [&](int made, int bits) {
        EXPECT_EQ(made, 1);
        EXPECT_EQ(dib.GetBitsPerPixel(), bits);
        EXPECT_EQ(bits_of(dib, 4U * 3 * bits / 8), Bytes(4U * 3 * bits / 8, 0x17));
    };
    check(dib.CreateNewHighColor(4, 3, 0x17), 16);
    check(dib.CreateNewTrueColor(4, 3, 0x117), 24);
    check(dib.CreateNew256Color(4, 3, 0x17, 0), 8);
    Picture picture(4, 3);
    dib.Draw(picture.dc(), 0, 0, 0, 0);
    const RGBQUAD& colour = CDibFile::rgbQuadDefaultTable[0x17];
    EXPECT_EQ(picture.at(0, 0), RGB(colour.rgbRed, colour.rgbGreen, colour.rgbBlue));
    check(dib.CreateNew256Color(4, 3, 0x17, 1), 8);
    dib.Draw(picture.dc(), 0, 0, 0, 0);
    EXPECT_EQ(picture.at(0, 0), RGB(255, 2 * 255 / 7, 0));
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
    const TemporaryFile dump("dib_file_test.txt");
    dib.SaveBitmapInfo(dump.name());
    EXPECT_THAT(dump.text(), testing::HasSubstr(depth == 8 ? "rgbQuadTable[256]" : "// no color table used."));
    dib.SetColor(0, 255, 255);
    dib.Line(0, 0, 15, 0);
    EXPECT_EQ(bits_of(dib, 1)[0] != 0, depth == 8 || depth == 16 || depth == 24);
    ::ReleaseDC(nullptr, screen);
}

TEST(DibFile, KnowsItsTables) {
    const auto colour = [](const RGBQUAD& q) { return RGB(q.rgbRed, q.rgbGreen, q.rgbBlue); };
    const RGBQUAD* table = CDibFile::rgbQuadDefaultTable;
    EXPECT_EQ(colour(table[1]), RGB(0x80, 0, 0));
    EXPECT_EQ(colour(table[11]), RGB(0x0A, 0x14, 0x37));
    EXPECT_EQ(colour(table[241]), RGB(0x20, 0x43, 0xB1));
    PALETTEENTRY system[20];
    ::GetPaletteEntries(static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE)), 0, 20, system);
    for (int i = 0; i < 20; ++i) {
        const RGBQUAD& own = table[i < 10 ? i : 236 + i];
        EXPECT_EQ(colour(own), RGB(system[i].peRed, system[i].peGreen, system[i].peBlue)) << i;
        EXPECT_EQ(own.rgbReserved, 0);
    }
    EXPECT_EQ(colour(CDibFile::rgbQuadDefaultTableOpenGL[17]), RGB(36, 72, 0));
    EXPECT_EQ(colour(CDibFile::rgbQuadDefaultTableOpenGL[255]), RGB(255, 255, 255));
}

TEST(DibFile, IsDrawnOnWithinItsBounds) {
    CDibFile dib;
    dib.SetColor(1, 2, 3); // empty: nothing happens
    dib.SetPixel(0, 0);
    dib.Line(0, 0, 5, 5);
    dib.ClearBits(9);
    dib.SaveBitmapInfo(nullptr);
    EXPECT_EQ(dib.Draw(nullptr, 0, 0, 0, 0), 0);
    EXPECT_EQ(dib.PrepareOpenGL(), 0);
    EXPECT_EQ(dib.GetWidth() + dib.GetHeight() + dib.GetBitsPerPixel() + dib.GetLastError(), 0);

    ASSERT_EQ(dib.CreateNewTrueColor(3, 3, 0), 1);
    dib.SetColor(1, 2, 3);
    for (const POINT p : {POINT{-1, 0}, POINT{3, 0}, POINT{0, 3}, POINT{INT_MIN, INT_MAX}})
        dib.SetPixel(p.x, p.y);
    EXPECT_EQ(bits_of(dib, 27), Bytes(27, 0));
    dib.SetPixel(0, 1);
    EXPECT_EQ(bits_of(dib, 12), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 2, 1}));
    dib.Line(INT_MIN, 2, INT_MAX, 2);
    EXPECT_EQ(bits_of(dib, 27)[26], 1);
    CDibFile& same = dib;
    dib = same;
    EXPECT_EQ(bits_of(dib, 12)[9], 3);
    CDibFile copy(dib);
    dib.ClearBits(0x102);
    EXPECT_EQ(bits_of(dib, 27), Bytes(27, 2));
    EXPECT_EQ(bits_of(copy, 12)[9], 3);
    copy = CDibFile();
    EXPECT_EQ(copy.IsValid(), 0);
    EXPECT_EQ(copy.GetLastError(), 0);
}

TEST(DibFile, DumpsItsHeaderAndTable) {
    const TemporaryFile dump("dib_file_test.txt");
    CDibFile dib;
    dib.SaveBitmapInfo(dump.name());
    EXPECT_EQ(dump.text(), "// Bitmap Info\r\n\r\n\r\n// Bitmap NOT valid !\r\n");
    const TemporaryFile disk("dib_file_test.bmp", BitmapFile{8, 4, -2, false, 5}.bytes());
    ASSERT_EQ(dib.Load(disk.name()), 1);
    dib.SaveBitmapInfo(dump.name());
    const std::string name = "m_pBitmapInfo->bmiHeader.";
    EXPECT_EQ(dump.text(), "// Bitmap Info\r\n\r\n\r\n" + name + "biSize\t = 40 ;\r\n" + name + "biWidth\t = 4 ;\r\n" +
                               name + "biHeight\t = 4294967294 ;\r\n" + name + "biPlanes\t = 1 ;\r\n" + name +
                               "biBitCount\t = 8 ;\r\n" + name + "biCompression\t = 0 ;\r\n" + name +
                               "biSizeImage\t = 0 ;\r\n" + name + "biXPelsPerMeter\t = 2835 ;\r\n" + name +
                               "biYPelsPerMeter\t = 2835 ;\r\n" + name + "biClrUsed\t = 5 ;\r\n" + name +
                               "biClrImportant\t = 0 ;\r\n\r\n\r\n" +
                               "RGBQUAD  rgbQuadTable[5] =\r\n\t{\r\n\t\t\r\n\t\t  0, 10, 20,  0   ,  1, 13, 25,  0   ,"
                               "  2, 16, 30,  0   ,  3, 19, 35,  0   ,\r\n\t\t  4, 22, 40,  0   \r\n\t}\r\n\r\n");
}

void render(const CDibFile& dib, bool square) {
    HGLRC context = ::wglCreateContext(dib.GetDC());
    ASSERT_TRUE(context && ::wglMakeCurrent(dib.GetDC(), context));
    ::glViewport(0, 0, dib.GetWidth(), dib.GetHeight());
    ::glClearColor(1, 0, 1, 1);
    ::glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    ::glColor3f(0, 0, 1);
    if (square)
        ::glRectf(-1, -1, 0, 0);
    ::glFinish();
    ::wglMakeCurrent(nullptr, nullptr);
    ::wglDeleteContext(context);
}

// At 24 bits only the ground is judged: Mesa's software renderer misplaces figures there.
TEST(DibFile, IsRenderedIntoByOpenGL) {
    for (int bits : {24, 32}) {
        CDibFile dib;
        const TemporaryFile disk("dib_file_test.bmp", BitmapFile{bits, 32, 32}.bytes());
        ASSERT_EQ(dib.Load(disk.name()), 1);
        ASSERT_NE(dib.PrepareOpenGL(), 0) << "is libosmesa6 installed?";
        render(dib, bits == 32);
        Picture picture(32, 32);
        EXPECT_EQ(dib.Draw(picture.dc(), 0, 0, 0, 0), 1);
        const int square = bits == 32 ? 16 * 16 : 0;
        EXPECT_EQ(picture.count(RGB(0, 0, 255)), square);
        EXPECT_EQ(picture.count(RGB(255, 0, 255)), 32 * 32 - square);
        EXPECT_EQ(picture.at(15, 15), square ? RGB(0, 0, 255) : RGB(255, 0, 255));
    }
    CDibFile indexed; // where there is no format of 8 bits, a wider one would write beyond the section
    ASSERT_EQ(indexed.CreateNew256Color(32, 32, 0, 1), 1);
    const int set = indexed.PrepareOpenGL();
    PIXELFORMATDESCRIPTOR format = {};
    ::DescribePixelFormat(indexed.GetDC(), ::GetPixelFormat(indexed.GetDC()), sizeof format, &format);
    EXPECT_EQ(format.nSize != 0, set != 0);
    EXPECT_LE(format.cColorBits, 8);
}

TEST(DibFile, LeavesNoDrawingObjects) {
    const TemporaryFile disk("dib_file_test.bmp", BitmapFile{8, 20, 10}.bytes());
    Picture picture(20, 10);
    const int before = live_gdi_objects();
    {
        CDibFile kept;
        ASSERT_EQ(kept.Load(disk.name()), 1);
        EXPECT_GT(live_gdi_objects(), before); // the counter counts
    }
    for (int i = 0; i < 10'000; ++i) {
        CDibFile dib;
        ASSERT_EQ(dib.Load(disk.name()), 1);
        dib.DrawRealized(picture.dc(), 0, 0, 0, 0);
        CDibFile copy(dib);
        copy.StreamIn(INVALID_HANDLE_VALUE);
    }
    EXPECT_EQ(live_gdi_objects(), before);
}

} // namespace

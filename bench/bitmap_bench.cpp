// The bitmap classes against the plain calls that move the same bytes or draw the same pixels.
#include <zopwnt.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "bench_table.h"

namespace {

constexpr int side = 4096; // of the large picture: 36 MB at 24 bits a pixel, 3072 rows
constexpr int large_height = 3072;
constexpr DWORD large_bytes = side * large_height * 3;
constexpr char name[] = "bitmap_bench.bmp";
constexpr char plain_name[] = "bitmap_bench.bin";
constexpr DWORD opaque = 0xFFFFFFFF;

HANDLE open(const char* path, DWORD access, DWORD disposition) {
    return ::CreateFileA(path, access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// Into memory that is as new as a loaded picture's.
bool plain_read() {
    void* memory = ::VirtualAlloc(nullptr, large_bytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    DWORD done = 0;
    HANDLE file = open(name, GENERIC_READ, OPEN_EXISTING);
    ::SetFilePointer(file, 54, nullptr, FILE_BEGIN);
    ::ReadFile(file, memory, large_bytes, &done, nullptr);
    ::CloseHandle(file);
    ::VirtualFree(memory, 0, MEM_RELEASE);
    return done == large_bytes;
}

bool plain_write(const std::vector<BYTE>& bytes) {
    DWORD done = 0;
    HANDLE file = open(plain_name, GENERIC_WRITE, CREATE_ALWAYS);
    ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr);
    ::CloseHandle(file);
    return done == bytes.size();
}

void measure_files(BenchTable& table) {
    CDibFile dib;
    dib.CreateNewTrueColor(side, large_height, 77);
    dib.SetColor(1, 2, 3);
    dib.Line(0, 0, side - 1, large_height - 1);
    CDibFile back;
    std::vector<BYTE> whole(54 + large_bytes);
    if (!dib.Save(name) || !back.Load(name) || !plain_read() || !plain_write(whole) ||
        std::memcmp(back.GetPtrBits(), dib.GetPtrBits(), large_bytes) != 0) {
        table.wrong("Load, Save");
        return;
    }
    back.Delete();
    table.measure(
        "Load 36 MB / plain read", [&](int) { back.Load(name); }, [](int) { plain_read(); });
    back.Delete();
    table.measure(
        "Save 36 MB / plain write", [&](int) { dib.Save(name); }, [&](int) { plain_write(whole); });
    ::DeleteFileA(name);
    ::DeleteFileA(plain_name);
}

// Ends wander, so that slopes of all kinds come.
POINT end_of(int i, int size) {
    return {i * 37 % size, i * 61 % size};
}

int drawn_pixels(const CDibFile& dib) {
    const auto* bytes = static_cast<const unsigned char*>(dib.GetPtrBits());
    const int size = dib.GetBitsPerPixel() / 8;
    int count = 0;
    for (int i = 0; i < dib.GetWidth() * dib.GetHeight(); ++i)
        count += bytes[i * size] != 0;
    return count;
}

std::vector<char> bytes_of(const CDibFile& dib) {
    ::GdiFlush();
    const auto* bytes = static_cast<const char*>(dib.GetPtrBits());
    return {bytes, bytes + dib.GetWidth() * dib.GetHeight() * dib.GetBitsPerPixel() / 8};
}

void measure_lines(BenchTable& table, const char* title, int bits, int size) {
    CDibFile dib;
    bits == 8 ? dib.CreateNew256Color(1024, 1024, 0, 0) : dib.CreateNewTrueColor(1024, 1024, 0);
    dib.SetColor(255, 255, 255);
    const POINT from = {size / 2, size / 2 + 1}; // is no line's end: those are both even or both odd
    for (int i = 0; i < 100; ++i) {
        dib.ClearBits(0);
        const POINT end = end_of(i, size);
        dib.Line(from.x, from.y, end.x, end.y);
        const int longer = std::max(std::abs(end.x - from.x), std::abs(end.y - from.y));
        if (drawn_pixels(dib) != longer + 1) {
            table.wrong(title);
            return;
        }
    }
    // In three shades in turn: no line is of its neighbours' shade, nor of its own when its turn comes again.
    constexpr int shades[] = {255, 150, 40}; // also at 8 bits, where few of the bits count
    HPEN pens[3];
    std::transform(std::begin(shades), std::end(shades), pens,
                   [](int shade) { return ::CreatePen(PS_SOLID, 0, RGB(shade, shade, shade)); });
    HGDIOBJ previous = ::SelectObject(dib.GetDC(), pens[0]);
    table.measure_shown(
        title,
        [&](int i) {
            const POINT end = end_of(i, size);
            const int shade = shades[i % 3];
            dib.SetColor(shade, shade, shade);
            dib.Line(from.x, from.y, end.x, end.y);
        },
        [&] { return bytes_of(dib); },
        [&](int i) {
            const POINT end = end_of(i, size);
            ::SelectObject(dib.GetDC(), pens[i % 3]);
            ::MoveToEx(dib.GetDC(), from.x, from.y, nullptr);
            ::LineTo(dib.GetDC(), end.x, end.y);
        },
        [&] { return bytes_of(dib); }, 3 * size);
    ::SelectObject(dib.GetDC(), previous);
    for (HPEN pen : pens)
        ::DeleteObject(pen);
}

void measure_runs(BenchTable& table, const char* title, int bits) {
    CDibFile dib;
    bits == 8    ? dib.CreateNew256Color(1024, 1024, 0, 0)
    : bits == 16 ? dib.CreateNewHighColor(1024, 1024, 0)
                 : dib.CreateNewTrueColor(1024, 1024, 0);
    dib.SetColor(10, 20, 30);
    auto* bytes = static_cast<unsigned char*>(dib.GetPtrBits());
    const std::size_t row = 1024 * static_cast<std::size_t>(bits) / 8;
    dib.Line(0, 5, 1023, 5);
    for (int x = 0; x < 1024; ++x)
        dib.SetPixel(x, 6);
    if (std::memcmp(bytes + 5 * row, bytes + 6 * row, row) != 0 || bytes[7 * row] != 0) {
        table.wrong(title);
        return;
    }
    const auto shade = [](int i) { return i / 1024 % 2 ? 100 : 200; }; // another one when a row's turn comes again
    table.measure_shown(
        title,
        [&](int i) {
            dib.SetColor(shade(i), shade(i), shade(i));
            dib.Line(0, i & 1023, 1023, i & 1023);
        },
        [&] { return bytes_of(dib); },
        [&](int i) { std::memset(bytes + static_cast<std::size_t>(i & 1023) * row, shade(i), row); },
        [&] { return bytes_of(dib); }, 2048);
}

volatile int block_side = 500; // not known to the compiler, as in the library

void measure_copies(BenchTable& table, const char* title, DWORD transparent) {
    const int block = block_side;
    CWntBitmap from, to;
    from.Create(512, 512);
    to.Create(600, 600);
    for (int y = 0; y < 512; ++y)
        for (int x = 0; x < 512; ++x)
            *from.GetPixelAddress(x, y) = static_cast<BYTE>(x * y >> 4);
    const auto plain = [&](int i) {
        const BYTE* source = from.GetPixelAddress(3, 5 + block - 1);
        BYTE* target = to.GetPixelAddress(i % 50, 7 + block - 1);
        for (int y = 0; y < block; ++y)
            std::memcpy(target + y * 600, source + y * 512, block);
    };
    const auto copied = [&](int i) { from.CopyBits(&to, i % 50, 7, block, block, 3, 5, transparent); };
    plain(0);
    const auto* bits = static_cast<const BYTE*>(to.GetBitsAddress());
    std::vector<BYTE> expected(bits, bits + 600 * 600);
    to.Create(600, 600);
    copied(0);
    if (transparent != opaque)
        std::replace(expected.begin(), expected.end(), static_cast<BYTE>(transparent), BYTE{0});
    if (std::memcmp(expected.data(), to.GetBitsAddress(), expected.size()) != 0)
        table.wrong(title);
    else
        table.measure(title, copied, plain);
}

void measure_mapping(BenchTable& table) {
    CWntBitmap bitmap;
    bitmap.Create(6000, 6000);
    auto* bytes = static_cast<BYTE*>(bitmap.GetBitsAddress());
    for (int i = 0; i < 36'000'000; ++i)
        bytes[i] = static_cast<BYTE>(std::rand());
    // The shades upwards and downwards: a mapping from one to the other changes every byte.
    CWntBitmapPalette palettes[2];
    CWntBitmap greys;
    palettes[0].Create(&greys);
    PALETTEENTRY entries[256];
    palettes[0].GetPaletteEntries(0, 256, entries);
    std::reverse(std::begin(entries), std::end(entries));
    palettes[1].Create(&greys);
    palettes[1].SetPaletteEntries(0, 256, entries);
    std::vector<BYTE> other(bytes, bytes + 36'000'000);
    const auto map = [&](int i) { bitmap.MapColorsToPalette(&palettes[(i + 1) % 2]); };
    map(0);
    if (!std::equal(other.begin(), other.end(), bytes, [](BYTE was, BYTE is) { return was == 255 - is; })) {
        table.wrong("MapColorsToPalette");
        return;
    }
    map(1);
    table.measure(
        "MapColorsToPalette 36 MB / memcpy", map, [&](int) { std::memcpy(other.data(), bytes, other.size()); }, 2);
}

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    BenchTable table("bitmap");
    measure_files(table);
    measure_lines(table, "Line, 8 bits, short / LineTo", 8, 32);
    measure_lines(table, "Line, 8 bits, long / LineTo", 8, 1024);
    measure_lines(table, "Line, 24 bits, short / LineTo", 24, 32);
    measure_lines(table, "Line, 24 bits, long / LineTo", 24, 1024);
    measure_runs(table, "run of 1024, 8 bits / memset", 8);
    measure_runs(table, "run of 1024, 16 bits / memset", 16);
    measure_runs(table, "run of 1024, 24 bits / memset", 24);
    measure_copies(table, "CopyBits opaque / memcpy of rows", opaque);
    measure_copies(table, "CopyBits transparent / memcpy", 7);
    measure_mapping(table);
    return table.finish(argc, argv);
}

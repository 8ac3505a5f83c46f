// Reads a bitmap file by both classes' rules. What is accepted has room for all that its users read; whatever the
// header says, lines stay inside the rows that it describes.
#include "bitmap/pixel_line.h"
#include "bitmap/pixel_manipulators.h"
#include "bitmap_memory.h"
#include "require.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <span>
#include <vector>

using namespace wnt;

namespace {

constexpr std::uint64_t most_drawn = 1 << 20; // larger pictures only take time
constexpr std::uint64_t too_much = 0x8000'0000;

// Reads each byte of a block, so that the sanitizer sees one that is too short.
void read_all(const std::uint8_t* bytes, std::uint64_t count) {
    [[maybe_unused]] volatile const unsigned sum = std::accumulate(bytes, bytes + count, 0U);
}

void draw_on(const BitmapHeader& header, std::span<const std::uint8_t> file) {
    const auto held = padded_bytes(header);
    if (!held || *held > most_drawn || file.size() < 70)
        return;
    std::vector<std::uint8_t> section(static_cast<std::size_t>(*held));
    const auto writer = make_pixel_manipulator(header.bits);
    writer->Init(section.data(), header.width, header.height);
    writer->SetColor(file[54], file[55], file[56]);
    std::int32_t ends[4];
    std::memcpy(ends, file.data() + 54, sizeof ends);
    const bool drawn = header.bits == 8 || header.bits == 16 || header.bits == 24;
    draw_line(*writer, section.data(), header.width, header.height, drawn ? header.bits / 8 : 0,
              {ends[0], ends[1], ends[2], ends[3]});
}

void check_dib(std::span<const std::uint8_t> file) {
    DibHead head;
    const int code = dib_head_of(file, head);
    require(code == 0 || code == 4 || code == 6);
    if (code != 0)
        return;
    const BitmapHeader header = header_of(head.block.get());
    require(header.size == info_header_bytes && header.compression == uncompressed && head.colours <= 0xFFFF);
    read_all(head.block.get(), info_header_bytes + 4 * std::max(head.colours, least_colours_held));
    draw_on(header, file);
}

void check_bitmap(std::span<const std::uint8_t> file) {
    MemorySource source(file);
    BitmapHead head;
    if (!read_bitmap_head(source, head))
        return;
    const BitmapHeader header = header_of(head.block.get());
    require(header.size == info_header_bytes && bitmap_colours(header) <= file.size());
    read_all(head.block.get(), info_header_bytes + 4 * std::max(bitmap_colours(header), least_colours_held));
    const auto drawn = drawn_bytes(header);
    BitmapPixels pixels;
    if ((drawn && *drawn > most_drawn && *drawn < too_much) || !read_bitmap_pixels(source, head, pixels))
        return;
    require(drawn && pixels.size >= *drawn);
    read_all(pixels.bytes.get(), pixels.size);
    const std::span<const std::uint8_t> given(pixels.bytes.get(), static_cast<std::size_t>(pixels.given));
    require(rows_within(header, given) <= std::abs(std::int64_t{header.height}));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    check_dib({data, size});
    check_bitmap({data, size});
    return 0;
}

#include "bitmap/bitmap_format.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace wnt {

namespace {

// Decoders of compressed pixels look a few bytes ahead.
constexpr std::uint64_t spare_bytes = 16;
constexpr std::uint32_t run_lengths_8 = 1, run_lengths_4 = 2;
constexpr std::uint32_t bit_fields = 3; // not compressed, either

std::uint16_t word_at(const std::uint8_t* at) {
    return static_cast<std::uint16_t>(at[0] | at[1] << 8);
}

std::uint32_t long_at(const std::uint8_t* at) {
    return word_at(at) | std::uint32_t{word_at(at + 2)} << 16;
}

void put(std::uint8_t* at, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        at[i] = static_cast<std::uint8_t>(value >> 8 * i);
}

std::uint64_t rows_of(const BitmapHeader& header) {
    return static_cast<std::uint64_t>(std::abs(std::int64_t{header.height}));
}

// The colours that pixels of so many bits tell apart; 0 for those that need no table.
std::uint32_t indexed_colours(std::uint16_t bits) {
    return bits == 1 ? 2 : bits == 4 ? 16 : bits == 8 ? 256 : 0;
}

bool read_colours(BitmapSource& source, std::uint8_t* table, std::uint32_t count, std::uint32_t entry_bytes) {
    const std::uint32_t bytes = count * entry_bytes;
    if (entry_bytes == 4)
        return source.read(table, bytes) == bytes;
    for (std::uint32_t i = 0; i < count; ++i)
        if (source.read(table + std::size_t{4} * i, entry_bytes) != entry_bytes)
            return false;
    return true;
}

// Leaves the source behind the header. Answers the bytes of a colour table entry, or 0 for a header that is refused.
std::uint32_t read_header(BitmapSource& source, BitmapHeader& header) {
    std::uint8_t bytes[info_header_bytes];
    if (source.read(bytes, sizeof bytes) != sizeof bytes)
        return 0;
    header = header_of(bytes);
    if (header.size == info_header_bytes)
        return 4;
    if (header.size != core_header_bytes)
        return 0;
    source.seek(file_header_bytes + core_header_bytes);
    header = decode_core_header(std::span(bytes).first<core_header_bytes>());
    return 3;
}

} // namespace

BitmapFileHeader decode_file_header(std::span<const std::uint8_t, file_header_bytes> bytes) {
    return {word_at(bytes.data()), long_at(bytes.data() + 2), long_at(bytes.data() + 10)};
}

std::array<std::uint8_t, file_header_bytes> encode_file_header(const BitmapFileHeader& header) {
    std::array<std::uint8_t, file_header_bytes> bytes{};
    put(bytes.data(), header.type, 2);
    put(bytes.data() + 2, header.size, 4);
    put(bytes.data() + 10, header.pixel_offset, 4);
    return bytes;
}

BitmapHeader decode_core_header(std::span<const std::uint8_t, core_header_bytes> bytes) {
    const std::uint8_t* at = bytes.data();
    return {info_header_bytes, word_at(at + 4), word_at(at + 6), word_at(at + 8), word_at(at + 10)};
}

std::optional<std::uint64_t> padded_bytes(const BitmapHeader& header) {
    if (header.width < 1 || header.height == 0)
        return std::nullopt;
    const std::uint64_t row = (static_cast<std::uint64_t>(header.width) * header.bits + 31) / 32 * 4;
    if (row > std::numeric_limits<std::uint64_t>::max() / rows_of(header))
        return std::nullopt;
    return row * rows_of(header);
}

std::uint32_t unpadded_bytes(const BitmapHeader& header) {
    return (std::uint32_t{header.bits} * header.planes * static_cast<std::uint32_t>(header.height) *
            static_cast<std::uint32_t>(header.width)) >>
           3;
}

std::uint32_t dib_colours(const BitmapHeader& header) {
    if (header.colours_used != 0)
        return header.colours_used & 0xFFFF;
    return header.bits <= 8 ? 1U << header.bits : 0;
}

std::uint32_t storage_width(std::int32_t width) {
    return width < 1 ? 0 : (static_cast<std::uint32_t>(width) + 3) & ~3U;
}

std::uint64_t storage_bytes(const BitmapHeader& header) {
    return storage_width(header.width) * rows_of(header);
}

std::uint32_t bitmap_colours(const BitmapHeader& header) {
    const std::uint32_t indexed = indexed_colours(header.bits);
    if (header.size == core_header_bytes || header.colours_used == 0)
        return indexed;
    return indexed == 0 ? header.colours_used : std::min(header.colours_used, indexed);
}

std::uint32_t colour_masks(const BitmapHeader& header) {
    return header.compression == bit_fields && (header.bits == 16 || header.bits == 32) ? 3 : 0;
}

std::int32_t row_count(std::int32_t height) {
    return height < 0 ? -std::max(height, -std::numeric_limits<std::int32_t>::max()) : height;
}

std::optional<std::uint64_t> drawn_bytes(const BitmapHeader& header) {
    if (header.width < 1 || header.height == 0)
        return 0;
    const auto padded = padded_bytes(header);
    return padded ? std::optional(std::max<std::uint64_t>(*padded, header.compression ? header.image_size : 0))
                  : std::nullopt;
}

std::optional<std::uint64_t> placed_bytes(const BitmapHeader& header) {
    if (header.compression == uncompressed || header.compression == bit_fields)
        return drawn_bytes(header);
    return header.width < 1 || header.height == 0 ? 0 : header.image_size;
}

bool has_runs(const BitmapHeader& header) {
    return header.compression == run_lengths_8 || header.compression == run_lengths_4;
}

namespace {

std::int32_t rows_of_runs(const BitmapHeader& header, std::span<const std::uint8_t> stream, std::int32_t rows) {
    std::int64_t row = 0, reached = 0;
    for (std::size_t i = 0; i + 1 < stream.size() && row < rows;) {
        const unsigned count = stream[i], code = stream[i + 1];
        i += 2;
        if (count > 0) {
            reached = row + 1;
        } else if (code == 0) {
            ++row;
        } else if (code == 1) {
            break;
        } else if (code == 2) {
            row += i + 1 < stream.size() ? stream[i + 1] : 0;
            i += 2;
        } else {
            reached = row + 1;
            const unsigned bytes = header.bits == 4 ? (code + 1) / 2 : code;
            i += bytes + bytes % 2;
        }
    }
    return static_cast<std::int32_t>(std::min<std::int64_t>(reached, rows));
}

} // namespace

std::int32_t rows_within(const BitmapHeader& header, std::span<const std::uint8_t> pixels) {
    constexpr std::uint64_t most_bytes_of_a_byte = 128; // two bytes of run lengths make 255 pixels
    const std::int32_t rows = row_count(std::abs(row_count(header.height)));
    const auto padded = padded_bytes(header);
    if (!padded || pixels.size() >= *padded)
        return rows;
    if (has_runs(header))
        return header.height < 0 || *padded <= most_bytes_of_a_byte * pixels.size()
                   ? rows
                   : rows_of_runs(header, pixels, rows);
    if (header.compression != uncompressed && header.compression != bit_fields)
        return rows;
    const std::uint64_t row = *padded / rows_of(header);
    return static_cast<std::int32_t>(
        std::min<std::uint64_t>((pixels.size() + row - 1) / row, static_cast<std::uint32_t>(rows)));
}

HeapBytes header_block(std::uint64_t colours) {
    return zeroed_bytes(info_header_bytes + 4 * std::max<std::uint64_t>(colours, least_colours_held));
}

BitmapHeader header_of(const std::uint8_t* block) {
    BitmapHeader header;
    std::memcpy(&header, block, sizeof header);
    return header;
}

int read_dib_head(const ReadBytes& read, DibHead& head) {
    std::array<std::uint8_t, file_header_bytes> file_bytes{};
    if (!read(file_bytes.data(), file_header_bytes))
        return 3;
    const BitmapFileHeader file = decode_file_header(file_bytes);
    if (file.type != bitmap_mark)
        return 4;
    BitmapHeader header;
    if (!read(&header, info_header_bytes))
        return 5;
    if (header.size != info_header_bytes || header.compression != uncompressed)
        return 6;
    head.colours = dib_colours(header);
    head.pixel_offset = file.pixel_offset;
    head.block = header_block(head.colours);
    if (!head.block)
        return 8;
    std::memcpy(head.block.get(), &header, sizeof header);
    return read(colour_table(head.block.get()), 4 * head.colours) ? 0 : 8;
}

bool read_bitmap_head(BitmapSource& source, BitmapHead& head) {
    std::array<std::uint8_t, file_header_bytes> file_bytes{};
    if (source.read(file_bytes.data(), file_header_bytes) != file_header_bytes)
        return false;
    const BitmapFileHeader file = decode_file_header(file_bytes);
    BitmapHeader header;
    const std::uint32_t entry_bytes = file.type == bitmap_mark ? read_header(source, header) : 0;
    if (entry_bytes == 0)
        return false;
    const std::uint64_t colours = std::uint64_t{colour_masks(header)} + bitmap_colours(header);
    const std::uint64_t table_bytes = colours * entry_bytes;
    if (table_bytes > source.remaining() || table_bytes > std::numeric_limits<std::uint32_t>::max())
        return false;
    head = {header_block(colours), file.pixel_offset, file.size};
    if (!head.block)
        return false;
    std::memcpy(head.block.get(), &header, sizeof header);
    return read_colours(source, colour_table(head.block.get()), static_cast<std::uint32_t>(colours), entry_bytes);
}

bool read_bitmap_pixels(BitmapSource& source, const BitmapHead& head, BitmapPixels& pixels) {
    const auto drawn = drawn_bytes(header_of(head.block.get()));
    if (!drawn || *drawn > most_picture_bytes || head.file_size < head.pixel_offset)
        return false;
    const std::uint32_t count = head.file_size - head.pixel_offset;
    source.seek(head.pixel_offset);
    if (count > source.remaining())
        return false;
    pixels.given = count;
    pixels.size = std::max<std::uint64_t>(count, *drawn);
    pixels.bytes = zeroed_bytes(pixels.size + spare_bytes);
    return pixels.bytes && source.read(pixels.bytes.get(), count) == count;
}

} // namespace wnt

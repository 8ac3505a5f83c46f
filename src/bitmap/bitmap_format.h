#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

#include "bitmap/heap_bytes.h"

/// Windows bitmap files: headers, colour tables, and the sizes of pixels that follow from them. The two
/// bitmap classes count colours and bytes by different rules; both rules are here, with checked arithmetic.
namespace wnt {

inline constexpr std::uint16_t bitmap_mark = 0x4D42; // "BM"
inline constexpr std::uint32_t file_header_bytes = 14;
inline constexpr std::uint32_t core_header_bytes = 12;
inline constexpr std::uint32_t info_header_bytes = 40;
inline constexpr std::uint32_t uncompressed = 0;
/// Every header block has room for so many colours, masks included: the platform may look at them whatever the header
/// says.
inline constexpr std::uint32_t least_colours_held = 256 + 3;
/// Larger pictures are refused.
inline constexpr std::uint64_t most_picture_bytes = 0x7FFF'FFFF;

struct BitmapFileHeader {
    std::uint16_t type = 0;
    std::uint32_t size = 0;
    std::uint32_t pixel_offset = 0;
};

/// The 40-byte header, as in files and as the platform knows it.
struct BitmapHeader {
    std::uint32_t size = 0;
    std::int32_t width = 0;
    std::int32_t height = 0; ///< negative: the upper row comes first
    std::uint16_t planes = 0;
    std::uint16_t bits = 0;
    std::uint32_t compression = 0;
    std::uint32_t image_size = 0;
    std::int32_t x_per_metre = 0;
    std::int32_t y_per_metre = 0;
    std::uint32_t colours_used = 0;
    std::uint32_t colours_important = 0;
};
static_assert(sizeof(BitmapHeader) == info_header_bytes);

BitmapFileHeader decode_file_header(std::span<const std::uint8_t, file_header_bytes> bytes);
std::array<std::uint8_t, file_header_bytes> encode_file_header(const BitmapFileHeader& header);
/// A header of the 12-byte kind as one of the 40-byte kind.
BitmapHeader decode_core_header(std::span<const std::uint8_t, core_header_bytes> bytes);

/// Bytes of a picture whose rows are padded to four bytes, as the platform reads and writes them. Nothing for a width
/// below 1, a height of 0, and sizes beyond 64 bits.
std::optional<std::uint64_t> padded_bytes(const BitmapHeader& header);

/// CDibFile's size: no padding, in 32-bit arithmetic that wraps, so also for heights below 0.
std::uint32_t unpadded_bytes(const BitmapHeader& header);
/// CDibFile's colour count: the low 16 bits of what the header declares, else all colours of up to 8 bits.
std::uint32_t dib_colours(const BitmapHeader& header);

/// CWntBitmap's row length, that of 8-bit pixels whatever the depth. 0 for widths below 1.
std::uint32_t storage_width(std::int32_t width);
/// CWntBitmap's size: rows of that length, also for a picture whose upper row comes first.
std::uint64_t storage_bytes(const BitmapHeader& header);
/// CWntBitmap's colour count: what the header declares, but not more than up to 8 bits can have.
std::uint32_t bitmap_colours(const BitmapHeader& header);
/// The entries in front of the colour table that tell where in a pixel of 16 or 32 bits its components lie.
std::uint32_t colour_masks(const BitmapHeader& header);
/// The amount of a height; the largest integer for the lowest one.
std::int32_t row_count(std::int32_t height);
/// What the platform may read of a picture's pixels when it draws them; nothing when that cannot be counted.
std::optional<std::uint64_t> drawn_bytes(const BitmapHeader& header);
/// The same of pixels that stay where they lie: compressed ones are as long as the header says, and behind them may be
/// anything.
std::optional<std::uint64_t> placed_bytes(const BitmapHeader& header);

/// Whether the pixels are run lengths.
bool has_runs(const BitmapHeader& header);
/// The rows that pixels reach into: all where there are enough of them. Of run lengths that are too short to fill the
/// picture, the rows up to the last pixel.
std::int32_t rows_within(const BitmapHeader& header, std::span<const std::uint8_t> pixels);

/// A zeroed block for a 40-byte header with so many colours of four bytes, and for 256 at least.
HeapBytes header_block(std::uint64_t colours);
inline std::uint8_t* colour_table(std::uint8_t* block) {
    return block + info_header_bytes;
}
BitmapHeader header_of(const std::uint8_t* block);

// -- CDibFile's files -------------------------------------------------------------------------------------------------

struct DibHead {
    HeapBytes block;
    std::uint32_t colours = 0;
    std::uint32_t pixel_offset = 0;
};

/// Reads so many bytes to a place; false when reading failed. Fewer bytes at a file's end are no failure: the rest
/// keeps what it held.
using ReadBytes = std::function<bool(void* to, std::uint32_t count)>;

/// Reads headers and colour table: 0, or the error code of the step that failed.
int read_dib_head(const ReadBytes& read, DibHead& head);

// -- CWntBitmap's files -----------------------------------------------------------------------------------------------

/// What a bitmap is read from; positions count from the bitmap's first byte.
class BitmapSource {
public:
    virtual std::uint32_t read(void* to, std::uint32_t count) = 0; ///< the bytes that there were
    virtual void seek(std::uint64_t position) = 0;
    virtual std::uint64_t remaining() = 0; ///< from the present position to the end

protected:
    ~BitmapSource() = default;
};

struct BitmapHead {
    HeapBytes block;
    std::uint32_t pixel_offset = 0;
    std::uint32_t file_size = 0; ///< as the file tells it
};

/// Reads headers and colour table; false for a file that is refused.
bool read_bitmap_head(BitmapSource& source, BitmapHead& head);

struct BitmapPixels {
    HeapBytes bytes;
    std::uint64_t size = 0;  ///< at least what drawing reads, however little the file held
    std::uint64_t given = 0; ///< what the file held; zeros follow
};

/// Reads the pixels behind a head; false when the file does not hold what it declares.
bool read_bitmap_pixels(BitmapSource& source, const BitmapHead& head, BitmapPixels& pixels);

} // namespace wnt

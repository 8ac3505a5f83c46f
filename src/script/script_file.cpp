#include "script/script_file.h"

#include <algorithm>
#include <cstring>

namespace wnt {

namespace {

constexpr std::size_t longest_quoted_name = 259;
constexpr char text_end = 26;

} // namespace

void LineCollector::accept(int count) {
    position_ = 0;
    end_ = std::clamp(count, 0, block_size);
    text_ended_ = end_ == 0;
    if (const void* stop = std::memchr(block_, text_end, end_)) {
        end_ = static_cast<int>(static_cast<const char*>(stop) - block_);
        text_ended_ = true;
    }
    // Once a block, so that the search for a line's end has nothing but line feeds to look for.
    if (std::memchr(block_, '\r', end_))
        end_ = static_cast<int>(std::remove(block_, block_ + end_, '\r') - block_);
}

std::optional<LineResult> LineCollector::collect() {
    const char* from = block_ + position_;
    const int available = end_ - position_;
    const auto* feed = static_cast<const char*>(std::memchr(from, '\n', available));
    const int count = feed ? static_cast<int>(feed - from) : available;
    const int room = line_size - 1 - length_;
    append(from, std::min(count, room));
    if (count > room)
        return LineResult::cut;
    if (!feed)
        return std::nullopt;
    ++position_;
    return LineResult::complete;
}

void LineCollector::start_line() {
    length_ = 0;
    line_[0] = 0;
}

void LineCollector::append(const char* from, int count) {
    std::memcpy(line_ + length_, from, count);
    length_ += count;
    line_[length_] = 0;
    position_ += count;
}

std::string_view script_file_name(std::string_view path) {
    const std::size_t quote = path.find('"');
    if (quote == std::string_view::npos)
        return path;
    const std::string_view name = path.substr(quote + 1);
    return name.substr(0, std::min(name.find('"'), longest_quoted_name));
}

} // namespace wnt

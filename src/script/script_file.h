#pragma once

#include "script/script_line.h"

#include <optional>
#include <string_view>

namespace wnt {

/// How the reading of a line ended.
enum class LineResult { complete, cut, end_of_file, read_error };

/// Makes lines out of blocks of bytes. A line ends at a line feed and holds at most 127 characters; carriage returns
/// are dropped, and the byte 26 (Ctrl-Z) ends the text.
class LineCollector {
public:
    static constexpr int block_size = 512;
    static constexpr int line_size = 128;

    /// Where the next block is read to; all of the last one must have been collected.
    char* block() { return block_; }

    /// Takes over the `count` bytes that were read into the block.
    void accept(int count);

    bool block_empty() const { return position_ == end_; }
    bool text_ended() const { return text_ended_; }

    /// Adds the block's bytes to the line: complete or cut, or nothing when the block ends within the line.
    std::optional<LineResult> collect();

    /// Starts a new line.
    void start_line();

    /// The line so far, zero-terminated.
    const char* text() const { return line_; }
    int length() const { return length_; }

private:
    void append(const char* from, int count);

    char block_[block_size];
    char line_[line_size] = {};
    int position_ = 0;
    int end_ = 0;
    int length_ = 0;
    bool text_ended_ = false;
};

/// Reads lines from a byte source: a callable `int(char* to, int capacity)` that answers the number of bytes read,
/// 0 at the end of the file and a negative number for a read error.
template <class Source> class ScriptReader {
public:
    explicit ScriptReader(Source& source) : source_(source) {}

    /// Reads the next line. A last line without a line feed is complete like any other.
    LineResult read_line() {
        collector_.start_line();
        for (;;) {
            while (collector_.block_empty()) {
                if (collector_.text_ended())
                    return collector_.length() > 0 ? LineResult::complete : LineResult::end_of_file;
                const int count = source_(collector_.block(), LineCollector::block_size);
                if (count < 0)
                    return LineResult::read_error;
                collector_.accept(count);
            }
            if (const auto result = collector_.collect())
                return *result;
        }
    }

    const char* text() const { return collector_.text(); }

private:
    Source& source_;
    LineCollector collector_;
};

/// Feeds a script's text to a line operation `consume(const char* line, int mode)`: every line in mode 0 for as long
/// as lines are complete, the last one included, and then the end of the script unless the reading failed.
template <class Source, class Consumer> void feed_script(Source&& source, Consumer&& consume) {
    ScriptReader<Source> reader(source);
    LineResult result;
    do {
        result = reader.read_line();
        consume(reader.text(), script_line);
    } while (result == LineResult::complete);
    if (result != LineResult::read_error)
        consume(reader.text(), script_end);
}

/// The file name in a path: the text between the first two double quotes (at most 259 characters), or the whole path
/// when it has none.
std::string_view script_file_name(std::string_view path);

} // namespace wnt

#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

#include "pulse/pulse_header.h"
#include "zopwnt_api.h"

/// A text file of time-stamped samples of up to ten curves: a header with the curves' titles, then a line a sample.
///
///     CWntPulseFile file(CWntPulseFile::append);
///     file.SetLineCount(1);
///     file.SetLineTitle(0, "Pressure");
///     if (file.Open("boiler.txt") == 0)
///         file.Put(0, 17.5f, time(nullptr));
///
/// Operations answer the error code unless said otherwise. The code is sticky: once it is not 0, nothing but a Put(),
/// which makes it 9, changes it, and Open(), Get(), ReadHeader() and WriteHeader() do nothing. 1 not opened, 4 wrong
/// mode, 5 not open, 6 reading failed, 7 out of range, 8 already open, 9 writing failed.
///
/// Put() and Get() raise the framework's result-code exception, 0x80004005 for an impossible date and 0x80070057 for a
/// time that cannot be converted; a Get() that does has read past the sample. The file is open until the object goes,
/// and is opened once only. Reading keeps protocols in the current directory, "ReadHeader.out" and "Get.out".
class ZOPWNT_API CWntPulseFile {
public:
    /// append goes on behind an existing file's end, whose header stays; write begins a new file.
    enum Mode { read = 1, append, write };

    /// Opens nothing yet.
    explicit CWntPulseFile(int mode);
    /// Opens the file, too; GetError() tells how that ended.
    CWntPulseFile(int mode, const char* name);

    CWntPulseFile(const CWntPulseFile&) = delete;
    CWntPulseFile& operator=(const CWntPulseFile&) = delete;

    /// 0 to 10 curves; error 7 for others, without a change.
    int SetLineCount(int count);
    /// Cut after 24 characters; null gives an empty title. The index may equal the line count but not exceed it, nor be
    /// 10: error 7.
    int SetLineTitle(int index, const char* text);
    /// Belongs to the object. Empty for an index outside 0 to 9.
    const char* GetLineTitle(int index) const;
    /// The number of curves.
    int GetLineCount() const { return header_.line_count; }
    /// The sticky code.
    int GetError() const { return error_; }

    /// Opens by the mode; a new file gets the header, and reading begins with it. Error 1 when the file cannot be
    /// opened or its name has more than 255 characters.
    int Open(const char* name);
    /// Writes a sample at once, its time (seconds since 1970, UTC) as local time: the number of characters formatted,
    /// or 0 with error 9. What the disk refuses is not told: a full one can still give the full number, and a negative
    /// number counts as success.
    int Put(int curve, float value, std::int64_t time);
    /// Reads the next sample, its time as local time without daylight saving: a sample that was put while daylight
    /// saving was in effect comes back an hour later. Without success the places keep what they held.
    int Get(int* curve, float* value, std::int64_t* time);

    /// Reads the header at the file's present position; called by Open().
    int ReadHeader();
    /// Writes the header at the file's present position; called by Open().
    int WriteHeader();

    /// The text for a code, in a buffer that all objects share and every call overwrites.
    static char* ErrorText(int code);

private:
    struct Close {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };
    using Stream = std::unique_ptr<std::FILE, Close>;

    static Stream open_protocol(const char* name);
    int fail(int code);
    void begin_writing();

    std::int32_t error_ = 0;
    std::int32_t mode_;
    char name_[256] = "*";
    Stream stream_;
    bool was_read_ = false; // the last operation was a read: writing must set the position first
    wnt::PulseHeader header_;
};

// LogBytes: the bytes of a log file without what says how they are encoded. A byte order mark at
// the start is taken off; a UTF-16 file is given as UTF-8, every invalid part of it as U+FFFD.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

#include "platform/Platform.h"

namespace ordalyn {

class LogBytes {
  public:
    explicit LogBytes(std::unique_ptr<platform::ReadableFile> file) : file_(std::move(file)) {}

    // Reads up to `capacity` bytes (at least 16 must fit); 0 only at the end. Throws FileError.
    std::size_t Read(char* buffer, std::size_t capacity);

    // Whether a mark says that the text is Unicode. Known after the first Read.
    bool Marked() const { return encoding_ != Encoding::Unmarked; }

  private:
    enum class Encoding { Unknown, Unmarked, Utf8, Utf16LittleEndian, Utf16BigEndian };
    void ReadMark();
    std::size_t ReadRaw(char* buffer, std::size_t capacity);
    std::size_t ReadUtf16(char* buffer, std::size_t capacity);
    char* PutUnit(char32_t unit, char* out);
    char* PutEnd(char* out);

    std::unique_ptr<platform::ReadableFile> file_;
    Encoding encoding_ = Encoding::Unknown;
    // The first bytes of a file without a byte order mark: they were read to look for one, and are
    // text that the next Read returns.
    std::array<char, 4> start_{};
    std::size_t startCount_ = 0;
    // UTF-16: what waits for its other half (0 for none), and the units as they are read.
    bool oddByte_ = false;
    unsigned char firstByte_ = 0;
    char32_t highSurrogate_ = 0;
    std::unique_ptr<char[]> units_;
};

}  // namespace ordalyn

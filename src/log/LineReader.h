// LineReader: a log file, line by line, as UTF-8.
//
// A line ends with CR LF, LF or CR; the last one needs no end. A file that begins with a byte order
// mark is in that encoding, invalid parts becoming U+FFFD. In any other file each line is judged
// alone, as an old log may have been continued by a newer program: valid UTF-8 with characters
// above 127 is UTF-8, all else is in the system code page. A mark in front of any line is taken
// off: a program that appends to a log may write one. No other byte means anything special.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "app/lists/TextStore.h"
#include "log/ByteScan.h"
#include "log/LogBytes.h"
#include "platform/Platform.h"

namespace ordalyn {

class LineReader {
  public:
    // With a text store the file is read into memory lent by it, so that adding a part of a line to
    // the store copies nothing.
    LineReader(std::unique_ptr<platform::ReadableFile> file, platform::CodePages& codePages,
               TextStore* store = nullptr);

    // The next line without its end; nothing at the end of the file. Valid until the next call.
    // Throws FileError.
    std::optional<std::string_view> Next();
    // Passes over a line; false at the end of the file.
    bool Skip();

  private:
    bool NextRaw(const char*& begin, const char*& end, bool& ascii);
    bool Fill();
    void MakeRoom();
    std::string_view Decode(std::string_view line);

    LogBytes bytes_;
    platform::CodePages& codePages_;
    TextStore* store_;
    std::unique_ptr<char[]> ownBuffer_;
    char* buffer_ = nullptr;
    std::size_t capacity_ = 0;     // less the slack that searching may look at
    std::size_t begin_ = 0;        // of the next line
    std::size_t end_ = 0;          // of what has been read
    bool ignoreLineFeed_ = false;  // the last line ended with a CR that was the last byte read
    std::string decoded_;
};

// The two that every line goes through are here, so that a loop over a log calls nothing else.

// The bytes of the next line, and whether they are all below 128.
inline bool LineReader::NextRaw(const char*& begin, const char*& end, bool& ascii) {
    std::size_t looked = 0;  // bytes of this line that hold no end
    for (;;) {
        const char* stop = buffer_ + end_;
        const bytescan::LineEnd found = bytescan::FindLineEnd(buffer_ + begin_ + looked, stop);
        ascii = ascii && found.ascii;
        if (found.at != stop) {
            begin = buffer_ + begin_;
            end = found.at;
            begin_ = static_cast<std::size_t>(found.at - buffer_) + 1;
            if (*found.at == '\r') {
                if (begin_ == end_)
                    ignoreLineFeed_ = true;
                else if (buffer_[begin_] == '\n')
                    ++begin_;
            }
            return true;
        }
        looked = end_ - begin_;
        if (!Fill()) {
            begin = buffer_ + std::exchange(begin_, end_);
            end = buffer_ + end_;
            return looked > 0;
        }
    }
}

inline std::optional<std::string_view> LineReader::Next() {
    const char* begin = nullptr;
    const char* end = nullptr;
    bool ascii = true;
    if (!NextRaw(begin, end, ascii))
        return std::nullopt;
    const std::string_view line(begin, static_cast<std::size_t>(end - begin));
    return ascii ? line : Decode(line);
}

// Reads a file to its end and answers the number of its lines PLUS ONE, for a progress bar whose
// value starts at 1 and grows by one with each line. Throws FileError, and Overflow for more lines
// than 32 bits hold.
std::int32_t CountFileLines(platform::Files& files, std::string_view path);

}  // namespace ordalyn

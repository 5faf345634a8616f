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

#include "base/Text.h"
#include "lists/ReadyBlocks.h"
#include "lists/TextStore.h"
#include "log/LogBytes.h"
#include "platform/Platform.h"

namespace ordalyn {

class LineReader {
  public:
    // With a text store the file is read into memory lent by it, so that adding a part of a line to
    // the store copies nothing; with blocks for it, the memory comes from there.
    LineReader(std::unique_ptr<platform::ReadableFile> file, platform::CodePages& codePages,
               TextStore* store = nullptr, ReadyBlocks* ready = nullptr);

    // The next line without its end; nothing at the end of the file. Valid until the next call, and
    // so are bytescan::kSlack bytes behind it. Throws FileError.
    std::optional<std::string_view> Next();
    // Whether the line that Next answered last is the file's last one and has no end: more of it
    // may come.
    bool Unfinished() const { return unfinished_; }
    // Passes over a line; false at the end of the file.
    bool Skip();

  private:
    bool NextRaw(const char*& begin, const char*& end);
    bool FindEnds();
    bool Fill();
    void MakeRoom();
    std::string_view Decode(std::string_view line);

    LogBytes bytes_;
    platform::CodePages& codePages_;
    TextStore* store_;
    ReadyBlocks* ready_;
    std::unique_ptr<char[]> ownBuffer_;
    char* buffer_ = nullptr;
    std::size_t capacity_ = 0;  // less the slack behind a line
    std::size_t begin_ = 0;     // of the next line
    std::size_t searched_ = 0;  // where the search for line ends has come to
    std::size_t end_ = 0;       // of what has been read
    // The CRs and LFs found by one search, as distances from `endsFrom_`; those from `nextEnd_` on
    // are ahead.
    std::unique_ptr<std::uint32_t[]> ends_;
    std::size_t endsFrom_ = 0;
    std::size_t nextEnd_ = 0;
    std::size_t endCount_ = 0;
    bool utf8_ = false;  // whether the lines up to the last of these are all UTF-8
    bool unfinished_ = false;
    std::string decoded_;
};

// The two that every line goes through are here, so that a loop over a log calls nothing else.

// The bytes of the next line.
inline bool LineReader::NextRaw(const char*& begin, const char*& end) {
    if (nextEnd_ == endCount_ && !FindEnds()) {
        // What is left is a line without an end.
        begin = buffer_ + begin_;
        end = buffer_ + end_;
        begin_ = end_;
        utf8_ = false;
        unfinished_ = begin != end;
        return unfinished_;
    }
    const std::size_t at = endsFrom_ + ends_[nextEnd_++];
    begin = buffer_ + begin_;
    end = buffer_ + at;
    begin_ = at + 1;
    if (*end == '\r' && begin_ != end_ && buffer_[begin_] == '\n') {
        ++begin_;
        if (nextEnd_ != endCount_)  // the search has come as far as the LF
            ++nextEnd_;
    }
    return true;
}

inline std::optional<std::string_view> LineReader::Next() {
    const char* begin = nullptr;
    const char* end = nullptr;
    if (!NextRaw(begin, end))
        return std::nullopt;
    const std::string_view line(begin, static_cast<std::size_t>(end - begin));
    const bool maybeMarked = begin != end && *begin == kUtf8Mark.front();
    return utf8_ && !maybeMarked ? line : Decode(line);
}

// Reads a file to its end and returns the number of its lines PLUS ONE, for a progress bar whose
// value starts at 1 and grows by one with each line. Throws FileError, and Overflow for more lines
// than 32 bits hold. The blocks are told how much text there is, as soon as that is known.
std::int32_t CountFileLines(platform::Files& files, std::string_view path,
                            ReadyBlocks* ready = nullptr);

}  // namespace ordalyn

// LogMark: what has been read of a log file, so that reading can go on behind it as long as the
// file still begins with what was read. A log that was rotated, replaced or truncated does not: its
// first bytes, the last ones that were read, or their number are others. That this is seen does not
// hang on dates or names, which systems keep for a file that takes another one's place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "platform/Platform.h"

namespace ordalyn {

// How many bytes of a file have passed, with the first and the last of them.
class FileTrace {
  public:
    static constexpr std::size_t kKept = 4096;

    void Add(const char* bytes, std::size_t count);
    std::uint64_t Size() const { return size_; }
    const std::string& Head() const { return head_; }
    const std::string& Tail() const { return tail_; }
    bool operator==(const FileTrace&) const = default;

  private:
    std::uint64_t size_ = 0;
    std::string head_;
    std::string tail_;
};

struct LogMark {
    enum class LastLine {
        Finished,         // it had an end, or there was none
        UnfinishedBlank,  // more of it may come; there is no entry of it yet
        UnfinishedEntry,  // the same, and what there was of it is the last entry
    };
    std::string path;            // empty: nothing has been read
    std::int32_t lineCount = 0;  // the lines that have been consumed PLUS ONE
    LastLine lastLine = LastLine::Finished;
    // A line that no log has ended the read: the trace may go beyond what has been consumed.
    bool cutShort = false;
    FileTrace trace;
};

// A file whose trace is taken while it is read.
class TracedFile : public platform::ReadableFile {
  public:
    TracedFile(std::unique_ptr<platform::ReadableFile> file, FileTrace& trace)
        : file_(std::move(file)), trace_(trace) {}

    std::size_t Read(char* buffer, std::size_t capacity) override {
        const std::size_t count = file_->Read(buffer, capacity);
        trace_.Add(buffer, count);
        return count;
    }

  private:
    std::unique_ptr<platform::ReadableFile> file_;
    FileTrace& trace_;
};

}  // namespace ordalyn

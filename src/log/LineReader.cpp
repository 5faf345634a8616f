#include "log/LineReader.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/CheckedMath.h"
#include "base/Text.h"
#include "log/ByteScan.h"

namespace ordalyn {

namespace {

// Small enough to stay in the processor's cache between being read and being looked through.
constexpr std::size_t kBlock = TextStore::kLeastLoan;
// A buffer with less room than this is not worth another call.
constexpr std::size_t kLeastRoom = 4096;
// Line ends are looked for in that many bytes at once. More would be gone from the processor's
// nearest caches when their lines are taken apart.
constexpr std::size_t kSearchedAtOnce = std::size_t{32} * 1024;

}  // namespace

LineReader::LineReader(std::unique_ptr<platform::ReadableFile> file, platform::CodePages& codePages,
                       TextStore* store, ReadyBlocks* ready)
    : bytes_(std::move(file)),
      codePages_(codePages),
      store_(store),
      ready_(ready),
      ends_(std::make_unique_for_overwrite<std::uint32_t[]>(kSearchedAtOnce)) {}

bool LineReader::Skip() {
    const char* begin = nullptr;
    const char* end = nullptr;
    return NextRaw(begin, end);
}

// Finds the ends of the next lines, and whether these are UTF-8. Returns false when the file holds
// no further end.
bool LineReader::FindEnds() {
    nextEnd_ = 0;
    endCount_ = 0;
    while (endCount_ == 0) {
        endsFrom_ = std::max(searched_, begin_);
        if (endsFrom_ == end_) {
            if (!Fill())
                return false;
            continue;
        }
        searched_ = std::min(end_, endsFrom_ + kSearchedAtOnce);
        endCount_ = bytescan::FindLineEnds(buffer_ + endsFrom_, buffer_ + searched_, ends_.get());
    }
    utf8_ = bytescan::IsUtf8(buffer_ + begin_, buffer_ + endsFrom_ + ends_[endCount_ - 1]);
    return true;
}

// Reads more behind what is left of the buffer. Returns false at the end of the file.
bool LineReader::Fill() {
    const bool afterCr = end_ != 0 && buffer_[end_ - 1] == '\r';
    if (capacity_ - end_ < kLeastRoom)
        MakeRoom();
    const std::size_t count = bytes_.Read(buffer_ + end_, capacity_ - end_);
    if (count == 0)
        return false;
    // The other half of a line end that was the last of the bytes before.
    if (afterCr && buffer_[end_] == '\n')
        ++begin_;
    end_ += count;
    return true;
}

// Moves the unfinished line to the start of a buffer that has room for more.
void LineReader::MakeRoom() {
    const std::size_t left = end_ - begin_;
    const std::size_t size = std::max(kBlock, left * 2 + bytescan::kSlack);
    const char* line = buffer_ + begin_;
    if (store_ == nullptr && size <= capacity_ + bytescan::kSlack) {
        std::memmove(buffer_, line, left);
    } else {
        std::unique_ptr<char[]> memory = ready_ != nullptr && size == kBlock
                                             ? ready_->Take()
                                             : std::make_unique_for_overwrite<char[]>(size);
        char* const room = memory.get();
        std::copy_n(line, left, room);
        if (store_ != nullptr)
            store_->Lend(std::move(memory), size);
        else
            ownBuffer_ = std::move(memory);
        buffer_ = room;
        capacity_ = size - bytescan::kSlack;
    }
    begin_ = 0;
    searched_ = left;
    end_ = left;
}

std::string_view LineReader::Decode(std::string_view line) {
    while (line.starts_with(kUtf8Mark))
        line.remove_prefix(kUtf8Mark.size());
    if (bytescan::IsUtf8(line.data(), line.data() + line.size()))
        return line;
    const std::string text =
        bytes_.Marked() ? ToValidUtf8(line) : codePages_.ToUtf8(line, platform::CodePages::kSystem);
    decoded_.assign(text).append(bytescan::kSlack, '\0');
    return std::string_view(decoded_).substr(0, text.size());
}

std::int32_t CountFileLines(platform::Files& files, std::string_view path, ReadyBlocks* ready) {
    LogBytes bytes(files.OpenForReading(path));
    const auto buffer = std::make_unique_for_overwrite<char[]>(kBlock);
    std::int64_t lines = 1;
    char last = '\n';
    while (const std::size_t count = bytes.Read(buffer.get(), kBlock)) {
        lines += static_cast<std::int64_t>(
            bytescan::CountLineEnds(buffer.get(), buffer.get() + count, last == '\r'));
        last = buffer[count - 1];
        if (ready)
            ready->Expect(count);
    }
    if (last != '\n' && last != '\r')
        ++lines;  // the last line has no end
    return NarrowChecked(lines);
}

}  // namespace ordalyn

// Any bytes as a log file: every line is read, each gives its parts or a clean error.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Require.h"
#include "base/Errors.h"
#include "base/Text.h"
#include "log/LineReader.h"
#include "log/LogLine.h"
#include "support/log/SimpleLines.h"
#include "support/platform/MemoryCodePages.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

// Gives the bytes in pieces whose sizes vary, so that every border falls everywhere.
class Pieces : public platform::ReadableFile {
  public:
    explicit Pieces(std::string_view bytes) : rest_(bytes) {}
    std::size_t Read(char* buffer, std::size_t capacity) override {
        const std::size_t piece = 1 + (rest_.empty() ? 0 : static_cast<unsigned char>(rest_[0]));
        const std::size_t count = std::min({piece, capacity, rest_.size()});
        std::memcpy(buffer, rest_.data(), count);
        rest_.remove_prefix(count);
        return count;
    }

  private:
    std::string_view rest_;
};

void CheckLine(std::string_view line) {
    Require(IsValidUtf8(line), "a line is UTF-8");
    Require(line.find_first_of("\r\n") == std::string_view::npos, "a line has no line end");
    const std::string_view trimmed = TrimBlanks(line);
    if (trimmed.empty())
        return;
    if (IsCommentLine(trimmed)) {
        Require(CommentSource(trimmed).starts_with("; "), "a comment says so");
        return;
    }
    try {
        const LogLine parts = SplitOperationLine(trimmed);
        Require(trimmed.starts_with(parts.date), "the date comes first");
        Require(parts.date.find(' ') == std::string_view::npos, "the date has no blank");
        Require(parts.source.find("->") == std::string_view::npos, "the first arrow cuts");
        Require(trimmed.ends_with(parts.target), "the target comes last");
        Require(parts.source.ends_with(OperationText(parts.source)),
                "the operation ends the source");
        Require(parts.source.starts_with(TimeText(parts.source)), "the time begins the source");
    } catch (const Error&) {
        Require(trimmed.find(' ') == std::string_view::npos, "only a line without a blank fails");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    test::MemoryCodePages codePages;
    const std::vector<std::string> expected = test::SimpleLines(bytes, codePages);
    std::size_t lines = 0;
    TextStore store;
    LineReader storing(std::make_unique<Pieces>(bytes), codePages, &store);
    LineReader reader(std::make_unique<Pieces>(bytes), codePages);
    LineReader skipping(std::make_unique<Pieces>(bytes), codePages);
    while (const auto line = reader.Next()) {
        CheckLine(*line);
        Require(lines < expected.size() && *line == expected[lines],
                "a line is what a simple reader says");
        ++lines;
        const auto stored = storing.Next();
        Require(stored && store.Text(store.Add(*stored)) == *line,
                "a line read into a store is the same");
        Require(skipping.Skip(), "skipping sees as many lines as reading");
    }
    Require(lines == expected.size() && !skipping.Skip(), "and no more");
    return 0;
}

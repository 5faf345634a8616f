// Any bytes as a log that grows piece by piece while it is read: in the end the entries are those
// of a file that is read at once.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Choices.h"
#include "Require.h"
#include "log/AppendedLines.h"
#include "log/LogReader.h"
#include "support/platform/MemoryCodePages.h"
#include "support/platform/MemoryFiles.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

constexpr std::string_view kLog = "C:\\logs\\tc.log";

void RequireEqual(const cStringArray& grown, const cStringArray& whole) {
    Require(grown.ListCount() == whole.ListCount(), "as many entries as in a whole read");
    for (std::int32_t i = 0; i <= whole.ListCount(); ++i)
        Require(grown.List(i) == whole.List(i), "an entry is that of a whole read");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Choices choices(data, size);
    const int pieces = 1 + choices.Of(5);
    std::size_t ends[5] = {};
    for (int i = 0; i < pieces; ++i)
        ends[i] = static_cast<std::size_t>(choices.Of(256));
    // A comment that is appended is split like any other line, deliberately.
    std::string bytes(choices.Rest());
    for (char& byte : bytes)
        byte = byte == ';' ? ',' : byte;

    test::MemoryFiles files;
    test::MemoryCodePages codePages;
    EntryLists grown;
    PassedOverLines passedOver;
    std::size_t there = std::min(ends[0], bytes.size());
    files.Set(kLog, std::string_view(bytes).substr(0, there));
    LogReader first(files, codePages, grown, &passedOver);
    first.ReadGrowingFile(kLog);
    LogMark mark = first.Mark();
    AppendedLines appended(files, codePages, grown, &passedOver);
    for (int i = 1; i <= pieces; ++i) {
        const std::size_t end =
            i == pieces ? bytes.size() : std::min(there + ends[i], bytes.size());
        files.Append(kLog, std::string_view(bytes).substr(there, end - there));
        there = end;
        Require(appended.Read(mark) != AppendedLines::Found::AnotherFile, "it is the same file");
        Require(appended.Read(mark) == AppendedLines::Found::Nothing, "nothing is new twice");
    }

    EntryLists whole;
    LogReader atOnce(files, codePages, whole, &passedOver);
    atOnce.ReadGrowingFile(kLog);
    RequireEqual(grown.EntryDates(), whole.EntryDates());
    RequireEqual(grown.EntrySources(), whole.EntrySources());
    RequireEqual(grown.EntryTargets(), whole.EntryTargets());
    return 0;
}

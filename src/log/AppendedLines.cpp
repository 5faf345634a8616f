#include "log/AppendedLines.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "log/LineReader.h"
#include "log/LogLine.h"

namespace ordalyn {

namespace {

using LastLine = LogMark::LastLine;

class OtherBytes : public Error {
  public:
    OtherBytes() : Error("The file does not begin with what was read") {}
};

// A file that begins with what was read of it; another one throws OtherBytes as soon as that is
// seen, at its end at the latest.
class ContinuedFile : public platform::ReadableFile {
  public:
    ContinuedFile(std::unique_ptr<platform::ReadableFile> file, const FileTrace& before,
                  FileTrace& trace)
        : file_(std::move(file)), before_(before), trace_(trace) {}

    std::size_t Read(char* buffer, std::size_t capacity) override {
        const std::size_t count = file_->Read(buffer, capacity);
        std::size_t old = 0;
        if (trace_.Size() < before_.Size()) {
            old = static_cast<std::size_t>(
                std::min<std::uint64_t>(count, before_.Size() - trace_.Size()));
            trace_.Add(buffer, old);
            const bool all = trace_.Size() == before_.Size();
            if (all ? trace_ != before_ : count == 0)
                throw OtherBytes();
        }
        trace_.Add(buffer + old, count - old);
        return count;
    }

  private:
    std::unique_ptr<platform::ReadableFile> file_;
    const FileTrace& before_;
    FileTrace& trace_;
};

bool Equal(const LogLine& a, const LogLine& b) {
    return a.date == b.date && a.source == b.source && a.target == b.target;
}

LogLine FieldsOf(const EntryLists& entries, std::int32_t entry) {
    return {entries.EntryDates().List(entry), entries.EntrySources().List(entry),
            entries.EntryTargets().List(entry)};
}

}  // namespace

AppendedLines::Found AppendedLines::Read(LogMark& mark) {
    lineNumber_ = 0;
    std::unique_ptr<platform::ReadableFile> file = files_.OpenForReading(mark.path);
    lineNumber_ = mark.lineCount;
    LogMark moved{.path = mark.path, .lineCount = 1, .lastLine = LastLine::Finished, .trace = {}};
    // Beside the lists until the file has been read to its end: only then is it known whether it is
    // the one that was read before.
    EntryLists added;
    PassedOverLines passedOver;
    bool malformed = false;
    try {
        LineReader lines(std::make_unique<ContinuedFile>(std::move(file), mark.trace, moved.trace),
                         codePages_);
        malformed = !Collect(lines, mark, moved, added, passedOver);
    } catch (const OtherBytes&) {
        return Found::AnotherFile;
    }
    if (moved.trace.Size() < mark.trace.Size())
        return Found::AnotherFile;
    const bool more = moved.lineCount > mark.lineCount;
    const bool changed = Append(added, mark.lastLine == LastLine::UnfinishedEntry);
    mark = std::move(moved);
    if (passedOver_)
        *passedOver_ = std::move(passedOver);
    if (malformed)
        throw MalformedText("A line of the log has no blank");
    return more || changed ? Found::Lines : Found::Nothing;
}

// Returns false at a line that is none of a log and ends the read.
bool AppendedLines::Collect(LineReader& lines, const LogMark& mark, LogMark& moved,
                            EntryLists& added, PassedOverLines& passedOver) const {
    const bool again = mark.lastLine != LastLine::Finished;
    const std::int32_t old = mark.lineCount - (again ? 1 : 0);
    while (moved.lineCount < old && lines.Skip())
        ++moved.lineCount;
    // What was begun as a comment is one: an entry of a whole read.
    const std::int32_t last = entries_.EntryDates().ListCount();
    bool comment = mark.lastLine == LastLine::UnfinishedEntry && last >= 0 &&
                   entries_.EntryDates().List(last).empty();
    while (const std::optional<std::string_view> line = lines.Next()) {
        const std::string_view trimmed = TrimLogLine(*line);
        const bool whole = trimmed.empty() || FirstBlank(trimmed) != trimmed.size() || comment;
        if (lines.Unfinished()) {
            if (!whole)
                return true;
            moved.lastLine =
                trimmed.empty() ? LastLine::UnfinishedBlank : LastLine::UnfinishedEntry;
        }
        // The count grows before a line is looked at: a malformed line is not met again next time.
        const std::int32_t number = moved.lineCount;
        moved.lineCount = CheckedAdd(number, 1);
        if (!whole) {
            if (!passedOver_)
                return false;
            passedOver.Note(mark.path, number);
            continue;
        }
        if (std::exchange(comment, false) && IsCommentLine(trimmed))
            added.AddWithoutFile({{}, CommentSource(trimmed), {}});
        else if (!trimmed.empty())
            added.AddWithoutFile(SplitOperationLine(trimmed));
    }
    return true;
}

// Returns whether an entry is another one than before.
bool AppendedLines::Append(const EntryLists& added, bool replacesLast) {
    bool changed = false;
    for (std::int32_t i = 0; i <= added.EntrySources().ListCount(); ++i) {
        const LogLine fields = FieldsOf(added, i);
        if (i > 0 || !replacesLast) {
            entries_.AddWithoutFile(fields);
            changed = true;
        } else if (!Equal(fields, FieldsOf(entries_, entries_.EntrySources().ListCount()))) {
            entries_.ReplaceLast(fields);
            changed = true;
        }
    }
    return changed;
}

}  // namespace ordalyn

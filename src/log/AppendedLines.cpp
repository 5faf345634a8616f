#include "log/AppendedLines.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "base/Text.h"
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

// The last line that was read, without its end, as far as it has come; it is to be read again, and
// what stands in front of it is not. Nothing where that cannot be told from the last bytes alone: a
// line that is longer, a CR that may be half a line end, characters of 16 bits.
std::optional<std::string_view> LineToReadAgain(const LogMark& mark) {
    const std::string_view head = mark.trace.Head();
    const std::string_view tail = mark.trace.Tail();
    const std::size_t end = tail.find_last_of("\r\n");
    if (mark.cutShort || head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF") ||
        end == std::string_view::npos || tail.ends_with('\r'))
        return std::nullopt;
    return tail.substr(end + 1);
}

// Whether the file has these bytes there. It then stands behind them.
bool HasBytes(platform::ReadableFile& file, std::uint64_t place, std::string_view bytes) {
    if (!file.Seek(place))
        return false;
    std::string found(bytes.size(), '\0');
    std::size_t count = 0;
    while (count < found.size()) {
        const std::size_t more = file.Read(found.data() + count, found.size() - count);
        if (more == 0)
            break;
        count += more;
    }
    return count == found.size() && found == bytes;
}

// What has been added to a file, with the line that it goes on with. A line end stands in front, so
// that the beginning of that line is not taken for what says how the whole file is encoded.
class AddedBytes : public platform::ReadableFile {
  public:
    // `file` stands where it was read to.
    AddedBytes(std::unique_ptr<platform::ReadableFile> file, std::string_view line,
               FileTrace& trace)
        : file_(std::move(file)), trace_(trace) {
        if (trace.Head().starts_with(kUtf8Mark))
            before_ = kUtf8Mark;
        before_.append("\n").append(line);
    }

    std::size_t Read(char* buffer, std::size_t capacity) override {
        if (!before_.empty()) {
            const std::size_t count = std::min(capacity, before_.size());
            before_.copy(buffer, count);
            before_.erase(0, count);
            return count;
        }
        const std::size_t count = file_->Read(buffer, capacity);
        trace_.Add(buffer, count);
        return count;
    }

  private:
    std::unique_ptr<platform::ReadableFile> file_;
    FileTrace& trace_;
    std::string before_;
};

bool Equal(const LogLine& a, const LogLine& b) {
    return a.date == b.date && a.source == b.source && a.target == b.target;
}

LogLine FieldsOf(const EntryLists& entries, std::int32_t entry) {
    return {entries.EntryDates().List(entry), entries.EntrySources().List(entry),
            entries.EntryTargets().List(entry)};
}

// The number of the first line that is to be read: one that had no end is read again.
std::int32_t FirstToRead(const LogMark& mark) {
    return mark.lineCount - (mark.lastLine != LastLine::Finished ? 1 : 0);
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
        const std::optional<std::string_view> line = LineToReadAgain(mark);
        const FileTrace& before = mark.trace;
        // The same bytes that are compared when all of the file is read.
        const bool goesOn = line && HasBytes(*file, 0, before.Head()) &&
                            HasBytes(*file, before.Size() - before.Tail().size(), before.Tail());
        if (goesOn) {
            moved.trace = before;
            moved.lineCount = FirstToRead(mark);
        } else {
            file->Seek(0);
        }
        LineReader lines(
            goesOn ? std::unique_ptr<platform::ReadableFile>(
                         std::make_unique<AddedBytes>(std::move(file), *line, moved.trace))
                   : std::make_unique<ContinuedFile>(std::move(file), before, moved.trace),
            codePages_);
        if (goesOn)
            lines.Skip();
        malformed = !Collect(lines, mark, moved, added, passedOver);
    } catch (const OtherBytes&) {
        return Found::AnotherFile;
    }
    if (moved.trace.Size() < mark.trace.Size())
        return Found::AnotherFile;
    moved.cutShort = malformed;
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
    const std::int32_t old = FirstToRead(mark);
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

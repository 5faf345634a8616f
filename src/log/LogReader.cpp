#include "log/LogReader.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "base/FileNames.h"
#include "log/LineReader.h"
#include "log/LogLine.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kProgressSteps = 200;
constexpr std::int32_t kUncounted = std::numeric_limits<std::int32_t>::max();

}  // namespace

void LogReader::BeginFile(std::string_view path) {
    lineNumber_ = 0;
    currentLogFile_ = path;
    // Of a file that was begun before, or one that cannot be read, nothing is kept.
    ready_.reset();
    auto ready = std::make_unique<ReadyBlocks>(TextStore::kLeastLoan);
    lineCount_ = CountFileLines(files_, path, ready.get());
    ready_ = std::move(ready);
}

void LogReader::ReadEntries(const Progress& progress) {
    ReadLines(lineCount_, progress);
}

void LogReader::ReadGrowingFile(std::string_view path) {
    currentLogFile_ = path;
    ready_.reset();
    ReadLines(kUncounted, {});
    lineCount_ = mark_.lineCount;
}

void LogReader::ReadLines(std::int32_t mostLines, const Progress& progress) {
    lineNumber_ = 0;
    mark_ = {};
    // Gone at the end, and at a failure.
    const std::unique_ptr<ReadyBlocks> ready = std::move(ready_);
    LogMark mark;
    mark.path = currentLogFile_;
    entries_.SetFile(GetFileName(currentLogFile_));
    const std::int32_t step = std::max(mostLines / kProgressSteps, 1);
    // The line at which there is more to do than to read it: the bar moves, or has come to its end.
    std::int32_t nextStop = step;
    LineReader lines(
        std::make_unique<TracedFile>(files_.OpenForReading(currentLogFile_), mark.trace),
        codePages_, &entries_.Texts(), ready.get());
    std::string comment;
    while (const std::optional<std::string_view> line = lines.Next()) {
        if (++lineNumber_ >= nextStop) [[unlikely]] {
            if (lineNumber_ >= mostLines)
                throw InvalidPropertyValue("progress beyond " + std::to_string(mostLines));
            nextStop = lineNumber_ + std::min(step, mostLines - lineNumber_);
            if (progress)
                progress(lineNumber_ + 1);
        }
        const std::string_view trimmed = TrimLogLine(*line);
        if (lines.Unfinished()) [[unlikely]] {
            // Beside a program that writes, that much of a line is not yet one to judge.
            if (mostLines == kUncounted && !IsWholeLogLine(trimmed)) {
                --lineNumber_;
                break;
            }
            mark.lastLine = trimmed.empty() ? LogMark::LastLine::UnfinishedBlank
                                            : LogMark::LastLine::UnfinishedEntry;
        }
        if (trimmed.empty())
            continue;
        if (passedOver_ && !IsWholeLogLine(trimmed)) {
            passedOver_->Note(currentLogFile_, lineNumber_);
            if (lines.Unfinished())
                mark.lastLine = LogMark::LastLine::UnfinishedBlank;
            continue;
        }
        LogLine fields;
        if (IsCommentLine(trimmed)) {
            comment = CommentSource(trimmed);
            fields = {{}, comment, {}};
        } else {
            fields = SplitOperationLine(trimmed);
        }
        entries_.Add(fields);
    }
    mark.lineCount = CheckedAdd(lineNumber_, 1);
    mark_ = std::move(mark);
}

}  // namespace ordalyn

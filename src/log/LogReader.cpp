#include "log/LogReader.h"

#include <algorithm>
#include <optional>

#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "base/FileNames.h"
#include "base/Text.h"
#include "log/LineReader.h"
#include "log/LogLine.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kProgressSteps = 200;

std::string_view Trim(std::string_view line) {
    const bool blanks = !line.empty() && (line.front() == ' ' || line.back() == ' ');
    return blanks ? TrimBlanks(line) : line;
}

}  // namespace

void LogReader::BeginFile(std::string_view path) {
    lineNumber_ = 0;
    currentLogFile_ = path;
    lineCount_ = CountFileLines(files_, path);
}

void LogReader::ReadEntries(const Progress& progress) {
    lineNumber_ = 0;
    entries_.SetFile(GetFileName(currentLogFile_));
    const std::int32_t step = std::max(lineCount_ / kProgressSteps, 1);
    // The line at which there is more to do than to read it: the bar moves, or has come to its end.
    std::int32_t nextStop = step;
    LineReader lines(files_.OpenForReading(currentLogFile_), codePages_, &entries_.Texts());
    std::string comment;
    while (const std::optional<std::string_view> line = lines.Next()) {
        if (++lineNumber_ >= nextStop) [[unlikely]] {
            if (lineNumber_ >= lineCount_)
                throw InvalidPropertyValue("progress beyond " + std::to_string(lineCount_));
            nextStop = lineNumber_ + std::min(step, lineCount_ - lineNumber_);
            if (progress)
                progress(lineNumber_ + 1);
        }
        const std::string_view trimmed = Trim(*line);
        if (trimmed.empty())
            continue;
        LogLine fields;
        if (IsCommentLine(trimmed)) {
            comment = CommentSource(trimmed);
            fields = {{}, comment, {}};
        } else {
            fields = SplitOperationLine(trimmed);
        }
        entries_.Add(fields);
    }
}

bool LogReader::ReadAppendedLines(std::string_view path) {
    lineNumber_ = 0;
    LineReader lines(files_.OpenForReading(path), codePages_);
    for (std::int32_t line = 1; line != lineCount_ && lines.Skip();)
        line = CheckedAdd(line, 1);
    const std::int32_t before = lineCount_;
    lineNumber_ = before;
    // The count grows before a line is looked at: a malformed line is not met again next time.
    while (const std::optional<std::string_view> line = lines.Next()) {
        lineCount_ = CheckedAdd(lineCount_, 1);
        const std::string_view trimmed = Trim(*line);
        if (!trimmed.empty())
            entries_.AddWithoutFile(SplitOperationLine(trimmed));
    }
    return lineCount_ > before;
}

}  // namespace ordalyn

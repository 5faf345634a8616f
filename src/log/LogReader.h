// LogReader: reads whole log files into entry lists, one or several one after the other. Dialogs,
// progress window and messages are its caller's.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "lists/ReadyBlocks.h"
#include "log/EntryLists.h"
#include "log/LogMark.h"
#include "log/PassedOverLines.h"
#include "platform/Platform.h"

namespace ordalyn {

class LogReader {
  public:
    // Takes the progress bar's value. Called some two hundred times in a read, when a bar moves.
    using Progress = std::function<void(std::int32_t value)>;

    // A line that no log has ends a read, unless there is a place to note that it was passed over,
    // which may hold those of other files already.
    LogReader(platform::Files& files, platform::CodePages& codePages, EntryLists& entries,
              PassedOverLines* passedOver = nullptr)
        : files_(files), codePages_(codePages), entries_(entries), passedOver_(passedOver) {}

    // The file that was begun last, and its lines PLUS ONE as they were counted (0 before the first
    // file): the maximum of a progress bar for the read.
    const std::string& CurrentLogFile() const { return currentLogFile_; }
    std::int32_t LineCount() const { return lineCount_; }
    // The number that a message about a failure names: the line being processed, blank lines
    // counted, 0 before the first; after the read, that of the last line.
    std::int32_t LineNumber() const { return lineNumber_; }
    // What has been read of the file, once all of it has been: from there it can be gone on with.
    const LogMark& Mark() const { return mark_; }

    // Reading a whole file takes two operations, because the caller shows its progress window
    // between them. BeginFile makes the file current and counts its lines in a pass of its own;
    // LineCount keeps its value when that fails. Throws FileError, Overflow.
    void BeginFile(std::string_view path);
    // Reads the current file, appending an entry to all four lists for every comment and operation
    // line. The file is closed when this returns or throws; what was read before a failure stays in
    // the lists. Throws FileError; MalformedText for an operation line without a blank that is not
    // to be passed over;
    // InvalidPropertyValue when the file has more lines than were counted, which would take the
    // progress bar past its maximum.
    void ReadEntries(const Progress& progress = {});
    // Both in one pass, for a file that another program is writing: however many lines it has, and
    // a last one that is not there yet up to its first blank is left for later.
    void ReadGrowingFile(std::string_view path);

  private:
    void ReadLines(std::int32_t mostLines, const Progress& progress);

    platform::Files& files_;
    platform::CodePages& codePages_;
    EntryLists& entries_;
    PassedOverLines* passedOver_;
    // Memory for the text of the file that has been begun.
    std::unique_ptr<ReadyBlocks> ready_;
    std::string currentLogFile_;
    std::int32_t lineCount_ = 0;
    std::int32_t lineNumber_ = 0;
    LogMark mark_;
};

}  // namespace ordalyn
